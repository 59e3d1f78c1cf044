// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Crc32.h"

#include "text/ByteOf.h"
#include "text/CrcTable.h"

namespace orvane {

std::uint32_t Crc32(std::string_view bytes) {
    static constexpr CrcTable table = MakeCrcTable(0xEDB88320);
    std::uint32_t rest = ~std::uint32_t{0};
    for (const char character : bytes)
        rest = (rest >> 8) ^ table[(rest ^ ByteOf(character)) & 0xFF];
    return ~rest;
}

} // namespace orvane
