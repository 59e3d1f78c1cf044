// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/FindReplaceDialog.h"

#include "kit/CloseKeys.h"
#include "kit/DocumentLineEdit.h"
#include "kit/EditedLabel.h"
#include "kit/LeftOut.h"
#include "kit/OpenInDesktop.h"
#include "kit/QScintilla.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

#include <cstdint>

namespace orvane {

namespace {

using Sci = QsciScintillaBase;

constexpr int kFindReplaceHelpPage = 4985;

unsigned long Unsigned(long position) { return static_cast<unsigned long>(position); }

// A replacement for a regular expression in which "\n" is a line end of a document, as "\r\n" is.
QString WithDocumentLineEnds(QString replacement) {
    static const QRegularExpression lineEnd(QStringLiteral(R"((?<!\\)((?:\\\\)*)(?:\\r)?\\n)"));
    return replacement.replace(lineEnd, QStringLiteral(R"(\1\r\n)"));
}

} // namespace

FindReplaceDialog::FindReplaceDialog(QsciScintilla* editor) : QDialog(editor), editor_(editor) {
    setObjectName(QStringLiteral("FindReplaceDialog"));
    setWindowTitle(tr("Find and replace"));
    auto* grid = new QGridLayout(this);
    BuildFields(*grid);
    BuildOptions(*grid);
    BuildButtons(*grid);
    lblResult = new QLabel(this);
    lblResult->setObjectName(QStringLiteral("lblResult"));
    grid->addWidget(lblResult, 3, 0, 1, 2);
    auto* lblEdited = new EditedLabel(this, editor->accessibleName());
    grid->addWidget(lblEdited, 4, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    AddCloseKeys(*this);
    AddHelpKey(*this, kFindReplaceHelpPage);
}

void FindReplaceDialog::BuildFields(QGridLayout& grid) {
    txtFind = new QLineEdit(this);
    txtFind->setObjectName(QStringLiteral("txtFind"));
    txtReplace = new DocumentLineEdit(this);
    txtReplace->setObjectName(QStringLiteral("txtReplace"));
    connect(txtReplace, &DocumentLineEdit::CharactersLeftOut, this,
            [this](const QString& characters) { Say(LeftOutMessage(characters)); });
    auto* findPrompt = new QLabel(tr("&Find"), this);
    findPrompt->setBuddy(txtFind);
    auto* replacePrompt = new QLabel(tr("Replace &with"), this);
    replacePrompt->setBuddy(txtReplace);
    grid.addWidget(findPrompt, 0, 0);
    grid.addWidget(txtFind, 0, 1);
    grid.addWidget(replacePrompt, 1, 0);
    grid.addWidget(txtReplace, 1, 1);
}

void FindReplaceDialog::BuildOptions(QGridLayout& grid) {
    auto* options = new QGridLayout;
    chkWholeWord = AddOption(QStringLiteral("chkWholeWord"), tr("Wh&ole word"));
    chkMatchCase = AddOption(QStringLiteral("chkMatchCase"), tr("Match &case"));
    chkRegExp = AddOption(QStringLiteral("chkRegExp"), tr("Regular e&xpression"));
    chkWrap = AddOption(QStringLiteral("chkWrap"), tr("Wra&p around"));
    chkWrap->setChecked(true);
    options->addWidget(chkWholeWord, 0, 0);
    options->addWidget(chkMatchCase, 0, 1);
    options->addWidget(chkRegExp, 1, 0);
    options->addWidget(chkWrap, 1, 1);
    grid.addLayout(options, 2, 1);
}

QCheckBox* FindReplaceDialog::AddOption(const QString& name, const QString& caption) {
    auto* option = new QCheckBox(caption, this);
    option->setObjectName(name);
    return option;
}

void FindReplaceDialog::BuildButtons(QGridLayout& grid) {
    auto* column = new QVBoxLayout;
    const auto add = [&](const char* name, const QString& caption) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QString::fromLatin1(name));
        button->setAutoDefault(false);
        column->addWidget(button);
        return button;
    };
    cmdFindNext = add("cmdFindNext", tr("Find &next"));
    cmdFindPrevious = add("cmdFindPrevious", tr("Find pre&vious"));
    cmdReplace = add("cmdReplace", tr("&Replace"));
    cmdReplaceAll = add("cmdReplaceAll", tr("Replace &all"));
    cmdFindNext->setDefault(true);
    column->addStretch();
    grid.addLayout(column, 0, 2, 4, 1);
    connect(cmdFindNext, &QPushButton::clicked, this, [this] { Find(true); });
    connect(cmdFindPrevious, &QPushButton::clicked, this, [this] { Find(false); });
    connect(cmdReplace, &QPushButton::clicked, this, &FindReplaceDialog::Replace);
    connect(cmdReplaceAll, &QPushButton::clicked, this, &FindReplaceDialog::ReplaceAll);
}

