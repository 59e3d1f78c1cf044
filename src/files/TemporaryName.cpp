// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/TemporaryName.h"

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

namespace orvane {

namespace {

constexpr std::string_view kBegin = ".orvane-";
constexpr std::string_view kEnd = ".tmp";
constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::size_t kDigitCount = 16;

} // namespace

std::filesystem::path TemporaryName() {
    std::random_device random; // slow: each number of it is used up
    std::string name(kBegin);
    for (std::uint32_t chance = 0, left = 0; name.size() < kBegin.size() + kDigitCount;
         chance >>= 4, --left) {
        if (left == 0) {
            chance = random();
            left = 8;
        }
        name += kDigits[chance & 0xF];
    }
    return name.append(kEnd);
}

bool IsTemporaryName(const std::filesystem::path& name) {
    const std::u8string utf8 = name.u8string();
    const std::string all(utf8.begin(), utf8.end());
    if (all.size() != kBegin.size() + kDigitCount + kEnd.size() || !all.starts_with(kBegin) ||
        !all.ends_with(kEnd))
        return false;
    const std::string_view random(all.data() + kBegin.size(), kDigitCount);
    return random.find_first_not_of(kDigits) == std::string_view::npos;
}

} // namespace orvane
