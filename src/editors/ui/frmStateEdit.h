// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/StateRecord.h"
#include "editors/TimingOptions.h"
#include "editors/ui/TabbedEditorDialog.h"
#include "text/Vocabulary.h"

namespace orvane {

class TimeoutPage;

// Edits one state: its name, comment, entry and exit action, and its timeout. A timeout without a limit is
// refused.
class frmStateEdit : public TabbedEditorDialog {
    Q_OBJECT

  public:
    explicit frmStateEdit(QWidget* parent = nullptr);

    void SetVocabulary(const Vocabulary& vocabulary);
    void SetTimeoutTabVisible(bool visible);
    void SetExitTabVisible(bool visible);

    // Shows the state until the dialog closes. Cancel leaves it as it is. The row of the table, 0..3, that
    // was pressed chooses a tab, which the first tab takes over from as soon as the dialog is up.
    void Execute(RowNumber row, StateRecord& editState);

    // The state as the fields have it now; the timing mode only where the options make one.
    StateRecord Typed() const;

  protected:
    void Activate() override;

  private:
    void BuildTabs();
    void ConnectFields();
    void ChooseTab(RowNumber row);
    void ShowState();
    void ShowTimingMode();
    void Accept();
    TimingChoice TimingChosen() const;
    bool AcceptsTiming();
    void FocusPaneOfTab();
    void RefreshCaretReadOut();

    CodePane* txtEntryCode;
    DocumentTextEdit* txtComment;
    TimeoutPage* timeout_;
    CodePane* txtExitCode;
    StateRecord workingState_;
};

} // namespace orvane
