// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/Machine.h"
#include "run/TestText.h"

#include <optional>
#include <string>
#include <variant>

namespace orvane::run {

inline constexpr Units kLongestStep = 1'000'000'000'000;

// How long a unit of the machine's time is, as a test file says it.
class TimeScale {
  public:
    // What is wrong with the unit, if anything.
    std::optional<std::string> Set(const TestTime& unit);

    // In microseconds, when it is known.
    std::optional<std::int64_t> Unit() const { return unit_; }

    // A time in units, or why it is none.
    std::variant<Units, std::string> InUnits(const TestTime& time) const;

  private:
    std::optional<std::int64_t> unit_; // microseconds
    std::string text_;
};

} // namespace orvane::run
