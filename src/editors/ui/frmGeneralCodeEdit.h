// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/GeneralCode.h"
#include "editors/ui/TabbedEditorDialog.h"
#include "text/Vocabulary.h"

#include <array>

class QCheckBox;

namespace orvane {

class SuggestionFrame;

// Edits what belongs to the machine as a whole. Each edit is in the code that the dialog holds at once, so
// that the program generated meanwhile can show it; Cancel puts back the texts, but neither the instance
// count nor the launch mark.
class frmGeneralCodeEdit : public TabbedEditorDialog {
    Q_OBJECT

  public:
    explicit frmGeneralCodeEdit(QWidget* parent = nullptr);

    void SetVocabulary(const Vocabulary& vocabulary);

    // Takes over this code to edit it.
    void ShowGeneralCode(const GeneralCode& general);

    // As it is edited now. The script that it names is as it was taken over.
    const GeneralCode& Code() const { return general_; }

    // Comes up until OK or Cancel. Without Polytask only the start-up code is offered.
    void Execute(bool polytask);

  protected:
    void Activate() override;
    void Cancel() override;

  private:
    void BuildPanes();
    CodePane* BuildPane(const char* name, bool findKey = true);
    void BuildTabs();
    QWidget* BuildLaunchPage();
    QWidget* BuildInstancesPage();
    void ConnectFields();
    void ConnectSegment(CodePane& pane, std::string GeneralCode::*segment,
                        void (frmGeneralCodeEdit::*suggest)());
    void ConnectOptions();

    void ShowFields();
    void FillFields();
    void ShowPolytask();
    void RefreshSuggestions();
    void RefreshCodeSuggestion();
    void RefreshInitSuggestion();
    void FocusPaneOfTab();
    void RefreshCaretReadOut();

    GeneralCode general_;
    GeneralCode snapshot_; // as it was when the dialog was opened
    bool polytask_ = false;

    QLabel* lblCodePrompt;
    CodePane* txtCodeSeg;
    CodePane* txtInitSeg;
    CodePane* txtNV0Data;
    CodePane* txtTestSeg;
    CodePane* txtHeader;
    std::array<CodePane*, 5> panes_; // in the order of their tabs
    SuggestionFrame* fraCodeSuggestion;
    SuggestionFrame* fraInitSuggestion;
    QCheckBox* chkLAUNCHSEG;
    DocumentLineEdit* txtInstanceCount;
};

} // namespace orvane
