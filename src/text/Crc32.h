// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace orvane {

// The CRC-32 of archives and of most tools that check files: 0xCBF43926 of "123456789".
std::uint32_t Crc32(std::string_view bytes);

} // namespace orvane
