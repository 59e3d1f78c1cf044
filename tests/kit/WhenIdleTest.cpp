// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/WhenIdle.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace orvane {
namespace {

class WhenIdleTest : public testing::Test {
  protected:
    WhenIdleTest() { window_.show(); }

    bool IsIdleWithin(int milliseconds) { return idle_.wait(milliseconds); }

    QWidget window_;
    WhenIdle waiting_{nullptr};
    QSignalSpy idle_{&waiting_, &WhenIdle::Idle};
};

TEST_F(WhenIdleTest, WhoDoesNothingIsIdleAfterASecondAndOnce) {
    EXPECT_TRUE(IsIdleWithin(5000));
    EXPECT_FALSE(IsIdleWithin(1200));
}

TEST_F(WhenIdleTest, EveryKeyBeginsTheSecondAnew) {
    QElapsedTimer sinceKey;
    (void)QTest::qWaitFor([] { return false; }, 600);
    QTest::keyClick(&window_, Qt::Key_A);
    sinceKey.start();
    EXPECT_TRUE(IsIdleWithin(5000));
    EXPECT_GE(sinceKey.elapsed(), WhenIdle::kQuiet - 50);
}

TEST_F(WhenIdleTest, AHeldKeyOrAnOpenBoxIsWaitedFor) {
    QTest::keyPress(&window_, Qt::Key_A);
    EXPECT_FALSE(IsIdleWithin(1500));
    QTest::keyRelease(&window_, Qt::Key_A);
    QDialog box;
    box.open();
    EXPECT_FALSE(IsIdleWithin(1500));
    box.close();
    EXPECT_TRUE(IsIdleWithin(5000));
}

} // namespace
} // namespace orvane
