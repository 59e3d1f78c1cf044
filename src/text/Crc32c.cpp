// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Crc32c.h"

#include "text/ByteOf.h"
#include "text/CrcTable.h"

#include <cstddef>

namespace orvane {

namespace {

constexpr std::size_t kStride = 8; // bytes taken at once, each with a table of its own

constexpr std::array<CrcTable, kStride> MakeTables() {
    std::array<CrcTable, kStride> tables{MakeCrcTable(0x82F63B78)};
    for (std::size_t n = 1; n < kStride; ++n) {
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const std::uint32_t rest = tables[n - 1][byte];
            tables[n][byte] = (rest >> 8) ^ tables[0][rest & 0xFF];
        }
    }
    return tables;
}

constexpr std::array<CrcTable, kStride> kTables = MakeTables();

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
