// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/frmTransitionAction.h"

#include "kit/DocumentTextEdit.h"
#include "kit/LeftOut.h"
#include "kit/PaneLook.h"
#include "kit/UserMessageBox.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int kTransitionActionHelpPage = 4943;
constexpr QSize kTransitionActionSize = {480, 300}; // pixels

} // namespace

frmTransitionAction::frmTransitionAction(QWidget* parent)
    : EditorDialog(QStringLiteral("frmTransitionAction"), kTransitionActionHelpPage, parent) {
    setWindowTitle(QStringLiteral("Transition action"));
    txtCode = new DocumentTextEdit(this);
    txtCode->setObjectName(QStringLiteral("txtCode"));
    txtCode->setFont(FieldFont());
    lblLeftOut = BuildPrompt("lblLeftOut", {});
    lblLeftOut->hide();
    QLabel* prompt =
        BuildPrompt("lblPrompt", QStringLiteral("This code will be executed during the transition "
                                                "from the current state to the target state"));
    txtCode->setAccessibleName(prompt->text());
    LayOut(
        [this, prompt](QVBoxLayout& content) {
            content.addWidget(prompt);
            content.addWidget(txtCode, 1);
            content.addWidget(lblLeftOut);
            content.addLayout(BuildButtons());
        },
        nullptr);
    ConnectText(*txtCode);
    connect(txtCode, &DocumentTextEdit::GotFocus, this, &frmTransitionAction::SuspendTabStops);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    resize(kTransitionActionSize);
}

void frmTransitionAction::SetCode(std::string_view ansi) {
    Fill([&] { txtCode->SetText(ansi); });
}

std::string frmTransitionAction::Code() const { return txtCode->Text(); }

void frmTransitionAction::Execute() { exec(); }

// Esc is pressed by habit; whoever presses Cancel means it.
void frmTransitionAction::keyPressEvent(QKeyEvent* event) {
    const bool drops = event->key() == Qt::Key_Escape && Code() != textOnEntry_;
    if (!drops || AskYesNo(this, tr("Drop what was changed in this action?")))
        EditorDialog::keyPressEvent(event);
}

void frmTransitionAction::Activate() {
    textOnEntry_ = Code();
    lblLeftOut->hide();
    txtCode->setFocus();
}

void frmTransitionAction::Cancel() { SetCode(textOnEntry_); }

void frmTransitionAction::ShowLeftOut(const QString& characters) {
    lblLeftOut->setText(LeftOutMessage(characters));
    lblLeftOut->show();
}

} // namespace orvane
