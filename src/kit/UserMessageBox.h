// SPDX-License-Identifier: GPL-3.0-or-later
// The one place where messages become message boxes.
#pragma once

#include "core/UserMessage.h"

#include <QMessageBox>

namespace orvane {

// Shows the message and waits for its button.
QMessageBox::StandardButton Show(QWidget* parent, const UserMessage& message);

// Tells something with the program's name as the title.
void Tell(QWidget* parent, const QString& text, QMessageBox::Icon icon = QMessageBox::NoIcon);

// Asks with the buttons Yes, No and Cancel; closing the box is Cancel.
QMessageBox::StandardButton AskYesNoCancel(QWidget* parent, const QString& title, const QString& text);

} // namespace orvane
