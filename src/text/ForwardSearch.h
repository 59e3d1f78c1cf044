// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace orvane {

// Finds a word again and again in one text, from places that only move forward. The text is scanned once in
// all, however often it is asked, because the last answer is kept for as long as it lies ahead.
class ForwardSearch {
  public:
    // The word is not empty.
    ForwardSearch(std::string_view text, std::string_view word) : text_(text), word_(word) {}

    // The first place at or after `from` where the word stands, npos when there is none.
    std::size_t Next(std::size_t from) {
        if (!searched_ || (found_ != std::string_view::npos && found_ < from)) {
            found_ = Find(from);
            searched_ = true;
        }
        return found_;
    }

  private:
    // What std::string_view::find does, without a call for the two letters that words here have.
    std::size_t Find(std::size_t from) const {
        for (; from < text_.size(); ++from) {
            const void* const first = std::memchr(text_.data() + from, word_.front(), text_.size() - from);
            if (first == nullptr)
                break;
            from = Offset(first);
            const std::string_view rest = text_.substr(from + 1);
            if (word_.size() == 1 || (!rest.empty() && rest.front() == word_[1] &&
                                      (word_.size() == 2 || rest.starts_with(word_.substr(1)))))
                return from;
        }
        return std::string_view::npos;
    }
    std::size_t Offset(const void* place) const {
        return std::size_t(static_cast<const char*>(place) - text_.data());
    }

    std::string_view text_;
    std::string_view word_;
    std::size_t found_ = 0;
    bool searched_ = false;
};

} // namespace orvane
