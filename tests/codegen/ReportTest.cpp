// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/Report.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

Finding Note() { return {FindingKind::TimeoutAndElse, {4, 1}, "n"}; }
Finding Warning() { return {FindingKind::DeadEnd, {0, 1}, "w"}; }
Finding Error() { return {FindingKind::MissingEventCode, {6, 1}, "e"}; }

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

TEST(Report, EveryLineOfAFindingLeadsToItsPlaceAndHeadingAndCountsNowhere) {
    Finding odd = Warning();
    odd.Message = "a\rb\nc\r\nd";
    EXPECT_EQ(ReportLines({{Error(), odd}}), (std::vector<ReportLine>{{"Errors and warnings", {}},
                                                                      {"** Error ** e", {6, 1}},
                                                                      {"Warning: a", {0, 1}},
                                                                      {"b", {0, 1}},
                                                                      {"c", {0, 1}},
                                                                      {"d", {0, 1}},
                                                                      {" 1 Warnings", {}},
                                                                      {"**** 1 Errors ****", {}}}));
    EXPECT_EQ(ReportLines({{Error()}, true}), (std::vector<ReportLine>{{"** Error ** e", {6, 1}}}));
}

} // namespace
} // namespace orvane
