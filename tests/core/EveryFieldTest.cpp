// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DocumentReader.h"
#include "core/DocumentWriter.h"
#include "core/TightPacked.h"
#include "support/EveryFieldDocument.h"
#include "support/RandomDocument.h"

#include <gtest/gtest.h>

namespace orvane::test {
namespace {

// The file of the document, to the byte. ! stands for the delimiter and each line ends with CR LF.
std::string FileOf(std::string text) {
    std::string bytes;
    for (const char character : text) {
        if (character == '\n')
            bytes += "\r\n";
        else
            bytes += character == '!' ? '\xA4' : character;
    }
    return bytes;
}

const char* const kGeneralPart = "!<FSM_NAME>PMP!/\n"
                                 "!<POLYTASK>True!/\n"
                                 "!<SHOWTIMETARGET>True!/\n"
                                 "!<SHOWTIMINGMODE>True!/\n"
                                 "!<SHOWELSE>True!/\n"
                                 "!<BUILDFILE>C:\\work\\pump.b1d!/\n"
                                 "!<LAUNCHSEG>0!/\n"
                                 "!<CODESEG>\tCode!/\n"
                                 "!<HEADERCOMMENT>;pump\n;of the west wing!/\n"
                                 "!<INITSEG>\tInit!/\n"
                                 "!<NVEM0DATA>\tData!/\n"
                                 "!<TESTSEG>\tTest!/\n"
                                 "!<INSTANCES>4!/\n"
                                 "!<COL0W>2400!/\n"
                                 "!<POLYTASK>True!/\n"
                                 "!<ROWVISIBLE>!/\n"
                                 "  !<ELSE>225!/\n"
                                 "  !<EXITACT>240!/\n"
                                 "  !<TIMEMODE>255!/\n"
                                 "  !<TIMETARGET>270!/\n"
                                 "!</ROWVISIBLE>!/\n";

const char* const kEventPart = "!<EVENT>6:!/\n"
                               "  !<NAME>start!/\n"
                               "  !<TOOLTIP>the green button!/\n"
                               "  !<CODE>;start?!/\n"
                               "!</EVENT>!/\n"
                               "!<EVENT>54:!/\n"
                               "  !<NAME>stop!/\n"
                               "  !<TOOLTIP>the red button!/\n"
                               "  !<CODE>;stop?!/\n"
                               "!</EVENT>!/\n";

// Everything of a state behind its name.
const char* const kStatePart = "  !<TOOLTIP>the motor is on!/\n"
                               "  !<ENTRY>\tOn!/\n"
                               "  !<EXIT>\tOff!/\n"
                               "  !<EXIT>\tOff!/\n"
                               "  !<TIMINGMODE>4!/\n"
                               "  !<TIMECONST>100!/\n"
                               "  !<TIMINGVAR>\tLoad limit!/\n"
                               "  !<TIMERID>T1!/\n"
                               "  !<COLWIDTH>1200!/\n"
                               "  !<TRANSITIONS>\n"
                               "    !<TRANS>4:1!/\n"
                               "    !<TACT>4:;too long!/\n"
                               "    !<TRANS>5:2!/\n"
                               "    !<TACT>5:;else!/\n"
                               "    !<TRANS>6:100!/\n"
                               "    !<TACT>54:;first\n;second!/\n"
                               "  !</TRANSITIONS>!/\n"
                               "!</STATE>\n";

TEST(EveryField, IsWrittenInTheOrderOfTheFormatWithoutEmptyLines) {
    EXPECT_EQ(WriteDocument(EveryFieldDocument()),
              FileOf(std::string(kGeneralPart) + kEventPart + "!<STATE>1:!/\n  !<NAME>Running!/\n" +
                     kStatePart + "!<STATE>100:!/\n  !<NAME>Motor On \x80!/\n" + kStatePart));
}

TEST(EveryField, ComesBackFromItsFile) {
    const FsmDocument document = EveryFieldDocument();
    const ReadResult read = ReadDocument(WriteDocument(document));
    EXPECT_TRUE(read.Messages.empty());
    EXPECT_FALSE(read.BrokeOff);
    EXPECT_EQ(read.Document, StoredPart(document));
}

TEST(EveryField, ComesBackFromItsImage) {
    const FsmDocument document = EveryFieldDocument();
    FsmDocument emptied = document;
    emptied.ClearDataBase(true); // keeps what an image does not hold, but for the last tabs
    for (const StateNumber state : StateNumbers())
        emptied.State(state).LastTab = document.State(state).LastTab;
    for (const RowNumber row : CellRows())
        emptied.Event(row).LastTab = document.Event(row).LastTab;
    EXPECT_TRUE(Unpack(Pack(document), emptied).empty());
    EXPECT_EQ(emptied, document);
}

TEST(EveryField, HasAnotherValueInEachFieldThanAFreshDocument) {
    const FsmDocument document = EveryFieldDocument();
    const FsmDocument fresh;
    const GeneralCode& general = document.General;
    for (const std::string* text :
         {&general.FsmName, &general.HeaderComment, &general.CodeSeg, &general.InitSeg, &general.NvEm0Data,
          &general.TestSeg, &general.Instances, &general.BuildFile})
        EXPECT_FALSE(text->empty());
    EXPECT_NE(general.LaunchSeg, fresh.General.LaunchSeg);
    EXPECT_NE(document.View.Polytask, fresh.View.Polytask);
    EXPECT_NE(document.View.ShowTimeTarget, fresh.View.ShowTimeTarget);
    EXPECT_NE(document.View.ShowTimingMode, fresh.View.ShowTimingMode);
    EXPECT_NE(document.View.ShowElse, fresh.View.ShowElse);
    EXPECT_NE(document.View.Col0Width, fresh.View.Col0Width);
    for (const int state : {1, 100}) {
        const StateRecord& record = document.State(state);
        for (const std::string* text : {&record.Name, &record.Tooltip, &record.EntryCode, &record.ExitCode,
                                        &record.TimeConst, &record.TimingVar, &record.TimerId})
            EXPECT_FALSE(text->empty());
        EXPECT_NE(record.TimingMode, 0);
        EXPECT_NE(record.ColWidth, fresh.State(state).ColWidth);
        EXPECT_NE(record.LastTab, 0);
    }
}

} // namespace
} // namespace orvane::test
