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

TEST(BannerDate, ShowsTheLocalTime) {
    EXPECT_EQ(BannerDate(LocalTime(), nullptr).Date, "06/11/2026 01:02:03");
}

TEST(BannerDate, SourceDateEpochStandsForTheClockInUtc) {
    EXPECT_EQ(BannerDate(LocalTime(), "1793836923").Date, "05/11/2026 00:02:03");
    EXPECT_EQ(BannerDate(LocalTime(), "0").Date, "01/01/1970 00:00:00");
    EXPECT_EQ(BannerDate(LocalTime(), "253402300799").Date, "31/12/9999 23:59:59");
    EXPECT_EQ(BannerDate(LocalTime(), "0").Fault, "");
}

TEST(BannerDate, ASourceDateEpochThatIsNoMomentIsAFaultAndNotTheClock) {
    for (const char* value :
         {"", "x", "12x", " 12", "12 ", "1.5", "-1", "+1", "0x10", "253402300800", "99999999999999999999"}) {
        const BannerMoment moment = BannerDate(LocalTime(), value);
        EXPECT_EQ(moment.Date, "") << value;
        EXPECT_EQ(moment.Fault, "SOURCE_DATE_EPOCH is \"" + std::string(value) +
                                    "\", which is no whole number of seconds from 0 to 253402300799; "
                                    "correct it or unset it");
    }
}

} // namespace
} // namespace orvane
