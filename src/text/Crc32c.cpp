// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Crc32c.h"

#include "text/ByteOf.h"

#include <array>
#include <cstddef>

namespace orvane {

namespace {

constexpr std::uint32_t kPolynomial = 0x82F63B78; // with the lowest bit first
constexpr std::size_t kStride = 8;                // bytes taken at once, each with a table of its own

using Table = std::array<std::uint32_t, 256>;

constexpr std::array<Table, kStride> MakeTables() {
    std::array<Table, kStride> tables{};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        std::uint32_t rest = byte;
        for (int bit = 0; bit < 8; ++bit)
            rest = (rest >> 1) ^ ((rest & 1) != 0 ? kPolynomial : 0);
        tables[0][byte] = rest;
    }
    for (std::size_t n = 1; n < kStride; ++n) {
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const std::uint32_t rest = tables[n - 1][byte];
            tables[n][byte] = (rest >> 8) ^ tables[0][rest & 0xFF];
        }
    }
    return tables;
}

constexpr std::array<Table, kStride> kTables = MakeTables();

constexpr std::uint32_t Byte(char character) { return ByteOf(character); }

constexpr std::uint32_t FourBytes(std::string_view bytes) {
    return Byte(bytes[0]) | Byte(bytes[1]) << 8 | Byte(bytes[2]) << 16 | Byte(bytes[3]) << 24;
}

} // namespace

std::uint32_t Crc32c(std::string_view bytes, std::uint32_t before) {
    std::uint32_t rest = ~before;
    for (; bytes.size() >= kStride; bytes.remove_prefix(kStride)) {
        const std::uint32_t low = rest ^ FourBytes(bytes);
        const std::uint32_t high = FourBytes(bytes.substr(4));
        rest = kTables[7][low & 0xFF] ^ kTables[6][low >> 8 & 0xFF] ^ kTables[5][low >> 16 & 0xFF] ^
               kTables[4][low >> 24] ^ kTables[3][high & 0xFF] ^ kTables[2][high >> 8 & 0xFF] ^
               kTables[1][high >> 16 & 0xFF] ^ kTables[0][high >> 24];
    }
    for (const char character : bytes)
        rest = (rest >> 8) ^ kTables[0][(rest ^ Byte(character)) & 0xFF];
    return ~rest;
}

} // namespace orvane
