// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/OpenInDesktop.h"

#include "support/ui/OpenedAddresses.h"

#include <QDir>
#include <QLineEdit>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWidget>

#include <gtest/gtest.h>

namespace orvane {

namespace {

class OpenInDesktopTest : public testing::Test {
  protected:
    ~OpenInDesktopTest() override { qunsetenv("ORVANE_HELP_URL"); }

    OpenedAddresses Opened;
};

TEST_F(OpenInDesktopTest, AnAddressReachesTheDesktop) {
    EXPECT_TRUE(OpenInDesktop(QUrl(QStringLiteral("https://example.org/a%20b"))));
    EXPECT_EQ(Opened.Addresses, QList{QUrl(QStringLiteral("https://example.org/a%20b"))});
}

TEST_F(OpenInDesktopTest, WhatTheDesktopDoesNotKnowIsTold) {
    EXPECT_FALSE(OpenInDesktop(QUrl(QStringLiteral("nobodyknows:this"))));
    EXPECT_TRUE(Opened.Addresses.isEmpty());
}

TEST_F(OpenInDesktopTest, AFileIsToldByItsPathAndAPageByItsAddress) {
    const QString path = QDir::toNativeSeparators(QStringLiteral("/a b/pump.b1d"));
    EXPECT_EQ(ShownAddress(QUrl::fromLocalFile(path)), path);
    EXPECT_EQ(ShownAddress(QUrl(QStringLiteral("https://example.org/a"))),
              QStringLiteral("https://example.org/a"));
}

TEST_F(OpenInDesktopTest, TheEnvironmentNamesTheHelpPages) {
    qputenv("ORVANE_HELP_URL", "https://help.example/kb/");
    EXPECT_TRUE(OpenHelpPage(4835));
    EXPECT_EQ(Opened.Addresses, QList{QUrl(QStringLiteral("https://help.example/kb/4835.htm"))});
}

TEST_F(OpenInDesktopTest, WithoutAnAddressThePagesOfTheProgramAreOpened) {
    qputenv("ORVANE_HELP_URL", "");
    EXPECT_TRUE(OpenHelpPage(4965));
    ASSERT_EQ(Opened.Addresses.size(), 1);
    EXPECT_TRUE(Opened.Addresses[0].isLocalFile());
    EXPECT_TRUE(Opened.Addresses[0].toLocalFile().endsWith(QStringLiteral("/help/4965.htm")));
}

TEST_F(OpenInDesktopTest, F1OpensThePageOfTheWindowWhateverHasTheFocus) {
    qputenv("ORVANE_HELP_URL", "https://help.example/kb/");
    QWidget window;
    auto* field = new QLineEdit(&window);
    AddHelpKey(window, 1234);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    field->setFocus();
    QTest::keyClick(field, Qt::Key_F1, Qt::ShiftModifier);
    QTest::keyClick(field, Qt::Key_F1, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_F1, Qt::AltModifier);
    EXPECT_TRUE(Opened.Addresses.isEmpty());
    QTest::keyClick(field, Qt::Key_F1);
    EXPECT_EQ(Opened.Addresses, QList{QUrl(QStringLiteral("https://help.example/kb/1234.htm"))});
}

TEST_F(OpenInDesktopTest, AHelpPageThatDoesNotOpenIsNamed) {
    qputenv("ORVANE_HELP_URL", "nobodyknows:kb/");
    QWidget window;
    AddHelpKey(window, 1234);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F1);
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_EQ(QToolTip::text(), QStringLiteral("The help page could not be opened: nobodyknows:kb/1234.htm"));
    QToolTip::hideText();
}

} // namespace
} // namespace orvane
