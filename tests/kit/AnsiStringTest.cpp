// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/AnsiString.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(AnsiString, EveryByteButTheDelimiterSurvivesTheWayToUnicodeAndBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        const AnsiText back = ToAnsi(FromAnsi(text));
        EXPECT_EQ(back.Text, byte == 0xA4 ? "" : text) << byte;
        EXPECT_EQ(back.LeftOut, byte == 0xA4) << byte;
    }
}

TEST(AnsiString, CharactersThatADocumentCannotHoldAreLeftOutAndTold) {
    const AnsiText text = ToAnsi(QStringLiteral("1 \u20AC = 2 \u03A9 \U0001F600"));
    EXPECT_EQ(text.Text, "1 \x80 = 2  ");
    EXPECT_TRUE(text.LeftOut);
}

} // namespace
} // namespace orvane
