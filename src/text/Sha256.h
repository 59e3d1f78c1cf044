// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvane {

using Sha256Digest = std::array<std::uint8_t, 32>;

// The SHA-256 of the bytes (FIPS 180-4): two texts with the same one are taken for the same text.
Sha256Digest Sha256(std::string_view bytes);

// 64 small hexadecimal digits.
std::string DigestText(const Sha256Digest& digest);

} // namespace orvane
