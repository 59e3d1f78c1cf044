// SPDX-License-Identifier: GPL-3.0-or-later
// The real git, in a repository and with a home folder of its own.
#include "cli/Orvanec.h"

#include <gmock/gmock.h>

#include <cstdlib>

#include <sys/wait.h>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* kState3 = "\xA4<STATE>3:\xA4/\r\n"
                                "  \xA4<NAME>Purge\xA4/\r\n"
                                "  \xA4<ENTRY>;purge entry\xA4/\r\n"
                                "  \xA4<COLWIDTH>945\xA4/\r\n"
                                "  \xA4<TRANSITIONS>\r\n"
                                "    \xA4<TRANS>7:1\xA4/\r\n"
                                "  \xA4</TRANSITIONS>\xA4/\r\n"
                                "\xA4</STATE>\r\n";

std::string WithPurge() { return PumpDocument() + kState3; }
std::string Faster() { return Replaced(PumpDocument(), ";run entry", ";run fast"); }
std::string Slower() { return Replaced(PumpDocument(), ";run entry", ";run slow"); }

// An empty column in front of Run, which is state 3 now.
std::string Renumbered() {
    return Replaced(Replaced(PumpDocument(), "<STATE>2:", "<STATE>3:"), "<TRANS>6:2", "<TRANS>6:3");
}

class Git : public Orvanec {
  protected:
    void SetUp() override {
        if (std::getenv("ORVANEC_PROGRAM") != nullptr || std::system("git --version >/dev/null 2>&1") != 0)
            GTEST_SKIP() << "no git for this program here";
        std::filesystem::create_directory(Path("home"));
        ASSERT_EQ(Do("git config --global user.name Tester; git config --global user.email t@example.org; "
                     "git config --global init.defaultBranch main; git init -q")
                      .Status,
                  0);
    }

    // Runs a shell command; what it writes anywhere is its output.
    RunResult Do(const std::string& command) const {
        const std::string out = (Path("..") / "shell").string();
        const std::string program = ORVANEC;
        const std::string whole = "cd '" + Path(".").string() + "' && export HOME=\"$PWD/home\" LC_ALL=C " +
                                  "GIT_CONFIG_NOSYSTEM=1 PATH='" + program.substr(0, program.rfind('/')) +
                                  "':\"$PATH\" && unset XDG_CONFIG_HOME GIT_DIR GIT_WORK_TREE && (" +
                                  command + ") >'" + out + "' 2>&1 </dev/null";
        const int ended = std::system(whole.c_str());
        return {WIFEXITED(ended) ? WEXITSTATUS(ended) : -1, ReadFile("../shell"), {}};
    }

    void Enable() const {
        ASSERT_EQ(Do("orvanec git enable --yes && git add .gitattributes && git commit -qm rules").Status, 0);
    }
    void Commit(const std::string& document, const std::string& name = "pump.zfsm") const {
        WriteFile(name, document);
        ASSERT_EQ(Do("git add '" + name + "' && git commit -qm work").Status, 0);
    }
    // main has ours, the branch other has theirs, both from the pump.
    void Branch(const std::string& ours, const std::string& theirs) const {
        Enable();
        Commit(PumpDocument());
        ASSERT_EQ(Do("git checkout -qb other").Status, 0);
        Commit(theirs);
        ASSERT_EQ(Do("git checkout -q main").Status, 0);
        Commit(ours);
    }
};

TEST_F(Git, EnableShowsWhatItWritesAndAsksFirst) {
    const RunResult no = Do("echo n | orvanec git enable");
    EXPECT_EQ(no.Status, 1);
    EXPECT_THAT(no.Output, HasSubstr("*.zfsm -text diff=orvane merge=orvane\n"));
    EXPECT_THAT(no.Output, HasSubstr("merge.orvane.driver = orvanec merge %O %A %B -o %A --path %P\n"));
    EXPECT_THAT(no.Output, HasSubstr("Write this? [y/N] Nothing was written.\n"));
    EXPECT_FALSE(Exists(".gitattributes"));
    EXPECT_NE(Do("git config merge.orvane.driver").Status, 0);
    EXPECT_EQ(Do("orvanec git enable").Status, 1); // nobody answers
    EXPECT_EQ(Do("echo y | orvanec git enable").Status, 0);
    EXPECT_EQ(ReadFile(".gitattributes"), "*.zfsm -text diff=orvane merge=orvane\n");
    EXPECT_EQ(Do("git config merge.orvane.driver").Output, "orvanec merge %O %A %B -o %A --path %P\n");
}

TEST_F(Git, EnableKeepsWhatStandsInTheAttributesAndWritesItsLineOnce) {
    WriteFile(".gitattributes", "*.png binary");
    for (int time = 0; time < 2; ++time)
        EXPECT_EQ(Do("orvanec git enable --yes").Status, 0);
    EXPECT_EQ(ReadFile(".gitattributes"), "*.png binary\n*.zfsm -text diff=orvane merge=orvane\n");
}

