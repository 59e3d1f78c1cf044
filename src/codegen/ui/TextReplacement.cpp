// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ui/TextReplacement.h"

#include "kit/CodePane.h"
#include "text/AnsiText.h"
#include "text/ByteOf.h"

#include <algorithm>
#include <string>

namespace orvane {

namespace {

std::size_t FirstLineLength(std::string_view text) { return std::min(text.find('\n'), text.size() - 1) + 1; }

bool IsInsideCharacter(std::string_view text, std::size_t place) {
    return place < text.size() && (ByteOf(text[place]) & 0xC0) == 0x80;
}

std::size_t CommonBeginning(std::string_view a, std::string_view b) {
    const std::size_t most = std::min(a.size(), b.size());
    std::size_t length = 0;
    while (length < most && a[length] == b[length])
        ++length;
    while (length > 0 && (IsInsideCharacter(a, length) || IsInsideCharacter(b, length)))
        --length;
    return length;
}

std::size_t CommonEnd(std::string_view a, std::string_view b) {
    const std::size_t most = std::min(a.size(), b.size());
    std::size_t length = 0;
    while (length < most && a[a.size() - 1 - length] == b[b.size() - 1 - length])
        ++length;
    while (length > 0 && IsInsideCharacter(a, a.size() - length))
        --length;
    return length;
}

// Replaces the bytes of the pane from `start` on that stand in for `before` by `after`, as few as possible.
void ReplaceStretch(CodePane& pane, std::size_t start, std::string_view before, std::string_view after) {
    const std::size_t beginning = CommonBeginning(before, after);
    before.remove_prefix(beginning);
    after.remove_prefix(beginning);
    const std::size_t end = CommonEnd(before, after);
    before.remove_suffix(end);
    after.remove_suffix(end);
    if (before.empty() && after.empty())
        return;
    pane.ReplaceUtf8(start + beginning, before.size(), after);
}

} // namespace

void ReplaceText(CodePane& pane, std::string_view text) {
    const std::string after = ToUtf8(text);
    const std::string before(pane.Utf8());
    const std::size_t lineBefore = before.empty() ? 0 : FirstLineLength(before);
    const std::size_t lineAfter = after.empty() ? 0 : FirstLineLength(after);
    const bool readOnly = pane.isReadOnly();
    pane.setReadOnly(false);
    // From the back, so that the places in front stay where they are.
    ReplaceStretch(pane, lineBefore, std::string_view(before).substr(lineBefore),
                   std::string_view(after).substr(lineAfter));
    ReplaceStretch(pane, 0, std::string_view(before).substr(0, lineBefore),
                   std::string_view(after).substr(0, lineAfter));
    pane.setReadOnly(readOnly);
}

} // namespace orvane
