// SPDX-License-Identifier: GPL-3.0-or-later
// Windows fit the screen that they open on, whatever size they were made or remembered for.
#pragma once

#include <QObject>

class QRect;
class QWidget;

namespace orvane {

// Makes the window no larger than the screen and moves it there, however it was remembered.
void FitOnScreen(QWidget& window, const QRect& screen);

// As long as it lives, every window and dialog of the program that comes up is made no larger than its
// screen.
class OnScreen : public QObject {
    Q_OBJECT

  public:
    OnScreen();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace orvane
