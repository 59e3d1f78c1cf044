// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/TableGeometry.h"

#include <cstdint>
#include <optional>
#include <stdexcept>

namespace orvane {

// A state number or a row that the table does not have: a fault of the caller, not of the user.
class BoundsError : public std::out_of_range {
  public:
    using std::out_of_range::out_of_range;
};

[[noreturn]] void ThrowBoundsError(const char* what, int number, NumberRange<int> range);

// Throws BoundsError unless the number lies in the range; `what` names it in the error's text.
template <typename Number>
void RequireInRange(Number number, NumberRange<Number> range, const char* what) {
    if (!range.Contains(number))
        ThrowBoundsError(what, number.Number(), {range.First().Number(), range.Last().Number()});
}

// The number as one of the range, none when it lies outside.
template <typename Number>
constexpr std::optional<Number> NumberIn(NumberRange<Number> range, std::int64_t number) {
    if (number < range.First().Number() || number > range.Last().Number())
        return std::nullopt;
    return Number(static_cast<int>(number));
}

} // namespace orvane
