// SPDX-License-Identifier: GPL-3.0-or-later
// What is copied and cut in the table, and where it can be pasted.
#include "support/ui/PopUpFixture.h"

#include <QFile>
#include <QTest>

namespace orvane {
namespace {

class ClipboardCommands : public PopUpFixture {
  protected:
    using Pastes = std::map<std::string, bool>;

    static Pastes Only(const std::vector<std::string>& items) {
        Pastes pastes{{"mnuPasteState", false},
                      {"mnuPasteEvent", false},
                      {"mnuPasteEntryAction", false},
                      {"mnuPasteTransition", false},
                      {"mnuPasteTransAct", false}};
        for (const std::string& item : items)
            pastes[item] = true;
        return pastes;
    }
};

TEST_F(ClipboardCommands, NothingCanBePastedAtFirst) {
    StartOn(PumpDocument());
    EXPECT_EQ(OfferedPastes(), Only({}));
}

TEST_F(ClipboardCommands, EachKindCanBePastedAsWhatItIs) {
    StartOn(PumpDocument());
    Choose(0, 1, "mnuCopyState");
    EXPECT_EQ(OfferedPastes(), Only({"mnuPasteState"}));
    Choose(6, 0, "mnuCopyEvent");
    EXPECT_EQ(OfferedPastes(), Only({"mnuPasteEvent"}));
    Choose(1, 1, "mnuCopyEntryAction");
    EXPECT_EQ(OfferedPastes(), Only({"mnuPasteEntryAction"}));
    Choose(7, 2, "mnuCopyTransAct");
    EXPECT_EQ(OfferedPastes(), Only({"mnuPasteTransAct"}));
    Choose(7, 2, "mnuCopyTransition");
    EXPECT_EQ(OfferedPastes(), Only({"mnuPasteTransition", "mnuPasteTransAct"}));
}

TEST_F(ClipboardCommands, ACopiedStateLeavesThePastesOfTransitionsAsTheyWere) {
    StartOn(PumpDocument());
    Choose(7, 2, "mnuCopyTransition");
    OfferedPastes();
    Choose(0, 1, "mnuCopyState");
    EXPECT_EQ(OfferedPastes(), Only({"mnuPasteState", "mnuPasteTransition", "mnuPasteTransAct"}));
    Choose(8, 1, "mnuPasteTransition"); // the one that was copied before
    EXPECT_EQ(Text(8, 1), "1:Idle*");
}

TEST_F(ClipboardCommands, ACopiedEventLeavesThePasteOfActionsAsItWas) {
    StartOn(PumpDocument());
    Choose(7, 2, "mnuCopyTransition");
    OfferedPastes();
    Choose(6, 0, "mnuCopyEvent");
    EXPECT_EQ(OfferedPastes(), Only({"mnuPasteEvent", "mnuPasteTransAct"}));
}

TEST_F(ClipboardCommands, CutsCanBePastedLikeCopies) {
    StartOn(PumpDocument());
    Choose(1, 1, "mnuCutEntryAction");
    EXPECT_TRUE(Item("mnuPasteEntryAction")->isEnabled()); // without waiting for a menu
    EXPECT_EQ(OfferedPastes(), Only({"mnuPasteEntryAction"}));
    Choose(7, 2, "mnuCutTransAct");
    EXPECT_EQ(OfferedPastes(), Only({"mnuPasteTransAct"}));
    Choose(7, 2, "mnuCutTransition");
    EXPECT_EQ(OfferedPastes(), Only({"mnuPasteTransition", "mnuPasteTransAct"}));
}

TEST_F(ClipboardCommands, CopiesChangeNothingAndGenerateNothing) {
    StartOn(PumpDocument());
    const auto drawn = DrawnBy([this] {
        Choose(0, 1, "mnuCopyState");
        Choose(6, 0, "mnuCopyEvent");
        Choose(1, 1, "mnuCopyEntryAction");
        Choose(7, 2, "mnuCopyTransAct");
        Choose(7, 2, "mnuCopyTransition");
    });
    EXPECT_TRUE(drawn.empty());
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
    EXPECT_FALSE(Title().starts_with('*'));
    EXPECT_FALSE(QFile::exists(Path(QStringLiteral("machine.zls"))));
}

TEST_F(ClipboardCommands, APastedStateOverwritesItsColumnCompletelyAndLeavesTransitionsIntoItAlone) {
    FsmDocument document = PumpDocument();
    document.State(1).ColWidth = 2250;
    document.State(1).TimingMode = 1;
    document.State(1).TimeConst = "50";
    document.State(2).Targets[9] = 5;
    StartOn(document);
    Choose(0, 1, "mnuCopyState");
    Choose(0, 2, "mnuPasteState");
    MoveTo(6, 2);
    const FsmDocument saved = SavedDocument();
    EXPECT_EQ(saved.State(2), saved.State(1));
    EXPECT_EQ(saved.State(2).ColWidth, 2250);
    EXPECT_EQ(Grid()->columnWidth(2), 150);
    EXPECT_EQ(Text(0, 2), "2:Idle");
    EXPECT_EQ(Text(7, 2), "");
    EXPECT_EQ(Text(6, 1), "2:Idle");
    EXPECT_EQ(UndoSteps(), 1);
    EXPECT_EQ(Text(7, 2), "1:Idle*");
    EXPECT_EQ(Grid()->columnWidth(2), 150); // widths are no matter of undo
}

TEST_F(ClipboardCommands, APastedStateWithTimingShowsTheTimeoutRows) {
    FsmDocument document = PumpDocument();
    document.State(1).TimingMode = 1;
    StartOn(document);
    Choose(0, 1, "mnuCopyState");
    Trigger("mnuShowTimingMode");
    Trigger("mnuShowTimeTarget");
    Choose(0, 5, "mnuPasteState");
    EXPECT_TRUE(Item("mnuShowTimingMode")->isChecked());
    EXPECT_TRUE(Item("mnuShowTimeTarget")->isChecked());
}

TEST_F(ClipboardCommands, APastedEventBringsItsCellsInAllStates) {
    FsmDocument document = PumpDocument();
    document.State(1).Targets[7] = 2;
    document.State(100).Actions[7] = ";last";
    document.State(3).Targets[20] = 9; // goes
    StartOn(document);
    Choose(7, 0, "mnuCopyEvent");
    Choose(20, 0, "mnuPasteEvent");
    EXPECT_EQ(Text(20, 0), "Stop");
    EXPECT_EQ(Text(20, 1), "2:Run");
    EXPECT_EQ(Text(20, 2), "1:Idle*");
    EXPECT_EQ(Text(20, 3), "");
    EXPECT_EQ(Text(20, 100), "*");
    EXPECT_EQ(SavedDocument().Event(20).Code, ";stop?");
    EXPECT_EQ(UndoSteps(), 1);
}

TEST_F(ClipboardCommands, APastedEntryActionBringsNothingElseOfItsState) {
    StartOn(PumpDocument());
    Choose(1, 1, "mnuCopyEntryAction");
    Choose(1, 2, "mnuPasteEntryAction");
    FsmDocument expected = PumpDocument();
    expected.State(2).EntryCode = ";idle entry";
    EXPECT_EQ(SavedDocument().State(2), expected.State(2));
    EXPECT_EQ(UndoSteps(), 1);
}

TEST_F(ClipboardCommands, ADeletedEntryActionLeavesTheClipboardAlone) {
    StartOn(PumpDocument());
    Choose(1, 1, "mnuCopyEntryAction");
    Choose(1, 2, "mnuDeleteEntryAction");
    EXPECT_EQ(Text(1, 2), "");
    Choose(1, 2, "mnuPasteEntryAction");
    EXPECT_EQ(SavedDocument().State(2).EntryCode, ";idle entry");
    EXPECT_EQ(UndoSteps(), 2);
}

TEST_F(ClipboardCommands, ACutEntryActionCanBePastedElsewhere) {
    StartOn(PumpDocument());
    Choose(1, 1, "mnuCutEntryAction");
    Choose(1, 5, "mnuPasteEntryAction");
    const FsmDocument saved = SavedDocument();
    EXPECT_EQ(saved.State(1).EntryCode, "");
    EXPECT_EQ(saved.State(5).EntryCode, ";idle entry");
    EXPECT_EQ(UndoSteps(), 2);
}

TEST_F(ClipboardCommands, ACutTransitionLeavesAnEmptyCellAndComesBackInAnotherRowOfAnotherState) {
    StartOn(PumpDocument());
    Choose(7, 2, "mnuCutTransition");
    EXPECT_EQ(Text(7, 2), "");
    Choose(6, 4, "mnuPasteTransition");
    EXPECT_EQ(Text(6, 4), "1:Idle*");
    const FsmDocument saved = SavedDocument();
    EXPECT_EQ(saved.State(4).Targets[6], 1);
    EXPECT_EQ(saved.State(4).Actions[6], ";stop action");
    EXPECT_EQ(UndoSteps(), 2);
}

TEST_F(ClipboardCommands, ACutActionLeavesItsTransitionAndIsPastedWithoutIt) {
    StartOn(PumpDocument());
    Choose(7, 2, "mnuCutTransAct");
    EXPECT_EQ(Text(7, 2), "1:Idle");
    Choose(6, 1, "mnuPasteTransAct");
    EXPECT_EQ(Text(6, 1), "2:Run*");
    EXPECT_EQ(UndoSteps(), 2);
}

TEST_F(ClipboardCommands, TheActionOfACopiedTransitionCanBePastedAlone) {
    StartOn(PumpDocument());
    Choose(7, 2, "mnuCopyTransition");
    Choose(6, 1, "mnuPasteTransAct");
    EXPECT_EQ(Text(6, 1), "2:Run*");
}

TEST_F(ClipboardCommands, APasteOfWhatIsThereIsNoUndoStep) {
    StartOn(PumpDocument());
    Choose(7, 2, "mnuCopyTransition");
    Choose(7, 2, "mnuPasteTransition");
    Choose(1, 3, "mnuDeleteEntryAction");
    Choose(0, 2, "mnuCopyState");
    Choose(0, 2, "mnuPasteState");
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
    EXPECT_FALSE(Title().starts_with('*'));
    EXPECT_TRUE(QFile::exists(Path(QStringLiteral("machine.zls")))); // generated all the same
}

TEST_F(ClipboardCommands, APastedTransitionAndACutEntryActionAreDrawnWithTheNextChangeOfTheirColumn) {
    StartOn(PumpDocument());
    Choose(7, 2, "mnuCopyTransition");
    EXPECT_TRUE(DrawnBy([this] { Choose(7, 1, "mnuPasteTransition"); }).empty());
    EXPECT_TRUE(DrawnBy([this] { Choose(1, 1, "mnuCutEntryAction"); }).empty());
    EXPECT_EQ(UndoSteps(), 2); // they are changes like any other
    const std::vector<const char*> others{"mnuPasteEntryAction", "mnuDeleteEntryAction"};
    for (const char* item : others)
        EXPECT_EQ(DrawnBy([&] { Choose(1, 3, item); }).size(), 101u) << item;
    EXPECT_EQ(DrawnBy([this] { Choose(7, 2, "mnuCutTransAct"); }).size(), 101u);
    EXPECT_EQ(DrawnBy([this] { Choose(7, 2, "mnuPasteTransAct"); }).size(), 101u);
    EXPECT_EQ(DrawnBy([this] { Choose(7, 2, "mnuCutTransition"); }).size(), 101u);
}

TEST_F(ClipboardCommands, ACellThatWasOnlyOpenedKeepsTheActionThatIsPastedThere) {
    StartOn(PumpDocument());
    Choose(7, 2, "mnuCopyTransAct");
    Click(7, 1);
    ASSERT_TRUE(Editor()->isVisible());
    Choose(7, 1, "mnuPasteTransAct");
    EXPECT_FALSE(Editor()->isVisible());
    Click(6, 1);
    EXPECT_EQ(Text(7, 1), "*");
    EXPECT_EQ(UndoSteps(), 1);
}

TEST_F(ClipboardCommands, ATypedTargetIsStoredBeforeTheCellGetsItsAction) {
    StartOn(PumpDocument());
    Click(7, 1);
    QTest::keyClicks(Editor(), QStringLiteral("2"));
    Answers.Do([](QWidget& editor) { editor.close(); });
    Choose(7, 1, "mnuEditTransAct");
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(Text(7, 1), "2:Run");
}

} // namespace
} // namespace orvane
