// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/BannerDate.h"

#include <array>
#include <charconv>
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
    return {Shown(std::gmtime(&*moment)), {}};
}

} // namespace orvane
