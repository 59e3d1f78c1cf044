// SPDX-License-Identifier: GPL-3.0-or-later
// The backtrack window beside the table.
#include "support/ui/PopUpFixture.h"

#include "support/Property.h"
#include "support/RandomDocument.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>

namespace orvane {
namespace {

class Backtrack : public PopUpFixture {
  protected:
    using Lines = std::vector<std::string>;

    static QWidget* Shown() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == QLatin1String("frmBackTrack") && window->isVisible())
                return window;
        return nullptr;
    }

    static QTableWidget* List() { return Shown()->findChild<QTableWidget*>(QStringLiteral("MSFlexGrid1")); }

    static std::string Caption() { return Shown()->windowTitle().toStdString(); }

    // "event < state", line by line.
    static Lines Listed() {
        Lines lines;
        for (int row = 0; row < List()->rowCount(); ++row)
            lines.push_back(
                (List()->item(row, 0)->text() + QStringLiteral(" < ") + List()->item(row, 1)->text())
                    .toStdString());
        return lines;
    }

    static void Press(int row, int column) {
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {},
                          List()->visualItemRect(List()->item(row, column)).center());
    }
};

TEST_F(Backtrack, TheMenuOfAStateListsWhatLeadsThere) {
    FsmDocument document = PumpDocument();
    document.State(3).Targets[kTimeoutRow] = 2;
    document.State(2).Targets[kElseRow] = 2;
    document.State(1).Targets[7] = 2;
    StartOn(document);
    EXPECT_EQ(Shown(), nullptr);
    Choose(0, 2, "mnuBacktrack");
    ASSERT_NE(Shown(), nullptr);
    EXPECT_FALSE(Shown()->isModal());
    EXPECT_EQ(Caption(), "Backtracks for state: 2:Run");
    EXPECT_EQ(Listed(), (Lines{"TimeOut < 3:", "ELSE < 2:Run", "Start < 1:Idle", "Stop < 1:Idle"}));
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
}

TEST_F(Backtrack, AStateThatNothingTargetsShowsOnlyTheHeads) {
    StartOn(PumpDocument());
    Choose(0, 50, "mnuBacktrack");
    EXPECT_EQ(Caption(), "Backtracks for state: 50:");
    EXPECT_EQ(Listed(), Lines{});
    EXPECT_TRUE(List()->horizontalHeader()->isVisible());
}

TEST_F(Backtrack, AClickOnAStateWalksBackAndOnAnEventStays) {
    StartOn(PumpDocument());
    Choose(0, 1, "mnuBacktrack");
    ASSERT_EQ(Listed(), Lines{"Stop < 2:Run"});
    Press(0, 0);
    EXPECT_EQ(Caption(), "Backtracks for state: 1:Idle");
    Press(0, 1);
    EXPECT_EQ(Caption(), "Backtracks for state: 2:Run");
    EXPECT_EQ(Listed(), Lines{"Start < 1:Idle"});
    TypeTarget(6, 5, QStringLiteral("2")); // what follows is the state that was walked to
    EXPECT_EQ(Listed(), (Lines{"Start < 1:Idle", "Start < 5:"}));
}

TEST_F(Backtrack, WalkingOnStartsAtTheTopOfTheNextList) {
    FsmDocument document = PumpDocument();
    for (const StateNumber state : StateNumbers()) {
        document.State(state).Targets[6] = 1;
        document.State(state).Targets[7] = 100;
    }
    StartOn(document);
    Choose(0, 1, "mnuBacktrack");
    List()->scrollToBottom();
    Press(99, 1);
    EXPECT_EQ(Caption(), "Backtracks for state: 100:");
    EXPECT_EQ(List()->verticalScrollBar()->value(), 0);
}

TEST_F(Backtrack, TheOpenListFollowsEveryChange) {
    StartOn(PumpDocument());
    Choose(0, 2, "mnuBacktrack");
    TypeTarget(7, 3, QStringLiteral("2"));
    EXPECT_EQ(Listed(), (Lines{"Start < 1:Idle", "Stop < 3:"}));
    Choose(7, 3, "mnuCopyTransition");
    Choose(6, 9, "mnuPasteTransition");
    EXPECT_EQ(Listed(), (Lines{"Start < 1:Idle", "Start < 9:", "Stop < 3:"}));
    Choose(0, 2, "mnuInsertState"); // it shows a number, and another state has that number now
    EXPECT_EQ(Caption(), "Backtracks for state: 2:");
    EXPECT_EQ(Listed(), Lines{});
}

TEST_F(Backtrack, TheOpenListFollowsUndoAndRedo) {
    StartOn(PumpDocument());
    Choose(0, 2, "mnuBacktrack");
    TypeTarget(7, 3, QStringLiteral("2"));
    Trigger("mnuUndo");
    EXPECT_EQ(Listed(), Lines{"Start < 1:Idle"});
    Trigger("mnuRedo");
    EXPECT_EQ(Listed(), (Lines{"Start < 1:Idle", "Stop < 3:"}));
}

TEST_F(Backtrack, TheOpenListFollowsToANewDocument) {
    StartOn(PumpDocument());
    Choose(0, 2, "mnuBacktrack");
    Trigger("mnuFNew");
    EXPECT_EQ(Caption(), "Backtracks for state: 2:");
    EXPECT_EQ(Listed(), Lines{});
}

TEST_F(Backtrack, AClosedListStaysClosedAndComesBackFresh) {
    StartOn(PumpDocument());
    Choose(0, 2, "mnuBacktrack");
    Shown()->close();
    TypeTarget(7, 3, QStringLiteral("2"));
    EXPECT_EQ(Shown(), nullptr);
    Choose(0, 2, "mnuBacktrack");
    EXPECT_EQ(Listed(), (Lines{"Start < 1:Idle", "Stop < 3:"}));
}

TEST_F(Backtrack, ItGoesWithTheMainWindow) {
    StartOn(PumpDocument());
    Choose(0, 2, "mnuBacktrack");
    Window().close();
    EXPECT_EQ(Shown(), nullptr);
}

// The plain search that the list must agree with.
std::vector<std::string> LeadingTo(const FsmDocument& document, int state) {
    std::vector<std::string> lines;
    for (int row = 4; row <= 54; ++row)
        for (int from = 1; from <= 100; ++from)
            if (document.State(from).Targets[row] == state) {
                const std::string event = row == 4 ? "TimeOut" : row == 5 ? "ELSE" : document.Event(row).Name;
                lines.push_back(event + " < " + std::to_string(from) + ":" + document.State(from).Name);
            }
    return lines;
}

// Texts that look the same on the screen as in the document.
FsmDocument WithPlainNames(FsmDocument document) {
    for (const RowNumber row : EventRows())
        document.Event(row).Name = "E" + std::to_string(row.Number());
    for (const StateNumber state : StateNumbers())
        document.State(state).Name = "S" + std::to_string(state.Number());
    return document;
}

TEST_F(Backtrack, TheListAgreesWithASearchOverTheDocument) {
    StartOn(PumpDocument());
    test::ExpectProperty({.Cases = 10}, [this] {
        const FsmDocument document = WithPlainNames(*test::AnyDocument());
        StartOn(document);
        const int state = *rc::gen::inRange(1, 101);
        Choose(0, state, "mnuBacktrack");
        RC_ASSERT(Listed() == LeadingTo(document, state));
    });
}

} // namespace
} // namespace orvane