TEST_F(Git, EnableGloballyWritesIntoTheHomeFolder) {
    EXPECT_EQ(Do("cd / && orvanec git enable --global --yes").Status, 0);
    EXPECT_EQ(ReadFile("home/.config/git/attributes"), "*.zfsm -text diff=orvane merge=orvane\n");
    EXPECT_EQ(Do("git config --global diff.orvane.textconv").Output, "orvanec show --textconv\n");
    EXPECT_FALSE(Exists(".gitattributes"));
}

TEST_F(Git, EnableOutsideOfARepositoryIsWrongUsage) {
    const RunResult run = Do("cd / && orvanec git enable --yes");
    EXPECT_EQ(run.Status, 2);
    EXPECT_THAT(run.Output,
                HasSubstr("this folder is in no work tree of git; go into one, or use --global\n"));
    EXPECT_EQ(Do("orvanec git disable").Status, 2);
}

TEST_F(Git, TheLogReadsLikeADescriptionOfWhatWasDone) {
    Enable();
    Commit(PumpDocument());
    Commit(WithPurge());
    const RunResult log = Do("git log -p -1 --format=%s");
    EXPECT_THAT(log.Output, HasSubstr("\n+state Purge\n"));
    EXPECT_THAT(log.Output, Not(HasSubstr("COLWIDTH")));
    Commit(Renumbered());
    EXPECT_THAT(Do("git log -p -1 --format=%s").Output, HasSubstr("\n+empty column\n"));
}

TEST_F(Git, MergePutsBothSidesTogetherThoughTheNumbersShifted) {
    Branch(Renumbered(), Faster());
    const RunResult merge = Do("git merge -q -m merged other");
    EXPECT_EQ(merge.Status, 0) << merge.Output;
    EXPECT_EQ(ReadFile("pump.zfsm"), Replaced(Renumbered(), ";run entry", ";run fast"));
    EXPECT_EQ(Do("git status --porcelain").Output, "?? home/\n");
}

TEST_F(Git, AConflictStopsTheMergeUntilItsBlocksAreGone) {
    Branch(Slower(), Faster());
    const RunResult merge = Do("git merge -m merged other");
    EXPECT_EQ(merge.Status, 1);
    EXPECT_THAT(merge.Output, HasSubstr("pump.zfsm: conflict: state 2:Run, entry action\n"));
    EXPECT_THAT(Do("git status --porcelain").Output, HasSubstr("UU pump.zfsm\n"));
    EXPECT_THAT(ReadFile("pump.zfsm"), HasSubstr(";run slow\r\n;<<<<<<< CONFLICT: "));
    EXPECT_THAT(ReadFile("pump.zfsm"), HasSubstr(";======= THEIRS\r\n;;run fast\r\n"));
    EXPECT_TRUE(Exists("pump.zfsm.conflicts"));
    EXPECT_EQ(Do("orvanec conflicts pump.zfsm").Status, 1);
}

TEST_F(Git, RebaseAndCherryPickMergeTheSameWay) {
    Branch(Renumbered(), Faster());
    EXPECT_EQ(Do("git cherry-pick other").Status, 0);
    EXPECT_EQ(ReadFile("pump.zfsm"), Replaced(Renumbered(), ";run entry", ";run fast"));
    EXPECT_EQ(Do("git reset -q --hard HEAD~ && git checkout -q other && git rebase -q main").Status, 0);
    EXPECT_EQ(ReadFile("pump.zfsm"), Replaced(Renumbered(), ";run entry", ";run fast"));
}

TEST_F(Git, ADocumentThatBothSidesAddedIsMergedFromNothing) {
    Enable();
    EXPECT_EQ(Do("git checkout -qb other").Status, 0);
    Commit(Faster(), "new one.zfsm");
    EXPECT_EQ(Do("git checkout -q main").Status, 0);
    Commit(Slower(), "new one.zfsm");
    EXPECT_EQ(Do("git merge other").Status, 1);
    EXPECT_THAT(Do("git status --porcelain").Output, HasSubstr("AA \"new one.zfsm\"\n"));
    EXPECT_THAT(ReadFile("new one.zfsm"), HasSubstr(";run slow\r\n;<<<<<<< CONFLICT: "));
    EXPECT_TRUE(Exists("new one.zfsm.conflicts"));
}

TEST_F(Git, ADocumentThatOneSideDeletedAndTheOtherChangedIsAConflictOfGit) {
    Enable();
    Commit(PumpDocument());
    EXPECT_EQ(Do("git checkout -qb other").Status, 0);
    Commit(Faster());
    EXPECT_EQ(Do("git checkout -q main && git rm -q pump.zfsm && git commit -qm gone").Status, 0);
    EXPECT_EQ(Do("git merge other").Status, 1);
    EXPECT_THAT(Do("git status --porcelain").Output, HasSubstr("DU pump.zfsm\n"));
    EXPECT_EQ(ReadFile("pump.zfsm"), Faster());
}

TEST_F(Git, ABrokenDocumentIsLeftToPeople) {
    Branch(Slower(), Faster().substr(0, Faster().find("stop action")));
    EXPECT_EQ(Do("git merge other").Status, 1);
    EXPECT_EQ(ReadFile("pump.zfsm"), Slower());
    EXPECT_THAT(Do("git status --porcelain").Output, HasSubstr("UU pump.zfsm\n"));
    EXPECT_EQ(Do("git log -p other").Status, 0);
}

} // namespace
} // namespace orvane
