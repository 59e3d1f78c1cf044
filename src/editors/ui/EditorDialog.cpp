// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/EditorDialog.h"

#include "editors/ui/EditorStatusBar.h"
#include "kit/CodePane.h"
#include "kit/DocumentLineEdit.h"
#include "kit/DocumentTextEdit.h"
#include "kit/EditedLabel.h"
#include "kit/OpenInDesktop.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QShowEvent>
#include <QStyle>
#include <QVBoxLayout>

namespace orvane {

EditorDialog::EditorDialog(const QString& name, int helpPage, QWidget* parent) : TabStops(parent) {
    setObjectName(name);
    lblEdited = new EditedLabel(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    AddHelpKey(*this, helpPage);
}

void EditorDialog::SetEdited(const QString& what) { lblEdited->ShowText(what); }

// Left to itself Qt puts it over the window anew each time, beside where the frame was.
void EditorDialog::setVisible(bool visible) {
    if (!visible && isVisible())
        place_ = saveGeometry();
    else if (visible && !place_.isEmpty())
        restoreGeometry(place_);
    TabStops::setVisible(visible);
}

void EditorDialog::reject() {
    Cancel();
    QDialog::reject();
}

QHBoxLayout* EditorDialog::BuildButtons() {
    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    // A pane and a field of several lines keep Return for their text.
    auto* accept = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Return), this);
    connect(accept, &QShortcut::activated, cmdOK, &QPushButton::click);
    cmdCancel = new QPushButton(QStringLiteral("Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel->setAutoDefault(false);
    connect(cmdCancel, &QPushButton::clicked, this, &EditorDialog::reject);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(cmdOK);
    row->addWidget(cmdCancel);
    return row;
}

QLabel* EditorDialog::BuildPrompt(const char* name, const QString& text) {
    auto* prompt = new QLabel(text, this);
    prompt->setObjectName(QString::fromLatin1(name));
    prompt->setTextFormat(Qt::PlainText);
    prompt->setWordWrap(true);
    return prompt;
}

void EditorDialog::LayOut(const std::function<void(QVBoxLayout&)>& fill, EditorStatusBar* statusBar) {
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins({});
    outer->setSpacing(0);
    auto* content = new QVBoxLayout;
    const QStyle& look = *style();
    content->setContentsMargins(
        look.pixelMetric(QStyle::PM_LayoutLeftMargin), look.pixelMetric(QStyle::PM_LayoutTopMargin),
        look.pixelMetric(QStyle::PM_LayoutRightMargin), look.pixelMetric(QStyle::PM_LayoutBottomMargin));
    content->setSpacing(look.pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    content->addWidget(lblEdited);
    fill(*content);
    outer->addLayout(content, 1);
    if (statusBar != nullptr)
        outer->addWidget(statusBar);
}

void EditorDialog::ConnectLine(DocumentLineEdit& field, const std::function<void()>& changed) {
    connect(&field, &QLineEdit::textChanged, this, WhenChanged(changed));
    connect(&field, &DocumentLineEdit::CharactersLeftOut, this, &EditorDialog::ShowLeftOut);
}

void EditorDialog::ConnectText(DocumentTextEdit& field, const std::function<void()>& changed) {
    connect(&field, &QPlainTextEdit::textChanged, this, WhenChanged(changed));
    connect(&field, &DocumentTextEdit::CharactersLeftOut, this, &EditorDialog::ShowLeftOut);
}

void EditorDialog::ConnectPane(CodePane& pane, const std::function<void()>& changed) {
    connect(&pane, &CodePane::TextEdited, this, WhenChanged(changed));
    connect(&pane, &CodePane::GotFocus, this, &EditorDialog::SuspendTabStops);
    connect(&pane, &CodePane::CharactersLeftOut, this, &EditorDialog::ShowLeftOut);
}

std::function<void()> EditorDialog::WhenChanged(const std::function<void()>& changed) {
    return [this, changed] {
        if (changed && !filling_)
            changed();
        TellEdited();
    };
}

void EditorDialog::Fill(const std::function<void()>& setFields) {
    filling_ = true;
    setFields();
    filling_ = false;
}

void EditorDialog::TellEdited() {
    if (!filling_)
        Q_EMIT Edited();
}

void EditorDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous())
        Activate();
}

} // namespace orvane
