// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Orvanec.h"

namespace orvane {
namespace {

class Check : public Orvanec {};

TEST_F(Check, TheReportGoesToStandardOutputAndNothingIsWritten) {
    WriteFile("pump.zfsm", PumpDocument());
    const RunResult run = Run("check pump.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Output, kCleanReport);
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(Listing(), "pump.zfsm ");
}

TEST_F(Check, ADesignErrorGivesStatusOne) {
    WriteFile("bad.zfsm", DocumentWithErrors());
    const RunResult run = Run("check bad.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Output, "Errors and warnings\n"
                          "** Error ** Missing event test code in row 6\n"
                          "** Error ** State 1:K\xC3\xBChl needs a time constant\n"
                          "Warning: State 1:K\xC3\xBChl is a dead end\n"
                          " 1 Warnings\n"
                          "**** 2 Errors ****\n");
}

TEST_F(Check, AnEmptyFileIsAnEmptyDocument) {
    WriteFile("empty.zfsm", "");
    const RunResult run = Run("check empty.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Output, kNoNameReport);
    EXPECT_EQ(run.Errors, "");
}

TEST_F(Check, SeveralReportsAreHeadedAndTheHighestStatusCounts) {
    WriteFile("good.zfsm", PumpDocument());
    WriteFile("bad.zfsm", DocumentWithoutName());
    const RunResult run = Run("check missing.zfsm bad.zfsm good.zfsm");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Output,
              "bad.zfsm:\n" + std::string(kNoNameReport) + "good.zfsm:\n" + std::string(kCleanReport));
    EXPECT_EQ(run.Errors, "orvanec: missing.zfsm: cannot be read (No such file or directory)\n");
}

TEST_F(Check, ReaderMessagesNameDocumentAndLine) {
    WriteFile("d.zfsm", "\xA4<FSM_NAME>D\xA4/\r\n\r\n\xA4<K\xFChl\x1B>x\xA4/\r\n\xA4<POLYTASK>x\xA4/\r\n");
    const RunResult run = Run("check d.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Output, kCleanReport);
    EXPECT_EQ(run.Errors, "d.zfsm:3: Unknown tag K\xC3\xBChl\\x1B\n");
}

TEST_F(Check, WhatOtherProgramsHaveMadeOfADocumentIsToldAndChangesNoStatus) {
    WriteFile("utf8.zfsm", "\xC2\xA4<FSM_NAME>D\xC2\xA4/\r\n");
    const RunResult utf8 = Run("check utf8.zfsm");
    EXPECT_NE(utf8.Status, 3);
    EXPECT_EQ(utf8.Errors,
              "utf8.zfsm: Saved as UTF-8 by another program: letters outside ASCII are read as two or more "
              "each. Open it in Orvane and save it, or convert it to Windows-1252\n");
    WriteFile("merged.zfsm", "\xA4<FSM_NAME>D\xA4/\r\n<<<<<<< HEAD\r\n=======\r\n>>>>>>> theirs\r\n");
    const RunResult merged = Run("check merged.zfsm");
    EXPECT_EQ(merged.Status, 0);
    EXPECT_EQ(merged.Errors,
              "merged.zfsm:2: The marks of a merge conflict stand from here to line 4: what is "
              "read is neither version. Resolve the conflict first\n");
}

TEST_F(Check, AnAbsurdlyLongTagIsQuotedInPart) {
    WriteFile("d.zfsm", "\xA4<FSM_NAME>D\xA4/\r\n\xA4<" + std::string(5000, 'x') + ">\xA4/\r\n\r\n");
    EXPECT_EQ(Run("check d.zfsm").Errors, "d.zfsm:2: Unknown tag " + std::string(200, 'x') + "...\n");
}

TEST_F(Check, ADocumentThatBreaksOffIsReportedAsFarAsItWasRead) {
    WriteFile("d.zfsm", "\xA4<FSM_NAME>D\xA4/\r\n\xA4<STATE>101:\xA4/\r\n\xA4<NAME>x\xA4/\r\n");
    const RunResult run = Run("check d.zfsm");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Output, kCleanReport);
    EXPECT_EQ(run.Errors, "d.zfsm:2: The number \"101\" of STATE is outside 1..100; reading stopped there\n");
}

TEST_F(Check, ADocumentThatBreaksOffIsReportedButNotGenerated) {
    WriteFile("d.zfsm", "\xA4<FSM_NAME>D\xA4/\r\n\xA4<STATE>101:\xA4/\r\n\xA4<NAME>x\xA4/\r\n");
    const RunResult run = Run("generate d.zfsm");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, "d.zfsm:2: The number \"101\" of STATE is outside 1..100; reading stopped there\n" +
                              std::string(kCleanReport));
    EXPECT_EQ(Listing(), "d.zfsm ");
}

TEST_F(Check, JsonOfACleanDocumentHasNoFindings) {
    WriteFile("pump.zfsm", PumpDocument());
    const RunResult run = Run("check --format=json pump.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(run.Output, "{\"version\":1,\"path\":\"pump.zfsm\",\"complete\":true,"
                          "\"counts\":{\"notes\":0,\"warnings\":0,\"errors\":0},"
                          "\"findings\":[],\"messages\":[]}\n");
}

TEST_F(Check, JsonNamesStateAndRowOfEachFinding) {
    WriteFile("bad.zfsm", DocumentWithErrors());
    const RunResult run = Run("check --format json bad.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Output,
              "{\"version\":1,\"path\":\"bad.zfsm\",\"complete\":true,"
              "\"counts\":{\"notes\":0,\"warnings\":1,\"errors\":2},\"findings\":["
              "{\"severity\":\"error\",\"kind\":\"missing-event-code\",\"line\":7,\"state\":1,\"stateName\":"
              "\"K\xC3\xBChl\",\"row\":6,"
              "\"message\":\"Missing event test code in row 6\"},"
              "{\"severity\":\"error\",\"kind\":\"missing-time-constant\",\"line\":4,\"state\":1,"
              "\"stateName\":\"K\xC3\xBChl\",\"row\":4,"
              "\"message\":\"State 1:K\xC3\xBChl needs a time constant\"},"
              "{\"severity\":\"warning\",\"kind\":\"dead-end\",\"line\":2,\"state\":1,\"stateName\":"
              "\"K\xC3\xBChl\",\"row\":null,"
              "\"message\":\"State 1:K\xC3\xBChl is a dead end\"}],\"messages\":[]}\n");
}

TEST_F(Check, JsonIsOneLineForEachDocumentAlsoOfThoseThatCannotBeRead) {
    WriteFile("a.zfsm", DocumentWithoutName());
    WriteFile("b.zfsm", "no document");
    const RunResult run = Run("check --format=json a.zfsm b.zfsm c.zfsm");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Output,
              "{\"version\":1,\"path\":\"a.zfsm\",\"complete\":true,\"counts\":{\"notes\":0,\"warnings\":0,"
              "\"errors\":1},"
              "\"findings\":[{\"severity\":\"error\",\"kind\":\"missing-prefix\",\"line\":1,\"state\":null,"
              "\"stateName\":null,\"row\":null,\"message\":"
              "\"You must supply a distinguishing label prefix in the \\\"Name\\\"\\n"
              "box of the General Code editor. This should be unique within your\\n"
              "project as a whole. Typically this would be a 3-letter mnemonic for\\n"
              "the overall function of this FSM, for example \\\"PMP\\\" for a pump\\ncontrol FSM\"}],"
              "\"messages\":[]}\n"
              "{\"version\":1,\"path\":\"b.zfsm\",\"complete\":false,\"counts\":{\"notes\":0,\"warnings\":0,"
              "\"errors\":0},"
              "\"findings\":[],\"messages\":[{\"line\":null,\"message\":"
              "\"The file is not a document: it holds no field\"}]}\n"
              "{\"version\":1,\"path\":\"c.zfsm\",\"complete\":false,\"counts\":{\"notes\":0,\"warnings\":0,"
              "\"errors\":0},"
              "\"findings\":[],\"messages\":[{\"line\":null,\"message\":"
              "\"The file cannot be read (No such file or directory)\"}]}\n");
    EXPECT_EQ(run.Errors, "b.zfsm: The file is not a document: it holds no field\n"
                          "orvanec: c.zfsm: cannot be read (No such file or directory)\n");
}

TEST_F(Check, ControlCharactersOfADocumentAreEscapedInItsMessages) {
    WriteFile("d.zfsm", "\xA4<A\x1B\x7F\x81\x9D\xE4>1\xA4/\r\n\xA4<FSM_NAME>D\xA4/\r\n\r\n");
    EXPECT_EQ(Run("check d.zfsm").Errors, "d.zfsm:1: Unknown tag A\\x1B\\x7F\\x81\\x9D\xC3\xA4\n");
}

TEST_F(Check, JsonEscapesEachControlCharacter) {
    const RunResult run = Run("check --format=json \"$(printf 'a\\177\\033\\037\\tb')\"");
    EXPECT_TRUE(run.Output.starts_with("{\"version\":1,\"path\":\"a\\u007f\\u001b\\u001f\\tb\","))
        << run.Output;
}

TEST_F(Check, JsonStaysValidWhateverDocumentAndPathHold) {
    const std::string everyByte = [] {
        std::string bytes;
        for (int code = 1; code < 256; ++code) {
            if (code != 0xA4 && code != '\r' && code != '\n')
                bytes += static_cast<char>(code);
        }
        return bytes;
    }();
    // There names are always text, and the signs that would have to be escaped have another meaning.
    const std::string name = IsForWindows() ? "a\xC3\xBC" : "a\n\"\\\xFF\xED\xA0\x80\xC3\xBC";
    const std::string shown = IsForWindows() ? "a\\u00fc" : "a\\n\"\\\\\\ufffd\\ufffd\\ufffd\\ufffd\\u00fc";
    WriteFile(name, "\xA4<FSM_NAME>D\xA4/\r\n\xA4<STATE>2:\xA4/\r\n\xA4<NAME>" + everyByte +
                        "\xA4/\r\n\xA4</STATE>\r\n\xA4<STATE>0:\xA4/\r\n\r\n");
    const RunResult run = Run("check --format=json a*");
    EXPECT_EQ(run.Status, 3);
    // Control characters escaped, the rest as UTF-8: judged by a parser that knows nothing of this program.
    if (std::system("python3 -c '' 2>/dev/null") != 0)
        GTEST_SKIP() << "no python3 to parse JSON with";
    WriteFile("out.json", run.Output);
    WriteFile("judge.py", "import json\n"
                          "lines = open('out.json', 'rb').read().decode('utf-8').split('\\n')\n"
                          "assert len(lines) == 2 and lines[1] == '', lines\n"
                          "d = json.loads(lines[0])\n"
                          "assert d['path'] == '" +
                              shown +
                              "', d['path']\n"
                              "assert d['complete'] is False\n"
                              "assert d['counts'] == {'notes': 0, 'warnings': 1, 'errors': 0}\n"
                              "assert d['messages'][-1]['line'] == 5\n"
                              "name = bytes(c for c in range(1, 256) if c not in (0xA4, 10, 13))\n"
                              "name = ''.join(bytes([c]).decode('cp1252', 'replace') if c not in "
                              "(0x81, 0x8D, 0x8F, 0x90, 0x9D) else chr(c) for c in name)\n"
                              "assert d['findings'][0]['stateName'] == name, d['findings'][0]\n");
    EXPECT_EQ(std::system(("cd '" + Path("").string() + "' && python3 judge.py").c_str()), 0);
}

} // namespace
} // namespace orvane
