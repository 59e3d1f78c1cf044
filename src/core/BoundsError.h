// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/TableGeometry.h"

#include <stdexcept>

namespace orvane {

// A state number or a row that the table does not have: a fault of the caller, not of the user.
class BoundsError : public std::out_of_range {
  public:
    using std::out_of_range::out_of_range;
};

[[noreturn]] void ThrowBoundsError(int number, NumberRange range, const char* what);

// Throws BoundsError unless the number lies in the range; `what` names it in the error's text.
inline void RequireInRange(int number, NumberRange range, const char* what) {
    if (!range.Contains(number))
        ThrowBoundsError(number, range, what);
}

} // namespace orvane
