// SPDX-License-Identifier: GPL-3.0-or-later
#include "welcome/ui/frmSplash.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace orvane {
namespace {

class frmSplashTest : public testing::Test {
  protected:
    frmSplashTest() {
        splash_.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&splash_));
    }

    template <typename Control>
    Control* Find(const char* name) {
        auto* control = splash_.findChild<Control*>(QString::fromUtf8(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }

    frmSplash splash_{QPixmap(64, 64)};
};

TEST_F(frmSplashTest, TheDisclaimerIsShown) {
    EXPECT_EQ(Find<QPlainTextEdit>("txtBlurb")->toPlainText(),
              QStringLiteral(
                  "Orvane is free to use for commercial and non-commercial purposes. Naturally, we would "
                  "prefer you to be using it to program our uniquely, amazingly excellent controllers, but "
                  "you don't have to.\n\nEither way, we take no responsibility if something bad happens. "
                  "It is up to you to use all programming tools responsibly and in moderation.\n\nA "
                  "prerequisite for a good, safe, reliable control program is good design and planning - "
                  "Orvane should help with that."));
}

TEST_F(frmSplashTest, KeysDoNotChangeTheDisclaimer) {
    auto* blurb = Find<QPlainTextEdit>("txtBlurb");
    const QString before = blurb->toPlainText();
    QTest::keyClicks(blurb, QStringLiteral("abc"));
    QTest::keyClick(blurb, Qt::Key_Delete);
    QTest::keyClick(blurb, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(blurb->toPlainText(), before);
    EXPECT_TRUE(splash_.isVisible());
}

TEST_F(frmSplashTest, TheButtonHasTheFocusAndCloses) {
    auto* button = Find<QPushButton>("cmdOK");
    EXPECT_TRUE(button->hasFocus());
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_FALSE(splash_.isVisible());
}

TEST_F(frmSplashTest, ItClosesByItselfAfter201Ticks) {
    auto* timer = Find<QTimer>("Timer1");
    const QSignalSpy ticks(timer, &QTimer::timeout);
    timer->setInterval(0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !splash_.isVisible(); }, 5000));
    EXPECT_EQ(ticks.count(), 201);
}

TEST_F(frmSplashTest, ADoubleClickOnTheLogoClosesIt) {
    QTest::mouseDClick(Find<QLabel>("imgLogo"), Qt::LeftButton);
    EXPECT_FALSE(splash_.isVisible());
}

TEST_F(frmSplashTest, TheLinkAsksForTheHomePageUnderAHandCursor) {
    const QSignalSpy asked(&splash_, &frmSplash::HomePageRequested);
    auto* link = Find<QLabel>("lblURL");
    EXPECT_EQ(link->cursor().shape(), Qt::PointingHandCursor);
    QTest::mouseClick(link, Qt::LeftButton);
    EXPECT_EQ(asked.count(), 1);
    EXPECT_TRUE(splash_.isVisible());
}

TEST_F(frmSplashTest, ADoubleClickOnTheLinkAsksOnceAndAReleaseBesideItNever) {
    const QSignalSpy asked(&splash_, &frmSplash::HomePageRequested);
    auto* link = Find<QLabel>("lblURL");
    QTest::mouseClick(link, Qt::LeftButton);
    QTest::mouseDClick(link, Qt::LeftButton);
    QTest::mouseRelease(link, Qt::LeftButton);
    EXPECT_EQ(asked.count(), 1);
    QTest::mousePress(link, Qt::LeftButton);
    QTest::mouseRelease(link, Qt::LeftButton, {}, QPoint(-5, 5));
    EXPECT_EQ(asked.count(), 1);
}

} // namespace
} // namespace orvane
