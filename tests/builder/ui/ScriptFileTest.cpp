// SPDX-License-Identifier: GPL-3.0-or-later
#include "builder/ui/ScriptFile.h"

#include "support/FileBytes.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace orvane {
namespace {

class ScriptFileTest : public testing::Test {
  protected:
    QString Path(const char* name) const { return folder_.filePath(QLatin1String(name)); }
    std::string Native(const char* name) const { return Path(name).toStdString(); }

  private:
    QTemporaryDir folder_;
};

TEST_F(ScriptFileTest, WhatIsWrittenIsReadBackWithItsLineEnds) {
    const QString script = QStringLiteral("CODESEG\nK\u00fchl \u20ac \u00a4.zls\n");
    EXPECT_TRUE(WriteScript(Path("a.b1d"), script));
    EXPECT_EQ(FileBytes(Native("a.b1d")),
              "CODESEG\r\nK\xFChl \x80 \xA4.zls\r\n"); // the delimiter is a letter here
    EXPECT_EQ(ReadScript(Path("a.b1d")), AsReadBack(script));
}

TEST_F(ScriptFileTest, AScriptWithALetterThatItsFileCannotHoldIsNotWritten) {
    WriteFileBytes(Native("a.b1d"), "old");
    const QString script = QStringLiteral("one\n\u6c34.zls\n");
    EXPECT_EQ(LineOutsideAnsi(script), QStringLiteral("\u6c34.zls"));
    EXPECT_FALSE(WriteScript(Path("a.b1d"), script));
    EXPECT_EQ(FileBytes(Native("a.b1d")), "old");
}

TEST_F(ScriptFileTest, WhatIsMissingTooLargeOrAFolderIsNotRead) {
    EXPECT_EQ(ReadScript(Path("gone")), std::nullopt);
    EXPECT_EQ(ReadScript(QString()), std::nullopt);
    EXPECT_EQ(ReadScript(Path(".")), std::nullopt);
    WriteFileBytes(Native("large"), std::string((1u << 20) + 1, 'x'));
    EXPECT_EQ(ReadScript(Path("large")), std::nullopt);
    EXPECT_FALSE(WriteScript(Path("."), QStringLiteral("text")));
}

#ifndef _WIN32

TEST_F(ScriptFileTest, PipesAndDevicesAreNoScripts) {
    ASSERT_EQ(mkfifo(Native("pipe").c_str(), 0600), 0);
    EXPECT_EQ(ReadScript(Path("pipe")), std::nullopt);
    EXPECT_FALSE(WriteScript(Path("pipe"), QStringLiteral("text")));
    EXPECT_EQ(ReadScript(QStringLiteral("/dev/zero")), std::nullopt);
}

#endif

} // namespace
} // namespace orvane
