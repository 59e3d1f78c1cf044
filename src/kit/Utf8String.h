// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string_view>

namespace orvane {

inline QString FromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

} // namespace orvane
