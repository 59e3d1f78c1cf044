// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/Patience.h"

#include <gtest/gtest.h>

#ifdef _WIN32
#include <filesystem>
#include <fstream>
#endif

namespace orvane {
namespace {

using namespace std::chrono_literals;

std::error_code Denied() { return make_error_code(std::errc::permission_denied); }

TEST(PatienceTest, WhatSucceedsIsAttemptedOnce) {
    int attempts = 0;
    EXPECT_FALSE(Patiently(10s, [&] {
        ++attempts;
        return std::error_code();
    }));
    EXPECT_EQ(attempts, 1);
}

TEST(PatienceTest, WhatFailsForAnotherReasonIsAttemptedOnce) {
    int attempts = 0;
    EXPECT_EQ(Patiently(10s,
                        [&] {
                            ++attempts;
                            return make_error_code(std::errc::no_space_on_device);
                        }),
              std::errc::no_space_on_device);
    EXPECT_EQ(attempts, 1);
}

#ifdef _WIN32

TEST(PatienceTest, PatienceEnds) {
    EXPECT_EQ(Patiently(30ms, [] { return Denied(); }), std::errc::permission_denied);
}

TEST(PatienceTest, AFileThatSomeoneHasOpenIsReplacedOnceItIsClosed) {
    const std::filesystem::path folder = std::filesystem::temp_directory_path();
    const std::filesystem::path fresh = folder / "orvane-patience.new";
    const std::filesystem::path target = folder / "orvane-patience.zls";
    std::ofstream(fresh) << "new";
    std::ofstream holder(target);
    int attempts = 0;
    EXPECT_FALSE(Patiently(10s, [&] {
        if (++attempts == 3)
            holder.close();
        std::error_code failure;
        std::filesystem::rename(fresh, target, failure);
        return failure;
    }));
    EXPECT_EQ(attempts, 3);
    std::filesystem::remove(target);
}

#else

TEST(PatienceTest, WhereOpenFilesAreNoObstacleARefusalIsTakenAtOnce) {
    int attempts = 0;
    EXPECT_EQ(Patiently(10s,
                        [&] {
                            ++attempts;
                            return Denied();
                        }),
              std::errc::permission_denied);
    EXPECT_EQ(attempts, 1);
}

#endif

} // namespace
} // namespace orvane
