// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <QObject>
#include <QTableView>

#include <array>
#include <map>
#include <vector>

namespace orvane {

// A column that the user has dragged, and how wide it is now.
struct DraggedWidth {
    StateNumber Column;
    Twips Width;
};

// Lays the table's view out as the document says. The document counts in twips, the view in whole pixels; a
// width comes back only where the user has changed it, so that looking at a document alters nothing in it.
class GridGeometry : public QObject {
    Q_OBJECT

  public:
    // Both outlive this.
    GridGeometry(const FsmDocument& document, QTableView& view);

    // The height of an ordinary row.
    Twips StandardHeight() const { return standardHeight_; }

    // How large the table is shown, in percent of what the document says. Lays nothing out anew.
    void SetScale(int percent);

    // Bring the view into line with the document.
    void ApplyColumnWidth(StateNumber column);
    void ApplyColumnWidths();
    void ApplyRowHeights();

    // What has been dragged since this was last asked. Nothing while an editor is open over the table.
    std::vector<DraggedWidth> TakeDraggedWidths();

  private:
    void ColumnResized(StateNumber column, Pixels width);
    Twips DocumentWidth(StateNumber column) const;

    const FsmDocument& document_;
    QTableView& view_;
    Pixels Shown(Twips length) const;

    int scale_; // percent
    Twips standardHeight_;
    std::array<Pixels, kTableColumns> laidOut_;
    std::map<StateNumber, Pixels> dragged_; // columns that are no longer laid out so
};

} // namespace orvane
