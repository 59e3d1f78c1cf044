// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/Imports.h"
#include "core/TimingMode.h"

#include <gtest/gtest.h>

namespace orvane::exports {
namespace {

std::string Fault(const ImportResult& result) {
    EXPECT_FALSE(result.Document);
    if (result.Messages.empty())
        return "";
    return std::to_string(result.Messages.back().Line) + ": " + result.Messages.back().Text;
}

TEST(JsonImport, EveryMemberMayBeMissing) {
    const ImportResult result = ReadJson("{\"states\":[{\"number\":2,\"name\":\"A\\u00fc\\u20AC\"}]}");
    ASSERT_TRUE(result.Document);
    EXPECT_EQ(result.Document->State(2).Name, "A\xFC\x80");
    EXPECT_TRUE(result.Document->General.LaunchSeg);
    EXPECT_TRUE(ReadJson("{}").Document);
}

TEST(JsonImport, TellsWhatItDoesNotKnow) {
    const ImportResult result = ReadJson("{\n\"nmae\": \"x\", \"states\": [{\"number\": 1, \"colour\": 3}]}");
    ASSERT_TRUE(result.Document);
    ASSERT_EQ(result.Messages.size(), 2u);
    EXPECT_EQ(result.Messages[0].Text, "The member \"nmae\" is unknown and left out");
    EXPECT_EQ(result.Messages[0].Line, 2u);
    EXPECT_EQ(result.Messages[1].Text, "The member \"colour\" is unknown and left out");
}

TEST(JsonImport, SaysWhatIsWrongAndWhere) {
    EXPECT_EQ(Fault(ReadJson("")), "1: A value is missing");
    EXPECT_EQ(Fault(ReadJson("[]")), "1: The JSON text is no object, as documents are");
    EXPECT_EQ(Fault(ReadJson("{\"version\":2}")),
              "1: The version of the JSON text is one that this program does not know");
    EXPECT_EQ(Fault(ReadJson("{\n\"states\":[{\"number\":101}]}")), "2: The number 101 is not from 1 to 100");
    EXPECT_EQ(Fault(ReadJson("{\"events\":[{\"row\":6.5}]}")), "1: The number 6.5 is not from 4 to 54");
    EXPECT_EQ(Fault(ReadJson("{\"events\":[{\"name\":\"a\"}]}")), "1: The member \"row\" is missing");
    EXPECT_EQ(Fault(ReadJson("{\"name\":1}")), "1: A text is expected here");
    EXPECT_EQ(Fault(ReadJson("{\"name\":\"\xCE\xB1\"}")),
              "1: A character that is not in Windows-1252 cannot stand in a document");
    EXPECT_EQ(Fault(ReadJson("{\"name\":\"\\u00a4\"}")), "1: The character \xA4 cannot stand in a document");
    EXPECT_EQ(Fault(ReadJson("{} x")), "1: Nothing may stand behind the end of the JSON text");
    EXPECT_EQ(Fault(ReadJson(std::string(100, '['))), "1: The JSON text is too deep");
    EXPECT_EQ(Fault(ReadJson("{\"name\":\"\\ud800\"}")), "1: Half of a surrogate pair is no character");
}

TEST(CsvImport, ALongTableNeedsNoNumbers) {
    const ImportResult result = ReadCsv("state,event,target,action\n"
                                        "Idle,Start,Run,\"one\ntwo\"\n"
                                        "Run,Stop,Idle,\n"
                                        "Run,timeout,Idle,\n"
                                        "Run,ELSE,Run,\n");
    ASSERT_TRUE(result.Document);
    const FsmDocument& document = *result.Document;
    EXPECT_EQ(document.State(1).Name, "Idle");
    EXPECT_EQ(document.State(1).Targets[6], 2);
    EXPECT_EQ(document.State(1).Actions[6], "one\r\ntwo");
    EXPECT_EQ(document.Event(7).Name, "Stop");
    EXPECT_EQ(document.State(2).Targets[7], 1);
    EXPECT_EQ(document.State(2).Targets[kTimeoutRow], 1);
    EXPECT_EQ(document.State(2).Targets[kElseRow], 2);
}

TEST(CsvImport, TakesWhatSpreadsheetsOfOtherCountriesWrite) {
    const ImportResult result = ReadCsv("M;1:K\xFChl;2:Hei\xDF\r\nStart;2;\r\nStop;;1:K\xFChl*\r\n");
    ASSERT_TRUE(result.Document);
    EXPECT_EQ(result.Document->General.FsmName, "M");
    EXPECT_EQ(result.Document->State(1).Name, "K\xFChl");
    EXPECT_EQ(result.Document->State(1).Targets[6], 2);
    EXPECT_EQ(result.Document->State(2).Targets[7], 1);
    const ImportResult pasted = ReadCsv("M\tA\tB\nGo\tB\tA\n");
    ASSERT_TRUE(pasted.Document);
    EXPECT_EQ(pasted.Document->State(1).Targets[6], 2);
    EXPECT_EQ(pasted.Document->State(2).Targets[6], 1);
}

TEST(CsvImport, SaysWhatIsWrongAndWhere) {
    EXPECT_EQ(Fault(ReadCsv("M,A\nGo,Nowhere\n")), "2: \"Nowhere\" is no state of the table");
    EXPECT_EQ(Fault(ReadCsv("M,A\nGo,101\n")), "2: \"101\" is no state of the table");
    EXPECT_EQ(Fault(ReadCsv("M,\"A\nGo,1\n")), "1: A quote is not closed");
    EXPECT_EQ(Fault(ReadCsv("state,event,target,action\nA,Go,B,\nA,Go,A,\n")),
              "3: State \"A\" has two lines for event \"Go\"");
    EXPECT_EQ(Fault(ReadCsv("state,event,target,action\n1:A,Go,1:B,\n")),
              "2: One number stands for \"A\" and for \"B\"");
    EXPECT_EQ(Fault(ReadCsv("state,event,target,action\n101:A,Go,1:B,\n")),
              "2: There is no state 101; a document has 100");
    EXPECT_EQ(Fault(ReadCsv("state,event,target,action\n1:A,55:Go,1:A,\n")),
              "2: There is no row 55 for events; they stand in rows 6 to 54");
    EXPECT_TRUE(ReadCsv("").Document);
}

TEST(ScxmlImport, TakesAFlatChartOfOthers) {
    const ImportResult result =
        ReadScxml("<?xml version='1.0'?>\n"
                  "<s:scxml xmlns:s='http://www.w3.org/2005/07/scxml' initial='b'>\n"
                  "<!-- <state id='x'/> -->\n"
                  "<s:state id='a'><s:transition event='go stop' target='b'/></s:state>\n"
                  "<s:state id='b'><onentry><send event='t' delay='3s'/></onentry>\n"
                  "<transition event='t' target='a'/><transition target='b'/></s:state>\n"
                  "<final id='c'/></s:scxml>");
    ASSERT_TRUE(result.Document);
    const FsmDocument& document = *result.Document;
    EXPECT_EQ(document.State(1).Name, "b");
    EXPECT_EQ(document.State(2).Name, "a");
    EXPECT_EQ(document.State(3).Name, "c");
    EXPECT_EQ(document.State(2).Targets[6], 1);
    EXPECT_EQ(document.State(2).Targets[7], 1);
    EXPECT_EQ(document.Event(7).Name, "stop");
    EXPECT_EQ(document.State(1).TimingMode, kStartConstant);
    EXPECT_EQ(document.State(1).TimeConst, "3s");
    EXPECT_EQ(document.State(1).Targets[kTimeoutRow], 2);
    EXPECT_EQ(document.State(1).Targets[kElseRow], 1);
}

TEST(ScxmlImport, RefusesWhatATableCannotHoldByNameAndLine) {
    EXPECT_EQ(Fault(ReadScxml("<scxml>\n<parallel id='p'/></scxml>")),
              "2: The chart has the parallel \"p\", which a table has no counterpart for");
    EXPECT_EQ(Fault(ReadScxml("<scxml><state id='a'>\n<history id='h'/></state></scxml>")),
              "2: The chart has the history \"h\", which a table has no counterpart for");
    EXPECT_EQ(
        Fault(ReadScxml("<scxml><state id='a'>\n<state id='b'/></state></scxml>")),
        "2: The chart has the state \"b\", which stands within \"a\"; a table has no states within states");
    EXPECT_EQ(Fault(ReadScxml("<scxml><state id='a'><transition target='z'/></state></scxml>")),
              "1: A transition leads to \"z\", which is no state of the chart");
    EXPECT_EQ(Fault(ReadScxml("<html></html>")),
              "1: The text is no state chart: it has no element \"scxml\"");
    EXPECT_EQ(Fault(ReadScxml("<scxml>\n<state id='a'>")), "2: The element \"state\" is not closed");
    EXPECT_EQ(Fault(ReadScxml("<scxml></state>")), "1: The end of \"state\" has no begin");
    EXPECT_EQ(Fault(ReadScxml("<scxml name='&x;'/>")), "1: The entity \"x\" is unknown");
    EXPECT_EQ(Fault(ReadScxml("")), "1: The text is no state chart: it has no element \"scxml\"");
}

TEST(ScxmlImport, TellsConditionsThatItLeavesOut) {
    const ImportResult result = ReadScxml(
        "<scxml><state id='a'>\n<transition event='e' cond='x &lt; 3' target='a'/></state></scxml>");
    ASSERT_TRUE(result.Document);
    ASSERT_EQ(result.Messages.size(), 1u);
    EXPECT_EQ(result.Messages[0].Text, "The condition \"x < 3\" is left out");
    EXPECT_EQ(result.Messages[0].Line, 2u);
}

} // namespace
} // namespace orvane::exports
