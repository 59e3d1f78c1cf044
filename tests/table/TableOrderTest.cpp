// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/TableOrder.h"

#include "codegen/CodeGenerator.h"
#include "core/DocumentWriter.h"
#include "core/TightPacked.h"
#include "support/EveryFieldDocument.h"
#include "support/ProgramInterpreter.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "support/RandomMachine.h"
#include "support/TableInterpreter.h"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <regex>

#include <gtest/gtest.h>

namespace orvane::test {
namespace {

template <typename Order, typename Number>
std::vector<int> NewNumbers(const Order& order, Number first, Number last) {
    std::vector<int> numbers;
    for (Number number = first; number <= last; ++number)
        numbers.push_back(order.NewOf(number).Number());
    return numbers;
}

TEST(TableOrder, MovingTakesOneOutAndClosesUpTheOthers) {
    using Numbers = std::vector<int>;
    EXPECT_EQ(NewNumbers(StateOrder::Moving(2, 4), StateNumber(1), StateNumber(5)), (Numbers{1, 4, 2, 3, 5}));
    EXPECT_EQ(NewNumbers(StateOrder::Moving(4, 2), StateNumber(1), StateNumber(5)), (Numbers{1, 3, 4, 2, 5}));
    EXPECT_EQ(NewNumbers(StateOrder::Swapping(2, 4), StateNumber(1), StateNumber(5)),
              (Numbers{1, 4, 3, 2, 5}));
    EXPECT_EQ(NewNumbers(EventOrder::Moving(54, 6), RowNumber(4), RowNumber(7)), (Numbers{4, 5, 7, 8}));
    EXPECT_EQ(EventOrder::Moving(54, 6).NewOf(54), RowNumber(6));
    EXPECT_TRUE(StateOrder::Moving(7, 7).KeepsAll());
    EXPECT_THROW(StateOrder::Swapping(0, 3), BoundsError);
    EXPECT_THROW(EventOrder::Moving(5, 8), BoundsError);
}

TEST(TableOrder, WhatIsNotInTheListFollowsInItsOldOrder) {
    const StateOrder order = StateOrder::InOrder(std::vector<StateNumber>{4, 2});
    EXPECT_EQ(NewNumbers(order, StateNumber(1), StateNumber(5)), (std::vector<int>{3, 2, 4, 1, 5}));
}

TEST(TableOrder, AStateTakesAllThatIsInItAlong) {
    FsmDocument document = EveryFieldDocument();
    TableClipboard clipboard;
    const StateRecord before = document.State(1);
    Rearrange(document, clipboard, StateOrder::Moving(1, 100));
    StateRecord& moved = document.State(100);
    const StateOrder back = StateOrder::Moving(100, 1);
    for (StateNumber& target : moved.Targets)
        target = back.NewOf(target);
    EXPECT_EQ(moved, before);
}

TEST(TableOrder, TransitionsLeadToTheStateTheyLedTo) {
    FsmDocument document;
    TableClipboard clipboard;
    document.State(1).Targets[6] = 3;
    document.State(3).Targets[4] = 3;
    document.State(5).Targets[54] = 4;
    clipboard.ClipTarget = 3;
    clipboard.ClipState.Targets[7] = 4;
    clipboard.ClipEventTargets[4] = 3;
    clipboard.ClipEventActions[4] = "of 5";
    Rearrange(document, clipboard, StateOrder::Moving(3, 5));
    EXPECT_EQ(document.State(1).Targets[6], 5);
    EXPECT_EQ(document.State(5).Targets[4], 5);
    EXPECT_EQ(document.State(4).Targets[54], 3);
    EXPECT_EQ(clipboard.ClipTarget, 5);
    EXPECT_EQ(clipboard.ClipState.Targets[7], 3);
    EXPECT_EQ(clipboard.ClipEventTargets[3], 5);
    EXPECT_EQ(clipboard.ClipEventActions[3], "of 5");
}

// A copy of all that a move takes along.
struct Open {
    FsmDocument Document;
    TableClipboard Clipboard;
};

// Undo puts an image back, which knows no widths.
TEST(TableOrder, WhatNoStepBringsBackGoesBackByItself) {
    Open open{EveryFieldDocument(), {}};
    CopyTransition(open.Document, open.Clipboard, {6, 1});
    open.Document.State(3).ColWidth = 4321;
    const Open before = open;
    const StateOrder order = StateOrder::Moving(3, 1);
    Rearrange(open.Document, open.Clipboard, order);
    EXPECT_EQ(Unpack(Pack(before.Document), open.Document), std::vector<std::string>());
    EXPECT_NE(open.Document, before.Document);
    RearrangeUnkept(open.Document, open.Clipboard, order.Inverse());
    EXPECT_EQ(open.Document.State(3).ColWidth, before.Document.State(3).ColWidth);
    EXPECT_EQ(WriteDocument(open.Document), WriteDocument(before.Document));
    EXPECT_EQ(open.Clipboard, before.Clipboard);
}

TEST(TableOrder, AnEventTakesItsCellsAlong) {
    FsmDocument document;
    TableClipboard clipboard;
    document.Event(6).Name = "First";
    document.State(1).Targets[6] = 2;
    document.State(1).Actions[6] = "a";
    document.State(2).Targets[8] = 1;
    document.State(1).Targets[4] = 7;
    clipboard.ClipState.Actions[6] = "copied";
    Rearrange(document, clipboard, EventOrder::Moving(6, 8));
    EXPECT_EQ(document.Event(8).Name, "First");
    EXPECT_EQ(document.Event(6).Name, "");
    EXPECT_EQ(document.State(1).Targets[8], 2);
    EXPECT_EQ(document.State(1).Actions[8], "a");
    EXPECT_EQ(document.State(1).Actions[6], "");
    EXPECT_EQ(document.State(2).Targets[7], 1);
    EXPECT_EQ(document.State(1).Targets[4], 7);
    EXPECT_EQ(clipboard.ClipState.Actions[8], "copied");
}

template <typename Order>
Order AnyOrder(std::mt19937& random) {
    const auto range = Order::All();
    std::uniform_int_distribution<int> number(range.First().Number(), range.Last().Number());
    const int kind = std::uniform_int_distribution<int>(0, 2)(random);
    if (kind == 0)
        return Order::Moving(number(random), number(random));
    if (kind == 1)
        return Order::Swapping(number(random), number(random));
    std::vector<decltype(range.First())> all(range.begin(), range.end());
    std::shuffle(all.begin(), all.end(), random);
    return Order::InOrder(all);
}

void FillClipboard(Open& open) {
    CopyEvent(open.Document, open.Clipboard, 7);
    CopyState(open.Document, open.Clipboard, 2);
    CopyTransition(open.Document, open.Clipboard, {6, 1});
}

// Moves and moves back; 1 when the first changed anything. Of ten that are made one is looked at in between.
template <typename Order>
int MoveThereAndBack(Open& open, std::mt19937& random, const std::string& image) {
    const Order order = AnyOrder<Order>(random);
    Rearrange(open.Document, open.Clipboard, order);
    const bool moved = random() % 10 == 0 && Pack(open.Document) != image;
    Rearrange(open.Document, open.Clipboard, order.Inverse());
    return moved ? 1 : 0;
}

TEST(TableOrder, TenThousandMovesThereAndBackChangeNothing) {
    std::mt19937 random(20261122);
    int moved = 0;
    ExpectProperty({.Cases = 25, .LargestSize = 60}, [&] {
        Open open{*AnyDocument(), {}};
        FillClipboard(open);
        const std::string image = Pack(open.Document);
        const std::string file = WriteDocument(open.Document);
        const TableClipboard clipboard = open.Clipboard;
        for (int i = 0; i < 200; ++i) {
            moved += i % 2 == 0 ? MoveThereAndBack<StateOrder>(open, random, image)
                                : MoveThereAndBack<EventOrder>(open, random, image);
            RC_ASSERT(i % 10 != 9 || Pack(open.Document) == image);
        }
        RC_ASSERT(WriteDocument(open.Document) == file);
        RC_ASSERT(open.Clipboard == clipboard);
    });
    EXPECT_GT(moved, 250); // of about 500; documents with next to nothing in them stay as they are
}

std::string ProgramTextOf(const FsmDocument& document) {
    return GenerateProgram(document, {"C:\\work\\walk.zfsm", "16/11/2026 01:02:03"}).Text;
}

// The lines of a program, sorted, the numbers in its own labels masked. Definitions of timers are left out:
// which of them there are may depend on the order of the states, see codegen/TimerList.h.
std::vector<std::string> MaskedLines(const std::string& program) {
    static const std::regex ownLine("^(\\tGo.*|\\t(?:GoTo|GoifT|GoIfT|GoIfF|fGoIfNeg).*|[^\\t]*:)$");
    static const std::regex numbers("[0-9]+|[0-9A-F]+(?=:?$)");
    std::vector<std::string> lines;
    std::istringstream stream(program);
    for (std::string line; std::getline(stream, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.find(":\tdefTIME24") != std::string::npos)
            continue;
        lines.push_back(std::regex_match(line, ownLine) ? std::regex_replace(line, numbers, "#") : line);
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

// An order that leaves the start where it is.
StateOrder AnyOrderOfOthers(std::mt19937& random) {
    std::vector<StateNumber> others(std::next(StateNumbers().begin()), StateNumbers().end());
    std::shuffle(others.begin(), others.end(), random);
    others.insert(others.begin(), StateNumber(1));
    return StateOrder::InOrder(others);
}

TEST(TableOrder, TheProgramHasTheSameLinesButForTheNumbersInItsLabels) {
    std::mt19937 random(7);
    ExpectProperty({.Cases = 300, .LargestSize = 60}, [&] {
        FsmDocument machine = *AnyMachine();
        TableClipboard clipboard;
        const std::vector<std::string> before = MaskedLines(ProgramTextOf(machine));
        Rearrange(machine, clipboard, AnyOrderOfOthers(random));
        Rearrange(machine, clipboard, AnyOrder<EventOrder>(random));
        RC_ASSERT(MaskedLines(ProgramTextOf(machine)) == before);
    });
}

// What the machine stood in, by the numbers from before the move.
Trace Relabelled(Trace trace, const StateOrder& order) {
    const StateOrder back = order.Inverse();
    const std::string stood = StoodIn(0).substr(0, StoodIn(0).size() - 1);
    for (std::string& line : trace) {
        if (line.starts_with(stood))
            line = StoodIn(back.NewOf(std::stoi(line.substr(stood.size()))).Number());
    }
    return trace;
}

// ORVANE_MOVE_STEPS is the number of moments that are walked in all; a million takes a minute.
long StepsWanted() {
    const char* const wanted = std::getenv("ORVANE_MOVE_STEPS");
    return wanted == nullptr ? 30'000 : std::atol(wanted);
}

TEST(TableOrder, TheProgramDoesWhatTheTableDidBeforeTheMove) {
    std::mt19937 random(11);
    long steps = 0;
    unsigned seed = 1;
    while (steps < StepsWanted()) {
        ExpectProperty({.Cases = 40, .LargestSize = 80}, [&] {
            FsmDocument machine = *AnyMachine();
            if (!EnteredStates(machine).contains(1))
                return; // another state would be the first
            const World world(RandomTicks(seed++, 300));
            const Trace expected = RunTable(machine, world);
            TableClipboard clipboard;
            const StateOrder order = AnyOrderOfOthers(random);
            Rearrange(machine, clipboard, order);
            RC_ASSERT(Relabelled(RunProgram(ProgramTextOf(machine), world), order) == expected);
            steps += 300;
        });
    }
}

} // namespace
} // namespace orvane::test
