// SPDX-License-Identifier: GPL-3.0-or-later
// Drives modal windows from tests: what is to be done in one is said before it comes up.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>

namespace orvane {

// A child of the window by its name; the test fails when there is none.
template <typename T>
T& Named(const QWidget& window, const char* name) {
    T* child = window.findChild<T*>(QString::fromLatin1(name));
    if (child == nullptr)
        throw std::runtime_error(std::string("no such control: ") + name);
    return *child;
}

inline void Press(const QWidget& window, const char* button) {
    QTest::mouseClick(&Named<QPushButton>(window, button), Qt::LeftButton);
}

// Runs `drive` on the next modal dialog that comes up over what is modal now. A dialog that is still open
// afterwards is a failure and is closed, so that the test goes on.
inline void DriveNextModal(const std::function<void(QDialog&)>& drive) {
    constexpr int patience = 5; // milliseconds between two looks
    const QWidget* before = QApplication::activeModalWidget();
    auto* look = new QTimer(qApp);
    QObject::connect(look, &QTimer::timeout, look, [look, before, drive] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog == before)
            return;
        look->stop();
        look->deleteLater();
        if (!QTest::qWaitForWindowActive(dialog))
            ADD_FAILURE() << "the dialog never became active";
        drive(*dialog);
        if (dialog->isVisible()) {
            ADD_FAILURE() << "the dialog was left open";
            dialog->reject();
        }
    });
    look->start(patience);
}

struct SeenMessage {
    bool Shown = false;
    QString Title;
    QString Text;
    QMessageBox::Icon Icon = QMessageBox::NoIcon;
};

// Answers the next message box with its default button and notes what it said.
inline std::shared_ptr<SeenMessage> AnswerNextMessage() {
    auto seen = std::make_shared<SeenMessage>();
    DriveNextModal([seen](QDialog& dialog) {
        const auto* box = qobject_cast<QMessageBox*>(&dialog);
        if (box == nullptr) {
            ADD_FAILURE() << "not a message box: " << dialog.objectName().toStdString();
            return;
        }
        *seen = {true, box->windowTitle(), box->text(), box->icon()};
        dialog.accept();
    });
    return seen;
}

} // namespace orvane
