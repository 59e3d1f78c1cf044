// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DocumentWriter.h"

#include "core/DocumentReader.h"
#include "support/DocumentText.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

// What the writer puts behind the fixed fields of an otherwise fresh document.
std::string Written(const FsmDocument& document) {
    FsmDocument fresh;
    fresh.General = document.General;
    fresh.View = document.View;
    const std::string fixed = WriteDocument(fresh);
    const std::string bytes = WriteDocument(document);
    EXPECT_EQ(bytes.substr(0, fixed.size()), fixed);
    return bytes.substr(fixed.size());
}

TEST(DocumentWriter, AFreshDocumentIsItsFixedFields) {
    EXPECT_EQ(WriteDocument(FsmDocument()),
              Delimited("$<FSM_NAME>$/\r\n$<POLYTASK>False$/\r\n$<SHOWTIMETARGET>False$/\r\n"
                        "$<SHOWTIMINGMODE>False$/\r\n$<SHOWELSE>False$/\r\n$<BUILDFILE>$/\r\n"
                        "$<LAUNCHSEG>1$/\r\n$<CODESEG>$/\r\n$<HEADERCOMMENT>$/\r\n$<INITSEG>$/\r\n"
                        "$<NVEM0DATA>$/\r\n$<TESTSEG>$/\r\n$<INSTANCES>$/\r\n$<COL0W>1890$/\r\n"
                        "$<POLYTASK>False$/\r\n$<ROWVISIBLE>$/\r\n  $<ELSE>0$/\r\n  $<EXITACT>0$/\r\n"
                        "  $<TIMEMODE>0$/\r\n  $<TIMETARGET>0$/\r\n$</ROWVISIBLE>$/\r\n"));
}

TEST(DocumentWriter, EveryGeneralFieldHasItsPlace) {
    FsmDocument document;
    document.General = {"PMP", ";h", ";c\r\n;d", ";i", ";n", ";t", "4", false, "C:\\a.b1d"};
    document.View = {true, true, false, true, -15, {10, 20, 30, 40}};
    EXPECT_EQ(
        WriteDocument(document),
        Delimited("$<FSM_NAME>PMP$/\r\n$<POLYTASK>True$/\r\n$<SHOWTIMETARGET>True$/\r\n"
                  "$<SHOWTIMINGMODE>False$/\r\n$<SHOWELSE>True$/\r\n$<BUILDFILE>C:\\a.b1d$/\r\n"
                  "$<LAUNCHSEG>0$/\r\n$<CODESEG>;c\r\n;d$/\r\n$<HEADERCOMMENT>;h$/\r\n$<INITSEG>;i$/\r\n"
                  "$<NVEM0DATA>;n$/\r\n$<TESTSEG>;t$/\r\n$<INSTANCES>4$/\r\n$<COL0W>-15$/\r\n"
                  "$<POLYTASK>True$/\r\n$<ROWVISIBLE>$/\r\n  $<ELSE>10$/\r\n  $<EXITACT>20$/\r\n"
                  "  $<TIMEMODE>30$/\r\n  $<TIMETARGET>40$/\r\n$</ROWVISIBLE>$/\r\n"));
}

TEST(DocumentWriter, EventsLeaveOutEmptyFields) {
    FsmDocument document;
    document.Event(6) = {"start", ";start?", "hint", 5};
    document.Event(54).Code = ";last?";
    EXPECT_EQ(Written(document),
              Delimited("$<EVENT>6:$/\r\n  $<NAME>start$/\r\n  $<TOOLTIP>hint$/\r\n  $<CODE>;start?$/\r\n"
                        "$</EVENT>$/\r\n$<EVENT>54:$/\r\n  $<CODE>;last?$/\r\n$</EVENT>$/\r\n"));
}

TEST(DocumentWriter, AnEventRowWithoutTextsIsNotStored) {
    FsmDocument document;
    document.Event(6).LastTab = 2;
    EXPECT_EQ(Written(document), "");
}

