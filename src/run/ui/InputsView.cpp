// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/InputsView.h"

#include <QHeaderView>
#include <QMouseEvent>

namespace orvane {

void PrepareRunList(QTableView& list, const char* name) {
    list.setObjectName(QLatin1String(name));
    list.setSelectionBehavior(QAbstractItemView::SelectRows);
    list.setSelectionMode(QAbstractItemView::SingleSelection);
    list.setEditTriggers(QAbstractItemView::NoEditTriggers);
    list.setShowGrid(false);
    list.setWordWrap(false);
    list.setTabKeyNavigation(false);
    list.verticalHeader()->hide();
    // All rows alike: a run may have a million.
    list.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    list.verticalHeader()->setDefaultSectionSize(list.fontMetrics().height() + 4);
    list.horizontalHeader()->setStretchLastSection(true);
    list.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    list.horizontalHeader()->setHighlightSections(false);
    list.setMinimumHeight(list.fontMetrics().height() * 4);
}

void SetColumnWidths(QTableView& list, std::initializer_list<int> letters) {
    int column = 0;
    for (const int width : letters)
        list.setColumnWidth(column++, list.fontMetrics().averageCharWidth() * width);
}

void InputsView::mousePressEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    setFocus(Qt::MouseFocusReason);
    event->accept();
    if (event->button() != Qt::LeftButton || !index.isValid())
        return;
    setCurrentIndex(index);
    Q_EMIT RowPressed(index, (event->modifiers() & Qt::ControlModifier) != 0);
}

// Two clicks are two pulses.
void InputsView::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

} // namespace orvane
