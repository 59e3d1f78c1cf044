// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>

#include <initializer_list>

namespace orvane {

// A table of rows as the pane shows it: whole rows, no grid.
void PrepareRunList(QTableView& list, const char* name);

// Of the first columns, in letters of a usual width; the last column takes what is left.
void SetColumnWidths(QTableView& list, std::initializer_list<int> letters);

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
