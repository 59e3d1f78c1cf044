// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// Appends the pieces one after the other: what "+" would first join into texts of their own.
template <typename... Pieces>
void Append(std::string& text, const Pieces&... pieces) {
    (text.append(std::string_view(pieces)), ...);
}

} // namespace orvane
