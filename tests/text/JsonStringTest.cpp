// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/JsonString.h"

#include "text/AnsiText.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(JsonString, EscapesWhatAStringOfJsonCannotHold) {
    EXPECT_EQ(JsonString("say \"a\\b\"\r\n\tc"), R"("say \"a\\b\"\r\n\tc")");
    EXPECT_EQ(JsonString(std::string_view("\0\x1F\x7F", 3)), R"("\u0000\u001f\u007f")");
    EXPECT_EQ(JsonString(""), R"("")");
}

TEST(JsonString, KeepsCharactersAndReplacesMalformedBytes) {
    EXPECT_EQ(JsonString("\xC3\xA9\xE2\x82\xAC"), "\"\xC3\xA9\xE2\x82\xAC\"");
    EXPECT_EQ(JsonString("a\xC3"), "\"a\xEF\xBF\xBD\"");
}

TEST(JsonString, OfDocumentTextIsThatOfItsUtf8) {
    std::string every;
    for (int byte = 0; byte < 256; ++byte)
        every += static_cast<char>(byte);
    EXPECT_EQ(JsonStringOfAnsi(every), JsonString(ToUtf8(every)));
}

} // namespace
} // namespace orvane
