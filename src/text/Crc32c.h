// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace orvane {

// CRC-32C (Castagnoli): 0xE3069283 of "123456789". With the checksum of what stands before, the checksum of
// both together. That of no bytes at all is 0, so a format that must not take zeros for something sound lets
// it begin with bytes of its own.
std::uint32_t Crc32c(std::string_view bytes, std::uint32_t before = 0);

} // namespace orvane
