// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ui/PopUpFixture.h"

#include <QApplication>
#include <QMenu>

#include <set>

namespace orvane {

QAction* PopUpFixture::PopUpWith(int row, int column, std::string_view item) {
    Click(row, column, Qt::RightButton);
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    return menu == nullptr ? nullptr : menu->findChild<QAction*>(QLatin1String(QByteArrayView(item)));
}

bool PopUpFixture::IsOffered(int row, int column, std::string_view item) {
    const QAction* action = PopUpWith(row, column, item);
    EXPECT_NE(action, nullptr) << "no " << item << " at row " << row << ", column " << column;
    PoppedUp();
    return action != nullptr && action->isEnabled();
}

void PopUpFixture::Choose(int row, int column, std::string_view item) {
    QAction* action = PopUpWith(row, column, item);
    PoppedUp();
    ASSERT_NE(action, nullptr) << "no " << item << " at row " << row << ", column " << column;
    ASSERT_TRUE(action->isEnabled()) << item << " at row " << row << ", column " << column;
    action->trigger();
}

std::map<std::string, bool> PopUpFixture::OfferedPastes() {
    return {{"mnuPasteState", IsOffered(0, 1, "mnuPasteState")},
            {"mnuPasteEvent", IsOffered(6, 0, "mnuPasteEvent")},
            {"mnuPasteEntryAction", IsOffered(1, 1, "mnuPasteEntryAction")},
            {"mnuPasteTransition", IsOffered(6, 1, "mnuPasteTransition")},
            {"mnuPasteTransAct", IsOffered(6, 1, "mnuPasteTransAct")}};
}

std::vector<int> PopUpFixture::DrawnBy(const std::function<void()>& command) {
    std::set<int> columns;
    const auto note = [&columns](const QModelIndex& first, const QModelIndex& last) {
        for (int column = first.column(); column <= last.column(); ++column)
            columns.insert(column);
    };
    const auto connection = QObject::connect(Grid()->model(), &QAbstractItemModel::dataChanged, note);
    command();
    QObject::disconnect(connection);
    return {columns.begin(), columns.end()};
}

int PopUpFixture::UndoSteps() {
    int steps = 0;
    for (; Item("mnuUndo")->isEnabled(); ++steps)
        Trigger("mnuUndo");
    return steps;
}

} // namespace orvane
