// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cstdlib>
#include <sstream>

namespace orvane::test {

// How much a property is tried: the number of random cases, and how large their values grow.
struct Effort {
    int Cases = 100;
    int LargestSize = 100;
};

// Checks a property on random values inside a test; a failure is shrunk and shown. The values are the same in
// every run, so that a test fails for everyone or for no one. RC_PARAMS in the environment sets seed, number
// and size instead: RC_PARAMS="seed=7 max_success=10000".
template <typename Property>
void ExpectProperty(const Effort& effort, Property&& property) {
    rc::detail::TestParams params = rc::detail::configuration().testParams;
    if (std::getenv("RC_PARAMS") == nullptr) {
        params.seed = 20261121;
        params.maxSuccess = effort.Cases;
        params.maxSize = effort.LargestSize;
    }
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    const rc::detail::TestMetadata metadata{test->name(), test->name()};
    const auto result = rc::detail::checkTestable(std::forward<Property>(property), metadata, params);
    std::ostringstream story;
    rc::detail::printResultMessage(result, story);
    EXPECT_TRUE(result.template is<rc::detail::SuccessResult>()) << story.str();
}

} // namespace orvane::test
