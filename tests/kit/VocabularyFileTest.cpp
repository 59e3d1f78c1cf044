// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/VocabularyFile.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace orvane {
namespace {

class VocabularyFileTest : public testing::Test {
  protected:
    VocabularyFileTest() { qputenv("APPDATA", Folder.path().toUtf8()); }
    ~VocabularyFileTest() override { qunsetenv("APPDATA"); }

    QString Path() const { return Folder.filePath(QStringLiteral("Zorlan32/vocab/vocab.txt")); }

    void Write(const QByteArray& bytes) const {
        QDir().mkpath(Folder.filePath(QStringLiteral("Zorlan32/vocab")));
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    // Nothing was read, and the user is told where it was looked for and this reason.
    void ExpectProblem(const QString& reason) const {
        const LoadedVocabulary loaded = LoadVocabulary();
        EXPECT_EQ(loaded.Words, Vocabulary{});
        EXPECT_TRUE(loaded.Problem.contains(QDir::toNativeSeparators(Path())));
        EXPECT_TRUE(loaded.Problem.contains(reason)) << loaded.Problem.toStdString();
    }

    QTemporaryDir Folder;
};

TEST_F(VocabularyFileTest, TheWordsAreReadFromTheApplicationDataFolder) {
    Write("Inst=GoTo\r\nDirective=DB\r\nInst=GoIfT\r\n");
    const LoadedVocabulary loaded = LoadVocabulary();
    EXPECT_EQ(loaded.Words, (Vocabulary{"GoTo\nGoIfT", "DB"}));
    EXPECT_EQ(loaded.Path, Path());
    EXPECT_EQ(loaded.Problem, QString());
}

TEST_F(VocabularyFileTest, WithoutTheVariableTheDesktopsOwnFolderIsUsed) {
    qunsetenv("APPDATA");
    EXPECT_EQ(VocabularyPath(), QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                                    QStringLiteral("/Zorlan32/vocab/vocab.txt"));
}

TEST_F(VocabularyFileTest, AMissingFileIsToldWithItsPlace) { ExpectProblem(QStringLiteral("no such file")); }

TEST_F(VocabularyFileTest, AFolderInPlaceOfTheFileIsTold) {
    QDir().mkpath(Path());
    ExpectProblem(QStringLiteral("not a file"));
}

TEST_F(VocabularyFileTest, AFileOfMoreThanOneMebibyteIsRefused) {
    Write(QByteArray(1024 * 1024 - 8, ';') + "\nInst=a\n");
    EXPECT_EQ(LoadVocabulary().Words.InstructionWords, "a");
    Write("Inst=a\n" + QByteArray(1024 * 1024, ';'));
    ExpectProblem(QStringLiteral("larger than 1 MiB"));
}

TEST_F(VocabularyFileTest, BytesOfAnyKindDoNoHarm) {
    QByteArray bytes;
    for (int i = 0; i < 200'000; ++i)
        bytes += static_cast<char>(i * 7919 >> 3);
    Write(bytes + "\nInst=a\n");
    const LoadedVocabulary loaded = LoadVocabulary();
    EXPECT_EQ(loaded.Words.InstructionWords, "a");
    EXPECT_EQ(loaded.Problem, QString());
}

TEST_F(VocabularyFileTest, AnEmptyFileIsAVocabularyWithoutWords) {
    Write("");
    const LoadedVocabulary loaded = LoadVocabulary();
    EXPECT_EQ(loaded.Words, Vocabulary{});
    EXPECT_EQ(loaded.Problem, QString());
}

} // namespace
} // namespace orvane
