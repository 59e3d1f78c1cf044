// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/frmTable.h"

#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <stdexcept>
#include <string>

class QAction;

namespace orvane {

// The real main window on a document that has a file, driven by mouse and keys and found by name.
class TableDriver {
  public:
    explicit TableDriver(const FsmDocument& document);

    // These return when everything is painted.
    void Open();
    void Trigger(const char* item);

    // Opens the in-place editor of the cell and types a target, without Enter.
    void BeginTarget(int row, int column, const QString& target);
    void CommitTarget();
    // Shows a pane, or hides it, by its item.
    void ShowPane(const char* item, bool shown);
    // Chooses the next cell by an arrow, there and back.
    void StepRight();
    void StepLeft();
    // Opens the pop-up menu of the cell and closes it, so that its items act on this cell.
    void PressForMenu(int row, int column);
    // Opens the general code editor, runs `use` in it, and closes it with OK.
    void UseGeneralCodeEditor(const std::function<void()>& use);
    // Types one letter into the pane, which has the focus.
    void TypeLetter(const char* pane);

    // Clears the field of the find pane, and types a letter into it.
    void ClearFind();
    void TypeFind(char letter);
    // Scrolls the table by a screen, right and down or back.
    void Scroll(bool forward);

    // Plays a test of so many steps in the pane of the run, which stays open.
    void PlaySteps(int steps);
    void RepaintTable();

    // As the user switches it in the window for recovery.
    void KeepJournal(bool keep);

    QAction* Item(const char* name) { return &Find<QAction>(name); }
    qint64 ProgramSize() const;

  private:
    template <typename Object>
    Object& Find(const char* name) {
        auto* object = window_.findChild<Object*>(QLatin1String(name));
        if (object == nullptr)
            throw std::runtime_error(std::string("there is no ") + name);
        return *object;
    }
    void Press(int row, int column, Qt::MouseButton button);

    QTemporaryDir folder_;
    frmTable window_;
};

// Sends the key as a keyboard does, down and up.
void SendKey(QWidget& widget, int key, const QString& text);

} // namespace orvane
