// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/BannerDate.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace orvane {
namespace {

// A moment of local time; mktime makes it independent of the time zone of the machine.
std::time_t LocalTime() {
    std::tm parts{};
    parts.tm_year = 126;
    parts.tm_mon = 10;
    parts.tm_mday = 6;
    parts.tm_hour = 1;
    parts.tm_min = 2;
    parts.tm_sec = 3;
    parts.tm_isdst = -1;
    return std::mktime(&parts);
}

TEST(BannerDate, ShowsTheLocalTime) { EXPECT_EQ(BannerDate(LocalTime(), nullptr), "06/11/2026 01:02:03"); }

TEST(BannerDate, SourceDateEpochStandsForTheClockInUtc) {
    EXPECT_EQ(BannerDate(LocalTime(), "1793836923"), "05/11/2026 00:02:03");
    EXPECT_EQ(BannerDate(LocalTime(), "0"), "01/01/1970 00:00:00");
}

TEST(BannerDate, ASourceDateEpochThatIsNoNumberIsIgnored) {
    for (const char* value : {"", "x", "12x", " 12", "1.5", "99999999999999999999"})
        EXPECT_EQ(BannerDate(LocalTime(), value), "06/11/2026 01:02:03") << value;
}

} // namespace
} // namespace orvane
