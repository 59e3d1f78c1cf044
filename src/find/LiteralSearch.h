// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/Pattern.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace orvane::find {

// Finds a text as it stands, in pieces that each begin with a call of Next from 0.
class LiteralSearch {
  public:
    explicit LiteralSearch(const Literal& wanted);

    // The first place at or after `from`, npos when there is none. Matches do not overlap when the search
    // goes on behind the last one.
    std::size_t Next(std::string_view text, std::size_t from) const;
    std::size_t Length() const { return wanted_.size(); }

  private:
    std::size_t NextFolded(std::string_view text, std::size_t from) const;
    bool StandsAt(std::string_view text, std::size_t at) const;

    std::string wanted_; // folded unless the case counts
    bool matchCase_;
    bool wholeWord_;
    std::array<char, 256> folded_{};         // what a byte is compared as
    std::array<std::size_t, 256> advance_{}; // how far the wanted text can move on when it ends on this byte
};

} // namespace orvane::find
