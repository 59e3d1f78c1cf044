// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Scene.h"
#include "diagram/LetterWidths.h"
#include "diagram/SceneLabels.h"

#include <gtest/gtest.h>

#include "core/TimingMode.h"

namespace orvane::diagram {
namespace {

FsmDocument Pump() {
    FsmDocument document;
    document.General.FsmName = "PMP";
    document.State(1).Name = "Idle";
    document.State(2).Name = "Run";
    document.Event(6) = {"Start", ";start?", "", 0};
    document.Event(7) = {"Stop", ";stop?", "", 0};
    document.State(1).Targets[6] = 2;
    document.State(2).Targets[7] = 1;
    return document;
}

std::string Texts(const std::vector<LabelLine>& lines) {
    std::string texts;
    for (const LabelLine& line : lines)
        texts += (texts.empty() ? "" : " / ") + std::string(line.Loop ? "(loop)" : "") +
                 (line.Clock ? "(clock)" : "") + line.Text;
    return texts;
}

Scene SceneOf(const FsmDocument& document, const SceneOptions& options = {}) {
    return MakeScene(document, LetterWidths(), options);
}

TEST(DiagramScene, HasAStateForEachThatHasANameATargetOrSomethingThatLeadsToIt) {
    FsmDocument document = Pump();
    document.State(5).Targets[6] = 9;
    document.State(7).EntryCode = ";nothing that a picture shows";
    const Scene scene = SceneOf(document);
    std::string numbers;
    for (const SceneState& state : scene.States)
        numbers += state.Title + " ";
    EXPECT_EQ(numbers, "1:Idle 2:Run 5: 9: ");
    EXPECT_EQ(scene.IndexOf(9), 3u);
    EXPECT_EQ(scene.IndexOf(7), std::nullopt);
    EXPECT_TRUE(SceneOf(FsmDocument()).States.empty());
}

TEST(DiagramScene, HasOneEdgeForAllTransitionsFromOneStateToAnother) {
    FsmDocument document = Pump();
    for (int row = 8; row < 16; ++row) {
        document.Event(row).Name = "Event " + std::to_string(row);
        document.State(1).Targets[row] = 2;
    }
    const Scene scene = SceneOf(document);
    ASSERT_EQ(scene.Edges.size(), 2u);
    EXPECT_EQ(Texts(scene.Edges[0].Label), "Start / Event 8 / +7 more");
    EXPECT_EQ(scene.Edges[0].Rows.size(), 9u);
    EXPECT_EQ(scene.Edges[0].Name,
              "1:Idle to 2:Run by Start, Event 8, Event 9, Event 10, Event 11, Event 12, "
              "Event 13, Event 14, Event 15");
    EXPECT_EQ(MergedEdges(document), 2u);
}

TEST(DiagramScene, ThreeEventsAreAllNamed) {
    FsmDocument document = Pump();
    document.State(1).Targets[7] = 2;
    document.State(1).Targets[8] = 2;
    EXPECT_EQ(Texts(SceneOf(document).Edges[0].Label), "Start / Stop / e8");
}

TEST(DiagramScene, WhatLeadsBackIsALineOfTheBox) {
    FsmDocument document = Pump();
    document.State(2).Targets[6] = 2;
    document.State(2).TimingMode = kStartConstant;
    document.State(2).TimeConst = " 30 ";
    document.State(2).Targets[kTimeoutRow] = 2;
    const Scene scene = SceneOf(document);
    EXPECT_EQ(scene.Edges.size(), 2u);
    EXPECT_EQ(Texts(scene.States[1].Lines), "(loop)(clock)30 / (loop)Start");
    EXPECT_EQ(scene.States[1].Name, "state 2:Run, again by timeout 30, Start");
}

TEST(DiagramScene, TimeoutsShowTheirLimit) {
    FsmDocument document = Pump();
    document.State(1).Targets[kTimeoutRow] = 2;
    EXPECT_EQ(RowName(document, 1, kTimeoutRow), "timeout");
    document.State(1).TimingMode = kContinueVariable;
    EXPECT_EQ(RowName(document, 1, kTimeoutRow), "variable time");
    document.State(1).TimingMode = kContinueConstant;
    document.State(1).TimeConst = "2*SECOND";
    EXPECT_EQ(Texts(SceneOf(document).Edges[0].Label), "(clock)2*SECOND / Start");
}

TEST(DiagramScene, OnlyAnEdgeThatIsElseAloneIsDashed) {
    FsmDocument document = Pump();
    document.State(2).Targets[kElseRow] = 1;
    document.State(1).Targets[kElseRow] = 1;
    Scene scene = SceneOf(document);
    EXPECT_FALSE(scene.Edges[1].IsDashed);
    EXPECT_EQ(Texts(scene.Edges[1].Label), "ELSE / Stop");
    document.State(2).Targets[7] = kNoState;
    scene = SceneOf(document);
    EXPECT_TRUE(scene.Edges[1].IsDashed);
    scene = SceneOf(document, {.HideElse = true});
    EXPECT_EQ(scene.Edges.size(), 1u);
    EXPECT_EQ(scene.States.size(), 2u);
    EXPECT_EQ(Texts(scene.States[0].Lines), "");
}

TEST(DiagramScene, MarksTheStartWhatIsUnreachableAndWhatHasErrors) {
    FsmDocument document = Pump();
    document.State(3).Name = "Lost";
    document.State(3).Targets[9] = 1;
    document.State(2).Targets[8] = 1;
    const Scene scene = SceneOf(document);
    EXPECT_TRUE(scene.States[0].IsStart);
    EXPECT_FALSE(scene.States[0].IsUnreachable);
    EXPECT_FALSE(scene.States[0].HasError);
    EXPECT_TRUE(scene.States[1].HasError);
    EXPECT_TRUE(scene.States[2].IsUnreachable);
    EXPECT_FALSE(scene.States[2].HasError);
    EXPECT_EQ(scene.States[0].Name, "state 1:Idle, start");
    EXPECT_EQ(scene.States[1].Name, "state 2:Run, with errors");
    EXPECT_EQ(scene.States[2].Name, "state 3:Lost, unreachable");
}

TEST(DiagramScene, TheNeighbourhoodHasOnlyWhatTheFocusLeadsToAndWhatLeadsThere) {
    FsmDocument document = Pump();
    document.State(2).Targets[8] = 3;
    document.State(3).Targets[8] = 4;
    document.State(4).Targets[8] = 1;
    document.State(1).Targets[9] = 1;
    const Scene scene = SceneOf(document, {.Focus = StateNumber(2)});
    ASSERT_EQ(scene.States.size(), 3u);
    EXPECT_EQ(scene.States[2].Number, 3);
    EXPECT_EQ(scene.Edges.size(), 3u);
    EXPECT_TRUE(scene.States[0].Lines.empty());
}

TEST(DiagramScene, AFilterKeepsTheTransitionsOfOneEvent) {
    const Scene scene = SceneOf(Pump(), {.OnlyRow = RowNumber(7)});
    ASSERT_EQ(scene.Edges.size(), 1u);
    EXPECT_EQ(scene.Edges[0].From, 2);
    EXPECT_EQ(scene.States.size(), 2u);
}

TEST(DiagramScene, StubsStandForTheLinesToWhereMoreThanAThirdLead) {
    FsmDocument document = Pump();
    for (int state = 3; state <= 10; ++state)
        document.State(state).Targets[6] = state + 1;
    for (int state = 3; state <= 6; ++state)
        document.State(state).Targets[7] = 1;
    Scene scene = SceneOf(document, {.Stubs = true});
    EXPECT_EQ(Texts(scene.States[2].Lines), "-> 1:Idle");
    EXPECT_EQ(scene.Edges.size(), 9u);
    document.State(6).Targets[7] = document.State(5).Targets[7] = kNoState;
    scene = SceneOf(document, {.Stubs = true});
    EXPECT_EQ(scene.Edges.size(), 12u);
}

TEST(DiagramScene, ANameThatIsCutEndsInDots) {
    FsmDocument document = Pump();
    document.State(1).Name = std::string(1000, 'W');
    document.Event(6).Name = "First\r\n\tline" + std::string(300, 'i');
    const Scene scene = SceneOf(document);
    const LetterWidths sizes;
    EXPECT_EQ(scene.States[0].Title.substr(0, 4), "1:WW");
    EXPECT_TRUE(scene.States[0].Title.ends_with("..."));
    EXPECT_LE(sizes.Width(scene.States[0].Title, TextRole::Title), 200);
    EXPECT_TRUE(scene.Edges[0].Label[0].Text.starts_with("First line"));
    EXPECT_TRUE(scene.Edges[0].Label[0].Text.ends_with("..."));
    EXPECT_EQ(FittedLine("short", 200, TextRole::Line, sizes), "short");
}

TEST(DiagramScene, ATargetThatTheTableDoesNotHaveIsAFaultOfTheCaller) {
    FsmDocument document = Pump();
    document.State(1).Targets[6] = 101;
    EXPECT_THROW(SceneOf(document), BoundsError);
    EXPECT_THROW(MergedEdges(document), BoundsError);
}

} // namespace
} // namespace orvane::diagram
