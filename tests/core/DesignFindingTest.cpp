// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DesignFinding.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

std::string Counts(std::initializer_list<FindingLevel> levels) {
    std::vector<DesignFinding> findings;
    for (const FindingLevel level : levels)
        findings.push_back({level, {}, "text"});
    return FindingCounts(findings);
}

TEST(DesignFinding, CountsAreToldInWordsWithoutWhatThereIsNoneOf) {
    using enum FindingLevel;
    EXPECT_EQ(Counts({}), "No findings");
    EXPECT_EQ(Counts({Error}), "1 error");
    EXPECT_EQ(Counts({Error, Error, Warning, Note, Note, Note, Advice}),
              "2 errors, 1 warning, 3 notes, 1 advice");
    EXPECT_EQ(Counts({Advice, Warning, Advice, Warning}), "2 warnings, 2 advice");
}

} // namespace
} // namespace orvane
