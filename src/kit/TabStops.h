// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QShortcut>

namespace orvane {

// A window, QDialog or QWidget, with fields in which Tab can be typed: from the first focus of such a field
// on, for the life of the window, Tab does not move the focus any more. F6 and Shift+F6 always do.
template <typename Window>
class TabStops : public Window {
  protected:
    explicit TabStops(QWidget* parent, Qt::WindowFlags flags = {}) : Window(parent, flags) {
        AddKey(Qt::Key_F6, true);
        AddKey(Qt::SHIFT | Qt::Key_F6, false);
    }

    void SuspendTabStops() { suspended_ = true; }

    bool focusNextPrevChild(bool next) override { return !suspended_ && Window::focusNextPrevChild(next); }

  private:
    void AddKey(const QKeySequence& keys, bool next) {
        auto* key = new QShortcut(keys, this);
        QObject::connect(key, &QShortcut::activated, this,
                         [this, next] { Window::focusNextPrevChild(next); });
    }

    bool suspended_ = false;
};

} // namespace orvane
