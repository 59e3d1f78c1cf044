// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/LimitText.h"

#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane::run {

std::optional<std::int64_t> LimitNumber(std::string_view text) {
    const std::string_view number = Trim(text);
    const bool hasSign = number.starts_with('-') || number.starts_with('+');
    const std::string_view digits = number.substr(hasSign ? 1 : 0);
    if (digits.empty() || digits.find_first_not_of("0123456789") != std::string_view::npos)
        return std::nullopt;
    return ParseNumber(number);
}

} // namespace orvane::run
