// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/Replacement.h"

#include "support/SmallTable.h"

#include <gtest/gtest.h>

namespace orvane::find {
namespace {

ReplacementPlan Plan(const FsmDocument& document, const SearchQuery& query, const std::string& replacement) {
    return PlanReplacement(document, std::get<Pattern>(ReadPattern(query)), replacement);
}

TEST(Replacement, ReplacesInAllTextsButTheScriptsPath) {
    FsmDocument document =
        test::SmallTable().Name(1, "Horn", "Horn\r\nHorn Horn").Cell(1, 6, 2, "Horn").Document();
    document.General.BuildFile = "Horn.b1d";
    const ReplacementPlan plan = Plan(document, {.Text = "horn"}, "Siren");
    EXPECT_EQ(plan.Changes.size(), 5u);
    EXPECT_EQ(plan.LeftAlone, 1u);
    EXPECT_EQ(PreviewOf(document, plan.Changes[2]).Before, "Horn Horn");
    EXPECT_EQ(PreviewOf(document, plan.Changes[2]).After, "Siren Horn");
    EXPECT_EQ(PreviewOf(document, plan.Changes[3]).After, "Horn Siren");
    Apply(document, plan.Changes);
    EXPECT_EQ(document.State(1).Name, "Siren");
    EXPECT_EQ(document.State(1).EntryCode, "Siren\r\nSiren Siren");
    EXPECT_EQ(document.State(1).Actions[6], "Siren");
    EXPECT_EQ(document.General.BuildFile, "Horn.b1d");
}

TEST(Replacement, PutsInWhatTheGroupsMatched) {
    FsmDocument document = test::SmallTable().Name(1, "", "set a,12\r\nset b,3").Document();
    const SearchQuery query{.Text = "set (\\w),(\\d+)(x)?", .IsExpression = true};
    Apply(document, Plan(document, query, "$2\\t$1$3 $$ $0 $").Changes);
    EXPECT_EQ(document.State(1).EntryCode, "12\ta $ set a,12 $\r\n3\tb $ set b,3 $");
}

TEST(Replacement, OfAPlainTextIsTakenAsItStands) {
    FsmDocument document = test::SmallTable().Name(1, "", "a.b").Document();
    Apply(document, Plan(document, {.Text = "."}, "$0\\t").Changes);
    EXPECT_EQ(document.State(1).EntryCode, "a$0\\tb");
}

TEST(Replacement, WhatNoDocumentCanHoldIsRefused) {
    const FsmDocument document = test::SmallTable().Name(1, "a").Document();
    EXPECT_EQ(Plan(document, {.Text = "a"}, "\xA4").Fault,
              "The character \xA4 ends fields in a document, so that no text can hold it");
    EXPECT_TRUE(Plan(document, {.Text = "a"}, "\xA4").Changes.empty());
    EXPECT_EQ(Plan(document, {.Text = "a"}, "b\nc").Fault, "A name stands in one line");
}

} // namespace
} // namespace orvane::find
