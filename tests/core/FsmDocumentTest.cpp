// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/FsmDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvane {
namespace {

using testing::ElementsAre;

FsmDocument FilledDocument() {
    FsmDocument document;
    document.General = {"PMP", ";header", ";code", ";init", ";data", ";test", "4", false, "C:\\pump.b1d"};
    document.View = {true, true, true, true, 3000, {1, 2, 3, 4}};
    for (const RowNumber row : CellRows())
        document.Event(row) = {"event", ";test", "hint", 1};
    for (const StateNumber number : StateNumbers()) {
        StateRecord& state = document.State(number);
        state = {"state", "hint", ";entry", ";exit", 3, {}, {}, "100", ";limit", "A", 1000 + number.Number(),
                 2};
        for (const RowNumber row : CellRows()) {
            state.Targets[row] = number;
            state.Actions[row] = ";action";
        }
    }
    return document;
}

TEST(FsmDocument, AFreshDocumentIsEmptyWithDefaultWidths) {
    const FsmDocument document;
    for (const StateNumber number : StateNumbers()) {
        EXPECT_EQ(document.State(number), document.StateTemplate());
        EXPECT_EQ(document.State(number).ColWidth, 945);
    }
    for (const RowNumber row : CellRows())
        EXPECT_EQ(document.Event(row), EventRecord());
    EXPECT_EQ(document.General, GeneralCode());
    EXPECT_TRUE(document.General.LaunchSeg);
    EXPECT_EQ(document.View, ViewOptions());
    EXPECT_FALSE(document.View.Polytask);
    EXPECT_EQ(document.View.Col0Width, 1890);
    EXPECT_EQ(document.View.RowVisible, (RowHeights{0, 0, 0, 0}));
}

TEST(FsmDocument, TheDefaultWidthIsTheInitialWidthOfEveryState) {
    const FsmDocument document(600);
    EXPECT_EQ(document.DefaultColumnWidth(), 600);
    EXPECT_EQ(document.StateTemplate().ColWidth, 600);
    for (const StateNumber number : StateNumbers())
        EXPECT_EQ(document.State(number).ColWidth, 600);
}

TEST(FsmDocument, ClearingWithoutKeptWidthsEmptiesAllButViewAndBuilderScript) {
    FsmDocument document = FilledDocument();
    document.ClearDataBase(false);
    FsmDocument expected;
    expected.General.BuildFile = "C:\\pump.b1d";
    expected.View = FilledDocument().View;
    EXPECT_EQ(document, expected);
}

TEST(FsmDocument, ClearingWithKeptWidthsLeavesEveryColumnWidth) {
    FsmDocument document = FilledDocument();
    document.ClearDataBase(true);
    for (const StateNumber number : StateNumbers()) {
        StateRecord expected;
        expected.ColWidth = 1000 + number.Number();
        EXPECT_EQ(document.State(number), expected);
    }
    for (const RowNumber row : CellRows())
        EXPECT_EQ(document.Event(row), EventRecord());
    EXPECT_EQ(document.General.FsmName, "");
    EXPECT_TRUE(document.General.LaunchSeg);
}

TEST(FsmDocument, ClearingTracesItsStepsInOrder) {
    FsmDocument document;
    std::vector<std::string> labels;
    document.ClearDataBase(false, [&](std::string_view label) { labels.emplace_back(label); });
    EXPECT_THAT(labels, ElementsAre("In ClearDataBase", "CDBb", "CDBc", "CDBd", "CDBe", "CDBe1", "CDBe2",
                                    "CDBe3", "CDBe4", "CDBe5", "CDBe6", "CDBe7", "CDBe8", "CDBf"));
}

TEST(FsmDocument, EachTraceLabelPrecedesItsStep) {
    FsmDocument document = FilledDocument();
    document.ClearDataBase(false, [&](std::string_view label) {
        EXPECT_EQ(document.State(100).Name.empty(), label[0] == 'C' && label > "CDBc") << label;
        EXPECT_EQ(document.Event(54).Name.empty(), label[0] == 'C' && label > "CDBd") << label;
        EXPECT_EQ(document.General.LaunchSeg, label[0] == 'C' && label > "CDBe1") << label;
        EXPECT_EQ(document.General.Instances.empty(), label == "CDBf") << label;
    });
}

TEST(FsmDocument, StatesAndRowsOutsideTheTableAreRefusedAndChangeNothing) {
    FsmDocument document = FilledDocument();
    const FsmDocument& constant = document;
    for (const int number : {-1, 0, 101, 32767}) {
        EXPECT_THROW(document.State(number).Name = "x", BoundsError);
        EXPECT_THROW(constant.State(number), BoundsError);
    }
    for (const int row : {-1, 0, 3, 55, 100}) {
        EXPECT_THROW(document.Event(row).Name = "x", BoundsError);
        EXPECT_THROW(constant.Event(row), BoundsError);
    }
    EXPECT_EQ(document, FilledDocument());
}

TEST(FsmDocument, BoundsErrorsNameTheNumberAndItsRange) {
    FsmDocument document;
    const auto messageOf = [](auto access) -> std::string {
        try {
            access();
        } catch (const BoundsError& error) {
            return error.what();
        }
        return "no error";
    };
    EXPECT_EQ(messageOf([&] { document.State(0); }), "state 0 is outside 1..100");
    EXPECT_EQ(messageOf([&] { document.Event(55); }), "row 55 is outside 4..54");
}

TEST(FsmDocument, TheFirstAndLastStateAndRowAreThere) {
    FsmDocument document;
    document.State(1).Name = "first";
    document.State(100).Name = "last";
    document.Event(4).Name = "first row";
    document.Event(54).Name = "last row";
    EXPECT_EQ(document.State(1).Name, "first");
    EXPECT_EQ(document.State(100).Name, "last");
    EXPECT_EQ(document.Event(4).Name, "first row");
    EXPECT_EQ(document.Event(54).Name, "last row");
}

TEST(FsmDocument, AnyTextCellOrTimingModeMakesAStateNotEmpty) {
    const std::vector<std::function<void(StateRecord&)>> fills = {
        [](StateRecord& s) { s.Name = "x"; },      [](StateRecord& s) { s.Tooltip = "x"; },
        [](StateRecord& s) { s.EntryCode = "x"; }, [](StateRecord& s) { s.ExitCode = "x"; },
        [](StateRecord& s) { s.TimingMode = -1; }, [](StateRecord& s) { s.TimeConst = "x"; },
        [](StateRecord& s) { s.TimingVar = "x"; }, [](StateRecord& s) { s.TimerId = "x"; },
        [](StateRecord& s) { s.Targets[54] = 1; }, [](StateRecord& s) { s.Actions[4] = "x"; }};
    for (const auto& fill : fills) {
        StateRecord state;
        EXPECT_TRUE(IsEmpty(state));
        fill(state);
        EXPECT_FALSE(IsEmpty(state));
    }
}

TEST(FsmDocument, WidthAndLastTabDoNotMakeAStateNotEmpty) {
    StateRecord state;
    state.ColWidth = 1;
    state.LastTab = 1;
    EXPECT_TRUE(IsEmpty(state));
}

TEST(FsmDocument, AnEventIsEmptyWithoutNameCodeAndTooltip) {
    EXPECT_TRUE(IsEmpty(EventRecord{"", "", "", 3}));
    EXPECT_FALSE(IsEmpty(EventRecord{"x", "", "", 0}));
    EXPECT_FALSE(IsEmpty(EventRecord{"", "x", "", 0}));
    EXPECT_FALSE(IsEmpty(EventRecord{"", "", "x", 0}));
}

} // namespace
} // namespace orvane
