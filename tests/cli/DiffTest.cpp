// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Orvanec.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class Diff : public Orvanec {
  protected:
    Diff() {
        WriteFile("old.zfsm", PumpDocument());
        WriteFile("new.zfsm", Replaced(PumpDocument(), "<NAME>Run", "<NAME>Pump"));
    }
};

TEST_F(Diff, TellsWhatIsDifferentWithStatusOne) {
    const RunResult run = Run("diff old.zfsm new.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Output, "old.zfsm -> new.zfsm: 1 change\nstate 2:Pump renamed from Run (guessed)\n");
    EXPECT_EQ(run.Errors, "");
}

TEST_F(Diff, OfTheSameFileTwiceSaysNothingWithStatusZero) {
    const RunResult run = Run("diff old.zfsm old.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Output, "");
}

TEST_F(Diff, LineEndsMakeNoDifference) {
    WriteFile("lf.zfsm", Replaced(PumpDocument(), "\r\n", "\n"));
    EXPECT_EQ(Run("diff old.zfsm lf.zfsm").Status, 0);
}

TEST_F(Diff, CanLeaveOutTheView) {
    WriteFile("wide.zfsm", Replaced(PumpDocument(), "<COLWIDTH>945", "<COLWIDTH>946"));
    EXPECT_EQ(Run("diff old.zfsm wide.zfsm").Output, "old.zfsm -> wide.zfsm: 2 changes\n"
                                                     "state 1:Idle, column width: 946 (was 945)\n"
                                                     "state 2:Run, column width: 946 (was 945)\n");
    EXPECT_EQ(Run("diff --no-view old.zfsm wide.zfsm").Status, 0);
}

TEST_F(Diff, IdentitiesCanBeOverruled) {
    EXPECT_EQ(Run("diff --same Run=Pump old.zfsm new.zfsm").Output,
              "old.zfsm -> new.zfsm: 1 change\nstate 2:Pump renamed from Run\n");
    const RunResult run = Run("diff --different 2 old.zfsm new.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_THAT(run.Output, HasSubstr("state 2:Run removed\n"));
    EXPECT_THAT(run.Output, HasSubstr("state 2:Pump added\n"));
    const RunResult wrong = Run("diff --same Gone=Pump old.zfsm new.zfsm");
    EXPECT_EQ(wrong.Status, 2);
    EXPECT_THAT(wrong.Errors,
                StartsWith("orvanec: --same: the old document has no state or event \"Gone\"\n"));
}

TEST_F(Diff, JsonHoldsIdentitiesAndChanges) {
    const RunResult run = Run("diff --format=json old.zfsm new.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Output,
              "{\"version\":1,\"old\":\"old.zfsm\",\"new\":\"new.zfsm\",\"equal\":false,"
              "\"states\":[{\"old\":1,\"new\":1,\"guessed\":false},{\"old\":2,\"new\":2,\"guessed\":true}],"
              "\"events\":[{\"old\":6,\"new\":6,\"guessed\":false},{\"old\":7,\"new\":7,\"guessed\":false}],"
              "\"changes\":[{\"kind\":\"state-field\","
              "\"old\":{\"state\":2,\"stateName\":\"Run\",\"row\":null,\"eventName\":null},"
              "\"new\":{\"state\":2,\"stateName\":\"Pump\",\"row\":null,\"eventName\":null},"
              "\"view\":false,\"guessed\":true,\"text\":\"state 2:Pump renamed from Run (guessed)\","
              "\"field\":\"NAME\",\"before\":\"Run\",\"after\":\"Pump\"}]}\n");
    EXPECT_THAT(Run("diff --format=json old.zfsm old.zfsm").Output, HasSubstr("\"equal\":true"));
}

TEST_F(Diff, HtmlIsAPage) {
    EXPECT_THAT(Run("diff --format=html old.zfsm new.zfsm").Output,
                HasSubstr("<td>~</td><td>state 2:Pump renamed from Run (guessed)</td>"));
}

TEST_F(Diff, WantsTwoWholeDocuments) {
    WriteFile("cut.zfsm", PumpDocument().substr(0, PumpDocument().find("stop action")));
    WriteFile("text.zfsm", "not a document\n");
    const RunResult cut = Run("diff old.zfsm cut.zfsm");
    EXPECT_EQ(cut.Status, 3);
    EXPECT_EQ(cut.Output, "");
    EXPECT_THAT(cut.Errors, HasSubstr("cut.zfsm:"));
    const RunResult text = Run("diff text.zfsm old.zfsm");
    EXPECT_EQ(text.Status, 3);
    EXPECT_EQ(text.Errors, "text.zfsm: The file is not a document: it holds no field\n");
    EXPECT_EQ(Run("diff gone.zfsm old.zfsm").Status, 3);
    const RunResult one = Run("diff old.zfsm");
    EXPECT_EQ(one.Status, 2);
    EXPECT_THAT(one.Errors, StartsWith("orvanec: diff takes two documents, the old one and the new one\n"));
}

TEST_F(Diff, TextSavedAsUtf8ByMistakeIsShownAsWhatItIsNow) {
    WriteFile("good.zfsm", Replaced(PumpDocument(), "<NAME>Idle", "<NAME>K\xFChl"));
    WriteFile("utf8.zfsm", Replaced(PumpDocument(), "<NAME>Idle", "<NAME>K\xC3\xBChl"));
    EXPECT_THAT(Run("diff good.zfsm utf8.zfsm").Output,
                HasSubstr("state 1:K\xC3\x83\xC2\xBChl renamed from K\xC3\xBChl (guessed)\n"));
    WriteFile("utf8.zfsm",
              Replaced(Replaced(PumpDocument(), "\xA4", "\xC2\xA4"), "<NAME>Idle", "<NAME>K\xC3\xBChl"));
    EXPECT_THAT(Run("diff good.zfsm utf8.zfsm").Errors,
                StartsWith("utf8.zfsm: Saved as UTF-8 by another program: "));
}

TEST_F(Diff, ShowWritesTheDocumentWithNames) {
    const RunResult run = Run("show old.zfsm");
    EXPECT_EQ(run.Status, 0);
    EXPECT_THAT(run.Output, StartsWith("machine PMP\n"));
    EXPECT_THAT(run.Output, HasSubstr("state Run\n"));
    EXPECT_THAT(run.Output, HasSubstr("  on #7 -> Idle\n    ;stop action\n"));
}

TEST_F(Diff, ShowOfABrokenDocumentIsNoFailureForGit) {
    WriteFile("cut.zfsm", PumpDocument().substr(0, PumpDocument().find("stop action")));
    const RunResult run = Run("show cut.zfsm");
    EXPECT_EQ(run.Status, 3);
    EXPECT_THAT(run.Output, HasSubstr("\nnot read to its end: The file ends "));
    const RunResult forGit = Run("show --textconv cut.zfsm");
    EXPECT_EQ(forGit.Status, 0);
    EXPECT_EQ(forGit.Output, run.Output);
    EXPECT_EQ(Run("show --textconv gone.zfsm").Status, 3);
}

} // namespace
} // namespace orvane
