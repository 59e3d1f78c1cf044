// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DocumentReader.h"

#include "support/DocumentText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Reads bytes in which "$" stands for the delimiter.
ReadResult Read(std::string_view text) { return ReadDocument(Delimited(text)); }

TEST(DocumentReader, EveryTopLevelFieldFillsItsMember) {
    const ReadResult read = Read("$<FSM_NAME>PMP$/\r\n$<POLYTASK>True$/\r\n$<SHOWTIMETARGET>True$/\r\n"
                                 "$<SHOWTIMINGMODE>True$/\r\n$<SHOWELSE>True$/\r\n$<BUILDFILE>C:\\a.b1d$/\r\n"
                                 "$<LAUNCHSEG>0$/\r\n$<CODESEG>;c$/\r\n$<HEADERCOMMENT>;h$/\r\n"
                                 "$<INITSEG>;i$/\r\n$<NVEM0DATA>;n$/\r\n$<TESTSEG>;t$/\r\n$<INSTANCES>4$/\r\n"
                                 "$<COL0W>2000$/\r\n\r\n");
    FsmDocument expected;
    expected.General = {"PMP", ";h", ";c", ";i", ";n", ";t", "4", false, "C:\\a.b1d"};
    expected.View = {true, true, true, true, 2000, {}};
    EXPECT_EQ(read.Document, expected);
    EXPECT_THAT(read.Messages, IsEmpty());
    EXPECT_FALSE(read.BrokeOff);
}

TEST(DocumentReader, RowHeightsComeFromTheirBlock) {
    const ReadResult read =
        Read("$<ROWVISIBLE>$/\r\n  $<ELSE>10$/\r\n  $<EXITACT>20$/\r\n  $<TIMEMODE>30$/\r\n"
             "  $<TIMETARGET>40$/\r\n$</ROWVISIBLE>$/\r\n\r\n");
    EXPECT_EQ(read.Document.View.RowVisible, (RowHeights{10, 20, 30, 40}));
    EXPECT_THAT(read.Messages, IsEmpty());
}

TEST(DocumentReader, AnEventFillsTheRowOfItsHead) {
    const ReadResult read = Read("$<EVENT>6:$/\r\n  $<NAME>start$/\r\n  $<TOOLTIP>hint$/\r\n"
                                 "  $<CODE>;start?$/\r\n$</EVENT>$/\r\n\r\n");
    FsmDocument expected;
    expected.Event(6) = {"start", ";start?", "hint", 0};
    EXPECT_EQ(read.Document, expected);
}

TEST(DocumentReader, AStateFillsTheColumnOfItsHead) {
    const ReadResult read =
        Read("$<STATE>7:$/\r\n  $<NAME>Run$/\r\n  $<TOOLTIP>hint$/\r\n  $<ENTRY>;in$/\r\n  $<EXIT>;out$/\r\n"
             "  $<EXIT>;out2$/\r\n  $<TIMINGMODE>2$/\r\n  $<TIMECONST>100$/\r\n  $<TIMINGVAR>;v$/\r\n"
             "  $<TIMERID>A$/\r\n  $<COLWIDTH>1000$/\r\n  $<LASTTAB>3$/\r\n  $<TRANSITIONS>\r\n"
             "    $<TRANS>4:1$/\r\n    $<TACT>54:;a\r\n;b$/\r\n  $</TRANSITIONS>$/\r\n$</STATE>\r\n\r\n");
    FsmDocument expected;
    StateRecord& state = expected.State(7);
    state = {"Run", "hint", ";in", ";out2", 2, {}, {}, "100", ";v", "A", 1000, 3};
    state.Targets[4] = 1;
    state.Actions[54] = ";a\r\n;b";
    EXPECT_EQ(read.Document, expected);
    EXPECT_THAT(read.Messages, IsEmpty());
}

TEST(DocumentReader, TheOldWidthTagFillsTheColumnWidth) {
    EXPECT_EQ(Read("$<STATE>1:$/\r\n$<WIDTH>77$/\r\n$</STATE>\r\n\r\n").Document.State(1).ColWidth, 77);
}

