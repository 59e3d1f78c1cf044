// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/RecoveryName.h"

#include "text/Ascii.h"
#include "text/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <random>
#include <string_view>
#include <utility>

namespace orvane {

namespace {

constexpr std::string_view kPattern = "ddddddddTddddddZ-XXXXXXXX";
constexpr std::size_t kTimeAt = 9; // behind the date and its T
constexpr std::size_t kRandomDigits = 8;

bool Matches(char character, char pattern) {
    if (pattern == 'd')
        return IsAsciiDigit(character);
    if (pattern == 'X')
        return IsAsciiDigit(character) || (character >= 'A' && character <= 'F');
    return character == pattern;
}

std::string Digits(std::int64_t number, std::size_t count) {
    std::string text = NumberText(number);
    text.insert(0, count - std::min(count, text.size()), '0');
    return text;
}

// The number that a part of the stem, digits all of them, is written as.
template <typename Number>
Number Part(std::string_view stem, std::size_t at, std::size_t count) {
    Number number = 0;
    std::from_chars(stem.data() + at, stem.data() + at + count, number);
    return number;
}

std::optional<JournalTime> TimeOf(std::string_view stem) {
    using namespace std::chrono;
    const year_month_day date{year(Part<int>(stem, 0, 4)), month(Part<unsigned>(stem, 4, 2)),
                              day(Part<unsigned>(stem, 6, 2))};
    if (!date.ok())
        return std::nullopt;
    return sys_days(date) + hours(Part<int>(stem, kTimeAt, 2)) + minutes(Part<int>(stem, kTimeAt + 2, 2)) +
           seconds(Part<int>(stem, kTimeAt + 4, 2));
}

std::optional<RecoveryFileKind> KindOf(std::string_view rest) {
    constexpr std::array kinds = {
        std::pair(kJournalSuffix, RecoveryFileKind::Journal),
        std::pair(kUnfinishedSuffix, RecoveryFileKind::Unfinished),
        std::pair(kDiscardedSuffix, RecoveryFileKind::Discarded),
    };
    for (const auto& [suffix, kind] : kinds) {
        if (rest == suffix)
            return kind;
    }
    return rest.size() > 1 && rest.front() == '-' ? std::optional(RecoveryFileKind::ReplacedBytes)
                                                  : std::nullopt;
}

} // namespace

std::string RecoveryStem(JournalTime now) {
    using namespace std::chrono;
    const auto today = floor<days>(now);
    const year_month_day date(today);
    const hh_mm_ss time(floor<seconds>(now - today));
    const int year(date.year());
    const unsigned month(date.month());
    const unsigned day(date.day());
    std::string random = HexText(std::random_device()());
    random.insert(0, kRandomDigits - random.size(), '0');
    return Digits(year, 4) + Digits(month, 2) + Digits(day, 2) + "T" + Digits(time.hours().count(), 2) +
           Digits(time.minutes().count(), 2) + Digits(time.seconds().count(), 2) + "Z-" + random;
}

std::optional<RecoveryName> ParseRecoveryName(const std::filesystem::path& name) {
    const std::u8string utf8 = name.u8string();
    const std::string text(utf8.begin(), utf8.end());
    if (text.size() < kPattern.size() ||
        !std::equal(kPattern.begin(), kPattern.end(), text.begin(),
                    [](char pattern, char c) { return Matches(c, pattern); }))
        return std::nullopt;
    const std::optional<JournalTime> time = TimeOf(text);
    const std::optional<RecoveryFileKind> kind = KindOf(std::string_view(text).substr(kPattern.size()));
    if (!time || !kind)
        return std::nullopt;
    return RecoveryName{*kind, *time};
}

} // namespace orvane
