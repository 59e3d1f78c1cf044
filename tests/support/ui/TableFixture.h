// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/frmTable.h"
#include "support/ui/DialogAnswer.h"

#include <QAction>
#include <QLineEdit>
#include <QTableView>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace orvane {

// The real main window in a folder of its own, driven by mouse and keys and found by name.
class TableFixture : public testing::Test {
  protected:
    TableFixture();
    ~TableFixture() override;

    // Starts the window on a file with this document, or on the bytes given.
    void StartOn(const FsmDocument& document);
    void StartOnBytes(const std::string& bytes);
    // Starts it with these arguments in the folder as it is.
    void Start(const QStringList& arguments = {});
    // The window is gone without a word, as after a kill: only the journal is left of what was not saved.
    void Crash() { window_.reset(); }

    QString Path(const QString& name) const { return folder_.filePath(name); }
    void WriteFile(const QString& name, const std::string& bytes) const;
    std::string ReadFile(const QString& name) const;
    // The document as a save writes it.
    FsmDocument SavedDocument();

    frmTable& Window() { return *window_; }
    QTableView* Grid() { return Find<QTableView>("MSFlexGrid1"); }
    QLineEdit* Editor() { return Find<QLineEdit>("txtCellEdit"); }
    std::string Text(int row, int column);
    QColor Colour(int row, int column);
    std::string Title();
    std::string EditorText();
    std::string Panel(const char* name);
    QAction* Item(const char* name);

    template <typename Widget>
    Widget* Find(const char* name) {
        return window_->findChild<Widget*>(QLatin1String(name));
    }

    // The cell's visible rectangle, scrolled into view.
    QRect CellRect(int row, int column);
    void Click(int row, int column, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = {});
    void MoveTo(int row, int column);
    void Trigger(const char* item);
    // The menu that is popped up now, closed by this; empty when there is none.
    std::string PoppedUp();
    // Types a target into a cell and presses Enter.
    void TypeTarget(int row, int column, const QString& digits);

    DialogAnswer Answers;

  private:
    QTemporaryDir folder_;
    QString formerFolder_;
    std::unique_ptr<frmTable> window_;
};

// A pump: states 1:Idle and 2:Run, events Start and Stop, no design errors.
FsmDocument PumpDocument();

} // namespace orvane
