// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/DocumentTextEdit.h"

#include "kit/AnsiString.h"
#include "kit/LeftOut.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextDocument>

namespace orvane {

namespace {

constexpr int kTabBlanks = 8; // blanks

} // namespace

DocumentTextEdit::DocumentTextEdit(QWidget* parent) : QPlainTextEdit(parent) { SetTabWidth(); }

void DocumentTextEdit::SetText(std::string_view ansi) {
    set_ = ansi;
    setPlainText(FromAnsi(ansi));
    shownThen_ = document()->toRawText();
}

// The raw text, because the plain one turns no-break spaces into blanks.
std::string DocumentTextEdit::Text() const {
    QString shown = document()->toRawText();
    if (shown == shownThen_)
        return set_;
    shown.replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
    shown.replace(QChar::LineSeparator, QStringLiteral("\r\n")); // Shift+Return
    return FieldText(shown);
}

// Tabs stand where they stand in a code pane.
void DocumentTextEdit::SetTabWidth() {
    setTabStopDistance(kTabBlanks * fontMetrics().horizontalAdvance(QLatin1Char(' ')));
}

void DocumentTextEdit::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        SetTabWidth();
}

void DocumentTextEdit::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    Q_EMIT GotFocus();
}

void DocumentTextEdit::keyPressEvent(QKeyEvent* event) {
    if (IsForMenu(*event))
        return event->ignore();
    const QString kept = KeepDocumentCharacters(event->text());
    if (kept == event->text())
        QPlainTextEdit::keyPressEvent(event);
}

void DocumentTextEdit::inputMethodEvent(QInputMethodEvent* event) {
    event->setCommitString(KeepDocumentCharacters(event->commitString()), event->replacementStart(),
                           event->replacementLength());
    QPlainTextEdit::inputMethodEvent(event);
}

void DocumentTextEdit::insertFromMimeData(const QMimeData* source) {
    const QString text = KeepDocumentCharacters(source->text());
    if (text.isEmpty())
        return; // keep the selection
    QMimeData kept;
    kept.setText(text);
    QPlainTextEdit::insertFromMimeData(&kept);
}

QString DocumentTextEdit::KeepDocumentCharacters(const QString& text) {
    const QString leftOut = CharactersOutsideDocuments(text);
    if (!leftOut.isEmpty())
        Q_EMIT CharactersLeftOut(leftOut);
    return DocumentCharacters(text);
}

} // namespace orvane
