// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ui/GeneratorRun.h"

#include "support/FileBytes.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

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
    GeneratorRun run_;
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

} // namespace
} // namespace orvane
