// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editors/ui/EditorDialog.h"

class QTabWidget;

namespace orvane {

// An editor of something that has a name and more fields than one page holds: the name, the tabs, the buttons
// and the status bar stand one below the other.
class TabbedEditorDialog : public EditorDialog {
  protected:
    TabbedEditorDialog(const QString& name, int helpPage, QWidget* parent);

    // Lays out the dialog. `addPages` fills SSTab1; F6 goes through the controls in the order in which it
    // makes them.
    void LayOutTabs(const QString& tabsName, const std::function<void()>& addPages);

    // Adds a page with a prompt above the field that it asks for, and returns it.
    QWidget* AddPage(const QString& caption, QLabel* prompt, QWidget* field);

    void ShowLeftOut(const QString& characters) override;

    DocumentLineEdit* txtName = nullptr;
    QTabWidget* SSTab1 = nullptr;
    EditorStatusBar* StatusBar1 = nullptr;

  private:
    QHBoxLayout* BuildNameRow();
};

} // namespace orvane
