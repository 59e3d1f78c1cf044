// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/FindingKind.h"

#include "support/FileBytes.h"
#include "support/Folders.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace orvane {
namespace {

TEST(FindingKind, EveryKindHasAWordOfItsOwnThatTheFormatPageExplainsWithItsSeverity) {
    const std::string page = FileBytes(test::kFormatPage);
    std::set<std::string_view> words;
    for (const FindingKind kind : kFindingKinds) {
        EXPECT_TRUE(words.insert(KindName(kind)).second) << KindName(kind);
        const std::string row =
            "| `" + std::string(KindName(kind)) + "` | " + std::string(SeverityName(SeverityOf(kind))) + " |";
        EXPECT_NE(page.find(row), std::string::npos) << row;
    }
}

// Scripts and approvals of users hold these words.
TEST(FindingKind, WordsNeverChange) {
    EXPECT_EQ(KindName(FindingKind::MissingPrefix), "missing-prefix");
    EXPECT_EQ(KindName(FindingKind::MissingEventCode), "missing-event-code");
    EXPECT_EQ(KindName(FindingKind::TimingModeWithoutTimeout), "timing-mode-without-timeout");
    EXPECT_EQ(KindName(FindingKind::MissingTimeConstant), "missing-time-constant");
    EXPECT_EQ(KindName(FindingKind::MissingVariableTime), "missing-variable-time");
    EXPECT_EQ(KindName(FindingKind::MissingTimingMode), "missing-timing-mode");
    EXPECT_EQ(KindName(FindingKind::DeadEnd), "dead-end");
    EXPECT_EQ(KindName(FindingKind::TimeoutAndElse), "timeout-and-else");
    EXPECT_EQ(KindName(FindingKind::UnreachableState), "unreachable-state");
    EXPECT_EQ(KindName(FindingKind::MergeConflict), "merge-conflict");
}

TEST(FindingKind, SeveritiesHaveNames) {
    EXPECT_EQ(SeverityName(Severity::Note), "note");
    EXPECT_EQ(SeverityName(Severity::Warning), "warning");
    EXPECT_EQ(SeverityName(Severity::Error), "error");
}

} // namespace
} // namespace orvane
