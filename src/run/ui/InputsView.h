// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>

namespace orvane {

// A table of rows as the pane shows it: whole rows, no grid, columns as wide as what is in them.
void PrepareRunList(QTableView& list, const char* name);

// The inputs: a press with the left button is told with whether it holds the input.
class InputsView : public QTableView {
    Q_OBJECT

  public:
    using QTableView::QTableView;

  Q_SIGNALS:
    void RowPressed(const QModelIndex& index, bool holds);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

} // namespace orvane