TEST(DocumentReader, OfTwoPolytaskFieldsTheSecondWins) {
    EXPECT_FALSE(Read("$<POLYTASK>True$/\r\n$<POLYTASK>False$/\r\n\r\n").Document.View.Polytask);
    EXPECT_TRUE(Read("$<POLYTASK>False$/\r\n$<POLYTASK>True$/\r\n\r\n").Document.View.Polytask);
}

TEST(DocumentReader, BooleansAreTrueInAnyMixOfCasesAndFalseOtherwise) {
    for (const std::string word : {"true", "True", "TRUE", "tRuE"})
        EXPECT_TRUE(Read("$<SHOWELSE>" + word + "$/\r\n\r\n").Document.View.ShowElse) << word;
    for (const std::string word : {"False", "1", "-1", "", " True", "True ", "Yes", "Truee"})
        EXPECT_FALSE(Read("$<SHOWELSE>" + word + "$/\r\n\r\n").Document.View.ShowElse) << word;
}

TEST(DocumentReader, AnyLaunchSegButZeroIsChecked) {
    for (const std::string number : {"1", "2", "-1", " 1"})
        EXPECT_TRUE(Read("$<LAUNCHSEG>" + number + "$/\r\n\r\n").Document.General.LaunchSeg) << number;
    for (const std::string number : {"0", "", "x"})
        EXPECT_FALSE(Read("$<LAUNCHSEG>" + number + "$/\r\n\r\n").Document.General.LaunchSeg) << number;
}

TEST(DocumentReader, AValueOverSeveralLinesKeepsThem) {
    EXPECT_EQ(Read("$<CODESEG>;a\r\n\r\n;b\r\n$/\r\n\r\n").Document.General.CodeSeg, ";a\r\n\r\n;b\r\n");
}

TEST(DocumentReader, LfAndCrLineEndsReadAsCrLf) {
    for (const char end : {'\n', '\r'}) {
        const std::string text = Replace("$<CODESEG>;a|;b$/|$<STATE>2:$/|  $<NAME>x$/|$</STATE>||", '|', end);
        const ReadResult read = Read(text);
        EXPECT_EQ(read.Document.General.CodeSeg, ";a\r\n;b");
        EXPECT_EQ(read.Document.State(2).Name, "x");
        EXPECT_THAT(read.Messages, IsEmpty());
    }
}

TEST(DocumentReader, TheValueOnTheLastLineIsLost) {
    const ReadResult read = Read("$<FSM_NAME>PMP$/\r\n$<CODESEG>;code$/\r\n");
    EXPECT_EQ(read.Document.General.FsmName, "PMP");
    EXPECT_EQ(read.Document.General.CodeSeg, "");
    EXPECT_THAT(read.Messages, IsEmpty());
    EXPECT_FALSE(read.BrokeOff);
    EXPECT_EQ(Read("$<FSM_NAME>PMP$/\r\n$<CODESEG>;code$/").Document.General.CodeSeg, "");
}

TEST(DocumentReader, AValueThatEndsOnTheLastLineIsKept) {
    EXPECT_EQ(Read("$<CODESEG>;a\r\n;b$/").Document.General.CodeSeg, ";a\r\n;b");
}

TEST(DocumentReader, FieldsBehindAFieldOnTheLastLineAreNotRead) {
    const ReadResult read = Read("\r\n$<FSM_NAME>PMP$/$<INSTANCES>4$/\r\n");
    EXPECT_EQ(read.Document, FsmDocument());
    EXPECT_FALSE(read.BrokeOff);
}

TEST(DocumentReader, AStateMayEndOnTheLastLine) {
    const ReadResult read = Read("$<STATE>1:$/\r\n  $<NAME>Idle$/\r\n$</STATE>\r\n");
    EXPECT_EQ(read.Document.State(1).Name, "Idle");
    EXPECT_FALSE(read.BrokeOff);
}

TEST(DocumentReader, AStateInOneLastLineReadsNoValues) {
    const ReadResult read = Read("\r\n$<STATE>1:$/$<NAME>Idle$/$</STATE>");
    EXPECT_EQ(read.Document, FsmDocument());
    EXPECT_THAT(read.Messages, ElementsAre(ReaderMessage{
                                   "The number \"\" of STATE is outside 1..100; reading stopped there", 2}));
}

