// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Crc32.h"

#include "text/ByteOf.h"

#include <array>

namespace orvane {

namespace {

constexpr std::uint32_t kPolynomial = 0xEDB88320; // with the lowest bit first

constexpr std::array<std::uint32_t, 256> MakeTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
        std::uint32_t rest = byte;
        for (int bit = 0; bit < 8; ++bit)
            rest = (rest >> 1) ^ ((rest & 1) != 0 ? kPolynomial : 0);
        table[byte] = rest;
    }
    return table;
}

} // namespace

std::uint32_t Crc32(std::string_view bytes) {
    static constexpr std::array<std::uint32_t, 256> table = MakeTable();
    std::uint32_t rest = ~std::uint32_t{0};
    for (const char character : bytes)
        rest = (rest >> 8) ^ table[(rest ^ ByteOf(character)) & 0xFF];
    return ~rest;
}

} // namespace orvane
