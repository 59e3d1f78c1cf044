// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/TextDelta.h"

#include <algorithm>
#include <array>

namespace orvane {

namespace {

// Whole blocks first, which compare as fast as memory can be read; then the rest of the way in smaller ones.
constexpr std::array<std::size_t, 4> kBlocks = {4096, 256, 16, 1};

std::size_t CommonPrefix(std::string_view one, std::string_view other, std::size_t most) {
    std::size_t length = 0;
    for (const std::size_t block : kBlocks) {
        while (most - length >= block && one.substr(length, block) == other.substr(length, block))
            length += block;
    }
    return length;
}

std::size_t CommonSuffix(std::string_view one, std::string_view other, std::size_t most) {
    std::size_t length = 0;
    for (const std::size_t block : kBlocks) {
        while (most - length >= block && one.substr(one.size() - length - block, block) ==
                                             other.substr(other.size() - length - block, block))
            length += block;
    }
    return length;
}

} // namespace

TextDelta Difference(std::string_view before, std::string_view after) {
    const std::size_t shorter = std::min(before.size(), after.size());
    const std::size_t prefix = CommonPrefix(before, after, shorter);
    const std::size_t suffix = CommonSuffix(before, after, shorter - prefix);
    return {prefix, suffix, after.substr(prefix, after.size() - prefix - suffix)};
}

void Apply(const TextDelta& delta, std::string& text) {
    text.replace(delta.Prefix, text.size() - delta.Prefix - delta.Suffix, delta.Middle);
}

} // namespace orvane
