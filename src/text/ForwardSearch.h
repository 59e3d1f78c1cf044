// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text/ByteOf.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace orvane {

// Which of eight bytes is the first that equals the letter, 0..7; 8 when none does. For machines that have
// the low byte of a number first.
inline std::size_t PlaceInEight(const char* bytes, char letter) {
    constexpr std::uint64_t ones = 0x0101010101010101u;
    std::uint64_t differences = 0;
    std::memcpy(&differences, bytes, sizeof differences);
    differences ^= ones * ByteOf(letter);
    // Marks each byte without a difference; what borrows from it may be marked too, but stands behind it.
    const std::uint64_t marks = (differences - ones) & ~differences & (ones << 7);
    return std::size_t(std::countr_zero(marks)) / 8;
}

// Finds a word again and again in one text, from places that only move forward. The text is scanned once in
// all, however often it is asked, because the last answer is kept for as long as it lies ahead. The word is
// not empty and is known when the program is compiled.
template <const std::string_view& kWord>
class ForwardSearch {
  public:
    explicit ForwardSearch(std::string_view text) : text_(text), found_(Find(0)) {}

    // The first place at or after `from` where the word stands, npos when there is none.
    std::size_t Next(std::size_t from) {
        if (found_ < from)
            found_ = Find(from);
        return found_;
    }

  private:
    std::size_t Find(std::size_t from) const {
        for (; from < text_.size(); ++from) {
            from = FirstLetter(from);
            if (text_.size() - from >= kWord.size() && StandsAt(from))
                return from;
        }
        return std::string_view::npos;
    }

    // Where the word's first letter stands, or the end. Mostly it is a few bytes ahead, where a call of
    // memchr would take longer than to look at them here.
    std::size_t FirstLetter(std::size_t from) const {
        if (std::endian::native == std::endian::little && text_.size() - from >= 8) {
            const std::size_t near = PlaceInEight(text_.data() + from, kWord.front());
            from += near;
            if (near < 8)
                return from;
        }
        const void* const letter = std::memchr(text_.data() + from, kWord.front(), text_.size() - from);
        return letter == nullptr ? text_.size()
                                 : std::size_t(static_cast<const char*>(letter) - text_.data());
    }

    bool StandsAt(std::size_t place) const {
        for (std::size_t i = 1; i < kWord.size(); ++i)
            if (text_[place + i] != kWord[i])
                return false;
        return true;
    }

    std::string_view text_;
    std::size_t found_;
};

} // namespace orvane
