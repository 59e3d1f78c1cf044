// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/Booklet.h"

#include "codegen/CodeGenerator.h"
#include "print/Cover.h"
#include "print/Listing.h"
#include "print/TableTiles.h"
#include "text/AnsiText.h"
#include "text/Crc32.h"
#include "text/NumberText.h"
#include "text/Utf8.h"

#include <gmock/gmock.h>

#include <map>

namespace orvane::print {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

// Every letter is as wide as half a line is high.
class SquareLetters : public Letters {
  public:
    int Width(char32_t, Face) const override { return 100; }
    int LineHeight(Face) const override { return 200; }
};

const SquareLetters kLetters;
constexpr Paper kPaper{10'000, 14'000};
constexpr Parts kTableAlone{false, false, true, false, false};
constexpr Parts kListingAlone{false, false, false, true, false};

FsmDocument FullTable(int states, int events) {
    FsmDocument document;
    document.General.FsmName = "FULL";
    for (int event = 1; event <= events; ++event)
        document.Event(5 + event).Name = "Ev" + std::to_string(event);
    for (int state = 1; state <= states; ++state) {
        document.State(state).Name = "St" + std::to_string(state);
        for (int row = 4; row <= 5 + events; ++row) {
            document.State(state).Targets[row] = (state + row) % states + 1;
            document.State(state).Actions[row] =
                "act_" + std::to_string(state) + "_" + std::to_string(row) + "_end";
        }
    }
    return document;
}

std::map<std::string, int> TextsOf(const std::vector<Sheet>& sheets) {
    std::map<std::string, int> texts;
    for (const Sheet& sheet : sheets) {
        for (const Text& text : sheet.Texts)
            ++texts[text.Utf8];
    }
    return texts;
}

std::vector<Sheet> Printed(const FsmDocument& document, const Parts& parts = {}) {
    return BookletOf(document, {}, parts, kPaper, kLetters);
}

void ExpectAllOnThePaper(const std::vector<Sheet>& sheets) {
    for (const Sheet& sheet : sheets) {
        for (const Text& text : sheet.Texts) {
            EXPECT_GE(text.X, 0) << text.Utf8;
            EXPECT_LE(text.X + WidthOf(text.Utf8, text.Set, kLetters), kPaper.Width) << text.Utf8;
            EXPECT_LE(text.Y + kLetters.LineHeight(text.Set), kPaper.Height) << text.Utf8;
            EXPECT_EQ(SoundLength(text.Utf8), text.Utf8.size()) << text.Utf8;
        }
        for (const Line& line : sheet.Lines)
            EXPECT_LE(std::max(line.X1, line.X2), kPaper.Width);
    }
}

TEST(Wrapped, BreaksBehindBlanksAndUnderscoresAndWithinWordsThatAreTooLong) {
    EXPECT_THAT(Wrapped("one two three", 700, Face::Body, kLetters), ElementsAre("one two", "three"));
    EXPECT_THAT(Wrapped("aa_bb_cc", 600, Face::Body, kLetters), ElementsAre("aa_bb_", "cc"));
    EXPECT_THAT(Wrapped("abcdefgh", 300, Face::Body, kLetters), ElementsAre("abc", "def", "gh"));
    EXPECT_THAT(Wrapped("a\nb", 300, Face::Body, kLetters), ElementsAre("a", "b"));
    EXPECT_THAT(Wrapped("", 300, Face::Body, kLetters), ElementsAre(""));
}

TEST(Fitted, EndsInDotsWhenItIsNotAllAndNeverWithinALetter) {
    EXPECT_THAT(Fitted("one two", 300, 2, Face::Body, kLetters), ElementsAre("one", "two"));
    EXPECT_THAT(Fitted("abcdefgh", 300, 2, Face::Body, kLetters), ElementsAre("abc", "de\xE2\x80\xA6"));
    EXPECT_THAT(Fitted("\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9", 300, 1, Face::Body, kLetters),
                ElementsAre("\xC3\xA9\xC3\xA9\xE2\x80\xA6"));
}

// Letters of more than one byte are twice as wide as all others.
class UnevenLetters : public SquareLetters {
  public:
    int Width(char32_t letter, Face) const override { return letter < 0x80 ? 50 : 100; }
};

TEST(Fitted, CutsWholeLettersWhateverTheirWidths) {
    const UnevenLetters letters;
    EXPECT_THAT(Fitted("a\xC3\xA9\xE2\x82\xAC"
                       "bcdef",
                       300, 1, Face::Body, letters),
                ElementsAre("a\xC3\xA9\xE2\x80\xA6"));
    for (int width = 150; width < 500; width += 10) {
        const std::string fitted = Fitted("\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC",
                                          width, 1, Face::Body, letters)
                                       .front();
        EXPECT_EQ(SoundLength(fitted), fitted.size()) << width;
        EXPECT_LE(WidthOf(fitted, Face::Body, letters), width);
    }
}

TEST(Booklet, ALongTextGoesOnOnTheNextPage) {
    FsmDocument document;
    document.State(1).Name = "Idle";
    for (int line = 0; line < 500; ++line)
        document.State(1).Tooltip += "line" + std::to_string(line) + "\r\n";
    const std::vector<Sheet> sheets = Printed(document, kListingAlone);
    ExpectAllOnThePaper(sheets);
    EXPECT_EQ(TextsOf(sheets).count("line499"), 1u);
}

TEST(Booklet, EveryCellStandsOnOnePageOfTheTable) {
    FsmDocument document = FullTable(100, 49);
    for (const StateNumber state : StateNumbers()) {
        for (const RowNumber row : CellRows())
            document.State(state).Actions[row].clear();
    }
    const std::vector<Sheet> sheets = Printed(document, kTableAlone);
    std::map<std::string, int> expected;
    for (const StateNumber state : StateNumbers()) {
        for (const RowNumber row : CellRows()) {
            const int target = document.State(state).Targets[row].Number();
            ++expected[std::to_string(target) + ":St" + std::to_string(target)];
        }
    }
    std::map<std::string, int> bodies;
    for (const Sheet& sheet : sheets) {
        for (const Text& text : sheet.Texts) {
            if (text.Set == Face::Body)
                ++bodies[text.Utf8];
        }
    }
    EXPECT_EQ(bodies, expected);
    ExpectAllOnThePaper(sheets);
}

TEST(Booklet, ColumnsAreNarrowerWhereThatSavesPagesAndCutsNothing) {
    FsmDocument document;
    document.General.FsmName = "M";
    for (int state = 1; state <= 8; ++state)
        document.State(state).Name = "Opening slowly"; // wider than an eighth of the paper
    EXPECT_EQ(Printed(document, kTableAlone).size(), 1u);
    EXPECT_GT(TextsOf(Printed(document, kTableAlone)).count("slowly"), 0u);
    for (int state = 1; state <= 8; ++state)
        document.State(state).Name = "OpeningSlowlyAndWithMuchNoise";
    EXPECT_GT(Printed(document, kTableAlone).size(), 1u);
}

TEST(Booklet, EveryPageOfTheTableHasHeadsAndSaysWhichPartItIs) {
    const std::vector<Sheet> sheets = Printed(FullTable(30, 49), kTableAlone);
    ASSERT_GT(sheets.size(), 3u);
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        std::vector<std::string> bold;
        for (const Text& text : sheets[i].Texts) {
            if (text.Set == Face::Bold)
                bold.push_back(text.Utf8);
        }
        EXPECT_THAT(bold, Contains("FULL")) << i;
        EXPECT_THAT(bold, Contains(HasSubstr(":St"))) << i;
        EXPECT_EQ(TextsOf({sheets[i]})
                      .count("Part " + std::to_string(i + 1) + " of " + std::to_string(sheets.size())),
                  1u);
        EXPECT_EQ(std::count_if(sheets[i].Grounds.begin(), sheets[i].Grounds.end(),
                                [](const Ground& ground) { return ground.How == Shade::Dark; }),
                  1);
    }
}

