// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CellName.h"

#include "table/FittingWidth.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

class CellNameTest : public testing::Test {
  protected:
    CellNameTest() {
        Document.State(2).Name = "Closed";
        Document.State(3).Name = "Opening";
        Document.State(7).Name = "Stopped";
        Document.Event(6).Name = "Button";
        Document.State(3).Targets[6] = 7;
    }

    std::string Name(int row, int state) const { return CellName(Document, {row, state}); }

    FsmDocument Document;
};

TEST_F(CellNameTest, HeadsAreNamedByWhatTheyStandFor) {
    EXPECT_EQ(Name(0, 2), "State 2: Closed");
    EXPECT_EQ(Name(0, 4), "State 4: empty");
    EXPECT_EQ(Name(6, 0), "Event Button, without a test");
    Document.Event(6).Code = ";test";
    EXPECT_EQ(Name(6, 0), "Event Button");
    EXPECT_EQ(Name(9, 0), "Event row 9: empty");
    EXPECT_EQ(Name(0, 0), "Machine without a name");
    EXPECT_EQ(Name(kElseRow, 0), "Else");
}

TEST_F(CellNameTest, CellsAreNamedByEventStateAndContent) {
    EXPECT_EQ(Name(6, 3), "Button in Opening: 7:Stopped");
    Document.State(3).Actions[6] = ";act";
    EXPECT_EQ(Name(6, 3), "Button in Opening: 7:Stopped, with action");
    Document.State(3).Targets[6] = 0;
    EXPECT_EQ(Name(6, 3), "Button in Opening: action alone");
    EXPECT_EQ(Name(6, 2), "Button in Closed: empty");
    EXPECT_EQ(Name(9, 4), "event row 9 in state 4: empty");
    EXPECT_EQ(Name(kTimeoutRow, 2), "Timeout target in Closed: empty");
}

TEST_F(CellNameTest, OfCodeTheFirstLineIsSaid) {
    Document.State(2).EntryCode = ";first\r\n;second";
    EXPECT_EQ(Name(kEntryActionRow, 2), "Entry action in Closed: ;first");
    EXPECT_EQ(Name(kExitActionRow, 2), "Exit action in Closed: empty");
}

// A font in which each character is 100 twips wide.
class Wide final : public TextMeasurer {
  public:
    Twips operator()(std::string_view text) const override { return int(text.size()) * 100; }
};

class FittingWidthTest : public CellNameTest {
  protected:
    Twips Fitted(int column) const { return FittingWidth(Document, column, Wide()); }
    // Whether a column of that width shows the text as it is.
    static bool Shows(const std::string& text, Twips width) {
        return FitTextToColumn(text, width, Wide()) == text;
    }
};

TEST_F(FittingWidthTest, TheLongestTextIsShownWholeAndNoMoreIsTaken) {
    EXPECT_TRUE(Shows("7:Stopped", Fitted(3)));
    EXPECT_FALSE(Shows("7:Stopped+", Fitted(3)));
    EXPECT_EQ(Fitted(3).Count() % kTwipsPerPixel, 0);
    Document.State(3).Actions[6] = ";act";
    EXPECT_TRUE(Shows("7:Stopped*", Fitted(3)));
    Document.State(3).TimingMode = 1;
    Document.State(3).TimeConst = "12345";
    EXPECT_TRUE(Shows("Start /12345", Fitted(3)));
}

TEST_F(FittingWidthTest, CodeIsGivenRoomWithinReason) {
    Document.State(3).EntryCode = std::string(500, 'x');
    EXPECT_EQ(Fitted(3), kWidestFittedCode);
    Document.State(3).Name = std::string(50, 'n');
    EXPECT_TRUE(Shows("3:" + std::string(50, 'n'), Fitted(3)));
}

TEST_F(FittingWidthTest, AnEmptyColumnIsAsWideAsANewOne) { EXPECT_EQ(Fitted(50), kDefaultColumnWidth); }

TEST_F(FittingWidthTest, TheHeadsShowTheLongestEvent) {
    Document.Event(20).Name = "A long name of an event";
    EXPECT_TRUE(Shows("A long name of an event", Fitted(0)));
    EXPECT_TRUE(Shows("Timeout target", FittingWidth(FsmDocument(), kNoState, Wide())));
}

TEST_F(FittingWidthTest, WhatIsHiddenTakesNoRoom) {
    Document.State(2).Targets[kElseRow] = 100;
    Document.State(100).Name = std::string(30, 'n');
    EXPECT_FALSE(Shows("100:" + Document.State(100).Name, Fitted(2)));
}

} // namespace
} // namespace orvane