void FindReplaceDialog::Present() {
    const QString selected = editor_->selectedText();
    if (!selected.isEmpty() && !selected.contains(QLatin1Char('\n')) && !selected.contains(QLatin1Char('\r')))
        txtFind->setText(selected);
    Say({});
    show();
    raise();
    activateWindow();
    txtFind->setFocus();
    txtFind->selectAll();
}

// Goes on from the selection; an empty match counts as found only where it is not found again and again.
bool FindReplaceDialog::Find(bool forward) {
    const long length = editor_->SendScintilla(Sci::SCI_GETLENGTH);
    const long start = editor_->SendScintilla(Sci::SCI_GETSELECTIONSTART);
    const long end = editor_->SendScintilla(Sci::SCI_GETSELECTIONEND);
    bool found = forward ? FindInTarget(end, length) : FindInTarget(start, 0);
    if (!found && chkWrap->isChecked())
        found = forward ? FindInTarget(0, length) : FindInTarget(length, 0);
    if (!found) {
        SayNotFound();
        return false;
    }
    const long matchStart = editor_->SendScintilla(Sci::SCI_GETTARGETSTART);
    const long matchEnd = editor_->SendScintilla(Sci::SCI_GETTARGETEND);
    editor_->SendScintilla(Sci::SCI_SETSEL, Unsigned(matchStart), matchEnd);
    editor_->ensureCursorVisible();
    Say({});
    return true;
}

void FindReplaceDialog::Replace() {
    if (SelectionIsFound()) {
        ReplaceTarget();
        const long end = editor_->SendScintilla(Sci::SCI_GETTARGETEND);
        editor_->SendScintilla(Sci::SCI_SETSEL, Unsigned(end), end);
    }
    Find(true);
}

void FindReplaceDialog::ReplaceAll() {
    int count = 0;
    editor_->beginUndoAction();
    long position = 0;
    while (FindInTarget(position, editor_->SendScintilla(Sci::SCI_GETLENGTH))) {
        const bool emptyMatch =
            editor_->SendScintilla(Sci::SCI_GETTARGETSTART) == editor_->SendScintilla(Sci::SCI_GETTARGETEND);
        ReplaceTarget();
        ++count;
        const long end = editor_->SendScintilla(Sci::SCI_GETTARGETEND);
        position = emptyMatch ? editor_->SendScintilla(Sci::SCI_POSITIONAFTER, Unsigned(end)) : end;
        if (position == end && emptyMatch)
            break;
    }
    editor_->endUndoAction();
    if (count == 0)
        SayNotFound();
    else
        Say(tr("Replaced: %1").arg(count));
}

// Whether the selection is what Find would select, and if so makes it the target.
bool FindReplaceDialog::SelectionIsFound() const {
    const long start = editor_->SendScintilla(Sci::SCI_GETSELECTIONSTART);
    const long end = editor_->SendScintilla(Sci::SCI_GETSELECTIONEND);
    return start < end && FindInTarget(start, end) &&
           editor_->SendScintilla(Sci::SCI_GETTARGETSTART) == start &&
           editor_->SendScintilla(Sci::SCI_GETTARGETEND) == end;
}

bool FindReplaceDialog::FindInTarget(long from, long to) const {
    const QByteArray wanted = txtFind->text().toUtf8();
    if (wanted.isEmpty())
        return false;
    long flags = 0;
    if (chkWholeWord->isChecked())
        flags |= Sci::SCFIND_WHOLEWORD;
    if (chkMatchCase->isChecked())
        flags |= Sci::SCFIND_MATCHCASE;
    if (chkRegExp->isChecked())
        flags |= Sci::SCFIND_REGEXP | Sci::SCFIND_CXX11REGEX;
    editor_->SendScintilla(Sci::SCI_SETSEARCHFLAGS, flags);
    editor_->SendScintilla(Sci::SCI_SETTARGETSTART, from);
    editor_->SendScintilla(Sci::SCI_SETTARGETEND, to);
    return editor_->SendScintilla(Sci::SCI_SEARCHINTARGET, static_cast<std::uintptr_t>(wanted.size()),
                                  wanted.constData()) >= 0;
}

void FindReplaceDialog::ReplaceTarget() const {
    const bool expression = chkRegExp->isChecked();
    const QString replacement = txtReplace->text();
    const QByteArray text = (expression ? WithDocumentLineEnds(replacement) : replacement).toUtf8();
    const unsigned message = expression ? Sci::SCI_REPLACETARGETRE : Sci::SCI_REPLACETARGET;
    editor_->SendScintilla(message, static_cast<std::uintptr_t>(text.size()), text.constData());
}

void FindReplaceDialog::SayNotFound() {
    const bool broken = editor_->SendScintilla(Sci::SCI_GETSTATUS) == Sci::SC_STATUS_WARNREGEX;
    editor_->SendScintilla(Sci::SCI_SETSTATUS, Sci::SC_STATUS_OK);
    Say(broken ? tr("This is not a complete regular expression") : tr("Not found"));
}

void FindReplaceDialog::Say(const QString& text) { lblResult->setText(text); }

} // namespace orvane
