// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace orvane {

// The number of a character's byte, 0..255, whatever the sign of char is.
constexpr unsigned char ByteOf(char character) { return static_cast<unsigned char>(character); }

} // namespace orvane
