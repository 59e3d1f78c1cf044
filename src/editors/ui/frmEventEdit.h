// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/EventRecord.h"
#include "editors/ui/TabbedEditorDialog.h"
#include "text/Vocabulary.h"

namespace orvane {

// Edits one event: its name, the code that tests for it, and its comment. Any contents will do.
class frmEventEdit : public TabbedEditorDialog {
    Q_OBJECT

  public:
    explicit frmEventEdit(QWidget* parent = nullptr);

    void SetVocabulary(const Vocabulary& vocabulary);

    // Shows the event until the dialog closes. Cancel leaves it as it is.
    void Execute(EventRecord& editEvent);

    // The event as the fields have it now.
    EventRecord Typed() const;

  protected:
    void Activate() override;

  private:
    void BuildTabs();
    void ConnectFields();
    void ShowEventRecord();
    void Accept();
    void RefreshCaretReadOut();

    CodePane* txtEventCode;
    DocumentTextEdit* txtComment;
    EventRecord workingEvent_;
};

} // namespace orvane
