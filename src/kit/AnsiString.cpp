// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/AnsiString.h"

#include "text/AnsiText.h"

namespace orvane {

QString FromAnsi(std::string_view text) {
    QString unicode;
    unicode.reserve(text.size());
    for (const char byte : text)
        unicode += QChar(static_cast<char16_t>(ToUnicode(byte)));
    return unicode;
}

AnsiText ToAnsi(const QString& text, Delimiter delimiter) {
    AnsiText ansi;
    ansi.Text.reserve(text.size());
    for (const QChar character : text) {
        const std::optional<char> byte = ToAnsi(char32_t{character.unicode()});
        if (byte && (*byte != kDelimiter || delimiter == Delimiter::Kept))
            ansi.Text += *byte;
        else
            ansi.LeftOut = true;
    }
    return ansi;
}

QString DocumentCharacters(const QString& text) { return FromAnsi(ToAnsi(text).Text); }

} // namespace orvane
