// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDockWidget>

namespace orvane {

// A pane of the main window. Esc and Ctrl+W close it, F1 opens its page of the help.
class Pane : public QDockWidget {
    Q_OBJECT

  public:
    Pane(const char* name, const QString& title, int helpPage, QWidget* parent);

    // Gives the focus to the field that is worked in first.
    virtual void TakeFocus() { setFocus(); }

  protected:
    bool event(QEvent* event) override;

  private:
    int helpPage_;
};

} // namespace orvane
