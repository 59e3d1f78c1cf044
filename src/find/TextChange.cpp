// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/TextChange.h"

#include "find/Search.h"
#include "find/WordBorders.h"
#include "text/AnsiText.h"

#include <algorithm>

namespace orvane::find {

namespace {

// Places of one text behind each other, the last one first, so that a change moves none that is still to
// come.
bool IsMadeBefore(const TextChange& a, const TextChange& b) { return a.Start > b.Start; }

} // namespace

void Apply(FsmDocument& document, std::vector<TextChange> changes) {
    std::stable_sort(changes.begin(), changes.end(), IsMadeBefore);
    for (const TextChange& change : changes)
        TextAt(document, change.Place).replace(change.Start, change.Length, change.After);
}

LinePreview PreviewOf(const FsmDocument& document, const TextChange& change) {
    const std::string& text = TextAt(document, change.Place);
    const std::string before(LineAt(text, change.Start));
    const std::size_t lineStart = text.find_last_of("\r\n", change.Start == 0 ? 0 : change.Start - 1);
    const bool isFirst = lineStart == std::string::npos || lineStart >= change.Start;
    std::string after = before;
    after.replace(change.Start - (isFirst ? 0 : lineStart + 1), change.Length, change.After);
    return {before, after};
}

std::string FaultOfText(const std::string& text) {
    if (text.find(kDelimiter) != std::string::npos)
        return "The character \xA4 ends fields in a document, so that no text can hold it";
    if (std::any_of(text.begin(), text.end(), IsLineEnd))
        return "A name stands in one line";
    return {};
}

} // namespace orvane::find
