// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/Letters.h"

#include "text/Utf8.h"

#include <algorithm>

namespace orvane::print {

namespace {

constexpr char32_t kDotsLetter = 0x2026;

struct Piece {
    std::size_t Length = 0; // bytes that fit
    bool IsAll = false;
};

// How much of a line's text fits; where it breaks, behind the last blank or "_" when there is one.
Piece FittingPiece(std::string_view utf8, int width, Face face, const Letters& letters) {
    std::string_view rest = utf8;
    std::size_t breakAt = 0;
    int used = 0;
    while (!rest.empty()) {
        const std::size_t at = utf8.size() - rest.size();
        const char32_t letter = TakeCharacter(rest).value_or(U'?');
        used += letters.Width(letter, face);
        if (used > width && at != 0 && letter != U' ')
            return {breakAt != 0 ? breakAt : at, false};
        if (letter == U' ' || letter == U'_')
            breakAt = utf8.size() - rest.size();
    }
    return {utf8.size(), true};
}

std::string WithoutBlanksAtEnd(std::string_view text) {
    const std::size_t last = text.find_last_not_of(' ');
    return std::string(text.substr(0, last == std::string_view::npos ? 0 : last + 1));
}

void WrapLine(std::vector<std::string>& lines, std::string_view line, int width, Face face,
              const Letters& letters) {
    while (true) {
        const Piece piece = FittingPiece(line, width, face, letters);
        if (piece.IsAll) {
            lines.emplace_back(line);
            return;
        }
        lines.push_back(WithoutBlanksAtEnd(line.substr(0, piece.Length)));
        line.remove_prefix(piece.Length);
    }
}

} // namespace

int WidthOf(std::string_view utf8, Face face, const Letters& letters) {
    int width = 0;
    while (!utf8.empty())
        width += letters.Width(TakeCharacter(utf8).value_or(U'?'), face);
    return width;
}

std::vector<std::string> Wrapped(std::string_view utf8, int width, Face face, const Letters& letters) {
    std::vector<std::string> lines;
    while (true) {
        const std::size_t end = utf8.find('\n');
        WrapLine(lines, utf8.substr(0, end), width, face, letters);
        if (end == std::string_view::npos)
            return lines;
        utf8.remove_prefix(end + 1);
    }
}

std::vector<std::string> Fitted(std::string_view utf8, int width, int lines, Face face,
                                const Letters& letters) {
    std::vector<std::string> fitted = Wrapped(utf8, width, face, letters);
    if (fitted.size() <= std::size_t(lines))
        return fitted;
    fitted.resize(std::size_t(lines));
    std::string& last = fitted.back();
    const int room = width - letters.Width(kDotsLetter, face);
    while (!last.empty() && WidthOf(last, face, letters) > room) {
        do
            last.pop_back();
        while (!last.empty() && SoundLength(last) != last.size());
    }
    last += kDots;
    return fitted;
}

} // namespace orvane::print
