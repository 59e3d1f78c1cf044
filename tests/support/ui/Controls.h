// SPDX-License-Identifier: GPL-3.0-or-later
// Finding and using the controls of a window by their names.
#pragma once

#include "support/ui/DialogAnswer.h"

#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>

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

// Runs the script in the next dialog that comes up, once it has the focus.
inline void InNextDialog(DialogAnswer& answers, const std::function<void(QWidget&)>& script) {
    answers.Do([script](QWidget& dialog) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        script(dialog);
        EXPECT_FALSE(dialog.isVisible()) << "the dialog was left open";
    });
}

} // namespace orvane
