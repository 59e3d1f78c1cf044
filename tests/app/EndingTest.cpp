// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Ending.h"

#include "core/DocumentWriter.h"
#include "files/NativeFiles.h"
#include "session/RecoveryFolder.h"
#include "session/UserRecoveryFolder.h"
#include "support/ui/TableFixture.h"

namespace orvane {
namespace {

class EndingTest : public TableFixture {
  protected:
    void StartModified() {
        StartOn(PumpDocument());
        TypeTarget(7, 1, QStringLiteral("2"));
    }
    std::vector<OrphanedJournal> Orphans() {
        NativeFiles files;
        return RecoveryFolder(files, *UserRecoveryFolder()).Orphans();
    }
};

TEST_F(EndingTest, ALogoutThatMayAskAsksAndCanBeStopped) {
    StartModified();
    Answers.Press(QMessageBox::Cancel);
    EXPECT_FALSE(MayLogOut(Window(), true));
    EXPECT_EQ(Answers.Seen()[0].Text, "Save changes?");
    EXPECT_TRUE(Window().isVisible());
}

TEST_F(EndingTest, YesSavesBeforeTheLogout) {
    StartModified();
    Answers.Press(QMessageBox::Yes);
    EXPECT_TRUE(MayLogOut(Window(), true));
    EXPECT_NE(ReadFile(QStringLiteral("machine.zfsm")), WriteDocument(PumpDocument()));
    EXPECT_TRUE(Window().isVisible()) << "another program may stop the logout";
}

TEST_F(EndingTest, ALogoutThatMayNotAskStopsNothing) {
    StartModified();
    EXPECT_TRUE(MayLogOut(Window(), false));
    EXPECT_TRUE(Answers.Seen().empty());
    EXPECT_EQ(Title()[0], '*');
}

TEST_F(EndingTest, WhatIsPreservedLeavesTheProgramOfTheSavedDocument) {
    StartOn(PumpDocument());
    Trigger("mnuCodeGenerate");
    const std::string saved = ReadFile(QStringLiteral("machine.zls"));
    TypeTarget(7, 1, QStringLiteral("2"));
    ASSERT_NE(ReadFile(QStringLiteral("machine.zls")), saved);
    Window().Preserve();
    EXPECT_EQ(ReadFile(QStringLiteral("machine.zls")), saved);
}

} // namespace
} // namespace orvane