TEST(DocumentReader, UnknownTagsAreToldAndPassedOver) {
    const ReadResult read = Read("$<COLOUR>red$/\r\n$<FSM_NAME>PMP$/\r\n$<fsm_name>x$/\r\n\r\n");
    EXPECT_EQ(read.Document.General.FsmName, "PMP");
    EXPECT_THAT(read.Messages, ElementsAre(ReaderMessage{"Unknown tag COLOUR", 1},
                                           ReaderMessage{"Unknown tag fsm_name", 3}));
    EXPECT_FALSE(read.BrokeOff);
}

TEST(DocumentReader, AnUnknownTagAtTheVeryEndIsNotTold) {
    for (const char* text : {"$<FSM_NAME>P$/\r\n$<COLOUR>red$/", "$<FSM_NAME>P$/\r\n$<COLOUR>red$/\r\n",
                             "$<FSM_NAME>P$/\r\nrest"}) {
        const ReadResult read = Read(text);
        EXPECT_THAT(read.Messages, IsEmpty()) << text;
        EXPECT_FALSE(read.BrokeOff) << text;
    }
}

TEST(DocumentReader, AFileThatEndsInsideATagIsTold) {
    for (const char* text : {"$<FSM_NAME>P$/\r\n$<half", "$<FSM_NAME>P$/\r\n$<", "$<FSM_NAME>P$/\r\n$"}) {
        const ReadResult read = Read(text);
        EXPECT_EQ(read.Document.General.FsmName, "P") << text;
        EXPECT_TRUE(read.BrokeOff) << text;
        EXPECT_THAT(read.Messages,
                    ElementsAre(ReaderMessage{"The file ends inside a tag; reading stopped there", 2}))
            << text;
    }
}

TEST(DocumentReader, AnAbsurdlyLongTagIsQuotedInPart) {
    const std::string longest(200, 'x');
    const ReadResult read =
        Read("$<" + longest + ">$/\r\n$<" + longest + "y>$/\r\n$<STATE>1:$/\r\n" + "$<TRANSITIONS>\r\n$<" +
             longest + "y>$/\r\n" + "$</TRANSITIONS>$/\r\n$</STATE>\r\n\r\n");
    EXPECT_THAT(read.Messages,
                ElementsAre(ReaderMessage{"Unknown tag " + longest, 1},
                            ReaderMessage{"Unknown tag " + longest + "...", 2},
                            ReaderMessage{"Unkown tag " + longest + "... in Transitions section", 5}));
}

TEST(DocumentReader, ATagWithoutCloseInItsLineIsAnUnknownEmptyTag) {
    const ReadResult read = Read("$<FSM_NAME\r\n$<INSTANCES>4$/\r\n\r\n");
    EXPECT_EQ(read.Document.General.Instances, "4");
    EXPECT_THAT(read.Messages, ElementsAre(ReaderMessage{"Unknown tag ", 1}));
}

TEST(DocumentReader, UnknownTagsInsideBlocksAreToldLikeAtTopLevel) {
    const ReadResult read = Read("$<ROWVISIBLE>$/\r\n$<A>1$/\r\n$<ELSE>9$/\r\n$</ROWVISIBLE>$/\r\n"
                                 "$<EVENT>6:$/\r\n$<ENTRY>2$/\r\n$<NAME>n$/\r\n$</EVENT>$/\r\n"
                                 "$<STATE>1:$/\r\n$<CODE>3$/\r\n$<NAME>s$/\r\n$</STATE>\r\n\r\n");
    EXPECT_EQ(read.Document.View.RowVisible.Else, 9);
    EXPECT_EQ(read.Document.Event(6).Name, "n");
    EXPECT_EQ(read.Document.State(1).Name, "s");
    EXPECT_THAT(read.Messages,
                ElementsAre(ReaderMessage{"Unknown tag A", 2}, ReaderMessage{"Unknown tag ENTRY", 6},
                            ReaderMessage{"Unknown tag CODE", 10}));
}

