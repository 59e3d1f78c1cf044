// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/DraftPace.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvane {
namespace {

using namespace std::chrono_literals;

constexpr DraftPace::Clock::time_point kStart{1h};

// The moments at which a draft is written when letters come at these times, by somebody who looks every 10
// ms.
std::vector<std::chrono::milliseconds> Written(const std::vector<std::chrono::milliseconds>& letters) {
    DraftPace pace;
    std::vector<std::chrono::milliseconds> written;
    for (auto now = 0ms; now <= 10s; now += 10ms) {
        if (std::find(letters.begin(), letters.end(), now) != letters.end())
            pace.Typed(kStart + now);
        if (!pace.IsDue(kStart + now))
            continue;
        written.push_back(now);
        pace.Written();
    }
    return written;
}

using Moments = std::vector<std::chrono::milliseconds>;

TEST(DraftPace, WithoutALetterNothingIsDue) {
    EXPECT_FALSE(DraftPace().Due());
    EXPECT_EQ(Written({}), Moments());
}

TEST(DraftPace, OneLetterIsWrittenAfterThePause) { EXPECT_EQ(Written({0ms}), Moments{250ms}); }

TEST(DraftPace, AWordIsWrittenAfterItsLastLetter) {
    EXPECT_EQ(Written({0ms, 100ms, 200ms, 300ms}), Moments{550ms});
}

TEST(DraftPace, SteadyTypingIsWrittenEverySecond) {
    Moments letters;
    for (auto at = 0ms; at <= 3s; at += 100ms)
        letters.push_back(at);
    EXPECT_EQ(Written(letters), (Moments{1000ms, 2100ms, 3200ms}));
}

TEST(DraftPace, AfterALongPauseTheNextWordHasItsOwnSecond) {
    EXPECT_EQ(Written({0ms, 5000ms, 5200ms}), (Moments{250ms, 5450ms}));
}

TEST(DraftPace, ADraftThatIsGoneIsNotWritten) {
    DraftPace pace;
    pace.Typed(kStart);
    pace.Written();
    EXPECT_FALSE(pace.Due());
    EXPECT_FALSE(pace.IsDue(kStart + 1h));
}

} // namespace
} // namespace orvane
