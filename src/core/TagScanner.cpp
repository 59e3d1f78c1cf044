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

} // namespace

TagScanner::TagScanner(std::string_view bytes)
    : normalised_(HasOnlyCrLf(bytes) ? std::string() : WithCrLf(bytes)),
      text_(normalised_.empty() ? bytes : normalised_),
      lineEnds_(text_, kLineEnd),
      countedLineEnds_(text_, kLineEnd),
      tagOpens_(text_, kTagOpen),
      tagCloses_(text_, kTagClose),
      valueEnds_(text_, kValueEnd) {}

void TagScanner::TakeLinesUpTo(std::size_t place) {
    if (place < linesEnd_)
        return;
    const std::size_t lineEnd = place < text_.size() ? lineEnds_.Next(place) : std::string_view::npos;
    linesEnd_ = lineEnd == std::string_view::npos ? text_.size() : lineEnd + kLineEnd.size();
}

std::optional<std::string_view> TagScanner::NextTag() {
    const std::size_t open = tagOpens_.Next(position_);
    TakeLinesUpTo(open);
    if (open == std::string_view::npos) {
        tagWasCut_ = position_ < text_.size() && text_.back() == kDelimiter;
        if (tagWasCut_)
            tagStart_ = text_.size() - 1;
        position_ = text_.size();
        return std::nullopt;
    }
    tagStart_ = open;
    position_ = open + kTagOpen.size();
    const std::size_t close = tagCloses_.Next(position_);
    if (close >= linesEnd_) {
        tagWasCut_ = AtEnd();
        return tagWasCut_ ? std::nullopt : std::optional(std::string_view());
    }
    const std::string_view tag = text_.substr(position_, close - position_);
    position_ = close + kTagClose.size();
    return tag;
}

std::string_view TagScanner::NextValue() {
    const std::size_t end = valueEnds_.Next(position_);
    valueWasCut_ = end == std::string_view::npos;
    if (AtEnd())
        return {};
    TakeLinesUpTo(end);
    if (valueWasCut_)
        return TakeRest();
    const std::string_view value = text_.substr(position_, end - position_);
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
    for (std::size_t end = countedLineEnds_.Next(lineStart_); end < tagStart_;
         end = countedLineEnds_.Next(lineStart_)) {
        lineStart_ = end + kLineEnd.size();
        ++line_;
    }
    return line_;
}

} // namespace orvane