TEST(DocumentWriter, EventRecordsOfRowsFourAndFiveAreNeverStored) {
    FsmDocument document;
    document.Event(4) = {"a", "b", "c", 0};
    document.Event(5) = {"a", "b", "c", 0};
    EXPECT_EQ(Written(document), "");
}

TEST(DocumentWriter, EveryFieldOfAStateHasItsPlaceAndTheExitCodeTwo) {
    FsmDocument document;
    StateRecord& state = document.State(12);
    state = {"Run", "hint", ";in", ";out", 2, {}, {}, "100", ";v", "A", 1000, 3};
    state.Targets[4] = 1;
    state.Actions[4] = ";t";
    state.Targets[5] = 100;
    state.Actions[54] = ";a\r\n;b";
    EXPECT_EQ(Written(document),
              Delimited("$<STATE>12:$/\r\n  $<NAME>Run$/\r\n  $<TOOLTIP>hint$/\r\n  $<ENTRY>;in$/\r\n"
                        "  $<EXIT>;out$/\r\n  $<EXIT>;out$/\r\n  $<TIMINGMODE>2$/\r\n  $<TIMECONST>100$/\r\n"
                        "  $<TIMINGVAR>;v$/\r\n  $<TIMERID>A$/\r\n  $<COLWIDTH>1000$/\r\n  $<TRANSITIONS>\r\n"
                        "    $<TRANS>4:1$/\r\n    $<TACT>4:;t$/\r\n    $<TRANS>5:100$/\r\n"
                        "    $<TACT>54:;a\r\n;b$/\r\n  $</TRANSITIONS>$/\r\n$</STATE>\r\n"));
}

TEST(DocumentWriter, AStateThatDiffersInItsWidthAloneIsStoredWithItsWidthAlone) {
    FsmDocument document;
    document.State(3).ColWidth = 946;
    EXPECT_EQ(Written(document), Delimited("$<STATE>3:$/\r\n  $<COLWIDTH>946$/\r\n$</STATE>\r\n"));
}

TEST(DocumentWriter, TheWidthIsComparedWithTheDocumentsDefault) {
    FsmDocument document(600);
    document.State(3).ColWidth = 945;
    EXPECT_NE(WriteDocument(document).find("<STATE>3:"), std::string::npos);
    EXPECT_EQ(WriteDocument(FsmDocument(600)), WriteDocument(FsmDocument()));
}

TEST(DocumentWriter, AnEmptyStateOfDefaultWidthIsNotStored) {
    FsmDocument document;
    document.State(3).LastTab = 2;
    EXPECT_EQ(Written(document), "");
}

TEST(DocumentWriter, ATimingModeAloneIsStored) {
    FsmDocument document;
    document.State(1).TimingMode = -7;
    EXPECT_EQ(Written(document),
              Delimited("$<STATE>1:$/\r\n  $<TIMINGMODE>-7$/\r\n  $<COLWIDTH>945$/\r\n$</STATE>\r\n"));
}

TEST(DocumentWriter, AValueOverSeveralLinesReadsBackAsItWas) {
    FsmDocument document;
    document.General.CodeSeg = ";a\r\n\r\n\t;b\r\n";
    document.Event(6).Code = "\r\n";
    const std::string bytes = WriteDocument(document);
    const ReadResult read = ReadDocument(bytes);
    EXPECT_EQ(read.Document, document);
    EXPECT_EQ(WriteDocument(read.Document), bytes);
}

TEST(DocumentWriter, ATextWithTheDelimiterIsSavedBackByteForByte) {
    const std::string bytes = Delimited("$<FSM_NAME>a$b$$/\r\n\r\n");
    const FsmDocument document = ReadDocument(bytes).Document;
    EXPECT_EQ(document.General.FsmName, Delimited("a$b$"));
    EXPECT_EQ(WriteDocument(document).find(Delimited("$<FSM_NAME>a$b$$/\r\n")), 0u);
}

} // namespace
} // namespace orvane
