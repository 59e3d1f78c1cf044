// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/TimingMode.h"
#include "editors/TimingHelp.h"
#include "editors/ui/frmStateEdit.h"
#include "kit/CodePane.h"
#include "support/ui/Controls.h"
#include "support/ui/OpenedAddresses.h"
#include "support/ui/Typing.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>

#include <gtest/gtest.h>

namespace orvane {

// The state editor, opened on a state of its own and driven by a script while it is up.
class StateEditTest : public testing::Test {
  protected:
    StateEditTest() {
        state.Name = "Idle";
        state.Tooltip = "waits\r\nfor work";
        state.EntryCode = "\tNop\r\n";
        state.ExitCode = "leave";
        state.TimeConst = "7";
        state.TimingVar = "\tLoadW\tLimit";
        state.TimerId = "T9";
        state.Targets[6] = 4;
        state.Actions[6] = "action";
        state.ColWidth = 1200;
    }

    // Opens the state, runs the script while the dialog is up and returns when it has closed.
    void Open(const std::function<void()>& script, int row = 0) {
        InNextDialog(Answers, [&](QWidget&) { script(); });
        dialog.Execute(row, state);
    }

    template <typename T>
    T& Control(const char* name) {
        return Named<T>(dialog, name);
    }
    QTabWidget& Tabs() { return Control<QTabWidget>("SSTab1"); }
    QString Panel3() { return Control<QLabel>("Panel3").text(); }
    bool IsOn(const char* option) { return Control<QRadioButton>(option).isChecked(); }
    bool IsShown(const char* frame) { return Control<QGroupBox>(frame).isVisible(); }
    void Choose(const char* option) {
        QTest::mouseClick(&Control<QRadioButton>(option), Qt::LeftButton, {}, QPoint(8, 8));
    }
    void ClickTab(int tab) {
        QTest::mouseClick(Tabs().tabBar(), Qt::LeftButton, {}, Tabs().tabBar()->tabRect(tab).center());
    }
    void TypeInto(const char* field, const QString& text) {
        auto& edit = Control<QLineEdit>(field);
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }
    void OK() { Press(dialog, "cmdOK"); }
    void Cancel() { Press(dialog, "cmdCancel"); }

    StateRecord state;
    DialogAnswer Answers;
    frmStateEdit dialog;
};

} // namespace orvane
