// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/TabStops.h"

#include <QDialog>

#include <functional>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace orvane {

class CodePane;
class DocumentLineEdit;
class DocumentTextEdit;
class EditedLabel;
class EditorStatusBar;

// What the dialogs that edit a piece of the document have in common: OK and Cancel, the help page on F1, and
// what their fields do to the dialog. It is hidden when it closes, never destroyed; the close button and
// Escape are Cancel.
class EditorDialog : public TabStops<QDialog> {
    Q_OBJECT

  public:
    // Tells inside the dialog what it edits.
    void SetEdited(const QString& what);

    void reject() override;
    // It opens again where it was closed.
    void setVisible(bool visible) override;

  Q_SIGNALS:
    // Something was edited that the generated program may show.
    void Edited();

  protected:
    EditorDialog(const QString& name, int helpPage, QWidget* parent);

    // Runs before Cancel closes the dialog.
    virtual void Cancel() {}
    // Runs each time the dialog comes up.
    virtual void Activate() = 0;
    // Tells the user about characters that a field did not take.
    virtual void ShowLeftOut(const QString& characters) = 0;

    QHBoxLayout* BuildButtons();
    QLabel* BuildPrompt(const char* name, const QString& text);
    // All of the dialog above its status bar.
    void LayOut(const std::function<void(QVBoxLayout&)>& fill, EditorStatusBar* statusBar);

    // Connects what a field tells. A change of a connected field runs `changed`, then tells Edited; a focus
    // that is connected suspends the tab stops.
    void ConnectLine(DocumentLineEdit& field, const std::function<void()>& changed = {});
    void ConnectText(DocumentTextEdit& field, const std::function<void()>& changed = {});
    void ConnectPane(CodePane& pane, const std::function<void()>& changed = {});

    // Changes the fields without telling Edited: what they show is already in the document.
    void Fill(const std::function<void()>& setFields);
    void TellEdited();

    void showEvent(QShowEvent* event) override;

    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;

  private:
    std::function<void()> WhenChanged(const std::function<void()>& changed);

    EditedLabel* lblEdited = nullptr;
    QByteArray place_; // where it was closed
    bool filling_ = false;
};

} // namespace orvane
