// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/AnsiText.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

std::string AllBytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    return bytes;
}

TEST(AnsiText, EveryByteSurvivesTheWayToUnicodeAndBack) {
    for (const char byte : AllBytes())
        EXPECT_EQ(ToAnsi(ToUnicode(byte)), byte);
    EXPECT_EQ(FromUtf8(ToUtf8(AllBytes()), '?'), AllBytes());
}

TEST(AnsiText, TheCodePageIsWindows1252) {
    EXPECT_EQ(ToUnicode('\x80'), U'\u20AC');
    EXPECT_EQ(ToUnicode('\x99'), U'\u2122');
    EXPECT_EQ(ToUnicode('\xA4'), U'\u00A4');
    EXPECT_EQ(ToUnicode('\xFF'), U'\u00FF');
    EXPECT_EQ(ToUnicode('\x81'), char32_t{0x81}); // one of the five that the vendor leaves undefined
    EXPECT_EQ(ToUtf8("\x80 \xE4 a"), "\xE2\x82\xAC \xC3\xA4 a");
}

TEST(AnsiText, CharactersOutsideTheCodePageHaveNoByte) {
    EXPECT_EQ(ToAnsi(U'\u0100'), std::nullopt);
    EXPECT_EQ(ToAnsi(char32_t{0x80}), std::nullopt); // the byte 0x80 is the euro sign
    EXPECT_EQ(ToAnsi(U'\U0001F600'), std::nullopt);
}

TEST(AnsiText, WhatTheCodePageLacksBecomesTheSubstitute) {
    EXPECT_EQ(FromUtf8("a\xCE\xB1z", '?'), "a?z");
    EXPECT_EQ(FromUtf8("\xF0\x9F\x98\x80", '?'), "?");
}

TEST(AnsiText, MalformedUtf8BecomesTheSubstitute) {
    EXPECT_EQ(FromUtf8("a\xFFz", '?'), "a?z");
    EXPECT_EQ(FromUtf8("a\xE4", '?'), "a?");    // cut off
    EXPECT_EQ(FromUtf8("\xC0\x80", '?'), "??"); // longer than needed
    EXPECT_EQ(FromUtf8("\xE0\x80\x80", '?'), "???");
    EXPECT_EQ(FromUtf8("\xED\xA0\x80", '?'), "???"); // half of a surrogate pair
    EXPECT_EQ(FromUtf8("\x80z", '?'), "?z");
    EXPECT_EQ(FromUtf8("\xC3z", '?'), "?z"); // what follows is not swallowed
}

TEST(AnsiText, TrimTakesBlanksAndNothingElse) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\ta\r\n"), "\ta\r\n");
    EXPECT_EQ(Trim("\xA0x"), "\xA0x");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
}

TEST(AnsiText, ReplaceChangesEveryOccurrence) {
    EXPECT_EQ(Replace("a b c", ' ', '_'), "a_b_c");
    EXPECT_EQ(Replace("", ' ', '_'), "");
}

TEST(AnsiText, CapitalsOfTheCodePage) {
    EXPECT_EQ(ToUpper("true-09_z"), "TRUE-09_Z");
    EXPECT_EQ(ToUpper("\xE0\xE4\xFE\x9A\x9C\x9E\xFF"), "\xC0\xC4\xDE\x8A\x8C\x8E\x9F");
    EXPECT_EQ(ToUpper("\xDF\xF7\xB5\xAA\xBA\x83"), "\xDF\xF7\xB5\xAA\xBA\x83"); // have no capital there
}

TEST(AnsiText, EveryCapitalIsItsOwnCapital) { EXPECT_EQ(ToUpper(ToUpper(AllBytes())), ToUpper(AllBytes())); }

} // namespace
} // namespace orvane
