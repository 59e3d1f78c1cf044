// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "text/Vocabulary.h"

#include <QObject>

class QWidget;

namespace orvane {

class EditorDialog;
class frmEventEdit;
class frmGeneralCodeEdit;
class frmStateEdit;
class frmTransitionAction;

// The dialogs that edit pieces of the document. Each is made when it is first wanted and kept. An operation
// returns when its dialog has closed; the document has the edited piece then, or what Cancel left of it.
class EditorWindows : public QObject {
    Q_OBJECT

  public:
    // All outlive this; the dialogs come up over the window.
    EditorWindows(FsmDocument& document, const Vocabulary& vocabulary, QWidget* window);

    // The pressed row, 0..3, says where in the state the user wants to be.
    void EditState(int row, int state);
    void EditEvent(int row);
    void EditGeneralCode();
    void EditTransitionAction(int row, int state);

    // Which tabs the state editor shows: they go with rows of the table.
    void ShowExitTab(bool visible) { exitTab_ = visible; }
    void ShowTimeoutTab(bool visible) { timeoutTab_ = visible; }

  Q_SIGNALS:
    // Something was edited that the generated program may show; the dialog is still open.
    void Edited();

  private:
    void Connect(EditorDialog& dialog);

    FsmDocument& document_;
    const Vocabulary& vocabulary_;
    QWidget* window_;
    frmStateEdit* frmStateEdit_ = nullptr;
    frmEventEdit* frmEventEdit_ = nullptr;
    frmGeneralCodeEdit* frmGeneralCodeEdit_ = nullptr;
    frmTransitionAction* frmTransitionAction_ = nullptr;
    bool exitTab_ = true;
    bool timeoutTab_ = true;
};

} // namespace orvane
