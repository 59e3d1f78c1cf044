// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ForeignBytes.h"

#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <array>

namespace orvane {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kFirstTag = "\xC2\xA4<"; // the delimiter in UTF-8
constexpr auto kMarkers = std::to_array<std::string_view>({"<<<<<<< ", ">>>>>>> "});

// Most lines are told from a marker by their first byte; there are tens of thousands of them.
bool IsMarked(std::string_view line) {
    const auto begins = [&](std::string_view marker) {
        return line.front() == marker.front() && line.starts_with(marker);
    };
    return std::any_of(kMarkers.begin(), kMarkers.end(), begins);
}

bool Continues(char byte) { return (byte & '\xC0') == '\x80'; }

// How many bytes the character has that begins with this one; 0 when none does.
std::size_t LengthFrom(char first) {
    if ((first & '\x80') == 0)
        return 1;
    if ((first & '\xE0') == '\xC0')
        return 2;
    if ((first & '\xF0') == '\xE0')
        return 3;
    return (first & '\xF8') == '\xF0' ? 4 : 0;
}

bool IsUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = LengthFrom(bytes.front());
        if (length == 0 || length > bytes.size() ||
            !std::all_of(bytes.begin() + 1, bytes.begin() + std::ptrdiff_t(length), Continues))
            return false;
        bytes.remove_prefix(length);
    }
    return true;
}

// One pass that takes many bytes at a time: hardly a document has such a pair anywhere.
bool HasPairOf(std::string_view bytes, char mark) {
    unsigned char has = 0;
    const char* const data = bytes.data();
    for (std::size_t i = 1; i < bytes.size(); ++i)
        has |= (data[i - 1] == mark) & (data[i] == mark);
    return has != 0;
}

} // namespace

std::optional<Utf8Document> ReadAsUtf8(std::string_view bytes) {
    if (bytes.starts_with(kByteOrderMark))
        bytes.remove_prefix(kByteOrderMark.size());
    if (!bytes.starts_with(kFirstTag) || !IsUtf8(bytes))
        return std::nullopt;
    Utf8Document document{FromUtf8(bytes, '?'), true};
    document.IsWhole = ToUtf8(document.Bytes) == bytes;
    return document;
}

std::vector<std::size_t> ConflictMarkers(std::string_view bytes) {
    std::vector<std::size_t> lines;
    if (!HasPairOf(bytes, '<') && !HasPairOf(bytes, '>'))
        return lines;
    for (std::size_t number = 1; !bytes.empty(); ++number) {
        if (IsMarked(bytes))
            lines.push_back(number);
        const std::size_t end = bytes.find('\n');
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    }
    return lines;
}

std::vector<ReaderMessage> ForeignMessages(std::string_view bytes) {
    std::vector<ReaderMessage> messages;
    if (ReadAsUtf8(bytes))
        messages.push_back(
            {"Saved as UTF-8 by another program: letters outside ASCII are read as two or more "
             "each. Open it in Orvane and save it, or convert it to Windows-1252",
             0});
    const std::vector<std::size_t> conflict = ConflictMarkers(bytes);
    if (!conflict.empty())
        messages.push_back({"The marks of a merge conflict stand from here to line " +
                                NumberText(conflict.back()) +
                                ": what is read is neither version. Resolve the conflict first",
                            conflict.front()});
    return messages;
}

} // namespace orvane
