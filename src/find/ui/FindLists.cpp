// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/FindLists.h"

#include <QEvent>
#include <QHeaderView>
#include <QTreeView>

#include <utility>

namespace orvane {

namespace {

// Keeps the columns of a list in proportion while the list gets its width.
class ColumnShares : public QObject {
  public:
    ColumnShares(QTreeView& list, std::vector<int> percents)
        : QObject(&list), list_(list), percents_(std::move(percents)) {
        list_.viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize) {
            const int width = list_.viewport()->width();
            for (std::size_t column = 0; column < percents_.size(); ++column)
                list_.setColumnWidth(int(column), width * percents_[column] / 100);
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    QTreeView& list_;
    std::vector<int> percents_;
};

} // namespace

QTreeView* MakeList(QWidget* parent, const char* name, const QString& accessibleName,
                    QAbstractItemModel* model, std::vector<int> percents) {
    auto* list = new QTreeView(parent);
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(accessibleName);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true); // thousands of rows are not measured one by one
    list->setAllColumnsShowFocus(true);
    list->setModel(model);
    list->header()->setStretchLastSection(true);
    new ColumnShares(*list, std::move(percents));
    return list;
}

} // namespace orvane
