// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/DocumentFile.h"

#include "support/FileBytes.h"
#include "support/SmallDisk.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

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

} // namespace
} // namespace orvane
