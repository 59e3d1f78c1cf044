// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestTimes.h"

#include "run/TestWriter.h"
#include "text/NumberText.h"
#include "text/Ordinal.h"

#include <array>

namespace orvane::run {

namespace {

constexpr std::size_t kMostTimeDigits = 9; // in a time with a suffix
constexpr std::array<std::int64_t, 5> kMicroseconds = {0, 1'000, 1'000'000, 60'000'000, 3'600'000'000};

// None when there are too many digits, or something is finer than a microsecond.
std::optional<std::int64_t> Microseconds(const TestTime& time) {
    std::string digits = time.Number;
    std::int64_t divisor = 1;
    if (const std::size_t point = digits.find('.'); point != std::string::npos) {
        digits.erase(point, 1);
        for (std::size_t i = point; i < digits.size() && i < point + kMostTimeDigits; ++i)
            divisor *= 10;
    }
    if (digits.size() > kMostTimeDigits)
        return std::nullopt;
    const std::int64_t product = ParseNumber(digits) * kMicroseconds.at(Ordinal(time.Suffix));
    return product % divisor == 0 ? std::optional(product / divisor) : std::nullopt;
}

std::string TooFine(const TestTime& time) {
    return TimeText(time) +
           " has too many digits; a time with a suffix has at most 9 and is a whole number of "
           "microseconds";
}

} // namespace

std::optional<std::string> TimeScale::Set(const TestTime& unit) {
    if (unit.Suffix == TimeSuffix::None)
        return "a unit is a time with ms, s, min or h, as in \"unit 0.1 s\"";
    const std::optional<std::int64_t> length = Microseconds(unit);
    if (!length)
        return TooFine(unit);
    if (*length == 0)
        return "a unit is longer than 0";
    unit_ = length;
    text_ = TimeText(unit);
    return std::nullopt;
}

std::variant<Units, std::string> TimeScale::InUnits(const TestTime& time) const {
    Units units = 0;
    if (time.Suffix == TimeSuffix::None) {
        units = ParseNumber(time.Number);
    } else {
        if (!unit_)
            return TimeText(time) +
                   " needs to know how long a unit is; write \"unit 0.1 s\" or the like above";
        const std::optional<std::int64_t> length = Microseconds(time);
        if (!length)
            return TooFine(time);
        if (*length % *unit_ != 0)
            return TimeText(time) + " is no whole number of units of " + text_;
        units = *length / *unit_;
    }
    if (units > kLongestStep)
        return TimeText(time) + " is longer than the " + NumberText(kLongestStep) +
               " units that a step may take";
    return units;
}

} // namespace orvane::run
