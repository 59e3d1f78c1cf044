// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/TextFitting.h"

#include <gtest/gtest.h>

#include <random>

namespace orvane {
namespace {

// A font with narrow, middle and wide letters, and marks that take no room of their own.
struct Letters : TextMeasurer {
    Twips operator()(std::string_view text) const override {
        int width = 0;
        for (const char letter : text)
            width += letter == 'i' ? 40 : letter == 'W' ? 190 : letter == '^' ? 0 : 100;
        return width;
    }
};

const Letters WidthOf;

std::string FitCharacterByCharacter(std::string text, int columnWidth) {
    const int limit = columnWidth - 200;
    if (WidthOf(text) < limit)
        return text;
    do {
        if (text.size() <= 1)
            return "";
        text.pop_back();
    } while (WidthOf(text) >= limit);
    return text + "..";
}

TEST(TextFitting, ATextNarrowerThanTheColumnStaysWhole) {
    EXPECT_EQ(FitTextToColumn("7:Run", 701, WidthOf), "7:Run");
}

TEST(TextFitting, ATextAsWideAsTheLimitIsCut) { EXPECT_EQ(FitTextToColumn("7:Run", 700, WidthOf), "7:Ru.."); }

TEST(TextFitting, TheLongestBeginningThatFitsGetsTwoDotsAndMayBeWiderThanTheLimit) {
    const std::string fitted = FitTextToColumn("12:WaitForPressure", 945, WidthOf);
    EXPECT_EQ(fitted, "12:Wait.."); // i is narrow, W is wide: 730 of 745 twips, and the dots
    EXPECT_GT(WidthOf(fitted), 945 - kColumnMargin);
}

TEST(TextFitting, AColumnNarrowerThanOneCharacterShowsNothing) {
    for (const int width : {0, 100, 200, 300}) {
        EXPECT_EQ(FitTextToColumn("abc", width, WidthOf), "") << width;
        EXPECT_EQ(FitTextToColumn("a", width, WidthOf), "") << width;
        EXPECT_EQ(FitTextToColumn("", width, WidthOf), "") << width;
    }
    EXPECT_EQ(FitTextToColumn("abc", 301, WidthOf), "a..");
    EXPECT_EQ(FitTextToColumn("a", 301, WidthOf), "a");
}

TEST(TextFitting, AgreesWithDroppingOneCharacterAfterTheOther) {
    std::mt19937 random(1);
    const std::string letters = "iW^ab";
    for (int round = 0; round < 5000; ++round) {
        std::string text;
        const std::size_t length = random() % (round % 10 == 0 ? 400 : 40);
        while (text.size() < length)
            text += letters[random() % letters.size()];
        const int width = static_cast<int>(random() % 6000);
        ASSERT_EQ(FitTextToColumn(text, width, WidthOf), FitCharacterByCharacter(text, width))
            << text << " in " << width;
    }
}

TEST(TextFitting, LongCodeInANarrowColumnCostsFewAndShortMeasurements) {
    const std::string code(64 * 1024, 'x');
    int calls = 0;
    std::size_t characters = 0;
    struct Counting : Letters {
        Counting(int& calls, std::size_t& characters) : Calls(calls), Characters(characters) {}
        Twips operator()(std::string_view text) const override {
            ++Calls;
            Characters += text.size();
            return Letters::operator()(text);
        }
        int& Calls;
        std::size_t& Characters;
    };
    const Counting counting(calls, characters);
    EXPECT_EQ(FitTextToColumn(code, 945, counting), "xxxxxxx..");
    EXPECT_LE(calls, 8);
    EXPECT_LE(characters, 100u);
    EXPECT_EQ(FitTextToColumn(code, 200 + 3'000'000, counting), std::string(29'999, 'x') + "..");
    EXPECT_LE(calls, 40);
}

} // namespace
} // namespace orvane
