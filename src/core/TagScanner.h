// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text/ForwardSearch.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

// Takes a document's bytes apart into tags and values.
//
// The format is defined by a reader that takes the file line by line into a buffer, and some of what it does
// shows only there: reading is at its end as soon as the last line is in the buffer, although the buffer
// still holds it, and a value asked for after that is empty. Here the buffer is the stretch from position_ to
// linesEnd_ of the whole text; a search that leaves the stretch takes in the lines up to the one where it
// ends. Everything moves forward only, so that a file is scanned once whatever it holds.
class TagScanner {
  public:
    // The bytes must outlive the scanner, unless they have line ends other than CR LF: then it keeps a copy.
    explicit TagScanner(std::string_view bytes);
    TagScanner(const TagScanner&) = delete;
    TagScanner& operator=(const TagScanner&) = delete;

    // All lines have been taken in.
    bool AtEnd() const { return linesEnd_ == text_.size(); }

    // The next tag; empty when its line ends before the ">"; none when no whole tag is left.
    std::optional<std::string_view> NextTag();

    // The file ended inside the tag that was last asked for.
    bool TagWasCut() const { return tagWasCut_; }

    // The value up to the next terminator; empty when all lines have been taken in before. The views live as
    // long as the scanner.
    std::string_view NextValue();

    // The file ended inside the value that was last read.
    bool ValueWasCut() const { return valueWasCut_; }

    // The line, from 1, in which the tag last found begins.
    std::size_t TagLine();

  private:
    void TakeLinesUpTo(std::size_t place);
    std::string_view TakeRest();

    std::string normalised_; // before text_, which may be a view of it
    std::string_view text_;
    ForwardSearch lineEnds_;
    ForwardSearch countedLineEnds_;
    ForwardSearch tagOpens_;
    ForwardSearch tagCloses_;
    ForwardSearch valueEnds_;
    std::size_t position_ = 0;
    std::size_t linesEnd_ = 0;
    std::size_t tagStart_ = 0;
    bool tagWasCut_ = false;
    bool valueWasCut_ = false;
    std::size_t lineStart_ = 0; // where line_ begins
    std::size_t line_ = 1;
};

} // namespace orvane