TEST(Booklet, EveryActionStandsInTheListingOnce) {
    const std::vector<Sheet> sheets = Printed(FullTable(100, 49), kListingAlone);
    const std::map<std::string, int> texts = TextsOf(sheets);
    for (const StateNumber state : StateNumbers()) {
        for (int row = 4; row <= 54; ++row)
            ASSERT_EQ(texts.at("act_" + std::to_string(state.Number()) + "_" + std::to_string(row) + "_end"),
                      1);
    }
    ExpectAllOnThePaper(sheets);
}

TEST(Booklet, LinesOfCodeHaveTheirNumbersAndTabsTheirStops) {
    FsmDocument document;
    document.State(1).Name = "Idle";
    document.State(1).EntryCode = "\tLoad\tx\r\n\r\nlast";
    const std::map<std::string, int> texts = TextsOf(Printed(document, kListingAlone));
    EXPECT_EQ(texts.count("        Load    x"), 1u);
    EXPECT_EQ(texts.count("last"), 1u);
    EXPECT_EQ(texts.count("3"), 1u);
    EXPECT_EQ(texts.count("4"), 0u);
}

TEST(Booklet, NoTextIsLostWhateverItsLengthAndLetters) {
    FsmDocument document;
    std::string all;
    for (int byte = 0x20; byte < 256; ++byte) {
        if (byte != 0x7F && static_cast<char>(byte) != kDelimiter)
            all += static_cast<char>(byte);
    }
    document.General.FsmName = all;
    document.State(1).Name = all + all;
    document.State(1).Tooltip = "]]> <script>" + all;
    document.State(1).EntryCode = all;
    document.State(1).Targets[6] = 2;
    document.Event(6).Name = all;
    document.State(2).Name = "x";
    const std::vector<Sheet> sheets = BookletOf(
        document, {std::string(500, 'p'), "r", "d", ToUtf8(all), "c", "a", "s", "c"}, {}, kPaper, kLetters);
    ExpectAllOnThePaper(sheets);
    std::string listed;
    for (const Sheet& sheet : sheets) {
        for (const Text& text : sheet.Texts)
            listed += text.Set == Face::Heading ? text.Utf8 : "";
    }
    std::string expected = "1:" + ToUtf8(all.substr(1) + all); // blanks at lines' ends are not printed
    const auto withoutBlanks = [](std::string text) {
        text.erase(std::remove(text.begin(), text.end(), ' '), text.end());
        return text;
    };
    EXPECT_THAT(withoutBlanks(listed), HasSubstr(withoutBlanks(expected)));
}

