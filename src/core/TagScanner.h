// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DocumentTags.h"
#include "text/AnsiText.h"
#include "text/ForwardSearch.h"

#include <string>
#include <string_view>

namespace orvane {

// Whether the next delimiter opens a tag or ends a value shows only behind it.
inline constexpr std::string_view kAnyDelimiter(&kDelimiter, 1);

// Takes a document's bytes apart into tags and values.
//
// The format is defined by a reader that takes the file line by line into a buffer, and some of what it does
// shows only there: reading is at its end as soon as the last line is in the buffer, although the buffer
// still holds it, and a value asked for after that is empty. Here nothing is buffered. It is enough to know
// where the last line begins: what was found there, or was not found at all, took that line in.
// Everything moves forward only, so that a file is scanned once whatever it holds.
class TagScanner {
  public:
    // The bytes must outlive the scanner, unless they have line ends other than CR LF: then it keeps a copy.
    explicit TagScanner(std::string_view bytes);
    TagScanner(const TagScanner&) = delete;
    TagScanner& operator=(const TagScanner&) = delete;

    // All lines have been taken in.
    bool AtEnd() const { return atEnd_; }

    // Goes to the next tag; false when no whole tag is left. The views live as long as the scanner.
    bool NextTag();

    // The tag gone to; empty when its line ends before the ">".
    std::string_view Tag() const { return tag_; }

    // The file ended inside the tag that was last asked for.
    bool TagWasCut() const { return tagWasCut_; }

    // The value up to the next terminator; empty when all lines have been taken in before.
    std::string_view NextValue();

    // The file ended inside the value that was last read.
    bool ValueWasCut() const { return valueWasCut_; }

    // A delimiter stands somewhere in front of the terminator of the value that was last read.
    bool ValueHoldsDelimiter() const { return valueHoldsDelimiter_; }

    // The line, from 1, in which the tag last found begins.
    std::size_t TagLine();

  private:
    // The next place of a word that begins with the delimiter; mostly it stands at the next one.
    template <const std::string_view& kWord>
    std::size_t Next(ForwardSearch<kWord>& search);
    bool EndWithoutTag();
    std::size_t TagEnd();
    void TakeLinesUpTo(std::size_t place) { atEnd_ = atEnd_ || place >= lastLine_; }
    std::string_view Between(std::size_t from, std::size_t to) const {
        return {text_.data() + from, to - from};
    }
    std::string_view TakeRest();

    std::string normalised_; // before text_, which may be a view of it
    std::string_view text_;
    ForwardSearch<kAnyDelimiter> delimiters_;
    ForwardSearch<kTagOpen> tagOpens_;
    ForwardSearch<kValueEnd> valueEnds_;
    ForwardSearch<kLineEnd> lineEnds_;
    std::size_t lastLine_; // where it begins
    std::size_t position_ = 0;
    std::size_t tagStart_ = 0;
    std::size_t tagEnd_ = 0;
    std::string_view tag_;
    bool atEnd_;
    bool tagWasCut_ = false;
    bool valueWasCut_ = false;
    bool valueHoldsDelimiter_ = false;
    std::size_t lineStart_ = 0; // where line_ begins
    std::size_t line_ = 1;
};

} // namespace orvane
