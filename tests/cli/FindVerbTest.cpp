// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Orvanec.h"
#include "support/Json.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr std::string_view kDocument = "\xA4<FSM_NAME>PMP\xA4/\r\n"
                                       "\xA4<CODESEG>;one\r\n\tGoTo\tPMP_Launch\r\n;Horn\xA4/\r\n"
                                       "\xA4<STATE>3:\xA4/\r\n"
                                       "  \xA4<NAME>\xD6pening\xA4/\r\n"
                                       "  \xA4<ENTRY>PST_Horn\xA4/\r\n"
                                       "  \xA4<TRANSITIONS>\r\n"
                                       "    \xA4<TRANS>8:7\xA4/\r\n"
                                       "    \xA4<TACT>8:;a\r\nPST_Horn x\xA4/\r\n"
                                       "  \xA4<TRANSITIONS>\xA4/\r\n"
                                       "\xA4</STATE>\r\n";

class FindVerb : public Orvanec {
  protected:
    FindVerb() { WriteFile("a.zfsm", Whole()); }

    static std::string Whole() {
        std::string bytes(kDocument);
        bytes.replace(bytes.rfind("<TRANSITIONS>"), 13, "</TRANSITIONS>");
        return bytes;
    }
};

TEST_F(FindVerb, PrintsTheLineOfTheDocumentThePlaceAndTheLineOfTheText) {
    const RunResult run = Run("find Horn a.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(run.Output, "a.zfsm:4: Machine, CODESEG: ;Horn\n"
                          "a.zfsm:7: State 3:\xC3\x96pening, entry action: PST_Horn\n"
                          "a.zfsm:11: 3:\xC3\x96pening, on row 8, action: PST_Horn x\n");
}

TEST_F(FindVerb, TakesCaseWordsAndExpressions) {
    EXPECT_EQ(Run("find horn a.zfsm").Status, 1);
    EXPECT_THAT(Run("find --ignore-case horn a.zfsm").Output, HasSubstr("a.zfsm:4: "));
    EXPECT_EQ(Run("find --word Horn a.zfsm").Output, "a.zfsm:4: Machine, CODESEG: ;Horn\n");
    EXPECT_EQ(Run("find --regex 'PMP_\\w+$' a.zfsm").Output, "a.zfsm:3: Machine, CODESEG: GoTo PMP_Launch\n");
    EXPECT_EQ(Run("find '\xC3\x96pen' a.zfsm").Status, 0);
    EXPECT_EQ(Run("find --regex '[GT]o' a.zfsm").Status, 0);
}

TEST_F(FindVerb, TheExitStatusSaysWhetherAnythingWasFoundAnywhere) {
    WriteFile("b.zfsm", "\xA4<FSM_NAME>Other\xA4/\r\n\r\n");
    EXPECT_EQ(Run("find Other a.zfsm b.zfsm").Status, 0);
    EXPECT_EQ(Run("find Nowhere a.zfsm b.zfsm").Status, 1);
    EXPECT_EQ(Run("find Nowhere a.zfsm b.zfsm").Output, "");
    const RunResult gone = Run("find Other b.zfsm gone.zfsm");
    EXPECT_EQ(gone.Status, 3);
    EXPECT_EQ(gone.Output, "b.zfsm:1: Machine, name: Other\n");
    EXPECT_THAT(gone.Errors, HasSubstr("gone.zfsm"));
}

TEST_F(FindVerb, WhatCannotBeLookedForIsWrongUsage) {
    const auto expectWrong = [&](const std::string& arguments, const std::string& what) {
        const RunResult run = Run(arguments);
        EXPECT_EQ(run.Status, 2) << arguments;
        EXPECT_EQ(run.Output, "");
        EXPECT_THAT(run.Errors, StartsWith("orvanec: " + what)) << arguments;
    };
    expectWrong("find --regex 'a(' a.zfsm", "The ( at character 2 is not closed\n");
    expectWrong("find '' a.zfsm", "There is nothing to look for\n");
    expectWrong("find \xE2\x88\x80 a.zfsm", "\xE2\x88\x80 holds a character that no document can hold\n");
    expectWrong("find Horn", "No document is given\n");
    expectWrong("find --format=xml Horn a.zfsm", "--format: ");
}

TEST_F(FindVerb, ADocumentThatBreaksOffIsLookedThroughAsFarAsItGoes) {
    WriteFile("cut.zfsm", std::string(kDocument.substr(0, 40)));
    const RunResult run = Run("find one cut.zfsm");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Output, "cut.zfsm:2: Machine, CODESEG: ;one\n");
}

TEST_F(FindVerb, JsonHasALineForEachDocument) {
    const RunResult run = Run("find --format=json PST_Horn a.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(
        run.Output,
        "{\"version\":1,\"path\":\"a.zfsm\",\"complete\":true,\"hits\":["
        "{\"line\":7,\"place\":\"State 3:\xC3\x96pening, entry action\",\"state\":3,\"row\":null,"
        "\"field\":\"ENTRY\",\"textLine\":1,\"column\":1,\"match\":\"PST_Horn\",\"text\":\"PST_Horn\"},"
        "{\"line\":11,\"place\":\"3:\xC3\x96pening, on row 8, action\",\"state\":3,\"row\":8,"
        "\"field\":\"TACT\",\"textLine\":2,\"column\":1,\"match\":\"PST_Horn\",\"text\":\"PST_Horn x\"}]}\n");
    EXPECT_EQ(Run("find --format=json Nowhere a.zfsm").Output,
              "{\"version\":1,\"path\":\"a.zfsm\",\"complete\":true,\"hits\":[]}\n");
    EXPECT_THAT(Run("find --format=json Nowhere gone.zfsm").Output,
                HasSubstr("\"complete\":false,\"hits\":[]"));
}

} // namespace
} // namespace orvane
