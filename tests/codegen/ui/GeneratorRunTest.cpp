// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ui/GeneratorRun.h"

#include "core/DocumentWriter.h"
#include "files/NativeFiles.h"
#include "support/FileBytes.h"
#include "support/MemoryFiles.h"
#include "support/ui/TableFixture.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <thread>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace orvane {
namespace {

class GeneratorRunTest : public testing::Test {
  protected:
    GeneratorRunTest() {
        document_.General.FsmName = "PMP";
        qputenv("SOURCE_DATE_EPOCH", "0");
    }
    ~GeneratorRunTest() override { qputenv("SOURCE_DATE_EPOCH", "0"); }

    QString Path(const char* name) const { return folder_.filePath(QLatin1String(name)); }
    void Run() { run_.Run(document_, Path("pump.zfsm")); }
    // What was told of the program that could not be written.
    QStringList Told() {
        QStringList told;
        while (!failures_.isEmpty())
            told += failures_.takeFirst().at(1).toString();
        return told;
    }

    FsmDocument document_;
    NativeFiles files_;
    GeneratorRun run_{files_};
    QSignalSpy failures_{&run_, &GeneratorRun::WriteFailed};

  private:
    QTemporaryDir folder_;
};

TEST_F(GeneratorRunTest, TheProgramIsWrittenBesideTheDocument) {
    Run();
    EXPECT_TRUE(run_.GeneratedOk());
    EXPECT_EQ(FileBytes(Path("pump.zls").toStdString()), run_.Latest().Text + "\r\n");
    EXPECT_EQ(Told(), QStringList());
}

TEST_F(GeneratorRunTest, WithABadSourceDateEpochNoProgramIsWrittenAndThatIsToldOnce) {
    qputenv("SOURCE_DATE_EPOCH", "yesterday");
    Run();
    Run();
    EXPECT_FALSE(run_.GeneratedOk());
    EXPECT_FALSE(QFile::exists(Path("pump.zls")));
    EXPECT_EQ(Told(),
              QStringList{QStringLiteral("SOURCE_DATE_EPOCH is \"yesterday\", which is no whole number of "
                                         "seconds from 0 to 253402300799; correct it or unset it")});
}

TEST_F(GeneratorRunTest, AFailureIsToldAgainAfterASuccess) {
    ASSERT_TRUE(QDir().mkdir(Path("pump.zls")));
    Run();
    EXPECT_EQ(Told(), QStringList{QStringLiteral("It is a folder")});
    ASSERT_TRUE(QDir().rmdir(Path("pump.zls")));
    Run();
    ASSERT_TRUE(QFile::remove(Path("pump.zls")) && QDir().mkdir(Path("pump.zls")));
    Run();
    EXPECT_EQ(Told(), QStringList{QStringLiteral("It is a folder")});
}

#ifndef _WIN32

// It would keep the window waiting for ever.
TEST_F(GeneratorRunTest, APipeInThePlaceOfTheProgramIsNotWrittenInto) {
    ASSERT_EQ(mkfifo(Path("pump.zls").toStdString().c_str(), 0600), 0);
    Run();
    EXPECT_EQ(Told(), QStringList{QStringLiteral("It is a pipe, not a file")});
}

#endif

// A drive that does not answer until the test lets it.
class SlowDriveTest : public testing::Test {
  protected:
    SlowDriveTest() {
        qputenv("SOURCE_DATE_EPOCH", "0");
        files_.Put("/pump.zfsm", WriteDocument(document_));
        files_.Stand();
    }
    ~SlowDriveTest() override { files_.LetGo(); }

    void Run(const char* name = "PMP") {
        document_.General.FsmName = name;
        run_.Run(document_, kDocument);
    }
    std::string Program() { return files_.Bytes("/pump.zls").value_or("none"); }
    std::string LatestProgram() { return run_.Latest().Text + "\r\n"; }

    const QString kDocument = QStringLiteral("/pump.zfsm");
    FsmDocument document_ = PumpDocument();
    MemoryFiles files_;
    GeneratorRun run_{files_};
    QSignalSpy late_{&run_, &GeneratorRun::WrittenLate};
    QSignalSpy failures_{&run_, &GeneratorRun::WriteFailed};
};

TEST_F(SlowDriveTest, AnEditDoesNotWaitAndTheNewestProgramIsWrittenLater) {
    for (const char* name : {"ONE", "TWO", "THREE"}) {
        Run(name);
        EXPECT_TRUE(run_.IsWriting());
        EXPECT_FALSE(run_.GeneratedOk());
    }
    files_.LetGo();
    ASSERT_TRUE(late_.wait());
    EXPECT_FALSE(run_.IsWriting());
    EXPECT_TRUE(run_.GeneratedOk());
    EXPECT_EQ(Program(), LatestProgram());
    EXPECT_NE(Program().find("THREE"), std::string::npos);
}

TEST_F(SlowDriveTest, WhoAsksForTheFileWaitsForIt) {
    Run();
    std::thread drive([this] { files_.LetGo(); });
    run_.Finish();
    drive.join();
    EXPECT_TRUE(run_.GeneratedOk());
    EXPECT_EQ(Program(), LatestProgram());
}

TEST_F(SlowDriveTest, AFailureIsToldOnceItIsKnown) {
    files_.PutSpecial("/pump.zls", FileKind::Folder);
    Run();
    EXPECT_TRUE(failures_.isEmpty());
    files_.LetGo();
    ASSERT_TRUE(late_.wait());
    ASSERT_EQ(failures_.size(), 1);
    EXPECT_EQ(failures_.first().at(1).toString(), QStringLiteral("It is a folder"));
    EXPECT_FALSE(run_.GeneratedOk());
}

TEST_F(SlowDriveTest, AProgramWithErrorsDoesNotCountAsWrittenWhenTheOneBeforeItIs) {
    Run();
    Run("");
    ASSERT_TRUE(run_.Latest().Findings.HasErrors());
    files_.LetGo();
    ASSERT_TRUE(late_.wait());
    EXPECT_FALSE(run_.GeneratedOk());
    EXPECT_NE(Program().find("PMP"), std::string::npos);
}

TEST_F(SlowDriveTest, ADocumentThatIsLeftWaitsAndBringsTheSavedProgramBack) {
    Run("OTHER");
    std::thread drive([this] { files_.LetGo(); });
    EXPECT_EQ(run_.LeaveDocument(), QString());
    drive.join();
    EXPECT_FALSE(run_.IsWriting());
    EXPECT_TRUE(Program().starts_with(";PMP ")) << Program();
}

TEST_F(SlowDriveTest, WhatTheFileLosesIsTold) {
    files_.LetGo();
    files_.Put("/pump.zls", "");
    files_.Find("/pump.zls")->Facts.Names = 2;
    QSignalSpy notes(&run_, &GeneratorRun::Noted);
    Run();
    Run();
    ASSERT_EQ(notes.size(), 1);
    EXPECT_EQ(notes.first().at(1).toStringList(),
              QStringList{
                  QStringLiteral("The file has other names (hard links): these keep what was there before")});
}

} // namespace
} // namespace orvane
