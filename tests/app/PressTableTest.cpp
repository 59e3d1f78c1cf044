// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ui/TableFixture.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

namespace orvane {
namespace {

class PressTable : public TableFixture {};

TEST_F(PressTable, RightPressesPopUpTheMenuOfTheirPlace) {
    StartOn(PumpDocument());
    const std::vector<std::tuple<int, int, std::string>> places{{0, 1, "mnuColumnHead"},
                                                                {1, 1, "mnuEntryAction"},
                                                                {6, 1, "mnuTranCell"},
                                                                {54, 100, "mnuTranCell"},
                                                                {0, 0, ""},
                                                                {1, 0, ""},
                                                                {6, 0, "mnuEventLabel"},
                                                                {54, 0, "mnuEventLabel"}};
    for (const auto& [row, column, menu] : places) {
        Click(row, column, Qt::RightButton);
        EXPECT_EQ(PoppedUp(), menu) << row << "," << column;
    }
}

TEST_F(PressTable, TheSpecialRowsHaveNoMenuInColumnZeroAndTheTimedOnesHaveOneInTheStates) {
    StartOn(PumpDocument());
    for (const char* item : {"mnuShowExitAction", "mnuShowElse", "mnuShowTimingMode", "mnuShowTimeTarget"})
        Trigger(item);
    const std::vector<std::string> stateMenus{"", "", "mnuTranCell", "mnuTranCell"}; // rows 2..5
    for (int row = 2; row <= 5; ++row) {
        Click(row, 0, Qt::RightButton);
        EXPECT_EQ(PoppedUp(), "") << row;
        Click(row, 3, Qt::RightButton);
        EXPECT_EQ(PoppedUp(), stateMenus[static_cast<std::size_t>(row - 2)]) << row;
    }
}

TEST_F(PressTable, OnlyAStateThatNoPathReachesCanBeDeleted) {
    StartOn(PumpDocument());
    Click(0, 2, Qt::RightButton);
    PoppedUp();
    EXPECT_FALSE(Item("mnuDeleteState")->isEnabled());
    Click(0, 3, Qt::RightButton);
    PoppedUp();
    EXPECT_TRUE(Item("mnuDeleteState")->isEnabled());
}

TEST_F(PressTable, PressesSentToTheViewItselfWorkAsWell) {
    StartOn(PumpDocument());
    QTest::mouseClick(Grid(), Qt::LeftButton, {}, CellRect(6, 1).center());
    EXPECT_TRUE(Editor()->isVisible());
}

TEST_F(PressTable, ARightPressLeavesTheCurrentCellWhereItIs) {
    StartOn(PumpDocument());
    Grid()->setCurrentIndex(Grid()->model()->index(6, 1));
    Click(7, 2, Qt::RightButton);
    EXPECT_EQ(PoppedUp(), "mnuTranCell");
    EXPECT_EQ(Grid()->currentIndex(), Grid()->model()->index(6, 1));
}

TEST_F(PressTable, ACellWiderThanTheWindowIsShownFromItsBeginning) {
    FsmDocument document = PumpDocument();
    document.State(5).ColWidth = 3000 * 15;
    StartOn(document);
    Window().resize(500, 300);
    CellRect(6, 5);
    const QRect whole = Grid()->visualRect(Grid()->model()->index(6, 5));
    EXPECT_EQ(whole.left(), Grid()->columnWidth(0));
}

TEST_F(PressTable, EveryCellIsPressedWhereItIsShown) {
    FsmDocument document = PumpDocument();
    for (const RowNumber row : EventRows())
        document.Event(row).Name = "E" + std::to_string(row.Number());
    StartOn(document);
    Window().resize(420, 260);
    for (int row = 6; row <= 54; row += 8) {
        for (int column = 1; column <= 100; column += 11) {
            Click(row, column);
            EXPECT_EQ(Editor()->geometry(), CellRect(row, column)) << row << "," << column;
            EXPECT_EQ(Grid()->currentIndex(), Grid()->model()->index(row, column));
            QTest::keyClick(Editor(), Qt::Key_Escape);
        }
        Click(row, 0, Qt::RightButton);
        EXPECT_EQ(PoppedUp(), "mnuEventLabel") << row;
    }
    for (int column = 1; column <= 100; column += 11) {
        Click(0, column, Qt::RightButton);
        EXPECT_EQ(PoppedUp(), "mnuColumnHead") << column;
    }
}

TEST_F(PressTable, TheHeadsStayInSightWhenTheTableScrolls) {
    StartOn(PumpDocument());
    Window().resize(420, 260);
    CellRect(54, 100);
    EXPECT_EQ(Grid()->indexAt({5, 5}), Grid()->model()->index(0, 0));
    const QRect head = CellRect(0, 100);
    EXPECT_EQ(head.top(), 0);
    EXPECT_EQ(CellRect(54, 0).left(), 0);
    EXPECT_EQ(CellRect(54, 100).left(), head.left());
}

TEST_F(PressTable, ShiftPressesOnEventsWalkTheCurrentStateThroughTheMachine) {
    StartOn(PumpDocument());
    Click(0, 1, Qt::RightButton);
    PoppedUp();
    Trigger("mnuCurrentState");
    EXPECT_EQ(Colour(0, 1), QColor(255, 0, 0));
    Click(6, 0, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(Colour(0, 1), QColor(204, 255, 255));
    EXPECT_EQ(Colour(0, 2), QColor(255, 0, 0));
    Click(7, 0, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(Colour(0, 1), QColor(255, 0, 0));
    EXPECT_EQ(Colour(0, 2), QColor(204, 255, 255));
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
}

TEST_F(PressTable, TwoQuickShiftPressesAreTwoSteps) {
    FsmDocument document = PumpDocument();
    document.State(2).Targets[6] = 3;
    StartOn(document);
    Click(0, 1, Qt::RightButton);
    PoppedUp();
    Trigger("mnuCurrentState");
    Click(6, 0, Qt::LeftButton, Qt::ShiftModifier);
    QTest::mouseDClick(Grid()->viewport(), Qt::LeftButton, Qt::ShiftModifier, CellRect(6, 0).center());
    EXPECT_EQ(Colour(0, 3), QColor(255, 0, 0));
}

TEST_F(PressTable, AStepShowsWhereTheSameEventLeadsNext) {
    FsmDocument document = PumpDocument();
    document.State(2).Targets[6] = 3;
    StartOn(document);
    Click(0, 1, Qt::RightButton);
    PoppedUp();
    Trigger("mnuCurrentState");
    Click(6, 0, Qt::LeftButton, Qt::ShiftModifier);
    auto* marker = Find<QWidget>("picNextStateMarker");
    EXPECT_EQ(Colour(6, 2), QColor(255, 255, 0));
    EXPECT_TRUE(marker->isVisible());
    EXPECT_EQ(marker->pos(), CellRect(0, 3).topLeft());
}

TEST_F(PressTable, AStepToWhereTheSameEventLeadsNowhereTakesTheMarkerAway) {
    FsmDocument document = PumpDocument();
    document.State(2).Targets[6] = 3;
    StartOn(document);
    Click(0, 1, Qt::RightButton);
    PoppedUp();
    Trigger("mnuCurrentState");
    const auto* marker = Find<QWidget>("picNextStateMarker");
    Click(6, 0, Qt::LeftButton, Qt::ShiftModifier);
    ASSERT_TRUE(marker->isVisible());
    Click(6, 0, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(Colour(0, 3), QColor(255, 0, 0));
    EXPECT_FALSE(marker->isVisible());
    EXPECT_EQ(Colour(6, 2), QColor(255, 255, 255));
}

TEST_F(PressTable, AShiftPressOnlySelectsWithoutACurrentStateOrATransition) {
    StartOn(PumpDocument());
    Click(6, 0, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(Grid()->currentIndex(), Grid()->model()->index(6, 0));
    for (int column = 1; column <= 100; ++column)
        EXPECT_EQ(Colour(0, column), QColor(204, 255, 255));
    Click(0, 1, Qt::RightButton);
    PoppedUp();
    Trigger("mnuCurrentState");
    Click(7, 0, Qt::LeftButton, Qt::ShiftModifier); // state 1 does not know this event
    EXPECT_EQ(Colour(0, 1), QColor(255, 0, 0));
}

TEST_F(PressTable, ShiftWithAnotherKeyDoesNotStep) {
    StartOn(PumpDocument());
    Click(0, 1, Qt::RightButton);
    PoppedUp();
    Trigger("mnuCurrentState");
    Click(6, 0, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(Colour(0, 1), QColor(255, 0, 0));
}

TEST_F(PressTable, TheShiftKeyShowsItsMarkWhileItIsHeld) {
    StartOn(PumpDocument());
    QTest::keyPress(Grid(), Qt::Key_Shift);
    EXPECT_EQ(Panel("Panel1"), "*");
    QTest::keyRelease(Grid(), Qt::Key_Shift);
    EXPECT_EQ(Panel("Panel1"), "");
}

TEST_F(PressTable, ShiftIsNoLongerHeldWhenTheFocusGoes) {
    StartOn(PumpDocument());
    QTest::keyPress(Grid(), Qt::Key_Shift);
    ASSERT_EQ(Panel("Panel1"), "*");
    Trigger("mnuBuilder"); // the key is released over there
    EXPECT_TRUE(QTest::qWaitFor([this] { return Panel("Panel1").empty(); }));
    MoveTo(6, 1);
    EXPECT_FALSE(Find<QWidget>("picNextStateMarker")->isVisible());
}

TEST_F(PressTable, TheCurrentStateIsForgottenWithTheDocument) {
    StartOn(PumpDocument());
    Click(0, 2, Qt::RightButton);
    PoppedUp();
    Trigger("mnuCurrentState");
    Trigger("mnuFNew");
    EXPECT_EQ(Colour(0, 2), QColor(204, 255, 255));
}

TEST_F(PressTable, WhatCanBePastedFollowsWhatWasCopied) {
    StartOn(PumpDocument());
    Click(7, 2, Qt::RightButton);
    PoppedUp();
    EXPECT_FALSE(Item("mnuPasteTransition")->isEnabled());
    Trigger("mnuCopyTransition");
    Click(6, 2, Qt::RightButton);
    PoppedUp();
    EXPECT_TRUE(Item("mnuPasteTransition")->isEnabled());
    EXPECT_TRUE(Item("mnuPasteTransAct")->isEnabled());
    Trigger("mnuPasteTransition");
    EXPECT_EQ(Text(6, 2), "1:Idle*");
    EXPECT_TRUE(Item("mnuUndo")->isEnabled());
}

TEST_F(PressTable, DeletingAnEventWithTransitionsAsksAndNoLeavesEverything) {
    StartOn(PumpDocument());
    Click(6, 0, Qt::RightButton);
    PoppedUp();
    Answers.Press(QMessageBox::No);
    Trigger("mnuDeleteEvent");
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_EQ(Answers.Seen()[0].Title, "Careful!");
    EXPECT_EQ(Answers.Seen()[0].Icon, QMessageBox::Warning);
    EXPECT_EQ(Answers.Seen()[0].Buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(Answers.Seen()[0].Text, "The event row contains one or more state transitions.\r\n"
                                      "Are you quite sure you want to delete it?");
    EXPECT_EQ(Text(6, 0), "Start");
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
    Answers.Press(QMessageBox::Yes);
    Trigger("mnuDeleteEvent");
    EXPECT_EQ(Text(6, 0), "Stop");
}

TEST_F(PressTable, InsertingAStateMovesTheOthersAndTheirTransitions) {
    StartOn(PumpDocument());
    Click(0, 2, Qt::RightButton);
    PoppedUp();
    Trigger("mnuInsertState");
    EXPECT_EQ(Text(0, 3), "3:Run");
    EXPECT_EQ(Text(6, 1), "3:Run");
    Trigger("mnuUndo");
    EXPECT_EQ(Text(6, 1), "2:Run");
}

TEST_F(PressTable, FileAndEditHaveTheirKeys) {
    Start();
    for (const auto& [item, keys] : {std::pair{"mnuFNew", "Ctrl+N"},
                                     {"mnuFOpen", "Ctrl+O"},
                                     {"mnuFSave", "Ctrl+S"},
                                     {"mnuFSaveAs", "Ctrl+Shift+S"},
                                     {"mnuUndo", "Ctrl+Z"},
                                     {"mnuRedo", "Ctrl+Y"}})
        EXPECT_EQ(Item(item)->shortcut().toString(QKeySequence::PortableText).toStdString(), keys) << item;
}

struct ExpectedItem {
    const char* Name;
    const char* Caption;
};

TEST_F(PressTable, TheMenusHoldTheirItemsInOrder) {
    Start();
    const std::vector<std::pair<const char*, std::vector<ExpectedItem>>> menus{
        {"mnuFile",
         {{"mnuFNew", "New"},
          {"mnuFOpen", "Open"},
          {"mnuFSave", "Save"},
          {"mnuFSaveAs", "Save &As"},
          {"", ""},
          {"mnuFRecent", "Recent"},
          {"mnuFRecover", "Recover earlier work"},
          {"mnuFExport", "Export..."},
          {"mnuFImport", "Import..."},
          {"mnuFPrint", "Print..."},
          {"mnuFQuit", "Quit"}}},
        {"mnuEdit",
         {{"mnuUndo", "Undo"},
          {"mnuRedo", "Redo"},
          {"", ""},
          {"mnuCutCell", "Cut"},
          {"mnuCopyCell", "Copy"},
          {"mnuPasteCell", "Paste"},
          {"mnuClearCell", "Clear"},
          {"mnuChooseTarget", "Choose target"},
          {"mnuFind", "Find"},
          {"mnuWhereUsed", "Where used"},
          {"mnuRename", "Rename"},
          {"mnuMove", "Move"},
          {"mnuGoTo", "Go to"}}},
        {"mnuCode",
         {{"mnuGeneralCode", "Edit general code"},
          {"mnuCodeGenerate", "Generate"},
          {"div3", ""},
          {"mnuBuilder", "Builder script"},
          {"mnuBuildAndTest", "Build and Test"}}},
        {"mnuPref",
         {{"mnuShowExitAction", "Show exit action row"},
          {"mnuShowElse", "Show Else row"},
          {"div2", ""},
          {"mnuShowTimingMode", "Show timeout mode"},
          {"mnuShowTimeTarget", "Show timeout target"},
          {"div4", ""},
          {"mnuPolytask", "Polytask"}}},
        {"mnuColumnHead",
         {{"mnuCopyState", "Copy state"},
          {"mnuPasteState", "Paste state"},
          {"mnuInsertState", "Insert state"},
          {"mnuDeleteState", "Delete state"},
          {"div1", ""},
          {"mnuCurrentState", "Set current state"},
          {"mnuBacktrack", "Backtrack"},
          {"", ""},
          {"mnuStateUses", "Where used"},
          {"mnuRenameState", "Rename"},
          {"mnuMoveState", "Move"}}},
        {"mnuEventLabel",
         {{"mnuInsertEvent", "Insert Event"},
          {"mnuDeleteEvent", "Delete event"},
          {"mnuCopyEvent", "Copy event"},
          {"mnuPasteEvent", "Paste event"},
          {"", ""},
          {"mnuEventUses", "Where used"},
          {"mnuRenameEvent", "Rename"},
          {"mnuMoveEvent", "Move"}}},
        {"mnuTranCell", {{"mnuTransAct", "Action ..."}, {"mnuWholeTransition", "Action + Transition ..."}}},
        {"mnuTransAct",
         {{"mnuEditTransAct", "Edit"},
          {"mnuCopyTransAct", "Copy"},
          {"mnuCutTransAct", "Cut"},
          {"mnuPasteTransAct", "Paste"}}},
        {"mnuWholeTransition",
         {{"mnuCopyTransition", "Copy"}, {"mnuCutTransition", "Cut"}, {"mnuPasteTransition", "Paste"}}},
        {"mnuEntryAction",
         {{"mnuCopyEntryAction", "Copy entry action"},
          {"mnuPasteEntryAction", "Paste entry action"},
          {"mnuDeleteEntryAction", "Delete entry action"},
          {"mnuCutEntryAction", "Cut entry action"}}}};
    for (const auto& [name, items] : menus) {
        const auto* menu = Find<QMenu>(name);
        ASSERT_NE(menu, nullptr) << name;
        ASSERT_EQ(menu->actions().size(), static_cast<qsizetype>(items.size())) << name;
        for (qsizetype i = 0; i < menu->actions().size(); ++i) {
            const ExpectedItem& item = items[static_cast<std::size_t>(i)];
            EXPECT_EQ(menu->actions()[i]->objectName().toStdString(), item.Name);
            EXPECT_EQ(menu->actions()[i]->text().toStdString(), item.Caption);
            EXPECT_EQ(menu->actions()[i]->isSeparator(), std::string(item.Caption).empty());
        }
    }
}

} // namespace
} // namespace orvane
