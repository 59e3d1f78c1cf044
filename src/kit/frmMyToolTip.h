// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/TooltipTiming.h"

#include <QFrame>

class QLabel;
class QTimer;

namespace orvane {

// The window with the hint about what is under the pointer. It comes up a moment after it was asked for, near
// the pointer but never under it, and never takes the focus. It goes when its owner's window stops being the
// active one.
class frmMyToolTip : public QFrame {
    Q_OBJECT

  public:
    explicit frmMyToolTip(QWidget* owner = nullptr);

    // Shows the text soon, next to the place on the screen. With wrap it is prose, broken where it fits; else
    // it is code, line by line. No text calls off what was asked for.
    void Display(const QString& text, bool wrap, const QPoint& globalPlace);
    void UnDisplay();
    // What is shown, or will be, has this text now; no text calls it off. Nothing comes up by this.
    void Follow(const QString& text, bool wrap);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Handle(char event);
    void Show();
    QSize SizeForText(const QRect& screen) const;

    QLabel* lblHint;
    QTimer* Timer1;
    TooltipTiming timing_;
    QString text_; // what is shown when the delay is over, and how and where
    bool wrap_ = false;
    QPoint place_;
};

// Where a hint of this size goes: below the place and to the right as far as the screen allows, else above.
// One that is too tall for both is cut to the taller side, so that it neither covers the place nor leaves the
// screen.
QRect HintRect(QSize size, const QPoint& place, const QRect& screen);

} // namespace orvane
