// SPDX-License-Identifier: GPL-3.0-or-later
// Where no copies of a design may lie about.
#include "recovery/ui/RecoveryFixture.h"

namespace orvane {
namespace {

class JournalSwitchTest : public RecoveryFixture {};

TEST_F(JournalSwitchTest, WhoSwitchesTheJournalOffLeavesNoCopies) {
    StartOn(PumpDocument());
    Trigger("mnuFRecover");
    auto& keep = Named<QCheckBox>(Recovery(), "chkKeepJournal");
    EXPECT_TRUE(keep.isChecked());
    TypeTarget(6, 2, QStringLiteral("2"));
    ASSERT_EQ(Journals().size(), 1);
    keep.click();
    EXPECT_TRUE(Journals().isEmpty()) << "what was kept so far goes too";
    TypeTarget(6, 1, QStringLiteral("1"));
    EXPECT_TRUE(Journals().isEmpty());
    Crash();
    StartOn(PumpDocument());
    TypeTarget(6, 1, QStringLiteral("1"));
    EXPECT_TRUE(Journals().isEmpty()) << "it holds for later starts";
    Trigger("mnuFRecover");
    auto& kept = Named<QCheckBox>(Recovery(), "chkKeepJournal");
    EXPECT_FALSE(kept.isChecked());
    kept.click();
    TypeTarget(6, 2, QStringLiteral("1"));
    EXPECT_EQ(Journals().size(), 1);
}

TEST_F(JournalSwitchTest, AChoiceThatCannotBeRememberedIsToldAndHoldsForThisWindow) {
    LoseWork();
    StartAgain();
    const QString file = Settings().fileName();
    QFile::remove(file);
    ASSERT_TRUE(QDir().mkpath(file)); // a folder where the file should be
    Answers.Press(QMessageBox::Ok);
    Named<QCheckBox>(Recovery(), "chkKeepJournal").click();
    EXPECT_TRUE(QDir().rmdir(file));
    ASSERT_EQ(Answers.Seen().size(), 1u);
    EXPECT_TRUE(Answers.Seen()[0].Text.starts_with("This holds for this window, but could not be written"));
    Press(Recovery(), "cmdRecover");
    EXPECT_EQ(Count("lstRecovered"), 1);
    TypeTarget(7, 1, QStringLiteral("1"));
    EXPECT_EQ(Journals().size(), 1) << "that of the window that was lost";
}

// Nothing takes the place of the recovered journal, so it stays until somebody deletes it.
TEST_F(JournalSwitchTest, WithoutAJournalRecoveredWorkStaysInTheList) {
    LoseWork();
    StartAgain();
    auto& keep = Named<QCheckBox>(Recovery(), "chkKeepJournal");
    keep.click();
    Press(Recovery(), "cmdRecover");
    EXPECT_EQ(Text(6, 2), "2:Run");
    EXPECT_EQ(Count("lstRecovered"), 1);
    Answers.Press(QMessageBox::Yes);
    Press(Recovery(), "cmdDeleteAll");
    EXPECT_TRUE(Journals().isEmpty());
    keep.click();
}

} // namespace
} // namespace orvane
