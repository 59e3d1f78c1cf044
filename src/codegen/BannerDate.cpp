// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/BannerDate.h"

#include <array>
#include <charconv>
#include <chrono>
#include <optional>
#include <string_view>

namespace orvane {

namespace {

constexpr long long kLastMoment = 253402300799; // the end of the year 9999

std::string Shown(const std::tm* parts) {
    std::array<char, 64> text{};
    const std::size_t length =
        parts ? std::strftime(text.data(), text.size(), "%d/%m/%Y %H:%M:%S", parts) : 0;
    return {text.data(), length};
}

// std::gmtime ends with the year 3000 on some systems.
std::tm Utc(std::time_t moment) {
    const std::chrono::sys_seconds time{std::chrono::seconds{moment}};
    const auto midnight = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date{midnight};
    const std::chrono::hh_mm_ss clock{time - midnight};
    std::tm parts{};
    parts.tm_year = int(date.year()) - 1900;
    parts.tm_mon = int(unsigned(date.month())) - 1;
    parts.tm_mday = int(unsigned(date.day()));
    parts.tm_hour = int(clock.hours().count());
    parts.tm_min = int(clock.minutes().count());
    parts.tm_sec = int(clock.seconds().count());
    return parts;
}

std::optional<std::time_t> Moment(std::string_view epoch) {
    long long seconds = 0;
    const char* end = epoch.data() + epoch.size();
    const auto read = std::from_chars(epoch.data(), end, seconds);
    if (read.ec != std::errc() || read.ptr != end || seconds < 0 || seconds > kLastMoment)
        return std::nullopt;
    return seconds;
}

std::string Fault(std::string_view epoch) {
    return "SOURCE_DATE_EPOCH is \"" + std::string(epoch) +
           "\", which is no whole number of seconds from 0 to 253402300799; correct it or unset it";
}

} // namespace

BannerMoment BannerDate(std::time_t now, const char* sourceDateEpoch) {
    if (!sourceDateEpoch)
        return {Shown(std::localtime(&now)), {}};
    const std::optional<std::time_t> moment = Moment(sourceDateEpoch);
    if (!moment)
        return {{}, Fault(sourceDateEpoch)};
    const std::tm utc = Utc(*moment);
    return {Shown(&utc), {}};
}

} // namespace orvane
