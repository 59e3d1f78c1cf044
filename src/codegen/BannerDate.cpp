// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/BannerDate.h"

#include <array>
#include <charconv>
#include <string_view>

namespace orvane {

namespace {

const std::tm* BrokenDown(std::time_t now, const char* sourceDateEpoch) {
    const std::string_view epoch = sourceDateEpoch ? sourceDateEpoch : "";
    long long seconds = 0;
    const auto read = std::from_chars(epoch.data(), epoch.data() + epoch.size(), seconds);
    if (epoch.empty() || read.ec != std::errc() || read.ptr != epoch.data() + epoch.size())
        return std::localtime(&now);
    const auto moment = static_cast<std::time_t>(seconds);
    return std::gmtime(&moment);
}

} // namespace

std::string BannerDate(std::time_t now, const char* sourceDateEpoch) {
    const std::tm* parts = BrokenDown(now, sourceDateEpoch);
    std::array<char, 64> text{};
    const std::size_t length =
        parts ? std::strftime(text.data(), text.size(), "%d/%m/%Y %H:%M:%S", parts) : 0;
    return {text.data(), length};
}

} // namespace orvane
