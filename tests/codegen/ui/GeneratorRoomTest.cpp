// SPDX-License-Identifier: GPL-3.0-or-later
// A program that a slow drive takes later, in the real main window.
#include "codegen/ui/GeneratorRoom.h"

#include "support/MemoryFiles.h"
#include "support/ui/TableFixture.h"

#include <QTest>

namespace orvane {
namespace {

// The window's own generator is followed by one whose drive does not answer until the test lets it.
class GeneratorRoomTest : public TableFixture {
  protected:
    void StartBehindASlowDrive() {
        StartOn(PumpDocument());
        auto files = std::make_unique<MemoryFiles>();
        drive_ = files.get();
        drive_->Put(Path(QStringLiteral("machine.zfsm")).toStdString(), "document");
        drive_->Stand();
        Window().AddRoom(std::make_unique<GeneratorRoom>(Window().Place(), std::move(files)));
    }
    ~GeneratorRoomTest() override {
        if (drive_ != nullptr)
            drive_->LetGo();
    }
    bool Says(const char* text) { return Panel("Panel3").find(text) != std::string::npos; }

    MemoryFiles* drive_ = nullptr; // belongs to the room
};

TEST_F(GeneratorRoomTest, AProgramThatASlowDriveTakesLaterIsToldWhenItIsThere) {
    StartBehindASlowDrive();
    TypeTarget(6, 2, QStringLiteral("1"));
    QTest::qWait(0);
    EXPECT_FALSE(Says("machine.zls")) << Panel("Panel3");
    drive_->LetGo();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Says("Program written: machine.zls"); })) << Panel("Panel3");
}

TEST_F(GeneratorRoomTest, WhatASlowDriveRefusesIsToldByABox) {
    StartBehindASlowDrive();
    drive_->PutSpecial(Path(QStringLiteral("machine.zls")).toStdString(), FileKind::Folder);
    TypeTarget(6, 2, QStringLiteral("1"));
    EXPECT_TRUE(Answers.Seen().empty());
    Answers.Press(QMessageBox::Ok);
    drive_->LetGo();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Answers.Seen().empty(); }));
    EXPECT_NE(Answers.Seen()[0].Text.find("machine.zls\r\nIt is a folder."), std::string::npos)
        << Answers.Seen()[0].Text;
    EXPECT_FALSE(Says("Program written"));
}

} // namespace
} // namespace orvane
