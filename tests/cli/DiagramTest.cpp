// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Orvanec.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class DiagramVerb : public Orvanec {
  protected:
    DiagramVerb() { WriteFile("pump.zfsm", PumpDocument()); }
};

TEST_F(DiagramVerb, DrawsTheMachineToStandardOutputOrAFile) {
    const RunResult run = Run("diagram pump.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Errors, "");
    EXPECT_THAT(run.Output, StartsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg "));
    EXPECT_THAT(run.Output, HasSubstr("<g id=\"state-1\" class=\"start\">"));
    EXPECT_THAT(run.Output, HasSubstr("<g id=\"edge-1-2\">"));
    EXPECT_EQ(Run("diagram pump.zfsm -o -").Output, run.Output);
    const RunResult written = Run("diagram -o pump.svg pump.zfsm");
    EXPECT_EQ(written.Status, 0);
    EXPECT_EQ(written.Output, "");
    EXPECT_EQ(ReadFile("pump.svg"), run.Output);
}

TEST_F(DiagramVerb, WritesDotWhenAskedOrWhenTheFileIsCalledSo) {
    const RunResult run = Run("diagram --format=dot pump.zfsm");
    EXPECT_THAT(run.Output, StartsWith("digraph machine {\n"));
    EXPECT_THAT(run.Output, HasSubstr("    start -> s1;\n"));
    EXPECT_EQ(Run("diagram -o pump.gv pump.zfsm").Status, 0);
    EXPECT_EQ(ReadFile("pump.gv"), run.Output);
    EXPECT_EQ(Run("diagram -o pump.dot --format=svg pump.zfsm").Status, 0);
    EXPECT_THAT(ReadFile("pump.dot"), StartsWith("<?xml"));
}

TEST_F(DiagramVerb, LeadsWhereItIsAskedTo) {
    const std::string across = Run("diagram --direction=lr pump.zfsm").Output;
    const std::string down = Run("diagram --direction=td pump.zfsm").Output;
    EXPECT_NE(across, down);
    EXPECT_THAT(Run("diagram --format=dot --direction=td pump.zfsm").Output, HasSubstr("rankdir=TB"));
    EXPECT_EQ(Run("diagram --direction=up pump.zfsm").Status, 2);
}

TEST_F(DiagramVerb, TheFocusIsAStateByItsNumberOrName) {
    const std::string byNumber = Run("diagram --focus=2 pump.zfsm").Output;
    EXPECT_THAT(byNumber, HasSubstr("id=\"state-2\""));
    EXPECT_EQ(Run("diagram --focus=Run pump.zfsm").Output, byNumber);
    EXPECT_EQ(Run("diagram --focus=2:Run pump.zfsm").Output, byNumber);
    const RunResult wrong = Run("diagram --focus=Rum pump.zfsm");
    EXPECT_EQ(wrong.Status, 2);
    EXPECT_EQ(wrong.Output, "");
    EXPECT_THAT(wrong.Errors,
                StartsWith("orvanec: --focus: Rum is no state of the picture; did you mean \"Run\"?\n"));
    EXPECT_EQ(Run("diagram --focus=99 pump.zfsm").Status, 2);
}

TEST_F(DiagramVerb, ElseIsLeftOutWhenAsked) {
    WriteFile(
        "else.zfsm",
        "\xA4<FSM_NAME>M\xA4/\r\n\xA4<STATE>1\xA4/\r\n\xA4<NAME>A\xA4/\r\n"
        "\xA4<TRANSITIONS>\xA4/\r\n\xA4<TRANS>5:2\xA4/\r\n\xA4</TRANSITIONS>\xA4/\r\n\xA4</STATE>\xA4/\r\n");
    EXPECT_THAT(Run("diagram else.zfsm").Output, HasSubstr("edge-1-2"));
    EXPECT_THAT(Run("diagram --no-else else.zfsm").Output, Not(HasSubstr("edge-1-2")));
}

TEST_F(DiagramVerb, ADesignWithErrorsIsDrawnWithSigns) {
    WriteFile("bad.zfsm", DocumentWithErrors());
    const RunResult run = Run("diagram bad.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_THAT(run.Output, HasSubstr("faulty"));
}

TEST_F(DiagramVerb, WhatItCannotReadOrWriteItSays) {
    EXPECT_EQ(Run("diagram gone.zfsm").Status, 3);
    EXPECT_EQ(Run("diagram").Status, 2);
    const RunResult unwritten = Run("diagram pump.zfsm -o no/such/folder.svg");
    EXPECT_EQ(unwritten.Status, 3);
    EXPECT_THAT(unwritten.Errors, HasSubstr("no/such/folder.svg"));
    WriteFile("broken.zfsm", PumpDocument() + "\xA4<STATE>101\xA4/\r\n");
    const RunResult broken = Run("diagram broken.zfsm -o broken.svg");
    EXPECT_EQ(broken.Status, 3);
    EXPECT_FALSE(Exists("broken.svg"));
}

} // namespace
} // namespace orvane
