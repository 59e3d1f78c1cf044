// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ctime>
#include <string>

namespace orvane {

// The date in a program's first line, dd/MM/yyyy HH:mm:ss. `sourceDateEpoch` is the value of the environment
// variable SOURCE_DATE_EPOCH or null (https://reproducible-builds.org/specs/source-date-epoch/): when it
// holds a number of seconds, that moment in UTC stands for the clock; otherwise `now` is shown in local time.
std::string BannerDate(std::time_t now, const char* sourceDateEpoch);

} // namespace orvane
