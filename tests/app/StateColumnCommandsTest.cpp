// SPDX-License-Identifier: GPL-3.0-or-later
// Whole states come and go through the menu of their heads.
#include "support/ui/PopUpFixture.h"

#include <QFile>
#include <QTest>

namespace orvane {
namespace {

class StateColumnCommands : public PopUpFixture {
  protected:
    int Width(int column) { return Grid()->columnWidth(column); }

    void ExpectNothingDone() {
        EXPECT_FALSE(Item("mnuUndo")->isEnabled());
        EXPECT_FALSE(Title().starts_with('*'));
        EXPECT_FALSE(QFile::exists(Path(QStringLiteral("machine.zls"))));
    }
};

// States in a row, each with a name and a transition to the next.
FsmDocument ChainDocument(int length) {
    FsmDocument document = PumpDocument();
    for (int state = 1; state <= length; ++state) {
        document.State(state) = document.StateTemplate();
        document.State(state).Name = "S" + std::to_string(state);
        if (state < length)
            document.State(state).Targets[6] = static_cast<std::int16_t>(state + 1);
    }
    return document;
}

TEST_F(StateColumnCommands, AStateInsertedBetweenATransitionsEndsMovesItsTargetAndDeletedMovesItBack) {
    FsmDocument document = ChainDocument(8);
    document.State(5).Targets[7] = 7;
    StartOn(document);
    Choose(0, 6, "mnuInsertState");
    EXPECT_EQ(Text(0, 6), "6:");
    EXPECT_EQ(Text(0, 7), "7:S6");
    EXPECT_EQ(Text(7, 5), "8:S7");
    EXPECT_EQ(Text(6, 5), "7:S6"); // what led to state 6 leads to it still
    Choose(0, 6, "mnuDeleteState");
    EXPECT_EQ(Text(7, 5), "7:S7");
    EXPECT_EQ(Text(6, 5), "6:S6");
    EXPECT_EQ(UndoSteps(), 2);
}

TEST_F(StateColumnCommands, WithOnlyColumn100EmptyAnInsertedStateMovesAllBehindIt) {
    FsmDocument document = ChainDocument(99);
    document.State(99).Targets[7] = 40;
    StartOn(document);
    Choose(0, 40, "mnuInsertState");
    EXPECT_EQ(Text(0, 40), "40:");
    EXPECT_EQ(Text(6, 38), "39:S39");
    EXPECT_EQ(Text(6, 39), "41:S40");
    const FsmDocument saved = SavedDocument();
    for (int state = 41; state <= 100; ++state)
        EXPECT_EQ(saved.State(state).Name, "S" + std::to_string(state - 1));
    EXPECT_EQ(saved.State(99).Targets[6], 100);
    EXPECT_EQ(saved.State(100).Targets[7], 41);
}

TEST_F(StateColumnCommands, WithoutAnEmptyColumnNoStateIsInserted) {
    StartOn(ChainDocument(100));
    Answers.Press(QMessageBox::Ok);
    const auto drawn = DrawnBy([this] { Choose(0, 50, "mnuInsertState"); });
    EXPECT_TRUE(drawn.empty());
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_EQ(Answers.Seen()[0].Title, "We have a problem here, Housten");
    EXPECT_EQ(Answers.Seen()[0].Text, "Sorry, there is no room left to insert a new column");
    EXPECT_EQ(Answers.Seen()[0].Icon, QMessageBox::Critical);
    EXPECT_EQ(Answers.Seen()[0].Buttons, QMessageBox::Ok);
    EXPECT_EQ(Text(0, 50), "50:S50");
    ExpectNothingDone();
}

TEST_F(StateColumnCommands, AStateIsInsertedAtTheLastColumnOnlyWhereOneBehindIsEmpty) {
    StartOn(PumpDocument());
    Answers.Press(QMessageBox::Ok);
    Choose(0, 100, "mnuInsertState");
    EXPECT_EQ(Answers.Seen().size(), 1u);
    ExpectNothingDone();
}

TEST_F(StateColumnCommands, AColumnWithOnlyATimingModeAndActionsCountsAsEmpty) {
    FsmDocument document = ChainDocument(99);
    document.State(100).TimingMode = 1;
    document.State(100).Actions[6] = ";lost";
    StartOn(document);
    Choose(0, 99, "mnuInsertState");
    const FsmDocument saved = SavedDocument();
    EXPECT_EQ(saved.State(100).Name, "S99");
    EXPECT_EQ(saved.State(100).Actions[6], "");
}

TEST_F(StateColumnCommands, WidthsTravelWithTheirStatesAndThePointerTakesNoneForADrag) {
    FsmDocument document = ChainDocument(4);
    document.State(2).ColWidth = 3000;
    document.State(3).ColWidth = 601; // not a whole number of pixels
    StartOn(document);
    Choose(0, 2, "mnuInsertState");
    EXPECT_EQ(Width(2), 63);
    EXPECT_EQ(Width(3), 200);
    EXPECT_EQ(Width(4), 40);
    for (int column = 1; column <= 4; ++column)
        MoveTo(6, column);
    FsmDocument saved = SavedDocument();
    EXPECT_EQ(saved.State(2).ColWidth, 945);
    EXPECT_EQ(saved.State(3).ColWidth, 3000);
    EXPECT_EQ(saved.State(4).ColWidth, 601);
    Choose(0, 2, "mnuDeleteState");
    EXPECT_EQ(Width(2), 200);
    EXPECT_EQ(Width(4), 63);
    MoveTo(6, 2);
    saved = SavedDocument();
    EXPECT_EQ(saved.State(2).ColWidth, 3000);
    EXPECT_EQ(saved.State(3).ColWidth, 601);
}

TEST_F(StateColumnCommands, ADraggedWidthTravelsToo) {
    StartOn(ChainDocument(4));
    const QRect head = CellRect(0, 2);
    const QPoint border(head.right() + 1, head.center().y());
    QTest::mousePress(Grid()->viewport(), Qt::LeftButton, {}, border);
    QTest::mouseMove(Grid()->viewport(), border + QPoint(57, 0));
    QTest::mouseRelease(Grid()->viewport(), Qt::LeftButton, {}, border + QPoint(57, 0));
    ASSERT_EQ(Width(2), 120);
    Choose(0, 1, "mnuInsertState");
    EXPECT_EQ(Width(2), 63);
    EXPECT_EQ(Width(3), 120);
    EXPECT_EQ(SavedDocument().State(3).ColWidth, 1800);
}

TEST_F(StateColumnCommands, DeletingIsOfferedByTheTableAsItIsWhenTheMenuComesUp) {
    StartOn(ChainDocument(3));
    EXPECT_TRUE(IsOffered(0, 1, "mnuDeleteState")); // nothing leads back to where the machine starts
    EXPECT_FALSE(IsOffered(0, 3, "mnuDeleteState"));
    EXPECT_TRUE(IsOffered(0, 5, "mnuDeleteState"));
    TypeTarget(7, 3, QStringLiteral("5"));
    EXPECT_FALSE(IsOffered(0, 5, "mnuDeleteState"));
    TypeTarget(6, 1, QStringLiteral("1"));
    EXPECT_FALSE(IsOffered(0, 1, "mnuDeleteState"));
    EXPECT_TRUE(IsOffered(0, 3, "mnuDeleteState"));
    EXPECT_TRUE(IsOffered(0, 5, "mnuDeleteState"));
}

TEST_F(StateColumnCommands, TransitionsToADeletedStateLeadToTheOneThatWasBehindIt) {
    FsmDocument document = ChainDocument(3);
    document.State(5).Name = "S5";
    document.State(6).Name = "S6";
    document.State(8).Name = "S8";
    document.State(8).Targets[6] = 5;
    document.State(8).Targets[7] = 6;
    StartOn(document);
    Choose(0, 5, "mnuDeleteState");
    EXPECT_EQ(Text(0, 5), "5:S6");
    EXPECT_EQ(Text(0, 7), "7:S8");
    EXPECT_EQ(Text(6, 7), "5:S6");
    EXPECT_EQ(Text(7, 7), "5:S6");
    EXPECT_EQ(UndoSteps(), 1);
    EXPECT_EQ(Text(6, 8), "5:S5");
}

TEST_F(StateColumnCommands, AfterADeleteColumn100IsAsItWasAndColumn99ItsCopy) {
    FsmDocument document = ChainDocument(3);
    document.State(99).Name = "Goes";
    document.State(100).Name = "Last";
    document.State(100).Targets[6] = 100;
    document.State(100).ColWidth = 1500;
    StartOn(document);
    Choose(0, 98, "mnuDeleteState");
    const FsmDocument saved = SavedDocument();
    EXPECT_EQ(saved.State(98).Name, "Goes");
    EXPECT_EQ(saved.State(99), saved.State(100));
    EXPECT_EQ(saved.State(100).Targets[6], 100);
    EXPECT_EQ(Text(0, 99), "99:Last");
    EXPECT_EQ(Text(0, 100), "100:Last");
    EXPECT_EQ(Width(99), 100);
}

TEST_F(StateColumnCommands, EveryColumnIsDrawnAgainAndTheProgramWritten) {
    StartOn(ChainDocument(3));
    const auto drawn = DrawnBy([this] { Choose(0, 2, "mnuInsertState"); });
    EXPECT_GE(drawn.size(), 100u);
    EXPECT_TRUE(Title().starts_with('*'));
    EXPECT_NE(ReadFile(QStringLiteral("machine.zls")).find("PMP_S2_Set3"), std::string::npos);
}

TEST_F(StateColumnCommands, ACopiedEventIsForgottenWhenAColumnMoves) {
    StartOn(ChainDocument(3));
    for (const char* move : {"mnuInsertState", "mnuDeleteState"}) {
        Choose(6, 0, "mnuCopyEvent");
        EXPECT_TRUE(IsOffered(7, 0, "mnuPasteEvent"));
        Choose(0, 9, move);
        for (const auto& [item, offered] : OfferedPastes())
            EXPECT_FALSE(offered) << item << " after " << move;
    }
}

TEST_F(StateColumnCommands, ACopiedEventOutlivesAnInsertThatWasRefused) {
    StartOn(ChainDocument(100));
    Choose(6, 0, "mnuCopyEvent");
    Answers.Press(QMessageBox::Ok);
    Choose(0, 9, "mnuInsertState");
    EXPECT_TRUE(IsOffered(7, 0, "mnuPasteEvent"));
}

TEST_F(StateColumnCommands, ACopiedTransitionIsForgottenOnlyWhenItsOwnTargetIsDeleted) {
    FsmDocument document = ChainDocument(3);
    document.State(8).Targets[6] = 7;
    StartOn(document);
    Choose(6, 8, "mnuCopyTransition");
    Choose(0, 5, "mnuDeleteState");
    Choose(7, 1, "mnuPasteTransition");
    EXPECT_EQ(Text(7, 1), "6:"); // it has followed its target
    TypeTarget(7, 1, QStringLiteral("0"));
    Choose(0, 6, "mnuDeleteState");
    EXPECT_FALSE(IsOffered(7, 1, "mnuPasteTransition"));
    EXPECT_FALSE(IsOffered(7, 1, "mnuPasteTransAct"));
}

TEST_F(StateColumnCommands, ACopiedActionOutlivesTheTargetOfItsTransition) {
    FsmDocument document = ChainDocument(3);
    document.State(8).Targets[6] = 7;
    document.State(8).Actions[6] = ";act";
    StartOn(document);
    Choose(6, 8, "mnuCopyTransAct");
    Choose(0, 7, "mnuDeleteState");
    Choose(7, 1, "mnuPasteTransAct");
    EXPECT_EQ(Text(7, 1), "*");
}

TEST_F(StateColumnCommands, ACopiedStateKeepsLeadingWhereItLed) {
    StartOn(ChainDocument(4));
    Choose(0, 2, "mnuCopyState");
    Choose(0, 3, "mnuInsertState");
    Choose(0, 9, "mnuPasteState");
    EXPECT_EQ(Text(0, 9), "9:S2");
    EXPECT_EQ(Text(6, 9), "4:S3");
}

TEST_F(StateColumnCommands, ATargetBeingTypedBelongsToItsOwnStateWhenColumnsMove) {
    StartOn(ChainDocument(4));
    Click(7, 3);
    QTest::keyClicks(Editor(), QStringLiteral("1"));
    Choose(0, 2, "mnuInsertState");
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(Text(7, 3), "");
    EXPECT_EQ(Text(7, 4), "1:S1");
    EXPECT_EQ(UndoSteps(), 2);
}

} // namespace
} // namespace orvane
