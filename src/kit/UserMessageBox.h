// SPDX-License-Identifier: GPL-3.0-or-later
// Messages and questions in boxes, their text as it stands: a path is not taken for markup.
#pragma once

#include "core/UserMessage.h"

#include <QMessageBox>

namespace orvane {

// Shows the message and waits for its button.
QMessageBox::StandardButton Show(QWidget* parent, const UserMessage& message);

// Tells something with the program's name as the title.
void Tell(QWidget* parent, const QString& text, QMessageBox::Icon icon = QMessageBox::NoIcon);

// Asks with the buttons Yes and No before something that cannot be taken back; No is what Return presses.
[[nodiscard]] bool AskYesNo(QWidget* parent, const QString& text);

// Asks with the buttons Yes, No and Cancel; closing the box is Cancel, Return the one that is given for it.
QMessageBox::StandardButton AskYesNoCancel(QWidget* parent, const QString& title, const QString& text,
                                           QMessageBox::StandardButton byReturn = QMessageBox::Yes);

struct YesNoQuestion {
    QString Title;
    QString Text;
    QMessageBox::Icon Icon;
    QMessageBox::StandardButton ByReturn; // what Return presses; closing the box is No
};

// Whether the answer is Yes.
[[nodiscard]] bool Ask(QWidget* parent, const YesNoQuestion& question);

} // namespace orvane
