// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

namespace orvane {

using CrcTable = std::array<std::uint32_t, 256>;

// What each byte adds to a checksum of 32 bits; the polynomial with its lowest bit first.
constexpr CrcTable MakeCrcTable(std::uint32_t polynomial) {
    CrcTable table{};
    for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
        std::uint32_t rest = byte;
        for (int bit = 0; bit < 8; ++bit)
            rest = (rest >> 1) ^ ((rest & 1) != 0 ? polynomial : 0);
        table[byte] = rest;
    }
    return table;
}

} // namespace orvane
