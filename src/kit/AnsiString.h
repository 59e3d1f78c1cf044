// SPDX-License-Identifier: GPL-3.0-or-later
// From document text (Windows-1252 bytes) to what windows show (Unicode), and back.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace orvane {

// Never fails: every byte has a character.
QString FromAnsi(std::string_view text);

struct AnsiText {
    std::string Text;
    bool LeftOut = false; // some characters cannot stand in a document; they are not in the text
};

// What ends each text in a document; other ANSI files may hold it.
enum class Delimiter { LeftOut, Kept };

// Leaves out what a document cannot hold: characters outside Windows-1252, and the delimiter.
AnsiText ToAnsi(const QString& text, Delimiter delimiter = Delimiter::LeftOut);

// The characters of the text that a document can hold, in their order.
QString DocumentCharacters(const QString& text);

} // namespace orvane
