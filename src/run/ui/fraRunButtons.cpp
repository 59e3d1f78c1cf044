// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/fraRunButtons.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace orvane {

QPushButton* MakeRunButton(QWidget* parent, const char* name, const QString& caption, const QString& hint) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(hint);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves the keys where they are
    return button;
}

fraRunButtons::fraRunButtons(QWidget* parent) : QWidget(parent) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    auto* forward = new QHBoxLayout;
    auto* back = new QHBoxLayout;
    rows->addLayout(forward);
    rows->addLayout(back);
    AddButton(*forward, "cmdPowerOn", tr("Power on"),
              tr("Begins a new run, with the inputs as they are (Home)"), RunWish::PowerOn);
    AddButton(*forward, "cmdStep", tr("Step"), tr("One unit of time passes (Space)"), RunWish::Step);
    AddButton(*forward, "cmdToTimeout", tr("To timeout"),
              tr("Time passes until the timeout of this state is due (T)"), RunWish::ToTimeout);
    AddButton(*forward, "cmdToChange", tr("To change"), tr("Time passes until the state is another one (N)"),
              RunWish::ToChange);
    AddButton(*back, "cmdStepBack", tr("Back"), tr("One step back (Backspace)"), RunWish::StepBack);
    AddButton(*back, "cmdStepForward", tr("Forward"), tr("One step forward again (Shift+Backspace)"),
              RunWish::StepForward);
    cmdBringBack =
        AddButton(*back, "cmdBringBack", tr("Bring back"),
                  tr("What was cut off when something else was done comes back"), RunWish::BringBack);
    forward->addStretch();
    back->addStretch();
}

QPushButton* fraRunButtons::AddButton(QBoxLayout& row, const char* name, const QString& caption,
                                      const QString& hint, RunWish wish) {
    QPushButton* button = MakeRunButton(this, name, caption, hint);
    row.addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, wish] { Q_EMIT Wanted(wish); });
    return button;
}

void fraRunButtons::SetBringBackPossible(bool possible) { cmdBringBack->setEnabled(possible); }

} // namespace orvane
