// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/DocumentFile.h"

#include "support/FileBytes.h"
#include "support/SmallDisk.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace orvane {
namespace {

class DocumentFileTest : public testing::Test {
  protected:
    QString Path(const char* name) const { return folder_.filePath(QLatin1String(name)); }
    QStringList Names() const {
        return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QString Folder() const { return folder_.path(); }

  private:
    QTemporaryDir folder_;
};

// Small documents are the ones that a buffer holds whole until the file is closed.
TEST_F(DocumentFileTest, AFullDiskKeepsTheOldDocumentAndIsTold) {
    const SmallDisk disk(Folder().toStdString(), "64k");
    if (!disk.IsThere())
        GTEST_SKIP() << "a disk to fill cannot be mounted here";
    FsmDocument document;
    document.General.FsmName = "PMP";
    ASSERT_EQ(WriteDocumentFile(Path("a.zfsm"), document).Error, QString());
    const std::string old = FileBytes(Path("a.zfsm").toStdString());
    ASSERT_FALSE(old.empty());
    disk.FillUp("full");

    document.General.FsmName = "NEW";
    EXPECT_EQ(WriteDocumentFile(Path("a.zfsm"), document).Error,
              QStringLiteral("The disk is full. Make room on it, or choose another one"));
    EXPECT_EQ(FileBytes(Path("a.zfsm").toStdString()), old);
    EXPECT_EQ(Names(), (QStringList{QStringLiteral("a.zfsm"), QStringLiteral("full")}));
}

TEST_F(DocumentFileTest, WhatWasSavedIsReadWithTheSameStamp) {
    FsmDocument document;
    document.General.FsmName = "PMP";
    const SavedDocument saved = WriteDocumentFile(Path("a.zfsm"), document);
    EXPECT_EQ(saved.Notes, QStringList());
    const DocumentFile read = ReadDocumentFile(Path("a.zfsm"));
    ASSERT_TRUE(read.Content);
    EXPECT_EQ(read.Content->Document.General.FsmName, "PMP");
    EXPECT_EQ(read.File.Stamp, saved.Stamp);
    EXPECT_EQ(read.File.Bytes(), FileBytes(Path("a.zfsm").toStdString()));
}

TEST_F(DocumentFileTest, WhatIsTooLargeForADocumentIsRefusedUnread) {
    WriteFileBytes(Path("a.zfsm").toStdString(), "");
    std::filesystem::resize_file(Path("a.zfsm").toStdString(), std::uintmax_t{1} << 40);
    EXPECT_EQ(ReadDocumentFile(Path("a.zfsm")).Error,
              QStringLiteral("The file is larger than 64 MiB, which no document is"));
}

#ifndef _WIN32

// It would keep the window waiting for ever.
TEST_F(DocumentFileTest, APipeIsNeitherReadNorWritten) {
    ASSERT_EQ(mkfifo(Path("pipe").toStdString().c_str(), 0600), 0);
    EXPECT_EQ(ReadDocumentFile(Path("pipe")).Error, QStringLiteral("It is a pipe, not a file"));
    EXPECT_EQ(WriteDocumentFile(Path("pipe"), FsmDocument()).Error,
              QStringLiteral("It is a pipe, not a file"));
}

TEST_F(DocumentFileTest, WhatASavedFileHasLostIsTold) {
    ASSERT_EQ(WriteDocumentFile(Path("a.zfsm"), FsmDocument()).Error, QString());
    std::filesystem::create_hard_link(Path("a.zfsm").toStdString(), Path("other").toStdString());
    const SavedDocument saved = WriteDocumentFile(Path("a.zfsm"), FsmDocument());
    EXPECT_EQ(saved.Error, QString());
    EXPECT_EQ(saved.Notes, QStringList{QStringLiteral(
                               "The file has other names (hard links): these keep what was there before")});
}

#endif

} // namespace
} // namespace orvane
