// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/RenewableFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace orvane {
namespace {

class RenewableFileTest : public testing::Test {
  protected:
    QString Path(const char* name) const { return folder_.filePath(QLatin1String(name)); }
    QStringList Names() const {
        return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    static QByteArray Bytes(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

  private:
    QTemporaryDir folder_;
};

TEST_F(RenewableFileTest, HoldsThePiecesInARow) {
    EXPECT_EQ(WriteRenewableFile(Path("a.zls"), {"one ", "two"}), std::nullopt);
    EXPECT_EQ(Bytes(Path("a.zls")), "one two");
    EXPECT_EQ(Names(), QStringList{QStringLiteral("a.zls")});
}

TEST_F(RenewableFileTest, AShorterTextReplacesALongerOne) {
    EXPECT_EQ(WriteRenewableFile(Path("a.zls"), {"a long text"}), std::nullopt);
    EXPECT_EQ(WriteRenewableFile(Path("a.zls"), {"short"}), std::nullopt);
    EXPECT_EQ(Bytes(Path("a.zls")), "short");
}

TEST_F(RenewableFileTest, WhoHasTheOldFileOpenSeesAllOfTheOldBytes) {
    ASSERT_EQ(WriteRenewableFile(Path("a.zls"), {"the old text"}), std::nullopt);
    QFile reader(Path("a.zls"));
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    ASSERT_EQ(WriteRenewableFile(Path("a.zls"), {"new"}), std::nullopt);
    EXPECT_EQ(reader.readAll(), "the old text");
}

TEST_F(RenewableFileTest, PermissionsAndLinksStay) {
    ASSERT_EQ(WriteRenewableFile(Path("a.zls"), {"old"}), std::nullopt);
    const QFile::Permissions mine = QFile::ReadOwner | QFile::WriteOwner;
    ASSERT_TRUE(QFile::setPermissions(Path("a.zls"), mine));
    ASSERT_TRUE(QFile::link(Path("a.zls"), Path("link.zls")));
    ASSERT_EQ(WriteRenewableFile(Path("link.zls"), {"new"}), std::nullopt);
    EXPECT_TRUE(QFileInfo(Path("link.zls")).isSymLink());
    EXPECT_EQ(Bytes(Path("a.zls")), "new");
    EXPECT_EQ(QFile::permissions(Path("a.zls")) & (QFile::ReadGroup | QFile::ReadOther),
              QFile::Permissions());
}

TEST_F(RenewableFileTest, AFolderInItsPlaceIsToldAndStays) {
    ASSERT_TRUE(QDir().mkdir(Path("a.zls")));
    const std::optional<QString> why = WriteRenewableFile(Path("a.zls"), {"text"});
    ASSERT_TRUE(why.has_value());
    EXPECT_FALSE(why->isEmpty());
    EXPECT_EQ(Names(), QStringList{QStringLiteral("a.zls")});
}

TEST_F(RenewableFileTest, AFolderThatIsGoneIsToldByTheSystem) {
    const std::optional<QString> why = WriteRenewableFile(Path("gone/a.zls"), {"text"});
    ASSERT_TRUE(why.has_value());
    EXPECT_FALSE(why->isEmpty());
    EXPECT_TRUE(Names().isEmpty());
}

} // namespace
} // namespace orvane
