// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ui/DialogAnswer.h"

#include <QApplication>
#include <QFileDialog>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <utility>

namespace orvane {

namespace {

constexpr int kLookAgain = 5; // milliseconds

SeenDialog Describe(QWidget& dialog) {
    SeenDialog seen{dialog.windowTitle().toStdString(), {}, QMessageBox::NoIcon, QMessageBox::NoButton, {}};
    if (const auto* box = qobject_cast<QMessageBox*>(&dialog)) {
        seen.Text = box->text().toStdString();
        seen.Icon = box->icon();
        seen.Buttons = box->standardButtons();
    }
    if (const auto* files = qobject_cast<QFileDialog*>(&dialog))
        seen.NameFilters = files->nameFilters();
    return seen;
}

} // namespace

DialogAnswer::DialogAnswer() { LookAgain(); }

DialogAnswer::~DialogAnswer() { EXPECT_TRUE(answers_.empty()) << "a dialog that was expected did not come"; }

DialogAnswer& DialogAnswer::Press(QMessageBox::StandardButton button) {
    answers_.push_back([button](QWidget& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        if (box == nullptr || box->button(button) == nullptr)
            return false;
        box->button(button)->click();
        return true;
    });
    return *this;
}

DialogAnswer& DialogAnswer::ChooseFile(const QString& path) {
    answers_.push_back([path](QWidget& dialog) {
        auto* files = qobject_cast<QFileDialog*>(&dialog);
        if (files == nullptr)
            return false;
        files->selectFile(path);
        QMetaObject::invokeMethod(files, "accept");
        return true;
    });
    return *this;
}

DialogAnswer& DialogAnswer::CancelFile() {
    answers_.push_back([](QWidget& dialog) {
        auto* files = qobject_cast<QFileDialog*>(&dialog);
        if (files != nullptr)
            files->reject();
        return files != nullptr;
    });
    return *this;
}

DialogAnswer& DialogAnswer::Do(const std::function<void(QWidget&)>& action) {
    answers_.push_back([action](QWidget& dialog) {
        action(dialog);
        return true;
    });
    return *this;
}

// A new timer each time, because one timer does not fire while its own slot runs: an answer may open a dialog
// of its own, which has to be looked for while the first one is being dealt with.
void DialogAnswer::LookAgain() { QTimer::singleShot(kLookAgain, this, &DialogAnswer::LookForDialog); }

void DialogAnswer::LookForDialog() {
    LookAgain();
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible() || dialog == beingAnswered_)
        return;
    QWidget* before = std::exchange(beingAnswered_, dialog);
    Answer(*dialog);
    beingAnswered_ = before;
}

void DialogAnswer::Answer(QWidget& dialog) {
    seen_.push_back(Describe(dialog));
    if (answers_.empty()) {
        ADD_FAILURE() << "unexpected dialog: " << seen_.back().Title << ": " << seen_.back().Text;
        dialog.close();
        return;
    }
    const auto answer = answers_.front();
    answers_.pop_front();
    if (!answer(dialog)) {
        ADD_FAILURE() << "another kind of dialog than expected: " << seen_.back().Text;
        dialog.close();
    }
}

} // namespace orvane
