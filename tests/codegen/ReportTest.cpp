// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/Report.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

Finding Note() { return {Severity::Note, {4, 1}, "n"}; }
Finding Warning() { return {Severity::Warning, {0, 1}, "w"}; }
Finding Error() { return {Severity::Error, {6, 1}, "e"}; }

TEST(Report, ACleanRunLeavesTheHeading) { EXPECT_EQ(ReportText({}), "Errors and warnings\r\n"); }

TEST(Report, FindingsKeepTheirOrderAndCountsFollowBySeverity) {
    EXPECT_EQ(ReportText({{Error(), Note(), Warning(), Note(), Note()}}),
              "Errors and warnings\r\n** Error ** e\r\nNote: n\r\nWarning: w\r\nNote: n\r\nNote: n\r\n"
              " 3 Notes\r\n 1 Warnings\r\n**** 1 Errors ****\r\n");
}

TEST(Report, SeveritiesThatDidNotOccurAreNotCounted) {
    EXPECT_EQ(ReportText({{Warning()}}), "Errors and warnings\r\nWarning: w\r\n 1 Warnings\r\n");
    EXPECT_EQ(ReportText({{Note(), Note(), Note(), Error()}}),
              "Errors and warnings\r\nNote: n\r\nNote: n\r\nNote: n\r\n** Error ** e\r\n"
              " 3 Notes\r\n**** 1 Errors ****\r\n");
}

TEST(Report, ARunThatEndedEarlyHasNeitherHeadingNorCounts) {
    EXPECT_EQ(ReportText({{Error()}, true}), "** Error ** e\r\n");
}

TEST(Report, OnlyErrorsAreErrors) {
    EXPECT_FALSE((Report{{Note(), Warning()}}).HasErrors());
    EXPECT_TRUE((Report{{Note(), Error()}}).HasErrors());
    EXPECT_EQ((Report{{Note(), Error(), Note()}}).Count(Severity::Note), 2u);
}

TEST(Report, SeveritiesHaveNames) {
    EXPECT_EQ(SeverityName(Severity::Note), "note");
    EXPECT_EQ(SeverityName(Severity::Warning), "warning");
    EXPECT_EQ(SeverityName(Severity::Error), "error");
}

} // namespace
} // namespace orvane
