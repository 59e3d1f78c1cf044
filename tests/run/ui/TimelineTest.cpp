// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/RunPaneFixture.h"

#include <QImage>
#include <QWheelEvent>

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::HasSubstr;

class TimelineOfPane : public RunPaneFixture {
  protected:
    void Begin() {
        StartRunning(TimedPump());
        PressButton("cmdPowerOn");
        ClickInput(QStringLiteral("Start"));
        PressKey(Qt::Key_T);
        for (int i = 0; i < 20; ++i)
            PressKey(Qt::Key_Space);
        EXPECT_EQ(Where(), "1:Idle at 120");
    }

    QWidget& Lanes() { return Named<QWidget>(Window(), "timRun"); }
    int XOf(qint64 time) {
        int x = -1;
        EXPECT_TRUE(QMetaObject::invokeMethod(&Lanes(), "XOf", Q_RETURN_ARG(int, x), Q_ARG(qint64, time)));
        return x;
    }
    void PressAt(qint64 time) {
        QTest::mouseClick(&Lanes(), Qt::LeftButton, {}, {XOf(time), Lanes().height() / 2});
    }
    void Wheel(qint64 time, int notches) {
        const QPointF place(XOf(time), 5);
        QWheelEvent event(place, Lanes().mapToGlobal(place), {}, {0, 120 * notches}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Lanes(), &event);
    }
    // The moment shown is a red line through all lanes.
    bool IsMomentAt(qint64 time) {
        const QImage picture = Lanes().grab().toImage();
        for (int y = 2; y < picture.height() - 2; ++y) {
            if (picture.pixelColor(XOf(time), y) != QColor(220, 0, 0))
                return false;
        }
        return true;
    }
};

TEST_F(TimelineOfPane, APressGoesToThatMoment) {
    Begin();
    EXPECT_TRUE(IsMomentAt(120));
    PressAt(50);
    EXPECT_EQ(Where(), "2:Run at 50");
    EXPECT_TRUE(IsMomentAt(50));
    EXPECT_FALSE(IsMomentAt(120));
    PressAt(110);
    EXPECT_EQ(Where(), "1:Idle at 110");
}

TEST_F(TimelineOfPane, TheWheelZoomsWhereThePointerIsAndBackToTheWhole) {
    Begin();
    const int at60 = XOf(60);
    const int unit = XOf(70) - at60;
    Wheel(60, 3);
    EXPECT_NEAR(XOf(60), at60, 1);
    EXPECT_GT(XOf(70) - XOf(60), unit + 5);
    Wheel(60, -10);
    EXPECT_EQ(XOf(60), at60);
    EXPECT_EQ(XOf(70) - XOf(60), unit);
}

TEST_F(TimelineOfPane, TheMomentShownComesIntoSightWhenZoomed) {
    Begin();
    Wheel(0, 8);
    EXPECT_GT(XOf(120), Lanes().width());
    PressKey(Qt::Key_Space);
    EXPECT_LT(XOf(121), Lanes().width());
    EXPECT_TRUE(IsMomentAt(121));
}

TEST_F(TimelineOfPane, AnInputThatIsUsedGetsALane) {
    Begin();
    const int before = Lanes().sizeHint().height();
    ClickInput(QStringLiteral("Stop"));
    EXPECT_GT(Lanes().sizeHint().height(), before);
}

TEST_F(TimelineOfPane, IsSavedAsPictureAndForViewersOfSignals) {
    Begin();
    Answers.ChooseFile(Path(QStringLiteral("lanes.png")));
    PressButton("cmdSavePicture");
    const QImage picture(Path(QStringLiteral("lanes.png")));
    EXPECT_EQ(picture.height(), Lanes().sizeHint().height()); // all lanes
    EXPECT_GT(picture.width(), 200);
    Answers.ChooseFile(Path(QStringLiteral("run.vcd")));
    PressButton("cmdSaveVcd");
    const std::string dump = ReadFile(QStringLiteral("run.vcd"));
    EXPECT_THAT(dump, HasSubstr("$enddefinitions"));
    EXPECT_THAT(dump, HasSubstr("Start"));
}

TEST_F(TimelineOfPane, WithoutPowerThereIsNothingForViewers) {
    StartRunning(TimedPump());
    Answers.Press(QMessageBox::Ok);
    PressButton("cmdSaveVcd");
    EXPECT_EQ(Answers.Seen().back().Text, "There is nothing to save before power on.");
}

} // namespace
} // namespace orvane
