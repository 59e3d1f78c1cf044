// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string_view>

namespace orvane {

// Finds a word again and again in one text, from places that only move forward. The text is scanned once in
// all, however often it is asked, because the last answer is kept for as long as it lies ahead.
class ForwardSearch {
  public:
    ForwardSearch(std::string_view text, std::string_view word) : text_(text), word_(word) {}

    // The first place at or after `from` where the word stands, npos when there is none.
    std::size_t Next(std::size_t from) {
        if (!searched_ || (found_ != std::string_view::npos && found_ < from)) {
            found_ = text_.find(word_, from);
            searched_ = true;
        }
        return found_;
    }

  private:
    std::string_view text_;
    std::string_view word_;
    std::size_t found_ = 0;
    bool searched_ = false;
};

} // namespace orvane
