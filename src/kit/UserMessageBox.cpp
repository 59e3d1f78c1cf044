// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/UserMessageBox.h"

#include "kit/AnsiString.h"

namespace orvane {

namespace {

QMessageBox::Icon BoxIcon(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Warning:
        return QMessageBox::Warning;
    case MessageIcon::Critical:
        return QMessageBox::Critical;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButton Run(QMessageBox& box) {
    box.setTextFormat(Qt::PlainText);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

QMessageBox::StandardButton Show(QWidget* parent, const UserMessage& message) {
    const QMessageBox::StandardButtons buttons = message.Buttons == MessageButtons::YesNo
                                                     ? QMessageBox::Yes | QMessageBox::No
                                                     : QMessageBox::StandardButtons(QMessageBox::Ok);
    QMessageBox box(BoxIcon(message.Icon), FromAnsi(message.Title), FromAnsi(message.Text), buttons, parent);
    return Run(box);
}

void Tell(QWidget* parent, const QString& text, QMessageBox::Icon icon) {
    QMessageBox box(icon, QStringLiteral("Orvane"), text, QMessageBox::Ok, parent);
    Run(box);
}

bool AskYesNo(QWidget* parent, const QString& text) {
    return Ask(parent, {QStringLiteral("Orvane"), text, QMessageBox::NoIcon, QMessageBox::No});
}

QMessageBox::StandardButton AskYesNoCancel(QWidget* parent, const QString& title, const QString& text,
                                           QMessageBox::StandardButton byReturn) {
    QMessageBox box(QMessageBox::NoIcon, title, text,
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, parent);
    box.setDefaultButton(byReturn);
    box.setEscapeButton(QMessageBox::Cancel);
    return Run(box);
}

bool Ask(QWidget* parent, const YesNoQuestion& question) {
    QMessageBox box(question.Icon, question.Title, question.Text, QMessageBox::Yes | QMessageBox::No, parent);
    box.setDefaultButton(question.ByReturn);
    box.setEscapeButton(QMessageBox::No);
    return Run(box) == QMessageBox::Yes;
}

} // namespace orvane
