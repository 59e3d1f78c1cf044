// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/frmEventEdit.h"

#include "editors/ui/EditorStatusBar.h"
#include "kit/CodePane.h"
#include "kit/DocumentLineEdit.h"
#include "kit/DocumentTextEdit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int kEventEditHelpPage = 4943;
constexpr QSize kEventEditSize = {560, 420}; // pixels
constexpr int kTestTab = 0;
constexpr PaneHandlers kTestHandlers = {
    .GotFocus = true, .TextChanged = true, .FindKey = true, .MouseReleased = true, .OvertypeChanged = true};

} // namespace

frmEventEdit::frmEventEdit(QWidget* parent)
    : TabbedEditorDialog(QStringLiteral("frmEventEdit"), kEventEditHelpPage, parent) {
    setWindowTitle(QStringLiteral("Event Definition"));
    StatusBar1->ShowOvertype(false);
    LayOutTabs(tr("Parts of the event"), [this] { BuildTabs(); });
    ConnectFields();
    resize(kEventEditSize);
}

void frmEventEdit::BuildTabs() {
    txtEventCode = new CodePane(kTestHandlers, this);
    txtEventCode->setObjectName(QStringLiteral("txtEventCode"));
    txtComment = new DocumentTextEdit(this);
    txtComment->setObjectName(QStringLiteral("txtComment"));
    QLabel* codePrompt = BuildPrompt(
        "lblCodePrompt", QStringLiteral("Enter code here that evaluates to TRUE when the event happens"));
    QLabel* commentPrompt =
        BuildPrompt("lblTooltipPrompt", QStringLiteral("This text become a tooltip style comment for the "
                                                       "event. It has no effect on the program"));
    AddPage(QStringLiteral("Code"), codePrompt, txtEventCode);
    AddPage(QStringLiteral("ToolTip"), commentPrompt, txtComment);
}

void frmEventEdit::ConnectFields() {
    ConnectLine(*txtName);
    ConnectText(*txtComment);
    ConnectPane(*txtEventCode);
    connect(txtComment, &DocumentTextEdit::GotFocus, this, &frmEventEdit::SuspendTabStops);
    connect(txtEventCode, &CodePane::CaretReadOutDue, this, &frmEventEdit::RefreshCaretReadOut);
    connect(txtEventCode, &CodePane::OvertypeSet, StatusBar1, &EditorStatusBar::ShowOvertype);
    connect(cmdOK, &QPushButton::clicked, this, &frmEventEdit::Accept);
    // Whichever tab was chosen; a pane that is covered takes no keys.
    const auto focusCode = [this] { txtEventCode->setFocus(); };
    connect(SSTab1, &QTabWidget::currentChanged, this, focusCode);
    connect(SSTab1, &QTabWidget::tabBarClicked, this, focusCode);
}

void frmEventEdit::SetVocabulary(const Vocabulary& vocabulary) { txtEventCode->SetVocabulary(vocabulary); }

void frmEventEdit::Execute(EventRecord& editEvent) {
    workingEvent_ = editEvent;
    Fill([this] { ShowEventRecord(); });
    exec();
    editEvent = workingEvent_;
}

void frmEventEdit::ShowEventRecord() {
    txtName->SetText(workingEvent_.Name);
    txtEventCode->SetText(workingEvent_.Code);
    txtComment->SetText(workingEvent_.Tooltip);
    SSTab1->setCurrentIndex(workingEvent_.LastTab);
}

void frmEventEdit::Activate() {
    SSTab1->setCurrentIndex(kTestTab);
    txtEventCode->setFocus();
}

EventRecord frmEventEdit::Typed() const {
    return {.Name = txtName->Text(),
            .Code = txtEventCode->Text(),
            .Tooltip = txtComment->Text(),
            .LastTab = static_cast<std::int16_t>(SSTab1->currentIndex())};
}

void frmEventEdit::Accept() {
    workingEvent_ = Typed();
    accept();
}

void frmEventEdit::RefreshCaretReadOut() { StatusBar1->ShowCaret(txtEventCode->CaretReadOut()); }

} // namespace orvane
