// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EditorWindows.h"

#include "editors/ui/frmEventEdit.h"
#include "editors/ui/frmGeneralCodeEdit.h"
#include "editors/ui/frmStateEdit.h"
#include "editors/ui/frmTransitionAction.h"

namespace orvane {

EditorWindows::EditorWindows(FsmDocument& document, const Vocabulary& vocabulary, QWidget* window)
    : QObject(window), document_(document), vocabulary_(vocabulary), window_(window) {}

void EditorWindows::EditState(int row, int state) {
    if (frmStateEdit_ == nullptr) {
        frmStateEdit_ = new frmStateEdit(window_);
        frmStateEdit_->SetVocabulary(vocabulary_);
        Connect(*frmStateEdit_);
    }
    frmStateEdit_->SetExitTabVisible(exitTab_);
    frmStateEdit_->SetTimeoutTabVisible(timeoutTab_);
    StateRecord editState = document_.State(state);
    frmStateEdit_->Execute(row, editState);
    document_.State(state) = editState;
}

void EditorWindows::EditEvent(int row) {
    if (frmEventEdit_ == nullptr) {
        frmEventEdit_ = new frmEventEdit(window_);
        frmEventEdit_->SetVocabulary(vocabulary_);
        Connect(*frmEventEdit_);
    }
    EventRecord editEvent = document_.Event(row);
    frmEventEdit_->Execute(editEvent);
    document_.Event(row) = editEvent;
}

void EditorWindows::EditGeneralCode() {
    if (frmGeneralCodeEdit_ == nullptr) {
        frmGeneralCodeEdit_ = new frmGeneralCodeEdit(document_.General, window_);
        frmGeneralCodeEdit_->SetVocabulary(vocabulary_);
        Connect(*frmGeneralCodeEdit_);
    }
    frmGeneralCodeEdit_->ShowGeneralCode();
    frmGeneralCodeEdit_->Execute(document_.View.Polytask);
}

void EditorWindows::EditTransitionAction(int row, int state) {
    if (frmTransitionAction_ == nullptr) {
        frmTransitionAction_ = new frmTransitionAction(window_);
        Connect(*frmTransitionAction_);
    }
    frmTransitionAction_->SetCode(document_.State(state).Actions[row]);
    frmTransitionAction_->Execute();
    document_.State(state).Actions[row] = frmTransitionAction_->Code();
}

void EditorWindows::Connect(EditorDialog& dialog) {
    connect(&dialog, &EditorDialog::Edited, this, &EditorWindows::Edited);
}

} // namespace orvane
