// SPDX-License-Identifier: GPL-3.0-or-later
// What a text in the status bar asks of the window around it.
#include "app/TableStatusBar.h"
#include "support/ui/Controls.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QMainWindow>

#include <string>

namespace orvane {
namespace {

// How often a widget is to lay out anew what is in it.
class Layouts final : public QObject {
  public:
    bool eventFilter(QObject*, QEvent* event) override {
        Count += event->type() == QEvent::LayoutRequest ? 1 : 0;
        return false;
    }

    int Count = 0;
};

class StatusBarTest : public testing::Test {
  protected:
    StatusBarTest() {
        window.setCentralWidget(new QWidget);
        window.setStatusBar(bar);
        window.resize(600, 400);
        bar->ShowName(QStringLiteral("PUMP"));
        bar->ShowFindings(QStringLiteral("2 errors"));
        window.show();
        Settle();
    }

    static void Settle() {
        for (int turn = 0; turn < 8; ++turn) // a layout in a layout is told one turn later
            QApplication::processEvents();
    }
    template <typename Action>
    int LayoutsAfter(Action&& act) {
        Layouts layouts;
        window.installEventFilter(&layouts);
        bar->installEventFilter(&layouts);
        act();
        Settle();
        return layouts.Count;
    }
    QLabel& Label(const char* name) { return Named<QLabel>(*bar, name); }
    bool HasItsRoom(const char* name) { return Label(name).width() >= Label(name).sizeHint().width(); }

    QMainWindow window;
    TableStatusBar* bar = new TableStatusBar(&window);
};

const QString kEndless(400, QLatin1Char('m'));

TEST_F(StatusBarTest, WhatIsSaidLaysNothingOutAnew) {
    EXPECT_EQ(LayoutsAfter([this] {
                  bar->Say(QStringLiteral("Undone: transition"));
                  bar->ShowProgram(kEndless);
                  bar->ShowProblem(QStringLiteral("There is no vocab.txt"));
                  bar->ShowShift(true);
              }),
              0);
    EXPECT_EQ(LayoutsAfter([this] { bar->Say({}); }), 0);
}

TEST_F(StatusBarTest, ACountOfTheSameWidthLaysNothingOutAnew) {
    EXPECT_EQ(LayoutsAfter([this] { bar->ShowFindings(QStringLiteral("3 errors")); }), 0);
}

TEST_F(StatusBarTest, NameAndCountGetTheRoomThatTheyNeed) {
    for (const char* text : {"PUMP STATION 12", "FAN"}) {
        bar->ShowName(QLatin1String(text));
        bar->ShowFindings(QLatin1String(text));
        Settle();
        EXPECT_TRUE(HasItsRoom("Panel2")) << text;
        EXPECT_TRUE(HasItsRoom("lblFindings")) << text;
    }
    EXPECT_LT(Label("Panel2").width(), Label("Panel2").sizeHint().width() + 10) << "as before it was shorter";
}

TEST_F(StatusBarTest, ATextThatCameWhileTheWindowWasHiddenGetsItsRoomToo) {
    window.hide();
    bar->ShowName(QStringLiteral("PUMP STATION 12"));
    Settle();
    window.show();
    Settle();
    EXPECT_TRUE(HasItsRoom("Panel2"));
}

TEST_F(StatusBarTest, NoTextMakesTheWindowsLeastSizeLarger) {
    const QSize least = window.minimumSizeHint();
    bar->ShowName(kEndless);
    bar->ShowFindings(kEndless);
    bar->ShowProblem(kEndless + QLatin1Char('\n') + kEndless);
    bar->Say(kEndless);
    Settle();
    EXPECT_EQ(window.minimumSizeHint(), least);
    EXPECT_EQ(window.width(), 600);
    EXPECT_LE(Label("Panel2").width(), 400);
    EXPECT_EQ(Label("Panel2").toolTip(), kEndless);
}

} // namespace
} // namespace orvane