TEST(Booklet, TheCoverNamesWhatWasPrintedAndWhereEachPartBegins) {
    const CoverFacts facts{"/plant/pump.zfsm", "B",       "2026-11-22 08:00", "Ada", "", "Eve",
                           "0123abcd",         "CBF43926"};
    const std::vector<Sheet> sheets = BookletOf(FullTable(2, 2), facts, {}, kPaper, kLetters);
    const std::map<std::string, int> cover = TextsOf({sheets.front()});
    for (const char* text : {"FULL", "/plant/pump.zfsm", "B", "2026-11-22 08:00", "Ada", "Eve", "0123abcd",
                             "CBF43926", "Contents", "Diagram", "2", "Table", "3", "Report"})
        EXPECT_EQ(cover.count(text), 1u) << text;
    for (std::size_t i = 0; i < sheets.size(); ++i)
        EXPECT_EQ(TextsOf({sheets[i]})
                      .count("Page " + std::to_string(i + 1) + " of " + std::to_string(sheets.size())),
                  1u);
}

TEST(Diagram, IsShownWholeAndNoLargerThanItIs) {
    Parts parts{false, true, false, false, false};
    parts.Drawn.Size = {4'000, 3'000};
    std::vector<Sheet> sheets = Printed(FullTable(2, 2), parts);
    ASSERT_EQ(sheets.size(), 1u);
    EXPECT_EQ(sheets.front().Shown->Where.Width, 4'000);
    parts.Drawn.Size = {12'000, 3'000};
    sheets = Printed(FullTable(2, 2), parts);
    ASSERT_EQ(sheets.size(), 1u);
    EXPECT_EQ(sheets.front().Shown->Where.Width, kPaper.Width);
    EXPECT_EQ(sheets.front().Shown->Where.Height, 2'500);
}

TEST(Diagram, ThatIsNotTheWholeMachineSaysSo) {
    Parts parts{false, true, false, false, false};
    parts.Drawn = {{4'000, 3'000}, false};
    const std::map<std::string, int> texts = TextsOf(Printed(FullTable(2, 2), parts));
    EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), [](const auto& text) {
        return text.first.find("more lines than one picture") != std::string::npos;
    }));
}

