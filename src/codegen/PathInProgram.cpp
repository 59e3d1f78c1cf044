// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/PathInProgram.h"

#include "text/AnsiText.h"

#include <algorithm>

namespace orvane {

std::string PathInProgram(std::string_view path) {
    constexpr char substitute = '?';
    std::string text = FromUtf8(path, substitute);
    const auto isControl = [](char byte) {
        const char32_t character = ToUnicode(byte);
        return character < 0x20 || (character >= 0x7F && character < 0xA0);
    };
    std::replace_if(text.begin(), text.end(), isControl, substitute);
    return text;
}

} // namespace orvane
