// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/Rename.h"

#include "codegen/CodeGenerator.h"
#include "core/DocumentWriter.h"
#include "core/TightPacked.h"
#include "find/PlaceText.h"
#include "find/WhereUsed.h"
#include "find/WordBorders.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "support/SmallTable.h"

#include <gmock/gmock.h>

namespace orvane::find {
namespace {

using test::SmallTable;
using testing::ElementsAre;
using testing::IsEmpty;

// A machine whose code names everything that has a name.
FsmDocument TimedGarage() {
    FsmDocument document = SmallTable()
                               .Name(1, "Idle", "\tGoTo\tP_Open_Set2")
                               .Name(2, "Open", "; P_Idle_Set1 is left\r\n\tp_idle_set1\tP_Idle_1")
                               .Cell(1, 6, 2, "\tPush\tP_Timer_T1 ;Idle")
                               .Cell(2, 6, 1)
                               .Timing(1, 1, "10", "T1")
                               .Timing(2, 3, "20", " T1")
                               .Document();
    document.General.CodeSeg = "Idle:\t\"Idle\"\tP_Horn\tXP_Horn\tP_Idle_Set11\r\nP2";
    document.State(2).Tooltip = "after P_Idle_Set1";
    document.General.BuildFile = "P_Idle_Set1";
    return document;
}

std::vector<std::string> Lines(const FsmDocument& document, const std::vector<TextUse>& uses) {
    std::vector<std::string> lines;
    for (const TextUse& use : uses)
        lines.push_back(PlaceTitle(document, use.Place) + ": " +
                        TextAt(document, use.Place).substr(use.Start, use.Length) + " > " + use.After +
                        (use.IsSure ? "" : " ?"));
    return lines;
}

TEST(Rename, AStateTakesItsLabelsAlongAndOffersItsWords) {
    const FsmDocument document = TimedGarage();
    const RenamePlan plan = PlanRename(document, OfState{1}, "Rest");
    EXPECT_EQ(plan.Refusal, "");
    EXPECT_THAT(plan.Notes, IsEmpty());
    EXPECT_THAT(Lines(document, plan.Uses),
                ElementsAre("State 1:Idle, name: Idle > Rest", "Machine, CODESEG: Idle > Rest ?",
                            "Machine, CODESEG: Idle > Rest ?", "1:Idle, on E6, action: Idle > Rest ?",
                            "State 2:Open, comment: P_Idle_Set1 > P_Rest_Set1 ?",
                            "State 2:Open, entry action: P_Idle_Set1 > P_Rest_Set1 ?",
                            "State 2:Open, entry action: p_idle_set1 > P_Rest_Set1 ?",
                            "State 2:Open, entry action: P_Idle_1 > P_Rest_1"));
}

TEST(Rename, ANameWithABlankLeavesTheLabels) {
    const FsmDocument document = TimedGarage();
    const RenamePlan plan = PlanRename(document, OfState{2}, "Wide open");
    EXPECT_THAT(plan.Notes, ElementsAre("A name with a blank is left out of the state's labels"));
    EXPECT_THAT(Lines(document, plan.Uses), ElementsAre("State 2:Open, name: Open > Wide open",
                                                        "State 1:Idle, entry action: P_Open_Set2 > P_Set2"));
}

TEST(Rename, ATimerIsRenamedInAllStatesThatShareIt) {
    const FsmDocument document = TimedGarage();
    const RenamePlan plan = PlanRename(document, OfTimer{"T1 "}, "Door");
    EXPECT_THAT(Lines(document, plan.Uses),
                ElementsAre("State 1:Idle, timer I.D.: T1 > Door", "State 2:Open, timer I.D.:  T1 > Door",
                            "1:Idle, on E6, action: P_Timer_T1 > P_Timer_Door"));
}

TEST(Rename, TheMachineTakesTheSymbolsWithItsPrefixAlong) {
    const FsmDocument document = TimedGarage();
    const RenamePlan plan = PlanRename(document, OfMachine{}, "My Q");
    const std::vector<std::string> lines = Lines(document, plan.Uses);
    EXPECT_EQ(lines.front(), "Machine, name: P > My Q");
    EXPECT_THAT(lines, testing::Contains("Machine, CODESEG: P_ > My_Q_").Times(2)); // not XP_Horn
    EXPECT_THAT(lines, testing::Contains("1:Idle, on E6, action: P_ > My_Q_"));
    FsmDocument renamed = document;
    Apply(renamed, SureChanges(plan.Uses));
    EXPECT_EQ(renamed.General.CodeSeg, "Idle:\t\"Idle\"\tMy_Q_Horn\tXP_Horn\tMy_Q_Idle_Set11\r\nP2");
    EXPECT_EQ(renamed.General.BuildFile, "P_Idle_Set1");
}

TEST(Rename, TheLoopOfAStateWithoutANameGoesWithTheMachine) {
    FsmDocument document = TimedGarage();
    document.State(2).Name.clear();
    const RenamePlan plan = PlanRename(document, OfMachine{}, "Q");
    EXPECT_THAT(Lines(document, plan.Uses), testing::Contains("Machine, CODESEG: P2 > Q2"));
}

TEST(Rename, AWordIsMeantWhereItIsCode) {
    const FsmDocument document = TimedGarage();
    EXPECT_THAT(Lines(document, PlanRename(document, OfWord{"Idle"}, "Rest").Uses),
                ElementsAre("Machine, CODESEG: Idle > Rest", "Machine, CODESEG: Idle > Rest ?",
                            "State 1:Idle, name: Idle > Rest ?", "1:Idle, on E6, action: Idle > Rest ?"));
}

TEST(Rename, SaysWhyANameCannotBe) {
    const FsmDocument document = TimedGarage();
    const auto refusal = [&](const std::string& name) {
        return PlanRename(document, OfState{1}, name).Refusal;
    };
    EXPECT_EQ(refusal(""), "Type the new name");
    EXPECT_EQ(refusal("  "), "Type the new name");
    EXPECT_EQ(refusal("a\xA4"), "The character \xA4 ends fields in a document, so that no text can hold it");
    EXPECT_EQ(refusal("a\r\nb"), "A name stands in one line");
    EXPECT_EQ(refusal("Idle"), "That is the name it has");
    EXPECT_EQ(PlanRename(document, OfTimer{""}, "A").Refusal,
              "The default timer has no name; give the states that use it a timer I.D.");
}

TEST(Rename, TellsWhatTheNewNameRunsInto) {
    FsmDocument document = TimedGarage();
    EXPECT_THAT(PlanRename(document, OfState{1}, "Open").Notes,
                ElementsAre("State 2:Open has this name already"));
    EXPECT_THAT(PlanRename(document, OfEvent{6}, "E7").Notes,
                ElementsAre("Event row 7: E7 has this name already"));
    EXPECT_THAT(PlanRename(document, OfState{1}, "P_Horn").Notes,
                ElementsAre("The code has the word P_Horn already, in 1 place"));
    EXPECT_THAT(PlanRename(document, OfState{1}, "a-b").Notes,
                ElementsAre("The character - would stand in labels, which the assembler may not take"));
    document.State(5).TimerId = "Door";
    EXPECT_THAT(PlanRename(document, OfTimer{"T1"}, "Door").Notes,
                ElementsAre("There is a timer Door already: both would be one timer"));
}

TEST(Rename, TellsLabelsThatWouldStandTwice) {
    FsmDocument document = TimedGarage();
    document.State(1).TimerId = document.State(2).TimerId = "2";
    EXPECT_THAT(PlanRename(document, OfState{2}, "Timer").Notes,
                ElementsAre("The program would have the label P_Timer_2 twice"));
}

TEST(Rename, TellsATimerThatWouldHaveNoDefinition) {
    FsmDocument document = TimedGarage();
    document.State(2).TimingMode = 1;
    document.State(2).TimerId = "Light";
    EXPECT_THAT(PlanRename(document, OfTimer{"Light"}, "1").Notes,
                ElementsAre("The program would not define the timer 1, because it is the tail of T1, which "
                            "comes first"));
    EXPECT_THAT(PlanRename(document, OfTimer{"T1"}, "NightLight").Notes,
                ElementsAre("The program would not define the timer Light, because it is the tail of "
                            "NightLight, which comes first"));
    EXPECT_THAT(PlanRename(document, OfTimer{"Light"}, "T12").Notes, IsEmpty());
    document.State(2).TimingMode = 3; // goes on with a timer and starts none
    EXPECT_THAT(PlanRename(document, OfTimer{"Light"}, "1").Notes, IsEmpty());
}

TEST(Words, AWordIsWhatItsPlaceTouches) {
    constexpr std::string_view text = "\tHorn;P_1 \xE9t";
    static_assert(WordAt(text, 0).empty());
    static_assert(WordAt(text, 1) == "Horn");
    static_assert(WordAt(text, 3) == "Horn");
    static_assert(WordAt(text, 5) == "Horn");
    static_assert(WordAt(text, 6) == "P_1");
    EXPECT_EQ(WordAt(text, 99), "\xE9t");
    EXPECT_EQ(WordAt("", 0), "");
}

// A name that no random text holds.
std::string FreshName(int number) { return "Zq" + std::to_string(number) + "fresh"; }

TEST(Rename, ThereAndBackIsTheIdentity) {
    int renamed = 0;
    test::ExpectProperty({.Cases = 120, .LargestSize = 50}, [&] {
        FsmDocument document = *test::AnyDocument();
        const int state = *rc::gen::inRange(1, 101);
        const int row = *rc::gen::inRange(6, 55);
        const std::string machine = "Pq";
        document.General.FsmName = machine;
        document.State(state).Name = FreshName(1);
        document.State(state).TimerId = FreshName(3);
        document.Event(row).Name = FreshName(5);
        document.State(7).EntryCode = "\tGoTo\tPq_" + FreshName(1) + "_Set" + std::to_string(state) +
                                      "\r\n\tPq_Timer_" + FreshName(3) + "\tPq_Horn";
        const std::string file = WriteDocument(document);
        for (const auto& [subject, name] : {std::pair<Subject, Subject>{OfState{state}, OfState{state}},
                                            {OfEvent{row}, OfEvent{row}},
                                            {OfTimer{FreshName(3)}, OfTimer{FreshName(9)}},
                                            {OfMachine{}, OfMachine{}},
                                            {OfWord{"Pq_Horn"}, OfWord{FreshName(9)}}}) {
            const std::string old = NameOf(document, subject);
            const RenamePlan there = PlanRename(document, subject, FreshName(9));
            RC_ASSERT(there.Refusal.empty());
            Apply(document, SureChanges(there.Uses));
            renamed += WriteDocument(document) != file ? 1 : 0;
            RC_ASSERT(NameOf(document, name) == FreshName(9));
            Apply(document, SureChanges(PlanRename(document, name, old).Uses));
            RC_ASSERT(WriteDocument(document) == file);
        }
    });
    EXPECT_EQ(renamed, 600);
}

// Renaming a state with what is sure changes the program in its labels alone.
TEST(Rename, TheProgramOfARenamedStateDiffersInItsLabelsAlone) {
    FsmDocument document = TimedGarage();
    const auto program = [](const FsmDocument& of) { return GenerateProgram(of, {}).Text; };
    std::string expected = program(document);
    for (const auto& [before, after] :
         {std::pair<std::string, std::string>{"\tGoTo\tP_Open_Set2", "\tGoTo\tP_Shut_Set2"},
          {"P_Open_Set2", "P_Shut_Set2"},
          {"P_Open_2", "P_Shut_2"}}) {
        for (std::size_t at = 0; (at = expected.find(before, at)) != std::string::npos;)
            expected.replace(at, before.size(), after);
    }
    Apply(document, SureChanges(PlanRename(document, OfState{2}, "Shut").Uses));
    EXPECT_EQ(program(document), expected);
}

std::vector<std::string> UseLines(const FsmDocument& document, const Subject& subject) {
    std::vector<std::string> lines;
    for (const Use& use : UsesOf(document, subject))
        lines.push_back((use.Text ? PlaceTitle(document, use.Text->Place) : CellTitle(document, use.At)) +
                        ": " + use.What);
    return lines;
}

TEST(WhereUsed, TellsTransitionsLabelsAndWords) {
    const FsmDocument document = TimedGarage();
    EXPECT_THAT(UseLines(document, OfState{2}),
                ElementsAre("1:Idle, on E6: leads here", "State 1:Idle, entry action: label P_Open_Set2"));
    EXPECT_THAT(UseLines(document, OfEvent{6}),
                ElementsAre("1:Idle, on E6: leads to 2:Open", "2:Open, on E6: leads to 1:Idle"));
    EXPECT_THAT(UseLines(document, OfTimer{"T1"}),
                ElementsAre("State 1:Idle: starts the timer", "State 2:Open: goes on with the timer",
                            "1:Idle, on E6, action: label P_Timer_T1"));
    EXPECT_THAT(UseLines(document, OfWord{"P_Horn"}), ElementsAre("Machine, CODESEG: word P_Horn"));
}

TEST(WhereUsed, AStateIsLedToByWhatASlowLookFinds) {
    test::ExpectProperty({.Cases = 100, .LargestSize = 50}, [] {
        const FsmDocument document = *test::AnyDocument();
        const int wanted = *rc::gen::inRange(1, 101);
        std::vector<Cell> expected;
        for (int state = 1; state <= 100; ++state) {
            for (int row = 4; row <= 54; ++row) {
                if (document.State(state).Targets[row].Number() == wanted)
                    expected.push_back({row, state});
            }
        }
        std::vector<Cell> found;
        for (const Use& use : UsesOf(document, OfState{wanted})) {
            if (!use.Text)
                found.push_back(use.At);
        }
        RC_ASSERT(found == expected);
    });
}

bool IsWordByte(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

// Every place of every text held against the word, one after the other.
TEST(WhereUsed, AWordIsFoundWhereASlowLookFindsIt) {
    test::ExpectProperty({.Cases = 60, .LargestSize = 40}, [] {
        FsmDocument document = *test::AnyDocument();
        const std::string word = *rc::gen::element<std::string>("a", "aa", "a1", "_a", "\xE4");
        document.State(3).EntryCode += " aa;a a1 (a) _a_a \xE4 a\xE4 ";
        std::size_t expected = 0;
        ForEachText(document, [&](const TextPlace& place, const std::string& text) {
            for (std::size_t at = 0; KindOf(place).IsDesigned && at + word.size() <= text.size(); ++at) {
                const std::size_t end = at + word.size();
                const bool alone =
                    (at == 0 || !IsWordByte(text[at - 1])) && (end == text.size() || !IsWordByte(text[end]));
                expected += alone && text.compare(at, word.size(), word) == 0 ? 1 : 0;
            }
        });
        RC_ASSERT(UsesOf(document, OfWord{word}).size() == expected);
    });
}

} // namespace
} // namespace orvane::find