TEST(Diagram, ThatIsTooSmallToBeReadFollowsInPartsThatCoverIt) {
    Parts parts{false, true, false, false, false};
    parts.Drawn.Size = {40'000, 50'000};
    const std::vector<Sheet> sheets = Printed(FullTable(2, 2), parts);
    ASSERT_GT(sheets.size(), 4u);
    int right = 0;
    int bottom = 0;
    for (std::size_t i = 1; i < sheets.size(); ++i) {
        const PicturePart& shown = *sheets[i].Shown;
        if (shown.Part.X == 0) {
            EXPECT_LE(shown.Part.Y, bottom);
            right = 0;
        }
        EXPECT_LE(shown.Part.X, right);
        right = shown.Part.X + shown.Part.Width;
        bottom = shown.Part.Y + shown.Part.Height;
        EXPECT_LE(shown.Where.X + shown.Where.Width, kPaper.Width);
        EXPECT_LE(shown.Where.Y + shown.Where.Height, kPaper.Height);
        EXPECT_NEAR(double(shown.Where.Width) / shown.Part.Width,
                    double(shown.Where.Height) / shown.Part.Height, 0.001);
    }
    EXPECT_EQ(right, 40'000);
    EXPECT_EQ(bottom, 50'000);
}

TEST(Booklet, AnEmptyDocumentAndASingleStateArePrinted) {
    ExpectAllOnThePaper(Printed(FsmDocument()));
    EXPECT_EQ(TextsOf(Printed(FsmDocument())).count("A machine without a name"), 1u);
    FsmDocument one;
    one.State(1).Name = "Alone";
    EXPECT_EQ(TextsOf(Printed(one, kTableAlone)).count("1:Alone"), 1u);
    EXPECT_TRUE(Printed(one, {false, false, false, false, false}).empty());
}

TEST(ProgramDigest, IsTheSameEachTimeAndSaysWhenThereIsNoProgram) {
    FsmDocument document = FullTable(2, 1);
    EXPECT_THAT(ProgramDigestOf(document, ""), HasSubstr("none")); // no test code
    document.Event(6).Code = "\tx";
    document.State(1).Targets[4] = document.State(2).Targets[4] = kNoState;
    document.State(1).Actions[4].clear();
    document.State(2).Actions[4].clear();
    const std::string digest = ProgramDigestOf(document, "/a");
    EXPECT_THAT(digest, Not(HasSubstr("none")));
    const std::string dated = ProgramFileBytes(GenerateProgram(document, {"/a", "22/11/2026 08:00:00"}));
    EXPECT_EQ(digest.substr(0, digest.find(' ')), HexText(Crc32(dated.substr(dated.find('\n') + 1))));
    document.State(1).EntryCode = "\ty";
    EXPECT_NE(ProgramDigestOf(document, "/a"), digest);
}

} // namespace
} // namespace orvane::print
