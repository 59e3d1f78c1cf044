// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/frmGeneralCodeEdit.h"

#include "editors/CodeSuggestions.h"
#include "editors/ui/EditorStatusBar.h"
#include "editors/ui/SuggestionFrame.h"
#include "kit/CodePane.h"
#include "kit/DocumentLineEdit.h"
#include "kit/PaneLook.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <iterator>

namespace orvane {

namespace {

constexpr int kGeneralCodeEditHelpPage = 4942;
constexpr QSize kGeneralCodeSize = {680, 500}; // pixels
constexpr int kCodeSegTab = 0;
constexpr int kTabCount = 7;

const QString kPolytaskPrompt =
    QStringLiteral("Enter code here that supports your FSM, such as GET/SET routines. This also must include "
                   "any code required to launch the actual FSM task.");
const QString kStartupPrompt =
    QStringLiteral("Here you can enter any code needed at startup, before the main task gets under way.");

// Between the prompt of the page and its pane.
void AddSuggestion(QWidget& page, SuggestionFrame* frame) {
    static_cast<QVBoxLayout*>(page.layout())->insertWidget(1, frame);
}

} // namespace

frmGeneralCodeEdit::frmGeneralCodeEdit(QWidget* parent)
    : TabbedEditorDialog(QStringLiteral("frmGeneralCodeEdit"), kGeneralCodeEditHelpPage, parent) {
    setWindowTitle(QStringLiteral("General code"));
    LayOutTabs(tr("Segments"), [this] {
        BuildPanes();
        BuildTabs();
    });
    ConnectFields();
    ConnectOptions();
    ShowGeneralCode({});
    resize(kGeneralCodeSize);
}

// In the order in which F6 goes through them.
void frmGeneralCodeEdit::BuildPanes() {
    fraCodeSuggestion =
        new SuggestionFrame({"fraCodeSuggestion", "lblSuggestCodeSeg", "cmdAcceptCodeSuggestion"}, this);
    fraInitSuggestion =
        new SuggestionFrame({"fraInitSuggestion", "lblSuggestInitSeg", "cmdAcceptInitSuggestion"}, this);
    txtCodeSeg = BuildPane("txtCodeSeg");
    txtInitSeg = BuildPane("txtInitSeg");
    txtNV0Data = BuildPane("txtNV0Data");
    txtTestSeg = BuildPane("txtTestSeg");
    txtHeader = BuildPane("txtHeader", false);
    panes_ = {txtCodeSeg, txtInitSeg, txtNV0Data, txtTestSeg, txtHeader};
}

CodePane* frmGeneralCodeEdit::BuildPane(const char* name, bool findKey) {
    auto* pane = new CodePane(
        {.GotFocus = true, .TextChanged = true, .FindKey = findKey, .MouseReleased = true}, this);
    pane->setObjectName(QString::fromLatin1(name));
    return pane;
}

void frmGeneralCodeEdit::BuildTabs() {
    lblCodePrompt = BuildPrompt("lblCodePrompt", {});
    QLabel* initPrompt = BuildPrompt(
        "lblInitPrompt", QStringLiteral("Enter here any code required to execute once on program "
                                        "startup to initialise your FSM. This will generally be a "
                                        "call to the initialise function."));
    QLabel* dataPrompt = BuildPrompt("lblNV0Prompt", QStringLiteral("Enter NVEM0 data here"));
    QLabel* testPrompt =
        BuildPrompt("lblTestPrompt", QStringLiteral("Code that is used for testing your FSM (excluded from "
                                                    "production builds)"));
    QLabel* headPrompt =
        BuildPrompt("lblHeadPrompt", QStringLiteral("Use this for a comment to describe your FSM. Appears "
                                                    "just before the main code"));
    AddSuggestion(*AddPage({}, lblCodePrompt, txtCodeSeg), fraCodeSuggestion);
    txtCodeSeg->setAccessibleName(
        tr("Startup and supporting code")); // its prompt comes and goes with Polytask
    AddSuggestion(*AddPage(QStringLiteral("INITSEG"), initPrompt, txtInitSeg), fraInitSuggestion);
    AddPage(QStringLiteral("NVEM0DATA"), dataPrompt, txtNV0Data);
    AddPage(QStringLiteral("TESTSEG"), testPrompt, txtTestSeg);
    AddPage(QStringLiteral("Header"), headPrompt, txtHeader);
    SSTab1->addTab(BuildLaunchPage(), QStringLiteral("LAUNCHSEG"));
    SSTab1->addTab(BuildInstancesPage(), QStringLiteral("Instances"));
}

QWidget* frmGeneralCodeEdit::BuildLaunchPage() {
    chkLAUNCHSEG = new QCheckBox(QStringLiteral("Include ;<LAUNCHSEG> containing RunTasksForever"), this);
    chkLAUNCHSEG->setObjectName(QStringLiteral("chkLAUNCHSEG"));
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    column->addWidget(chkLAUNCHSEG);
    column->addStretch();
    return page;
}

QWidget* frmGeneralCodeEdit::BuildInstancesPage() {
    txtInstanceCount = new DocumentLineEdit(this);
    txtInstanceCount->setObjectName(QStringLiteral("txtInstanceCount"));
    txtInstanceCount->setAccessibleName(tr("Number of instances"));
    txtInstanceCount->setFont(FieldFont());
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    column->addWidget(BuildPrompt("lblInstancePrompt",
                                  QStringLiteral("If you are using Polytask you may be launching multiple "
                                                 "instances of this task. In that case the Instance Count "
                                                 "setting will force the creation of that many automaticlly "
                                                 "generated variables, such as timers.")));
    column->addWidget(BuildPrompt("Label1", QStringLiteral("InstanceCount = Number of Polytask instances of "
                                                           "this task (you can use a symbol defined "
                                                           "elsewhere, or a number 1 to 32)")));
    column->addWidget(txtInstanceCount);
    column->addStretch();
    return page;
}

void frmGeneralCodeEdit::ConnectFields() {
    ConnectLine(*txtName, [this] {
        general_.FsmName = txtName->Text();
        RefreshSuggestions();
    });
    ConnectSegment(*txtCodeSeg, &GeneralCode::CodeSeg, &frmGeneralCodeEdit::RefreshCodeSuggestion);
    ConnectSegment(*txtInitSeg, &GeneralCode::InitSeg, &frmGeneralCodeEdit::RefreshInitSuggestion);
    ConnectSegment(*txtNV0Data, &GeneralCode::NvEm0Data, &frmGeneralCodeEdit::RefreshInitSuggestion);
    ConnectSegment(*txtTestSeg, &GeneralCode::TestSeg, nullptr);
    ConnectSegment(*txtHeader, &GeneralCode::HeaderComment, nullptr);
    connect(txtHeader, &CodePane::GotFocus, this, &frmGeneralCodeEdit::TellEdited);
    // Accepting hides the button that was pressed: the focus goes where typing goes on.
    connect(fraCodeSuggestion, &SuggestionFrame::Accepted, this, [this] {
        txtCodeSeg->SetText(CodeSuggestion(general_.FsmName));
        txtCodeSeg->setFocus();
    });
    connect(fraInitSuggestion, &SuggestionFrame::Accepted, this, [this] {
        txtInitSeg->SetText(InitSuggestion(general_.FsmName));
        txtInitSeg->setFocus();
    });
}

void frmGeneralCodeEdit::ConnectSegment(CodePane& pane, std::string GeneralCode::*segment,
                                        void (frmGeneralCodeEdit::*suggest)()) {
    ConnectPane(pane, [this, &pane, segment, suggest] {
        general_.*segment = pane.Text();
        if (suggest != nullptr)
            (this->*suggest)();
    });
    connect(&pane, &CodePane::CaretReadOutDue, this, &frmGeneralCodeEdit::RefreshCaretReadOut);
}

void frmGeneralCodeEdit::ConnectOptions() {
    connect(chkLAUNCHSEG, &QCheckBox::toggled, this, [this](bool checked) {
        general_.LaunchSeg = checked;
        TellEdited();
    });
    // The instance count is stored as it is typed, but nothing is generated for it.
    connect(txtInstanceCount, &QLineEdit::textChanged, this,
            [this] { general_.Instances = txtInstanceCount->Text(); });
    connect(txtInstanceCount, &DocumentLineEdit::CharactersLeftOut, this, &frmGeneralCodeEdit::ShowLeftOut);
    connect(SSTab1, &QTabWidget::currentChanged, this, &frmGeneralCodeEdit::FocusPaneOfTab);
    connect(SSTab1, &QTabWidget::tabBarClicked, this, &frmGeneralCodeEdit::FocusPaneOfTab);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

void frmGeneralCodeEdit::SetVocabulary(const Vocabulary& vocabulary) {
    for (CodePane* pane : panes_)
        pane->SetVocabulary(vocabulary);
}

void frmGeneralCodeEdit::ShowGeneralCode(const GeneralCode& general) {
    general_ = general;
    ShowFields();
}

void frmGeneralCodeEdit::ShowFields() {
    Fill([this] { FillFields(); });
    ShowPolytask();
    RefreshSuggestions();
}

void frmGeneralCodeEdit::FillFields() {
    txtName->SetText(general_.FsmName);
    txtCodeSeg->SetText(general_.CodeSeg);
    txtInitSeg->SetText(general_.InitSeg);
    txtNV0Data->SetText(general_.NvEm0Data);
    txtTestSeg->SetText(general_.TestSeg);
    txtHeader->SetText(general_.HeaderComment);
    chkLAUNCHSEG->setChecked(general_.LaunchSeg);
    txtInstanceCount->SetText(general_.Instances);
}

void frmGeneralCodeEdit::Execute(bool polytask) {
    snapshot_ = general_;
    polytask_ = polytask;
    exec();
    TellEdited();
}

void frmGeneralCodeEdit::Activate() {
    ShowPolytask();
    RefreshSuggestions();
    SSTab1->setCurrentIndex(kCodeSegTab);
    txtCodeSeg->setFocus();
}

void frmGeneralCodeEdit::ShowPolytask() {
    lblCodePrompt->setText(polytask_ ? kPolytaskPrompt : kStartupPrompt);
    SSTab1->setTabText(kCodeSegTab, polytask_ ? QStringLiteral("CODESEG") : QStringLiteral("Startup code"));
    for (int tab = kCodeSegTab + 1; tab < kTabCount; ++tab)
        SSTab1->setTabVisible(tab, polytask_);
}

void frmGeneralCodeEdit::RefreshSuggestions() {
    RefreshCodeSuggestion();
    RefreshInitSuggestion();
}

void frmGeneralCodeEdit::RefreshCodeSuggestion() {
    fraCodeSuggestion->Offer(polytask_ && general_.CodeSeg.empty(), CodeSuggestion(general_.FsmName));
}

void frmGeneralCodeEdit::RefreshInitSuggestion() {
    fraInitSuggestion->Offer(polytask_ && general_.InitSeg.empty(), InitSuggestion(general_.FsmName));
}

void frmGeneralCodeEdit::Cancel() {
    general_.FsmName = snapshot_.FsmName;
    general_.CodeSeg = snapshot_.CodeSeg;
    general_.InitSeg = snapshot_.InitSeg;
    general_.NvEm0Data = snapshot_.NvEm0Data;
    general_.TestSeg = snapshot_.TestSeg;
    general_.HeaderComment = snapshot_.HeaderComment;
    ShowFields();
}

void frmGeneralCodeEdit::FocusPaneOfTab() {
    const int tab = SSTab1->currentIndex();
    if (tab < std::ssize(panes_))
        panes_[tab]->setFocus();
}

void frmGeneralCodeEdit::RefreshCaretReadOut() {
    const int tab = SSTab1->currentIndex();
    StatusBar1->ShowCaret(tab < std::ssize(panes_) ? panes_[tab]->CaretReadOut() : QString());
}

} // namespace orvane
