// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TightPacked.h"

#include "support/DocumentText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvane {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kHead = "0\x37\x65"; // the format, 55 rows, 101 columns

std::string EmptyImage() { return kHead + "\0\0"s + Delimited("$$$$$$\x01$"); }

FsmDocument Filled() {
    FsmDocument document;
    document.General = {"PMP", ";h", ";c", ";i", ";n", ";t", "4", false, "C:\\a.b1d"};
    document.Event(6) = {"start", ";start?", "hint", 2};
    StateRecord& state = document.State(2);
    state = {"Run", "tip", ";in", ";out", 4, {}, {}, "100", ";v", "A", 1000, 3};
    state.Targets[4] = 1;
    state.Actions[54] = ";a\r\n;b";
    return document;
}

std::string FilledImage() {
    return kHead + Delimited("\x06start$;start?$hint$") + "\0"s +
           Delimited("\x02Run$tip$;in$;out$100$;v$A$\x04\x04\x01$\x36") + "\0"s + Delimited(";a\r\n;b$") +
           "\0\0\0"s + Delimited("PMP$;c$;h$;i$;n$;t$") + "\0"s + Delimited("4$");
}

TEST(TightPacked, AnEmptyDocumentPacksToMarksZerosAndDelimiters) {
    EXPECT_EQ(Pack(FsmDocument()), EmptyImage());
}

TEST(TightPacked, EveryFieldHasItsPlaceInTheImage) { EXPECT_EQ(Pack(Filled()), FilledImage()); }

TEST(TightPacked, AStateWithOnlyATimingModeIsPackedWithSevenDelimiters) {
    FsmDocument document;
    document.State(9).TimingMode = 3;
    EXPECT_EQ(Pack(document),
              kHead + "\0\x09"s + Delimited("$$$$$$$\x03") + "\0\0\0"s + Delimited("$$$$$$\x01$"));
}

TEST(TightPacked, WidthsTabsViewAndBuilderScriptAreNotInTheImage) {
    FsmDocument document;
    document.State(1).ColWidth = 1;
    document.State(1).LastTab = 1;
    document.Event(6).LastTab = 1;
    document.View = {true, true, true, true, 1, {1, 2, 3, 4}};
    document.General.BuildFile = "x";
    EXPECT_EQ(Pack(document), EmptyImage());
}

TEST(TightPacked, TimingModesThatNoCharacterHoldsArePackedAs255) {
    for (const int mode : {-1, 255, 256, 260, 100000}) {
        FsmDocument document;
        document.State(1).TimingMode = mode;
        FsmDocument unpacked;
        EXPECT_THAT(Unpack(Pack(document), unpacked), IsEmpty());
        EXPECT_EQ(unpacked.State(1).TimingMode, 255) << mode;
    }
    FsmDocument document;
    document.State(1).TimingMode = 254;
    FsmDocument unpacked;
    EXPECT_THAT(Unpack(Pack(document), unpacked), IsEmpty());
    EXPECT_EQ(unpacked.State(1).TimingMode, 254);
}

TEST(TightPacked, EventRowsFourAndFiveArePackedLikeAnyOther) {
    FsmDocument document;
    document.Event(4).Name = "x";
    EXPECT_EQ(Pack(document).substr(3, 6), Delimited("\x04x$$$") + "\0"s);
}

TEST(TightPacked, UnpackingMakesTheDocumentThatOfTheImage) {
    FsmDocument document;
    EXPECT_THAT(Unpack(FilledImage(), document), IsEmpty());
    FsmDocument expected = Filled();
    expected.General.BuildFile.clear();
    expected.Event(6).LastTab = 0;
    expected.State(2).ColWidth = kDefaultColumnWidth;
    expected.State(2).LastTab = 0;
    EXPECT_EQ(document, expected);
}

TEST(TightPacked, UnpackingEmptiesWhatTheImageDoesNotHoldAndLeavesTheRest) {
    FsmDocument document = Filled();
    document.View = {true, true, true, true, 1, {1, 2, 3, 4}};
    EXPECT_THAT(Unpack(EmptyImage(), document), IsEmpty());
    FsmDocument expected;
    expected.View = {true, true, true, true, 1, {1, 2, 3, 4}};
    expected.General.BuildFile = "C:\\a.b1d";
    expected.Event(6).LastTab = 2;
    expected.State(2).ColWidth = 1000;
    expected.State(2).LastTab = 3;
    EXPECT_EQ(document, expected);
}

