// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/frmMyToolTip.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <gtest/gtest.h>

namespace orvane {
namespace {

class frmMyToolTipTest : public testing::Test {
  protected:
    frmMyToolTipTest() {
        Window.resize(300, 200);
        Window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Window));
        QCursor::setPos(Screen.bottomRight());
    }

    QTimer& Delay() const { return *Tip.findChild<QTimer*>(QStringLiteral("Timer1")); }
    bool Appears() {
        return QTest::qWaitFor([this] { return Tip.isVisible(); }, 3000);
    }

    QString Text() const { return Tip.findChild<QLabel*>()->text(); }

    // Shows a hint at the place without delay and returns where on the screen it came up.
    QRect Shown(const QString& text, bool wrap, const QPoint& place) {
        Tip.UnDisplay();
        Delay().setInterval(0);
        Tip.Display(text, wrap, place);
        EXPECT_TRUE(Appears());
        return Tip.geometry(); // the offscreen platform draws frames around windows that have none
    }

    QRect Screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget Window;
    frmMyToolTip Tip{&Window};
};

TEST_F(frmMyToolTipTest, AHintComesUpAfterTheDelay) {
    QElapsedTimer clock;
    clock.start();
    Tip.Display(QStringLiteral("Go to state 5:Busy\r\nPumps"), true, {100, 100});
    EXPECT_FALSE(Tip.isVisible());
    EXPECT_TRUE(Appears());
    EXPECT_GE(clock.elapsed(), 250); // a timer may be a little early, never by a whole tick
    EXPECT_EQ(Text(), QStringLiteral("Go to state 5:Busy\r\nPumps"));
}

TEST_F(frmMyToolTipTest, AHintThatIsCalledOffInTimeNeverComesUp) {
    const QSignalSpy ticks(&Delay(), &QTimer::timeout);
    Tip.Display(QStringLiteral("a"), false, {100, 100});
    EXPECT_TRUE(QTest::qWaitFor([&ticks] { return ticks.count() == 1; }, 3000));
    Tip.UnDisplay();
    EXPECT_FALSE(Delay().isActive()); // nothing else brings it up
    EXPECT_FALSE(Tip.isVisible());
}

TEST_F(frmMyToolTipTest, UnDisplayHidesAtOnce) {
    Shown(QStringLiteral("a"), false, {100, 100});
    Tip.UnDisplay();
    EXPECT_FALSE(Tip.isVisible());
}

TEST_F(frmMyToolTipTest, AnEmptyTextShowsNothingAndHidesWhatWasThere) {
    Shown(QStringLiteral("a"), false, {100, 100});
    Tip.Display(QString(), true, {100, 100});
    EXPECT_FALSE(Tip.isVisible());
    EXPECT_FALSE(Delay().isActive()); // nothing else brings it up
}

TEST_F(frmMyToolTipTest, TheFocusStaysWhereItWas) {
    QLineEdit field(&Window);
    field.show();
    field.setFocus();
    Shown(QStringLiteral("a"), false, {100, 100});
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&Tip));
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(QApplication::activeWindow(), &Window);
    EXPECT_TRUE(Tip.isVisible());
}

TEST_F(frmMyToolTipTest, TheHintGoesWithItsWindow) {
    Shown(QStringLiteral("a"), false, {100, 100});
    Window.hide();
    EXPECT_FALSE(Tip.isVisible());
}

TEST_F(frmMyToolTipTest, TheHintGoesWhenAnotherWindowBecomesActive) {
    Shown(QStringLiteral("a"), false, {100, 100});
    QWidget other;
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_FALSE(Tip.isVisible());
}

TEST_F(frmMyToolTipTest, ProseIsWrappedAndCodeIsNot) {
    const QString line = QStringLiteral("word ").repeated(40);
    const QRect code = Shown(line, false, {10, 100});
    const QRect prose = Shown(line, true, {10, 100});
    EXPECT_LT(prose.width(), code.width());
    EXPECT_GT(prose.height(), 2 * code.height());
}

TEST_F(frmMyToolTipTest, ShortProseIsNoWiderThanItsText) {
    EXPECT_LT(Shown(QStringLiteral("short"), true, {10, 100}).width(), 100);
}

TEST_F(frmMyToolTipTest, CodeIsShownAsItIsAndNotAsMarkup) {
    Shown(QStringLiteral("<b>bold?</b>"), false, {10, 100});
    EXPECT_EQ(Tip.findChild<QLabel*>()->textFormat(), Qt::PlainText);
}

TEST_F(frmMyToolTipTest, TheHintIsNearThePlaceNeverOverItNeverOffTheScreen) {
    const QString texts[] = {QStringLiteral("short"), QStringLiteral("word ").repeated(200),
                             QStringLiteral("line\r\n").repeated(300), QString(64 * 1024, QLatin1Char('x'))};
    for (const QString& text : texts) {
        for (const QPoint& place : {Screen.topLeft(), Screen.topRight(), Screen.bottomLeft(),
                                    Screen.bottomRight(), Screen.center()}) {
            QCursor::setPos(place);
            const QRect hint = Shown(text, text.contains(QLatin1Char(' ')), place);
            EXPECT_TRUE(Screen.contains(hint))
                << text.size() << " characters at " << place.x() << ", " << place.y() << ": " << hint.left()
                << ", " << hint.top() << ", " << hint.width() << " x " << hint.height();
            EXPECT_FALSE(hint.contains(place));
            EXPECT_LE(std::min(std::abs(hint.top() - place.y()), std::abs(hint.bottom() - place.y())), 30);
        }
    }
}

TEST_F(frmMyToolTipTest, APointerThatMovedOnWhileTheDelayRanIsNotCovered) {
    Tip.Display(QStringLiteral("word ").repeated(200), true, {100, 100});
    QCursor::setPos(150, 140);
    ASSERT_TRUE(Appears());
    EXPECT_FALSE(Tip.geometry().contains(QPoint(150, 140)));
}

TEST_F(frmMyToolTipTest, TextAndGroundAreThoseOfTheThemesHints) {
    const QPalette before = QToolTip::palette();
    QPalette dark = before;
    dark.setColor(QPalette::ToolTipBase, QColor(30, 30, 30));
    dark.setColor(QPalette::ToolTipText, QColor(230, 230, 230));
    QToolTip::setPalette(dark);
    Shown(QStringLiteral("a"), false, {100, 100});
    const QLabel* label = Tip.findChild<QLabel*>();
    EXPECT_EQ(Tip.grab().toImage().pixelColor(3, 3), QColor(30, 30, 30));
    EXPECT_EQ(label->palette().color(label->foregroundRole()), QColor(230, 230, 230));
    QToolTip::setPalette(before);
}

} // namespace
} // namespace orvane
