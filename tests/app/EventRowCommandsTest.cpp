// SPDX-License-Identifier: GPL-3.0-or-later
// Whole events come and go through the menu of their heads.
#include "support/ui/PopUpFixture.h"

#include <QFile>

namespace orvane {
namespace {

class EventRowCommands : public PopUpFixture {
  protected:
    void ExpectNothingDone() {
        EXPECT_FALSE(Item("mnuUndo")->isEnabled());
        EXPECT_FALSE(Title().starts_with('*'));
        EXPECT_FALSE(QFile::exists(Path(QStringLiteral("machine.zls"))));
    }
};

TEST_F(EventRowCommands, AnInsertedEventMovesTheOthersDownWithTheirCells) {
    StartOn(PumpDocument());
    Choose(6, 0, "mnuInsertEvent");
    EXPECT_EQ(Text(6, 0), " ");
    EXPECT_EQ(Text(7, 0), "Start");
    EXPECT_EQ(Text(8, 0), "Stop");
    EXPECT_EQ(Text(6, 1), "");
    EXPECT_EQ(Text(7, 1), "2:Run");
    EXPECT_EQ(Text(8, 2), "1:Idle*");
    EXPECT_NE(ReadFile(QStringLiteral("machine.zls")).find("PMP_Run_Set2"), std::string::npos);
    EXPECT_EQ(UndoSteps(), 1);
    EXPECT_EQ(Text(6, 0), "Start");
    EXPECT_EQ(Text(7, 2), "1:Idle*");
}

TEST_F(EventRowCommands, ATransitionInTheBottomRowForbidsInsertingAndIsNamed) {
    FsmDocument document = PumpDocument();
    document.State(42).Targets[54] = 3;
    document.State(77).Targets[54] = 3;
    StartOn(document);
    Answers.Press(QMessageBox::Ok);
    const auto drawn = DrawnBy([this] { Choose(54, 0, "mnuInsertEvent"); });
    EXPECT_TRUE(drawn.empty());
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_EQ(Answers.Seen()[0].Title, "Orvane");
    EXPECT_EQ(Answers.Seen()[0].Text, "Sorry, you can't insert an event row because at least\r\n"
                                      "one state (42) has a transition in the very bottom cell.\r\n"
                                      "and inserting a row involves moving everything down a row.");
    EXPECT_EQ(Answers.Seen()[0].Icon, QMessageBox::NoIcon);
    EXPECT_EQ(Answers.Seen()[0].Buttons, QMessageBox::Ok);
    EXPECT_EQ(SavedDocument(), document);
    ExpectNothingDone();
}

TEST_F(EventRowCommands, AnInsertAtTheBottomDropsTheBottomRow) {
    FsmDocument document = PumpDocument();
    document.Event(54).Name = "Last";
    document.State(1).Actions[54] = ";an action alone does not forbid it";
    StartOn(document);
    Choose(54, 0, "mnuInsertEvent");
    EXPECT_EQ(Text(54, 0), " ");
    EXPECT_EQ(Text(54, 1), "");
    EXPECT_EQ(UndoSteps(), 1);
}

TEST_F(EventRowCommands, DeletingAnEventWithTransitionsAsksOnceHoweverManyThereAre) {
    FsmDocument document = PumpDocument();
    document.State(2).Targets[6] = 2;
    document.State(9).Targets[6] = 1;
    StartOn(document);
    Answers.Press(QMessageBox::Yes);
    Choose(6, 0, "mnuDeleteEvent");
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_EQ(Answers.Seen()[0].Title, "Careful!");
    EXPECT_EQ(Answers.Seen()[0].Icon, QMessageBox::Warning);
    EXPECT_EQ(Answers.Seen()[0].Buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(Answers.Seen()[0].Text, "The event row contains one or more state transitions.\r\n"
                                      "Are you quite sure you want to delete it?");
    EXPECT_EQ(Text(6, 0), "Stop");
    EXPECT_EQ(Text(6, 2), "1:Idle*");
    EXPECT_EQ(Text(7, 0), " ");
    EXPECT_EQ(UndoSteps(), 1);
    EXPECT_EQ(Text(6, 0), "Start");
}

TEST_F(EventRowCommands, NoLeavesEverythingAsItWas) {
    const FsmDocument document = PumpDocument();
    StartOn(document);
    Answers.Press(QMessageBox::No);
    const auto drawn = DrawnBy([this] { Choose(6, 0, "mnuDeleteEvent"); });
    EXPECT_TRUE(drawn.empty());
    EXPECT_EQ(SavedDocument(), document);
    ExpectNothingDone();
}

TEST_F(EventRowCommands, AnEventWithActionsAloneIsDeletedUnasked) {
    FsmDocument document = PumpDocument();
    document.Event(8).Name = "Spare";
    document.State(1).Actions[8] = ";act";
    StartOn(document);
    Choose(8, 0, "mnuDeleteEvent");
    EXPECT_EQ(Text(8, 0), " ");
    EXPECT_EQ(Text(8, 1), "");
}

TEST_F(EventRowCommands, AnActionInTheBottomRowStaysWhenTheRowMovesUp) {
    FsmDocument document = PumpDocument();
    document.Event(54).Name = "Last";
    document.State(1).Targets[54] = 2;
    document.State(1).Actions[54] = ";act";
    StartOn(document);
    Choose(8, 0, "mnuDeleteEvent");
    EXPECT_EQ(Text(53, 0), "Last ");
    EXPECT_EQ(Text(53, 1), "2:Run*");
    EXPECT_EQ(Text(54, 0), " ");
    EXPECT_EQ(Text(54, 1), "*");
}

TEST_F(EventRowCommands, ACopiedStateMovesAlongAndLosesItsBottomAction) {
    FsmDocument document = PumpDocument();
    document.State(1).Targets[54] = 2;
    document.State(1).Actions[54] = ";act";
    StartOn(document);
    Choose(0, 1, "mnuCopyState");
    Choose(8, 0, "mnuDeleteEvent");
    Choose(0, 5, "mnuPasteState");
    EXPECT_EQ(Text(53, 5), "2:Run*");
    EXPECT_EQ(Text(54, 5), "");
    Choose(6, 0, "mnuInsertEvent");
    Choose(0, 9, "mnuPasteState");
    EXPECT_EQ(Text(6, 9), "");
    EXPECT_EQ(Text(7, 9), "2:Run");
    EXPECT_EQ(Text(54, 9), "2:Run*");
}

TEST_F(EventRowCommands, ACopiedEventStaysAsItWasCopied) {
    StartOn(PumpDocument());
    Choose(7, 0, "mnuCopyEvent");
    Choose(6, 0, "mnuInsertEvent");
    Choose(10, 0, "mnuPasteEvent");
    EXPECT_EQ(Text(10, 0), "Stop");
    EXPECT_EQ(Text(10, 2), "1:Idle*");
}

TEST_F(EventRowCommands, ATargetBeingTypedIsGivenUpByAPressOnTheRowHead) {
    StartOn(PumpDocument());
    Click(7, 1);
    Editor()->setText(QStringLiteral("1"));
    Choose(6, 0, "mnuInsertEvent");
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(Text(8, 1), "");
    EXPECT_EQ(UndoSteps(), 1);
}

TEST_F(EventRowCommands, TheWholeTableIsDrawnAgain) {
    StartOn(PumpDocument());
    EXPECT_EQ(DrawnBy([this] { Choose(6, 0, "mnuInsertEvent"); }).size(), 101u);
    EXPECT_EQ(DrawnBy([this] { Choose(6, 0, "mnuDeleteEvent"); }).size(), 101u);
}

} // namespace
} // namespace orvane