TEST(TightPacked, AWrongFormatMarkChangesNothing) {
    for (const std::string& image : {""s, "1\x37\x65"s, "\0"s, "\xA4"s}) {
        FsmDocument document = Filled();
        EXPECT_THAT(Unpack(image, document), ElementsAre("Unknown TightPacked format"));
        EXPECT_EQ(document, Filled());
    }
}

TEST(TightPacked, AMissingTerminatorCostsOnlyThatField) {
    // No delimiter is left for Instances: it reads as empty, everything before stays.
    FsmDocument document = Filled();
    EXPECT_THAT(Unpack(kHead + "\0\0"s + Delimited("P$c$$$$$\x01") + "42", document),
                ElementsAre("Expected string terminator is absent"));
    EXPECT_EQ(document.General.FsmName, "P");
    EXPECT_EQ(document.General.CodeSeg, "c");
    EXPECT_TRUE(document.General.LaunchSeg);
    EXPECT_EQ(document.General.Instances, "");
}

TEST(TightPacked, WhatFollowsAMissingTerminatorIsReadFromTheSamePlaceAndToldOnce) {
    // The event's three texts have no delimiter: the 0 behind its row is then the end of the events.
    FsmDocument document;
    const std::vector<std::string> messages = Unpack(kHead + "\x06"s + "\0\0\0"s, document);
    EXPECT_EQ(document, [] {
        FsmDocument expected;
        expected.General.LaunchSeg = false;
        return expected;
    }());
    EXPECT_THAT(messages, ElementsAre("Expected string terminator is absent"));
}

TEST(TightPacked, NumbersOutOfRangeEndTheUnpacking) {
    const auto messagesOf = [](const std::string& image) {
        FsmDocument document;
        return Unpack(kHead + image, document);
    };
    EXPECT_THAT(messagesOf("\x03"s), ElementsAre("The snapshot holds the event row 3"));
    EXPECT_THAT(messagesOf("\x37"s), ElementsAre("The snapshot holds the event row 55"));
    EXPECT_THAT(messagesOf("\0\x65"s), ElementsAre("The snapshot holds the state 101"));
    EXPECT_THAT(messagesOf("\0\xFF"s), ElementsAre("The snapshot holds the state 255"));
    const std::string state = "\0\x01"s + Delimited("$$$$$$$") + "\0"s;
    EXPECT_THAT(messagesOf(state + "\x02"), ElementsAre("The snapshot holds the cell row 2"));
    EXPECT_THAT(messagesOf(state + "\x06\x65"), ElementsAre("The snapshot holds the target 101"));
}

TEST(TightPacked, WhatWasUnpackedBeforeABadNumberStays) {
    FsmDocument document;
    EXPECT_THAT(Unpack(kHead + Delimited("\x06"
                                         "a$b$c$\x37"),
                       document),
                ElementsAre("The snapshot holds the event row 55"));
    EXPECT_EQ(document.Event(6), (EventRecord{"a", "b", "c", 0}));
}

TEST(TightPacked, AnImageThatEndsTooEarlyIsTold) {
    const std::string image = FilledImage();
    for (std::size_t length = 1; length < image.size(); ++length) {
        FsmDocument document;
        EXPECT_THAT(Unpack(image.substr(0, length), document), testing::Not(IsEmpty())) << length;
    }
}

TEST(TightPacked, ADelimiterInATextBreaksTheOrderOfTheFieldsBehindIt) {
    FsmDocument document;
    document.General.FsmName = Delimited("P$Q");
    document.General.CodeSeg = "c";
    FsmDocument unpacked;
    EXPECT_THAT(Unpack(Pack(document), unpacked), IsEmpty());
    EXPECT_EQ(unpacked.General.FsmName, "P");
    EXPECT_EQ(unpacked.General.CodeSeg, "Q");
    EXPECT_EQ(unpacked.General.HeaderComment, "c");
}

TEST(TightPacked, TextsMayHoldZerosAndHighBytes) {
    FsmDocument document;
    document.State(1).Name = "\0\x01\xFF\r\n"s;
    FsmDocument unpacked;
    EXPECT_THAT(Unpack(Pack(document), unpacked), IsEmpty());
    EXPECT_EQ(unpacked, document);
}

TEST(TightPacked, TakingAStringFieldRemovesItAndItsDelimiter) {
    const std::string text = Delimited("ab$$c");
    std::string_view buffer = text;
    EXPECT_EQ(TakeStringField(buffer), "ab");
    EXPECT_EQ(TakeStringField(buffer), "");
    EXPECT_EQ(buffer, "c");
    EXPECT_EQ(TakeStringField(buffer), "");
    EXPECT_EQ(buffer, "c"); // without a delimiter the buffer stays
}

} // namespace
} // namespace orvane
