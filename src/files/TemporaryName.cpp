// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/TemporaryName.h"

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
    std::random_device random;
    std::uniform_int_distribution<std::size_t> digit(0, kDigits.size() - 1);
    std::string name(kBegin);
    for (std::size_t i = 0; i < kDigitCount; ++i)
        name += kDigits[digit(random)];
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
