// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/frmStateEdit.h"

#include "editors/ui/EditorStatusBar.h"
#include "editors/ui/TimeoutPage.h"
#include "kit/CodePane.h"
#include "kit/DocumentLineEdit.h"
#include "kit/DocumentTextEdit.h"
#include "kit/UserMessageBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int kStateEditHelpPage = 4944;
constexpr QSize kStateEditSize = {640, 480}; // pixels

constexpr int kEntryTab = 0;
constexpr int kTimeoutTab = 2;
constexpr int kExitTab = 3;

constexpr PaneHandlers kEntryCode = {
    .GotFocus = true, .TextChanged = true, .FindKey = true, .MouseReleased = true};
constexpr PaneHandlers kExitCode = {}; // for documentation only: never generated

} // namespace

frmStateEdit::frmStateEdit(QWidget* parent)
    : TabbedEditorDialog(QStringLiteral("frmStateEdit"), kStateEditHelpPage, parent) {
    setWindowTitle(QStringLiteral("State Definition"));
    LayOutTabs(tr("Parts of the state"), [this] { BuildTabs(); });
    ConnectFields();
    resize(kStateEditSize);
}

void frmStateEdit::BuildTabs() {
    txtEntryCode = new CodePane(kEntryCode, this);
    txtEntryCode->setObjectName(QStringLiteral("txtEntryCode"));
    txtComment = new DocumentTextEdit(this);
    txtComment->setObjectName(QStringLiteral("txtComment"));
    timeout_ = new TimeoutPage(this);
    txtExitCode = new CodePane(kExitCode, this);
    txtExitCode->setObjectName(QStringLiteral("txtExitCode"));
    QLabel* entryPrompt =
        BuildPrompt("lblEntryPrompt", QStringLiteral("Code entered here will be executed just once whenever "
                                                     "the program enters this state."));
    QLabel* commentPrompt =
        BuildPrompt("lblCommentPrompt", QStringLiteral("This text become a tooltip style comment for the "
                                                       "state. It has no effect on the program"));
    QLabel* exitPrompt =
        BuildPrompt("lblExitPrompt", QStringLiteral("Code entered here will be executed just once whenever "
                                                    "the program leaves this state."));
    AddPage(QStringLiteral("Entry action"), entryPrompt, txtEntryCode);
    AddPage(QStringLiteral("Comment"), commentPrompt, txtComment);
    SSTab1->addTab(timeout_, QStringLiteral("Timeout"));
    AddPage(QStringLiteral("Exit action"), exitPrompt, txtExitCode);
}

void frmStateEdit::ConnectFields() {
    ConnectLine(*txtName);
    ConnectLine(timeout_->TimerId());
    ConnectLine(timeout_->TimeConst());
    for (DocumentTextEdit* field : {txtComment, &timeout_->TimingVar()}) {
        ConnectText(*field);
        connect(field, &DocumentTextEdit::GotFocus, this, &frmStateEdit::SuspendTabStops);
    }
    for (CodePane* pane : {txtEntryCode, txtExitCode})
        ConnectPane(*pane);
    connect(txtEntryCode, &CodePane::CaretReadOutDue, this, &frmStateEdit::RefreshCaretReadOut);
    connect(timeout_, &TimeoutPage::OptionChosen, this, &frmStateEdit::TellEdited);
    connect(SSTab1, &QTabWidget::currentChanged, this, &frmStateEdit::FocusPaneOfTab);
    connect(SSTab1, &QTabWidget::tabBarClicked, this, &frmStateEdit::FocusPaneOfTab);
    connect(cmdOK, &QPushButton::clicked, this, &frmStateEdit::Accept);
}

void frmStateEdit::SetVocabulary(const Vocabulary& vocabulary) {
    txtEntryCode->SetVocabulary(vocabulary);
    txtExitCode->SetVocabulary(vocabulary);
}

void frmStateEdit::SetTimeoutTabVisible(bool visible) { SSTab1->setTabVisible(kTimeoutTab, visible); }

void frmStateEdit::SetExitTabVisible(bool visible) { SSTab1->setTabVisible(kExitTab, visible); }

void frmStateEdit::Execute(RowNumber row, StateRecord& editState) {
    workingState_ = editState;
    Fill([this, row] {
        ChooseTab(row);
        ShowState();
    });
    exec();
    editState = workingState_;
}

void frmStateEdit::ChooseTab(RowNumber row) {
    if (row == kHeadRow)
        SSTab1->setCurrentIndex(workingState_.LastTab);
    else if (row == kEntryActionRow)
        SSTab1->setCurrentIndex(kEntryTab);
    else if (row == kTimingModeRow)
        SSTab1->setCurrentIndex(kTimeoutTab);
}

void frmStateEdit::ShowState() {
    txtName->SetText(workingState_.Name);
    txtEntryCode->SetText(workingState_.EntryCode);
    txtComment->SetText(workingState_.Tooltip);
    ShowTimingMode();
    timeout_->TimeConst().SetText(workingState_.TimeConst);
    timeout_->TimingVar().SetText(workingState_.TimingVar);
    timeout_->TimerId().SetText(workingState_.TimerId);
    txtExitCode->SetText(workingState_.ExitCode);
}

void frmStateEdit::ShowTimingMode() {
    if (const auto options = OptionsOf(workingState_.TimingMode))
        timeout_->SetOptions(*options);
    else
        Show(parentWidget(), UnknownTimingModeMessage());
}

void frmStateEdit::Activate() {
    SSTab1->setCurrentIndex(kEntryTab);
    txtEntryCode->setFocus();
}

StateRecord frmStateEdit::Typed() const {
    StateRecord state = workingState_;
    state.Name = txtName->Text();
    state.Tooltip = txtComment->Text();
    state.TimerId = timeout_->TimerId().Text();
    state.TimingMode = TimingChosen().Mode.value_or(workingState_.TimingMode);
    state.EntryCode = txtEntryCode->Text();
    state.TimeConst = timeout_->TimeConst().Text();
    state.TimingVar = timeout_->TimingVar().Text();
    state.ExitCode = txtExitCode->Text();
    state.LastTab = static_cast<std::int16_t>(SSTab1->currentIndex());
    return state;
}

TimingChoice frmStateEdit::TimingChosen() const {
    return ChooseTimingMode(timeout_->Options(), timeout_->TimeConst().Text(), timeout_->TimingVar().Text());
}

// A refused state leaves the working copy as it was, whatever has been typed.
void frmStateEdit::Accept() {
    if (!AcceptsTiming())
        return;
    workingState_ = Typed();
    accept();
}

// Options that do not make a mode are told and leave the mode as it was; a missing limit is refused.
bool frmStateEdit::AcceptsTiming() {
    const TimingChoice choice = TimingChosen();
    if (choice.Mode)
        return true;
    const bool refused = IsLimitMissing(choice.Problem);
    if (refused)
        SSTab1->setCurrentIndex(kTimeoutTab);
    Show(this, MessageOf(choice.Problem));
    return !refused;
}

void frmStateEdit::FocusPaneOfTab() {
    if (SSTab1->currentIndex() == kEntryTab)
        txtEntryCode->setFocus();
    else if (SSTab1->currentIndex() == kExitTab)
        txtExitCode->setFocus();
}

void frmStateEdit::RefreshCaretReadOut() {
    switch (SSTab1->currentIndex()) {
    case kEntryTab:
        StatusBar1->ShowCaret(txtEntryCode->CaretReadOut());
        break;
    case kExitTab:
        StatusBar1->ShowCaret(txtExitCode->CaretReadOut());
        break;
    default:
        StatusBar1->ShowCaret({});
    }
}

} // namespace orvane
