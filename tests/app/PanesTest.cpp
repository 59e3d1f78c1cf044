// SPDX-License-Identifier: GPL-3.0-or-later
// What all panes of the main window have in common.
#include "support/ui/OpenedAddresses.h"
#include "support/ui/TableFixture.h"

#include "kit/Settings.h"

#include <QApplication>
#include <QDockWidget>
#include <QScrollBar>
#include <QTest>

namespace orvane {
namespace {

struct PaneCase {
    const char* Command;
    const char* Name;
    const char* HelpPage;
    Qt::Orientation Across;
};

std::ostream& operator<<(std::ostream& out, const PaneCase& pane) { return out << pane.Name; }

class Panes : public TableFixture, public testing::WithParamInterface<PaneCase> {
  protected:
    void SetUp() override {
        Settings().remove(QStringLiteral("PaneSizes"));
        StartOn(PumpDocument());
        Window().resize(1100, 700);
        Window().activateWindow();
        QApplication::processEvents();
    }
    void TearDown() override { Settings().remove(QStringLiteral("PaneSizes")); }

    QDockWidget& Pane() { return *Find<QDockWidget>(GetParam().Name); }
    void Toggle() {
        Trigger(GetParam().Command);
        Settle();
    }
    // The main window moves its panes step by step.
    void Settle() {
        QRect former;
        EXPECT_TRUE(QTest::qWaitFor([&] { return std::exchange(former, Grid()->geometry()) == former; }));
    }
    int Size() { return GetParam().Across == Qt::Horizontal ? Pane().width() : Pane().height(); }
    void Drag(int size) {
        Window().resizeDocks({&Pane()}, {size}, GetParam().Across);
        Settle();
    }
    // Makes the last cell that is whole in sight the current one.
    void GoToTheCorner() {
        const QPoint corner = Grid()->viewport()->rect().bottomRight();
        const QModelIndex cut = Grid()->indexAt(corner);
        Grid()->setCurrentIndex(cut.siblingAtColumn(cut.column() - 1).siblingAtRow(cut.row() - 1));
    }
    bool IsCurrentSeenWhole() {
        const QRect cell = Grid()->visualRect(Grid()->currentIndex());
        return Grid()->viewport()->rect().contains(cell) && cell.left() >= Grid()->columnWidth(0);
    }
};

TEST_P(Panes, OneCommandShowsAndHidesThePane) {
    EXPECT_EQ(Find<QDockWidget>(GetParam().Name), nullptr); // nothing is made before it is wanted
    for (int time = 0; time < 2; ++time) {
        Toggle();
        EXPECT_TRUE(Pane().isVisible());
        EXPECT_TRUE(Item(GetParam().Command)->isChecked());
        EXPECT_TRUE(Pane().isAncestorOf(QApplication::focusWidget()) ||
                    QApplication::focusWidget() == &Pane());
        Toggle();
        EXPECT_FALSE(Pane().isVisible());
        EXPECT_FALSE(Item(GetParam().Command)->isChecked());
    }
}

TEST_P(Panes, ItsOwnButtonHidesItToo) {
    Toggle();
    Pane().close();
    EXPECT_FALSE(Item(GetParam().Command)->isChecked());
    Toggle();
    EXPECT_TRUE(Pane().isVisible());
}

TEST_P(Panes, OneBehindAnotherComesToTheFront) {
    Toggle();
    auto* other = new QDockWidget(&Window());
    Window().tabifyDockWidget(&Pane(), other);
    other->show();
    other->raise();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Item(GetParam().Command)->isChecked(); }));
    Toggle();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Item(GetParam().Command)->isChecked(); }));
}

TEST_P(Panes, EscAndCtrlWHideItAndF1OpensItsPage) {
    OpenedAddresses opened;
    for (const auto& [key, modifiers] : {std::pair{Qt::Key_Escape, Qt::KeyboardModifiers()},
                                         std::pair{Qt::Key_W, Qt::KeyboardModifiers(Qt::ControlModifier)}}) {
        Toggle();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
        ASSERT_FALSE(opened.Addresses.empty());
        EXPECT_TRUE(opened.Addresses.back().toString().endsWith(QLatin1String(GetParam().HelpPage)));
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        EXPECT_FALSE(Pane().isVisible()) << key;
        EXPECT_TRUE(Grid()->hasFocus());
    }
}

TEST_P(Panes, TheCurrentCellStaysInSightWhereverThePaneTakesItsRoom) {
    GoToTheCorner();
    ASSERT_TRUE(IsCurrentSeenWhole());
    Toggle();
    EXPECT_TRUE(IsCurrentSeenWhole());
    GoToTheCorner();
    Drag(Size() + 120);
    EXPECT_TRUE(IsCurrentSeenWhole());
    GoToTheCorner();
    Window().resize(980, 550);
    Settle();
    EXPECT_TRUE(IsCurrentSeenWhole());
}

TEST_P(Panes, ATableThatWasScrolledAwayFromTheCurrentCellStaysThere) {
    Grid()->setCurrentIndex(Grid()->model()->index(6, 1));
    Grid()->horizontalScrollBar()->setValue(2000);
    Grid()->verticalScrollBar()->setValue(300);
    Toggle();
    EXPECT_EQ(Grid()->horizontalScrollBar()->value(), 2000);
    EXPECT_EQ(Grid()->verticalScrollBar()->value(), 300);
}

TEST_P(Panes, ItComesBackAsLargeAsItWasMadeInTheNextRunToo) {
    Toggle();
    const int size = Size() + 60;
    Drag(size);
    ASSERT_EQ(Size(), size);
    Window().close();
    StartOn(PumpDocument());
    Window().resize(1100, 700);
    QApplication::processEvents();
    Toggle();
    EXPECT_EQ(Size(), size);
}

TEST_P(Panes, OneThatIsNewLeavesTheTableItsPart) {
    Toggle();
    if (GetParam().Across == Qt::Vertical) { // of the table's height little is left anyway
        EXPECT_LT(Size(), Window().height() / 3);
    } else {
        EXPECT_LE(Size(), Window().width() / 2);
    }
}

TEST_P(Panes, ASizeThatWouldHideTheTableIsNotTakenOver) {
    Settings().setValue(QStringLiteral("PaneSizes/") + QLatin1String(GetParam().Name), 5000);
    Toggle();
    EXPECT_GT(Grid()->width(), 250);
    EXPECT_GT(Grid()->height(), 150);
}

INSTANTIATE_TEST_SUITE_P(Each, Panes,
                         testing::Values(PaneCase{"mnuViewCell", "dckCell", "4990.htm", Qt::Horizontal},
                                         PaneCase{"mnuViewFindings", "dckFindings", "4995.htm", Qt::Vertical},
                                         PaneCase{"mnuViewFind", "dckFind", "4985.htm", Qt::Vertical},
                                         PaneCase{"mnuViewDiagram", "dckDiagram", "4987.htm", Qt::Horizontal},
                                         PaneCase{"mnuViewRun", "dckRun", "4975.htm", Qt::Horizontal}),
                         [](const auto& each) { return std::string(each.param.Name); });

} // namespace
} // namespace orvane