TEST(DocumentReader, UnknownTagsInTheCellListHaveTheirOwnMessage) {
    const ReadResult read = Read("$<STATE>1:$/\r\n$<TRANSITIONS>\r\n$<NAME>x$/\r\n$<TRANS>6:2$/\r\n"
                                 "$</TRANSITIONS>$/\r\n$</STATE>\r\n\r\n");
    EXPECT_EQ(read.Document.State(1).Targets[6], 2);
    EXPECT_EQ(read.Document.State(1).Name, "");
    EXPECT_THAT(read.Messages, ElementsAre(ReaderMessage{"Unkown tag NAME in Transitions section", 3}));
}

TEST(DocumentReader, OfVeryManyUnknownTagsTheRestIsCounted) {
    const ReadResult read = Read(Repeated("$<X>$/\r\n", 1003) + "\r\n");
    ASSERT_EQ(read.Messages.size(), 1001u);
    EXPECT_EQ(read.Messages.at(999), (ReaderMessage{"Unknown tag X", 1000}));
    EXPECT_EQ(read.Messages.back(), (ReaderMessage{"3 more unknown tags were skipped", 0}));
    EXPECT_EQ(Read(Repeated("$<X>$/\r\n", 1000) + "\r\n").Messages.size(), 1000u);
}

TEST(DocumentReader, WhereReadingStoppedIsTheLastMessageAlsoBehindVeryManyUnknownTags) {
    const ReadResult read = Read(Repeated("$<X>$/\r\n", kMostUnknownTags + 5) + "$<STATE>0:$/\r\n\r\n");
    ASSERT_EQ(read.Messages.size(), kMostUnknownTags + 2);
    EXPECT_EQ(read.Messages[kMostUnknownTags].Text, "5 more unknown tags were skipped");
    EXPECT_EQ(read.Messages.back().Line, kMostUnknownTags + 6);
    EXPECT_TRUE(read.BrokeOff);
}

TEST(DocumentReader, IndexesTakeBlanksAndStopAtTheFirstOtherCharacter) {
    const ReadResult read = Read("$<STATE>  3x:ignored$/\r\n$<TRANSITIONS>\r\n$<TRANS> 6 : 2$/\r\n"
                                 "$<TACT>7:a:b$/\r\n$</TRANSITIONS>$/\r\n$</STATE>\r\n\r\n");
    EXPECT_EQ(read.Document.State(3).Targets[6], 2);
    EXPECT_EQ(read.Document.State(3).Actions[7], "a:b");
    EXPECT_THAT(read.Messages, IsEmpty());
}

TEST(DocumentReader, IndexesWithoutColonHaveAnEmptyRest) {
    const ReadResult read = Read("$<STATE>3$/\r\n$<TRANSITIONS>\r\n$<TRANS>6:5$/\r\n$<TRANS>6$/\r\n"
                                 "$<TACT>7:x$/\r\n$<TACT>7$/\r\n$</TRANSITIONS>$/\r\n$</STATE>\r\n\r\n");
    EXPECT_EQ(read.Document, FsmDocument());
    EXPECT_FALSE(read.BrokeOff);
}

TEST(DocumentReader, RowsFourAndFiveMayHoldEvents) {
    EXPECT_EQ(Read("$<EVENT>4:$/\r\n$<NAME>x$/\r\n$</EVENT>$/\r\n\r\n").Document.Event(4).Name, "x");
}

struct OutOfBounds {
    std::string Text; // what follows one good line
    std::string Message;
    std::size_t Line;
};

class DocumentReaderBounds : public testing::TestWithParam<OutOfBounds> {};

TEST_P(DocumentReaderBounds, EndTheReadingWithNumberFieldAndLine) {
    const ReadResult read = Read("$<FSM_NAME>PMP$/\r\n" + GetParam().Text + "\r\n$<INSTANCES>9$/\r\n\r\n");
    EXPECT_TRUE(read.BrokeOff);
    EXPECT_EQ(read.Document.General.FsmName, "PMP"); // what was read stays
    EXPECT_EQ(read.Document.General.Instances, "");  // what follows is not read
    EXPECT_THAT(read.Messages, ElementsAre(ReaderMessage{GetParam().Message, GetParam().Line}));
}

constexpr const char* kCells = "$<STATE>7:$/\r\n$<TRANSITIONS>\r\n";

