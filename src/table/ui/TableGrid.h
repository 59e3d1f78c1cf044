// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "table/ui/GridGeometry.h"

#include <QWidget>

#include <memory>

namespace orvane {

class CellEditor;
class FsmGridModel;
class FsmGridView;
class HoverHints;

// The document as a table: view, model, in-place editor and hover hints as one widget. What is shown is
// always computed from the document; these operations say what has changed there.
class TableGrid : public QWidget {
    Q_OBJECT

  public:
    // The document outlives the widget.
    explicit TableGrid(FsmDocument& document, QWidget* parent = nullptr);

    FsmGridView& View() { return *MSFlexGrid1; }
    FsmGridModel& Model() { return *model_; }
    CellEditor& Editor() { return *txtCellEdit; }
    HoverHints& Hints() { return *hints_; }

    // The height of an ordinary row, in twips.
    int StandardHeight() const { return geometry_->StandardHeight(); }

    void PopulateStateColumn(int column);
    void PopulateAllStateColumns();
    void PopulateRowHeaders();
    void RefreshGrid();
    // Shows the special rows at the heights that the document gives them.
    void ApplyRowVisibility();
    // Takes over column widths that the user has dragged.
    void TestForColumWidthChange();

  Q_SIGNALS:
    // A column with timing or an ELSE transition has put rows in sight that were hidden.
    void RowsForced();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    FsmDocument& document_;
    FsmGridView* MSFlexGrid1;
    FsmGridModel* model_;
    std::unique_ptr<GridGeometry> geometry_;
    CellEditor* txtCellEdit;
    HoverHints* hints_;
};

} // namespace orvane
