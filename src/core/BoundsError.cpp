// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/BoundsError.h"

#include <string>

namespace orvane {

void ThrowBoundsError(const char* what, int number, NumberRange<int> range) {
    throw BoundsError(std::string(what) + " " + std::to_string(number) + " is outside " +
                      std::to_string(range.First()) + ".." + std::to_string(range.Last()));
}

} // namespace orvane
