// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/EscapedUtf8.h"

#include "text/XmlText.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

std::string LetterByLetter(std::string_view ansi) {
    std::string utf8;
    for (const char letter : ansi)
        AppendUtf8(utf8, ToUnicode(letter));
    return utf8;
}

std::string EveryByte() {
    std::string text;
    for (int byte = 0; byte < 256; ++byte)
        text += static_cast<char>(byte);
    return text;
}

TEST(EscapedUtf8, GivesEveryByteItsCharacterWhereverItStands) {
    EXPECT_EQ(ToUtf8(EveryByte()), LetterByLetter(EveryByte()));
    for (std::size_t place = 0; place < 20; ++place) {
        for (std::size_t length = place + 1; length < 24; ++length) {
            std::string text(length, 'x');
            text[place] = '\x80';
            ASSERT_EQ(ToUtf8(text), LetterByLetter(text)) << place << " of " << length;
        }
    }
}

TEST(EscapedUtf8, AsksForTheBytesOfTheSetAndKeepsAllOthers) {
    static constexpr ByteSet dashes = EscapedBytes([](unsigned char byte) { return byte == '-'; });
    std::string utf8 = "before ";
    AppendEscaped(utf8, "-\xE9-a--", dashes,
                  [](std::string& out, std::string_view rest) { out += std::to_string(rest.size()); });
    EXPECT_EQ(utf8, "before 6\xC3\xA9"
                    "4a21");
}

TEST(XmlText, EscapesMarkupAndReplacesWhatNoFileMayHold) {
    EXPECT_EQ(XmlText("a<b>&\"c'\xE9]]>"), "a&lt;b&gt;&amp;&quot;c&#39;\xC3\xA9]]&gt;");
    EXPECT_EQ(XmlText("a\r\nb\rc\nd\te"), "a\nb\nc\nd\te");
    EXPECT_EQ(XmlText(std::string_view("\0x\x1F", 3)), "\xEF\xBF\xBDx\xEF\xBF\xBD");
    EXPECT_EQ(XmlTextOfUtf8("\xC3\xA9<\r\n"), "\xC3\xA9&lt;\n");
    EXPECT_EQ(XmlTextOfUtf8("a\xC3"), "a\xEF\xBF\xBD");
    EXPECT_EQ(XmlText("end\r"), "end\n");
}

} // namespace
} // namespace orvane
