// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/Change.h"
#include "table/TextFitting.h"
#include "table/ui/GridGeometry.h"

#include <QWidget>

#include <memory>

namespace orvane {

class CellEditor;
class FsmGridModel;
class FsmGridView;
class HoverHints;
class Session;

// The document as a table: view, model, in-place editor and hover hints as one widget. What is shown is
// always computed from the document; a redraw changes nothing there.
class TableGrid : public QWidget {
    Q_OBJECT

  public:
    // The session outlives the widget.
    explicit TableGrid(Session& session, QWidget* parent = nullptr);

    FsmGridView& View() { return *MSFlexGrid1; }
    FsmGridModel& Model() { return *model_; }
    CellEditor& Editor() { return *txtCellEdit; }
    HoverHints& Hints() { return *hints_; }

    // Draws a part of the table anew.
    void Draw(const Touched& part);
    // Shows the special rows at the heights that the document gives them.
    void ApplyRowVisibility();
    // Takes over column widths that the user has dragged.
    void TestForColumWidthChange();
    // Gives columns the width that shows their texts whole; all of them in one edit.
    void FitColumn(StateNumber column);
    void FitColumns();
    // Shows the table larger or smaller: 1 and -1 are the next sizes, 0 is the normal one. It is remembered.
    void Zoom(int steps);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void PopulateStateColumn(StateNumber column);
    void PopulateAllStateColumns();
    void PopulateRowHeaders();
    void SetZoom(int percent);
    void Measure();
    int Scale() const;

    Session& session_;
    FsmGridView* MSFlexGrid1;
    std::unique_ptr<TextMeasurer> measure_;
    FsmGridModel* model_;
    std::unique_ptr<GridGeometry> geometry_;
    int zoom_ = 100; // percent
    CellEditor* txtCellEdit;
    HoverHints* hints_;
};

} // namespace orvane