INSTANTIATE_TEST_SUITE_P(
    Numbers, DocumentReaderBounds,
    testing::Values(
        OutOfBounds{"$<STATE>0:$/", "The number \"0\" of STATE is outside 1..100; reading stopped there", 2},
        OutOfBounds{"$<STATE>101:$/", "The number \"101\" of STATE is outside 1..100; reading stopped there",
                    2},
        OutOfBounds{"$<STATE>x:$/", "The number \"x\" of STATE is outside 1..100; reading stopped there", 2},
        OutOfBounds{"$<EVENT>3:$/", "The number \"3\" of EVENT is outside 4..54; reading stopped there", 2},
        OutOfBounds{"\r\n$<EVENT> 55:$/",
                    "The number \"55\" of EVENT is outside 4..54; reading stopped there", 3},
        OutOfBounds{std::string(kCells) + "$<TRANS>3:1$/",
                    "The number \"3\" of TRANS in state 7 is outside 4..54; reading stopped there", 4},
        OutOfBounds{std::string(kCells) + "$<TACT>55:a$/",
                    "The number \"55\" of TACT in state 7 is outside 4..54; reading stopped there", 4},
        OutOfBounds{std::string(kCells) + "$<TRANS>6:101$/",
                    "The number \"101\" of TRANS in state 7 is outside 0..100; reading stopped there", 4},
        OutOfBounds{std::string(kCells) + "$<TRANS>6:-1$/",
                    "The number \"-1\" of TRANS in state 7 is outside 0..100; reading stopped there", 4},
        OutOfBounds{"$<LAUNCHSEG>32768$/",
                    "The number \"32768\" of LAUNCHSEG is outside -32768..32767; reading stopped there", 2},
        OutOfBounds{
            "$<STATE>7:$/\r\n$<LASTTAB>-32769$/",
            "The number \"-32769\" of LASTTAB in state 7 is outside -32768..32767; reading stopped there", 3},
        OutOfBounds{"$<COL0W>2147483648$/",
                    "The number \"2147483648\" of COL0W is outside -2147483648..2147483647; "
                    "reading stopped there",
                    2},
        OutOfBounds{"$<ROWVISIBLE>$/\r\n$<ELSE>-2147483649$/",
                    "The number \"-2147483649\" of ELSE is outside -2147483648..2147483647; "
                    "reading stopped there",
                    3},
        OutOfBounds{"$<STATE>7:$/\r\n$<TIMINGMODE>99999999999999999999999999$/",
                    "The number \"999999999999999999999999...\" of TIMINGMODE in state 7 is outside "
                    "-2147483648..2147483647; reading stopped there",
                    3},
        OutOfBounds{"$<STATE>7:$/\r\n$<COLWIDTH>3000000000$/",
                    "The number \"3000000000\" of COLWIDTH in state 7 is outside -2147483648..2147483647; "
                    "reading stopped there",
                    3}));

TEST(DocumentReader, ANumberOfTwentyFourCharactersIsQuotedWhole) {
    const std::string longest(24, '9');
    const auto told = [](const std::string& number) {
        return Read("$<COL0W>" + number + "$/\r\n\r\n").Messages.at(0).Text;
    };
    EXPECT_TRUE(told(longest).starts_with("The number \"" + longest + "\" of COL0W"));
    EXPECT_TRUE(told(longest + "8").starts_with("The number \"" + longest + "...\" of COL0W"));
}

TEST(DocumentReader, OneUnknownTagBeyondTheLimitIsCounted) {
    const ReadResult read = Read(Repeated("$<X>$/\r\n", 1001) + "\r\n");
    ASSERT_EQ(read.Messages.size(), 1001u);
    EXPECT_EQ(read.Messages.back(), (ReaderMessage{"1 more unknown tags were skipped", 0}));
}

