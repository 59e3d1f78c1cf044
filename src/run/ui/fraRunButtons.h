// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/ui/RunWish.h"

#include <QWidget>

class QBoxLayout;
class QPushButton;

namespace orvane {

// The buttons that move the machine.
class fraRunButtons : public QWidget {
    Q_OBJECT

  public:
    explicit fraRunButtons(QWidget* parent);

    void SetBringBackPossible(bool possible);

  Q_SIGNALS:
    void Wanted(orvane::RunWish wish);

  private:
    QPushButton* AddButton(QBoxLayout& row, const char* name, const QString& caption, const QString& hint,
                           RunWish wish);

    QPushButton* cmdBringBack;
};

// A push button of the pane: found by its name, with its key told in its hint.
QPushButton* MakeRunButton(QWidget* parent, const char* name, const QString& caption, const QString& hint);

} // namespace orvane
