// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ctime>
#include <string>

namespace orvane {

struct BannerMoment {
    std::string Date;  // as in a program's first line, dd/MM/yyyy HH:mm:ss; empty with a fault
    std::string Fault; // what is wrong with SOURCE_DATE_EPOCH, for the user and without the stop; else empty
};

// `sourceDateEpoch` is the value of the environment variable SOURCE_DATE_EPOCH or null
// (https://reproducible-builds.org/specs/source-date-epoch/): when it is set, that moment in UTC stands for
// the clock, else `now` is shown in local time. A value that is no moment is a fault, because whoever set it
// wants the same bytes each time, which the clock does not give.
BannerMoment BannerDate(std::time_t now, const char* sourceDateEpoch);

} // namespace orvane
