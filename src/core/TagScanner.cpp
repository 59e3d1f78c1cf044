// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TagScanner.h"

#include "core/DocumentTags.h"
#include "text/AnsiText.h"

#include <algorithm>

namespace orvane {

namespace {

// No CR without its LF and no LF without its CR. Looks at every pair without a branch, so that compilers can
// take many at a time.
bool HasOnlyCrLf(std::string_view bytes) {
    if (bytes.empty())
        return true;
    unsigned char alone = bytes.front() == '\n' || bytes.back() == '\r';
    const char* const data = bytes.data();
    for (std::size_t i = 1; i < bytes.size(); ++i)
        alone |= (data[i - 1] == '\r') != (data[i] == '\n');
    return alone == 0;
}

// The bytes with every CR LF, LF and CR made CR LF.
std::string WithCrLf(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 16);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\r' && bytes[i] != '\n') {
            text += bytes[i];
            continue;
        }
        if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n')
            ++i;
        text += kLineEnd;
    }
    return text;
}

// Where the last line of a text begins; what ends that line belongs to it.
std::size_t LastLineOf(std::string_view text) {
    if (text.ends_with(kLineEnd))
        text.remove_suffix(kLineEnd.size());
    return text.rfind(kLineEnd.back()) + 1; // 0 when there is none
}

} // namespace

TagScanner::TagScanner(std::string_view bytes)
    : normalised_(HasOnlyCrLf(bytes) ? std::string() : WithCrLf(bytes)),
      text_(normalised_.empty() ? bytes : normalised_),
      delimiters_(text_),
      tagOpens_(text_),
      valueEnds_(text_),
      lineEnds_(text_),
      lastLine_(LastLineOf(text_)),
      atEnd_(text_.empty()) {}

template <const std::string_view& kWord>
std::size_t TagScanner::Next(ForwardSearch<kWord>& search) {
    const std::size_t delimiter = delimiters_.Next(position_);
    const bool isIt = delimiter < text_.size() - 1 && text_[delimiter + 1] == kWord.back();
    return isIt ? delimiter : search.Next(delimiter); // npos is the end of that search, too
}

bool TagScanner::NextTag() {
    const std::size_t open = Next(tagOpens_);
    TakeLinesUpTo(open);
    if (open == std::string_view::npos)
        return EndWithoutTag();
    tagStart_ = open;
    position_ = open + kTagOpen.size();
    const std::size_t end = TagEnd();
    if (end == text_.size() || text_[end] != kTagClose.front()) {
        tag_ = {};
        tagWasCut_ = AtEnd();
        return !tagWasCut_;
    }
    tag_ = Between(position_, end);
    position_ = end + 1;
    return true;
}

bool TagScanner::EndWithoutTag() {
    tagWasCut_ = position_ < text_.size() && text_.back() == kDelimiter;
    if (tagWasCut_)
        tagStart_ = text_.size() - 1;
    position_ = text_.size();
    return false;
}

// The close of the tag at position_, or the end of its line when that comes first.
std::size_t TagScanner::TagEnd() {
    std::size_t end = std::max(tagEnd_, position_);
    while (end < text_.size() && text_[end] != kTagClose.front() && text_[end] != kLineEnd.front())
        ++end;
    return tagEnd_ = end;
}

std::string_view TagScanner::NextValue() {
    const std::size_t end = Next(valueEnds_);
    valueHoldsDelimiter_ = delimiters_.Next(position_) < end;
    valueWasCut_ = end == std::string_view::npos;
    if (AtEnd())
        return {};
    TakeLinesUpTo(end);
    if (valueWasCut_)
        return TakeRest();
    const std::string_view value = Between(position_, end);
    position_ = end + kValueEnd.size();
    return value;
}

std::string_view TagScanner::TakeRest() {
    std::string_view rest = text_.substr(position_);
    position_ = text_.size();
    if (rest.ends_with(kDelimiter)) // half of the terminator
        rest.remove_suffix(1);
    return rest;
}

std::size_t TagScanner::TagLine() {
    for (std::size_t end = lineEnds_.Next(lineStart_); end < tagStart_; end = lineEnds_.Next(lineStart_)) {
        lineStart_ = end + kLineEnd.size();
        ++line_;
    }
    return line_;
}

} // namespace orvane