TEST(DocumentReader, NumbersAtTheirBoundsAreTaken) {
    const ReadResult read = Read("$<COL0W>-2147483648$/\r\n$<STATE>100:$/\r\n$<COLWIDTH>2147483647$/\r\n"
                                 "$<TIMINGMODE>-5$/\r\n$<LASTTAB>-32768$/\r\n$<TRANSITIONS>\r\n"
                                 "$<TRANS>54:100$/\r\n$</TRANSITIONS>$/\r\n$</STATE>\r\n\r\n");
    EXPECT_FALSE(read.BrokeOff);
    EXPECT_EQ(read.Document.View.Col0Width, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(read.Document.State(100).ColWidth, std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(read.Document.State(100).TimingMode, -5);
    EXPECT_EQ(read.Document.State(100).LastTab, -32768);
    EXPECT_EQ(read.Document.State(100).Targets[54], 100);
}

TEST(DocumentReader, AFileThatEndsInsideABlockKeepsWhatWasRead) {
    const ReadResult state = Read("$<STATE>7:$/\r\n$<NAME>Run$/\r\n\r\n");
    EXPECT_EQ(state.Document.State(7).Name, "Run");
    EXPECT_TRUE(state.BrokeOff);
    EXPECT_THAT(state.Messages, ElementsAre(ReaderMessage{
                                    "The file ends before /STATE in state 7; reading stopped there", 2}));
    EXPECT_THAT(
        Read("$<EVENT>6:$/\r\n$<NAME>x$/\r\n\r\n").Messages,
        ElementsAre(ReaderMessage{"The file ends before /EVENT in event row 6; reading stopped there", 2}));
    EXPECT_THAT(Read("$<ROWVISIBLE>$/\r\n\r\n").Messages,
                ElementsAre(ReaderMessage{"The file ends before /ROWVISIBLE; reading stopped there", 1}));
    EXPECT_THAT(
        Read("$<STATE>7:$/\r\n$<TRANSITIONS>\r\n\r\n").Messages,
        ElementsAre(ReaderMessage{"The file ends before /TRANSITIONS in state 7; reading stopped there", 2}));
}

TEST(DocumentReader, AFileThatEndsInsideAValueKeepsAllThatIsLeft) {
    const ReadResult read = Read("$<FSM_NAME>PMP$/\r\n$<CODESEG>;a\r\n;b");
    EXPECT_EQ(read.Document.General.CodeSeg, ";a\r\n;b");
    EXPECT_TRUE(read.BrokeOff);
    EXPECT_THAT(read.Messages, ElementsAre(ReaderMessage{
                                   "The file ends inside the value of CODESEG; reading stopped there", 2}));
    EXPECT_THAT(Read("$<STATE>7:$/\r\n$<ENTRY>;a\r\n").Messages,
                ElementsAre(ReaderMessage{
                    "The file ends inside the value of ENTRY in state 7; reading stopped there", 2}));
}

TEST(DocumentReader, HalfATerminatorAtTheEndIsNoneOfTheText) {
    const ReadResult read = Read("$<CODESEG>;a\r\n;b$");
    EXPECT_EQ(read.Document.General.CodeSeg, ";a\r\n;b");
    EXPECT_THAT(read.Messages, ElementsAre(ReaderMessage{
                                   "The file ends inside the value of CODESEG; reading stopped there", 1}));
}

TEST(DocumentReader, AFileThatEndsInsideANumberIsToldAsThat) {
    EXPECT_THAT(Read("$<STATE>7:$/\r\n$<TRANSITIONS>\r\n$<TACT>").Messages,
                ElementsAre(ReaderMessage{
                    "The file ends inside the value of TACT in state 7; reading stopped there", 3}));
}

TEST(DocumentReader, ASectionHeadWithoutTerminatorIsNotTakenForANumber) {
    EXPECT_THAT(
        Read("$<STATE>7:\r\nx\r\n").Messages,
        ElementsAre(ReaderMessage{"The file ends inside the value of STATE; reading stopped there", 1}));
}

TEST(DocumentReader, ADelimiterInsideATextIsKeptAndToldOnce) {
    const ReadResult read = Read("$<STATE>1:$/\r\n$<NAME>a$b$/\r\n$<ENTRY>c$d$/\r\n$</STATE>\r\n\r\n");
    EXPECT_EQ(read.Document.State(1).Name, "a\xA4"
                                           "b");
    EXPECT_EQ(read.Document.State(1).EntryCode, "c\xA4"
                                                "d");
    EXPECT_FALSE(read.BrokeOff);
    EXPECT_THAT(read.Messages,
                ElementsAre(ReaderMessage{"The text of NAME in state 1 holds the character \xA4, which ends "
                                          "fields; it is kept and saved as it is, but undo cannot carry it",
                                          2}));
}

TEST(DocumentReader, ADelimiterInTheRowOfAnActionIsInNoText) {
    const ReadResult read =
        Read("$<STATE>1:$/\r\n$<TRANSITIONS>\r\n$<TACT>6$:a$/\r\n$</TRANSITIONS>$/\r\n$</STATE>\r\n\r\n");
    EXPECT_EQ(read.Document.State(1).Actions[6], "a");
    EXPECT_THAT(read.Messages, IsEmpty());
}

TEST(DocumentReader, AnEmptyFileIsAnEmptyDocument) {
    for (const char* text : {"", "\r\n", " \t\r\n\n"}) {
        const ReadResult read = Read(text);
        EXPECT_EQ(read.Document, FsmDocument());
        EXPECT_THAT(read.Messages, IsEmpty());
        EXPECT_FALSE(read.BrokeOff);
    }
}

TEST(DocumentReader, AFileWithoutAnyFieldIsRefused) {
    const ReadResult read = Read("\x7F"
                                 "ELF something else\r\n");
    EXPECT_EQ(read.Document, FsmDocument());
    EXPECT_TRUE(read.BrokeOff);
    EXPECT_THAT(read.Messages,
                ElementsAre(ReaderMessage{"The file is not a document: it holds no field", 0}));
}

TEST(DocumentReader, AFileAboveTheLimitIsRefusedUnread) {
    const std::string field = Delimited("$<FSM_NAME>PMP$/\r\n\r\n");
    std::string bytes = field + std::string(kLargestDocument - field.size(), ' ');
    EXPECT_EQ(ReadDocument(bytes).Document.General.FsmName, "PMP");
    bytes += ' ';
    const ReadResult read = ReadDocument(bytes);
    EXPECT_EQ(read.Document, FsmDocument());
    EXPECT_TRUE(read.BrokeOff);
    EXPECT_THAT(read.Messages,
                ElementsAre(ReaderMessage{"The file is larger than 64 MiB, which no document is", 0}));
}

// A reader that searched anew for each tag or value, or moved the rest of the text for each, would need
// minutes for these.
TEST(DocumentReaderCost, OneLineOfTheLargestSizeIsReadOnce) {
    std::string bytes = Delimited("$<CODESEG>");
    bytes.resize(kLargestDocument, 'x');
    EXPECT_TRUE(ReadDocument(bytes).BrokeOff); // no terminator
    bytes[kLargestDocument / 2] = '\n';
    EXPECT_EQ(ReadDocument(bytes).Document.General.CodeSeg.size(), kLargestDocument - 10 + 1);
}

TEST(DocumentReaderCost, MillionsOfTinyUnknownTagsAreReadOnce) {
    const ReadResult read = ReadDocument(Repeated(Delimited("$<>\n"), 10'000'000) + "\n");
    EXPECT_EQ(read.Messages.back().Text, "9999000 more unknown tags were skipped");
}

TEST(DocumentReaderCost, MillionsOfOpensWithoutCloseAreReadOnce) {
    const std::string opens = Repeated(Delimited("$<"), 8'000'000);
    EXPECT_EQ(ReadDocument(opens + "\r\n\r\n").Messages.back().Text,
              "7999000 more unknown tags were skipped");
    EXPECT_THAT(ReadDocument(opens).Messages,
                ElementsAre(ReaderMessage{"The file ends inside a tag; reading stopped there", 1}));
}

TEST(DocumentReaderCost, AMillionBlocksWithoutCloserAreReadOnce) {
    const std::string heads = Repeated(Delimited("$<STATE>1:$/\r\n"), 1'000'000);
    const ReadResult read = ReadDocument(heads);
    EXPECT_TRUE(read.BrokeOff);
    ASSERT_EQ(read.Messages.size(), kMostUnknownTags + 2);
    EXPECT_EQ(read.Messages[kMostUnknownTags].Text, "998998 more unknown tags were skipped");
}

TEST(DocumentReaderCost, AMillionValuesOfOneFieldAreReadOnce) {
    const std::string fields = Repeated(Delimited("$<TESTSEG>a$b$/\n"), 1'000'000);
    EXPECT_EQ(ReadDocument(fields + "\n").Messages.size(), 1u);
}

} // namespace
} // namespace orvane
