// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Orvanec.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

std::string ReplacedOnce(std::string text, std::string_view from, std::string_view to) {
    const std::size_t at = text.find(from);
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

class Merge : public Orvanec {
  protected:
    Merge() {
        WriteFile("base.zfsm", PumpDocument());
        WriteFile("entry.zfsm", ReplacedOnce(PumpDocument(), ";run entry", ";run fast"));
        WriteFile("slow.zfsm", ReplacedOnce(PumpDocument(), ";run entry", ";run slow"));
        WriteFile("name.zfsm", ReplacedOnce(PumpDocument(), "<NAME>Idle", "<NAME>Waiting"));
    }
};

const char* const kBlock = ";run fast\r\n"
                           ";<<<<<<< CONFLICT: state 2:Run, entry action\r\n"
                           ";||||||| BASE\r\n"
                           ";;run entry\r\n"
                           ";======= THEIRS\r\n"
                           ";;run slow\r\n"
                           ";>>>>>>> CONFLICT\xA4/";

TEST_F(Merge, PutsBothChangesTogether) {
    const RunResult run = Run("merge base.zfsm entry.zfsm name.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(run.Output, ReplacedOnce(ReadFile("entry.zfsm"), "<NAME>Idle", "<NAME>Waiting"));
}

TEST_F(Merge, AConflictKeepsOursAndHasTheirsInABlock) {
    const RunResult run = Run("merge base.zfsm entry.zfsm slow.zfsm -o merged.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, "merged.zfsm: conflict: state 2:Run, entry action\n");
    EXPECT_EQ(ReadFile("merged.zfsm"), ReplacedOnce(PumpDocument(), ";run entry\xA4/", kBlock));
    EXPECT_EQ(ReadFile("merged.zfsm.conflicts"),
              "{\"version\":1,\"document\":\"merged.zfsm\",\"conflicts\":[\n"
              "{\"kind\":\"field\",\"what\":\"state 2:Run, entry action\",\"state\":2,\"row\":null,"
              "\"field\":\"ENTRY\",\"base\":\";run entry\",\"ours\":\";run fast\",\"theirs\":\";run slow\"}\n"
              "]}\n");
}

TEST_F(Merge, ADocumentWithConflictsStillGenerates) {
    (void)Run("merge base.zfsm entry.zfsm slow.zfsm -o merged.zfsm");
    EXPECT_EQ(Run("generate merged.zfsm").Status, 0);
    EXPECT_THAT(ReadFile("merged.zls"), HasSubstr(";run fast\r\n"));
}

TEST_F(Merge, ConflictsAreToldUntilTheyAreGone) {
    (void)Run("merge base.zfsm entry.zfsm slow.zfsm -o merged.zfsm");
    const RunResult run = Run("conflicts base.zfsm merged.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Output, "merged.zfsm: state 2:Run, entry action, line 2: state 2:Run, entry action\n");
    EXPECT_EQ(Run("conflicts base.zfsm").Status, 0);
    EXPECT_EQ(Run("conflicts gone.zfsm").Status, 3);
}

TEST_F(Merge, ADocumentWithConflictsIsNotMergedAgain) {
    (void)Run("merge base.zfsm entry.zfsm slow.zfsm -o merged.zfsm");
    const RunResult run = Run("merge base.zfsm merged.zfsm name.zfsm -o again.zfsm");
    EXPECT_EQ(run.Status, 2);
    EXPECT_THAT(run.Errors, StartsWith("orvanec: merged.zfsm still has conflicts of an earlier merge; "
                                       "\"orvanec conflicts merged.zfsm\" tells where\n"));
    EXPECT_FALSE(Exists("again.zfsm"));
}

TEST_F(Merge, ADocumentWithTheMarksOfATextMergeIsRefused) {
    std::string marked = ReadFile("entry.zfsm");
    const std::size_t line = marked.find('\n') + 1;
    marked.insert(line, "<<<<<<< ours\r\n=======\r\n>>>>>>> theirs\r\n");
    WriteFile("marked.zfsm", marked);
    const RunResult run = Run("merge base.zfsm marked.zfsm name.zfsm -o merged.zfsm");
    EXPECT_EQ(run.Status, 2);
    EXPECT_THAT(run.Errors,
                testing::HasSubstr("orvanec: marked.zfsm: is not merged: it holds a merge line by line that "
                                   "nobody finished\n"));
    EXPECT_THAT(run.Errors, testing::HasSubstr("Resolve the conflict first"));
    EXPECT_FALSE(Exists("merged.zfsm"));
}

TEST_F(Merge, WhatAMergeLeftOpenIsAWarningOfTheCheck) {
    (void)Run("merge base.zfsm entry.zfsm slow.zfsm -o merged.zfsm");
    EXPECT_EQ(Run("check entry.zfsm").Output.find("conflict"), std::string::npos);
    const RunResult run = Run("check merged.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_THAT(run.Output, testing::HasSubstr(
                                "Warning: State 2:Run has a conflict of a merge that nobody has resolved\n"));
    EXPECT_THAT(
        Run("check --format=json merged.zfsm").Output,
        testing::HasSubstr("{\"severity\":\"warning\",\"kind\":\"merge-conflict\",\"line\":38,\"state\":2,"));
}

TEST_F(Merge, ACleanMergeTakesTheListOfAnEarlierOneAway) {
    (void)Run("merge base.zfsm entry.zfsm slow.zfsm -o merged.zfsm");
    EXPECT_EQ(Run("merge base.zfsm entry.zfsm name.zfsm -o merged.zfsm").Status, 0);
    EXPECT_FALSE(Exists("merged.zfsm.conflicts"));
}

TEST_F(Merge, OneSideCanCount) {
    const RunResult ours = Run("merge --ours base.zfsm entry.zfsm slow.zfsm");
    EXPECT_EQ(ours.Status, 0);
    EXPECT_EQ(ours.Output, ReadFile("entry.zfsm"));
    EXPECT_EQ(Run("merge --theirs base.zfsm entry.zfsm slow.zfsm").Output, ReadFile("slow.zfsm"));
    EXPECT_EQ(Run("merge --ours --theirs base.zfsm entry.zfsm slow.zfsm").Status, 2);
}

TEST_F(Merge, WithAPathTheListLiesBesideThat) {
    const RunResult run = Run("merge base.zfsm entry.zfsm slow.zfsm -o out --path pump.zfsm");
    EXPECT_EQ(run.Errors, "pump.zfsm: conflict: state 2:Run, entry action\n");
    EXPECT_TRUE(Exists("pump.zfsm.conflicts"));
    EXPECT_FALSE(Exists("out.conflicts"));
}

TEST_F(Merge, WritesNothingOfDocumentsThatAreNotWhole) {
    WriteFile("cut.zfsm", PumpDocument().substr(0, PumpDocument().find("stop action")));
    WriteFile("text.zfsm", "hello\n");
    for (const char* arguments :
         {"merge base.zfsm entry.zfsm cut.zfsm -o out", "merge text.zfsm entry.zfsm name.zfsm -o out",
          "merge base.zfsm gone.zfsm name.zfsm -o out"}) {
        EXPECT_EQ(Run(arguments).Status, 3) << arguments;
        EXPECT_FALSE(Exists("out")) << arguments;
    }
    EXPECT_EQ(Run("merge base.zfsm entry.zfsm").Status, 2);
}

TEST_F(Merge, AnEmptyBaseIsThatOfADocumentThatBothSidesAdded) {
    WriteFile("empty", "");
    const RunResult run = Run("merge empty entry.zfsm slow.zfsm -o out");
    EXPECT_EQ(run.Status, 1);
    EXPECT_THAT(ReadFile("out"), HasSubstr(";run fast\r\n;<<<<<<< CONFLICT: state 2:Run, entry action\r\n"));
    EXPECT_EQ(Run("merge empty base.zfsm base.zfsm").Output, PumpDocument());
}

TEST_F(Merge, TheMarksOfATextMergeAreTold) {
    WriteFile("marks.zfsm", ReplacedOnce(PumpDocument(), "\xA4<STATE>2:", "<<<<<<< HEAD\r\n\xA4<STATE>2:"));
    EXPECT_THAT(Run("merge base.zfsm marks.zfsm name.zfsm -o out").Errors,
                HasSubstr("The marks of a merge conflict stand from here"));
}

TEST_F(Merge, LineEndsAreNoChange) {
    std::string lf = PumpDocument();
    std::erase(lf, '\r');
    WriteFile("lf.zfsm", lf);
    EXPECT_EQ(Run("merge base.zfsm lf.zfsm entry.zfsm").Output, ReadFile("entry.zfsm"));
}

} // namespace
} // namespace orvane
