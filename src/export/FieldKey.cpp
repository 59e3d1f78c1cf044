// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/FieldKey.h"

#include "text/Ascii.h"

namespace orvane::exports {

// A dot joins what is one word: I.D. is id.
std::string FieldKey(std::string_view fieldName) {
    std::string key;
    bool beginsWord = false;
    for (const char character : fieldName) {
        if (character == ' ') {
            beginsWord = true;
        } else if (character != '.') {
            key += beginsWord ? AsciiUpper(character) : AsciiLower(character);
            beginsWord = false;
        }
    }
    return key;
}

} // namespace orvane::exports
