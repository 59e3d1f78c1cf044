// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Utf8.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(Utf8, EveryCharacterComesBackAndNoSurrogateDoes) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        std::string utf8;
        AppendUtf8(utf8, character);
        utf8 += 'z'; // stays behind
        std::string_view rest = utf8;
        const std::optional<char32_t> taken = TakeCharacter(rest);
        if (character >= 0xD800 && character <= 0xDFFF) {
            ASSERT_EQ(taken, std::nullopt);
            ASSERT_EQ(rest.size(), 3u); // one byte was taken
        } else {
            ASSERT_EQ(taken, character);
            ASSERT_EQ(rest, "z");
        }
    }
}

TEST(Utf8, CharactersAreAsLongAsTheirNumbersAsk) {
    std::string utf8;
    for (const char32_t character : {U'\u007F', U'\u0080', U'\u07FF', U'\u0800', U'\uFFFF', U'\U00010000'})
        AppendUtf8(utf8, character);
    EXPECT_EQ(utf8, "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80");
}

TEST(Utf8, OfMalformedBytesOneIsTakenAtATime) {
    for (const std::string_view malformed :
         {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80",
          "\xED\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xF8\x88\x80\x80\x80", "\xFF", "\xC3",
          "\xC3z", "\xE2\x82", "\xE2\x82z", "\xE2z\x82", "\xF0\x9F\x98"}) {
        std::string_view rest = malformed;
        EXPECT_EQ(TakeCharacter(rest), std::nullopt) << malformed;
        EXPECT_EQ(rest, malformed.substr(1));
    }
}

TEST(Utf8, CharactersHaveOneToFourBytes) {
    EXPECT_EQ(CharacterLength("a\xC3\xBC"), 1U);
    EXPECT_EQ(CharacterLength("\xC3\xBC"), 2U);
    EXPECT_EQ(CharacterLength("\xE2\x82\xAC"), 3U);
    EXPECT_EQ(CharacterLength("\xF0\x9F\x98\x80"), 4U);
    EXPECT_EQ(CharacterLength("\xF4\x8F\xBF\xBF"), 4U);
}

TEST(Utf8, WhatIsCutOverlongOrBeyondIsMalformed) {
    for (const char* bytes : {"\x80", "\xC3", "\xC3z", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80",
                              "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF"})
        EXPECT_EQ(CharacterLength(bytes), 0U) << bytes;
}

TEST(Utf8, SoundBytesAreCountedUpToTheFirstMalformedOne) {
    EXPECT_EQ(SoundLength(""), 0U);
    EXPECT_EQ(SoundLength("a\xC3\xBC"), 3U);
    EXPECT_EQ(SoundLength("a\xC3\xBC\xFFz"), 3U);
}

TEST(Utf8, EachMalformedByteIsReplaced) {
    EXPECT_EQ(ValidUtf8("a\xFF\xFE\xC3\xBCz\xC3"), "a\xEF\xBF\xBD\xEF\xBF\xBD\xC3\xBCz\xEF\xBF\xBD");
    EXPECT_EQ(ValidUtf8("all \xC3\xBC"), "all \xC3\xBC");
}

} // namespace
} // namespace orvane
