// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/CodePane.h"

#include "kit/AnsiString.h"
#include "kit/FindReplaceDialog.h"
#include "kit/LeftOut.h"
#include "kit/PaneLook.h"
#include "kit/ZorlanLexer.h"
#include "text/AnsiText.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QWheelEvent>

namespace orvane {

namespace {

constexpr int kNumberMargin = 0;
constexpr int kTabWidth = 8;   // columns
constexpr int kTextIndent = 4; // pixels between the margin and the text
constexpr char kListSeparator = '\n';

// What a key types. A key with Ctrl is a command and types nothing, but Ctrl+Alt is how Windows says AltGr.
QString InsertableText(const QKeyEvent& event) {
    const bool command = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::ControlModifier;
    const QString text = event.text();
    return command || text.isEmpty() || !text.front().isPrint() ? QString() : text;
}

} // namespace

CodePane::CodePane(PaneHandlers handlers, QWidget* parent)
    : QsciScintilla(parent), handlers_(handlers), lexer_(new ZorlanLexer(this)) {
    SetUpEditing();
    setLexer(lexer_);
    ApplyLook();
    connect(this, &QsciScintilla::linesChanged, this, &CodePane::FollowLines);
    connect(this, &QsciScintillaBase::SCN_ZOOM, this, &CodePane::ApplyMargin);
    connect(this, &QsciScintillaBase::SCN_UPDATEUI, this, &CodePane::FollowChange);
    connect(
        this,
        qOverload<int, int, const char*, int, int, int, int, int, int, int>(&QsciScintillaBase::SCN_MODIFIED),
        this, &CodePane::OnModified);
}

void CodePane::SetUpEditing() {
    setUtf8(true);
    setEolMode(EolWindows);
    setTabWidth(kTabWidth);
    setIndentationsUseTabs(true);
    setTabIndents(false); // Tab inserts a tab character wherever the caret is
    setBackspaceUnindents(false);
    setAutoIndent(false);
    setBraceMatching(SloppyBraceMatch);
    SendScintilla(SCI_SETMARGINLEFT, 0L, long{kTextIndent});
    SendScintilla(SCI_SETSCROLLWIDTH, 1);
    SendScintilla(SCI_SETSCROLLWIDTHTRACKING, 1);
    SendScintilla(SCI_AUTOCSETSEPARATOR, kListSeparator);
    SendScintilla(SCI_AUTOCSETORDER, SC_ORDER_PERFORMSORT);
}

void CodePane::SetVocabulary(const Vocabulary& vocabulary) { lexer_->SetVocabulary(vocabulary); }

// The editor forgets margins and colours when it is given a lexer or another theme.
void CodePane::ApplyLook() {
    const bool dark = IsDark(palette());
    const QColor accent(kAccent);
    lexer_->SetPalette(palette());
    setMarginsFont(PaneFont());
    setMarginsBackgroundColor(dark ? palette().color(QPalette::Window) : accent);
    setMarginsForegroundColor(dark ? accent : QColor(Qt::black));
    setCaretForegroundColor(palette().color(QPalette::Text));
    setSelectionBackgroundColor(palette().color(QPalette::Highlight));
    setSelectionForegroundColor(palette().color(QPalette::HighlightedText));
    setMatchedBraceBackgroundColor(dark ? QColor(0x505050) : accent);
    setMatchedBraceForegroundColor(palette().color(QPalette::Text));
    setUnmatchedBraceBackgroundColor(palette().color(QPalette::Base));
    setUnmatchedBraceForegroundColor(dark ? QColor(0xFF8080) : QColor(0xC00000));
    ApplyMargin();
}

void CodePane::ApplyMargin() {
    const QString widest = QStringLiteral("0%1").arg(qMax(lines(), 10));
    marginDigits_ = widest.size();
    setMarginType(kNumberMargin, NumberMargin);
    setMarginWidth(kNumberMargin, widest);
    setMarginWidth(1, 0); // no markers
}

// A text that takes the place of another one changes the number of its lines twice, and hardly ever the
// digits that this takes: to measure them costs as much as to set the text.
void CodePane::FollowLines() {
    if (QString::number(qMax(lines(), 10)).size() + 1 != marginDigits_)
        ApplyMargin();
}

void CodePane::SetText(std::string_view ansi) {
    const std::string utf8 = ToUtf8(ansi);
    const bool changes = Text() != ansi;
    settingText_ = true;
    SendScintilla(SCI_CLEARALL);
    SendScintilla(SCI_ADDTEXT, utf8.size(), utf8.data());
    SendScintilla(SCI_EMPTYUNDOBUFFER);
    SendScintilla(SCI_SETSAVEPOINT);
    SendScintilla(SCI_GOTOPOS, 0);
    SendScintilla(SCI_SETXOFFSET, 0);
    settingText_ = false;
    if (changes)
        TellChange();
    FollowChange();
}

std::string CodePane::Text() const {
    return FromUtf8(Utf8(), '?'); // whatever is in the pane has been filtered: nothing becomes "?"
}

std::string_view CodePane::Utf8() const {
    const std::size_t size = SendScintilla(SCI_GETLENGTH);
    return {static_cast<const char*>(SendScintillaPtrResult(SCI_GETCHARACTERPOINTER)), size};
}

void CodePane::ReplaceUtf8(std::size_t start, std::size_t length, std::string_view utf8) {
    using Place = unsigned long; // of Scintilla; no std::size_t on Windows
    SendScintilla(SCI_SETTARGETSTART, Place(start));
    SendScintilla(SCI_SETTARGETEND, Place(start + length));
    SendScintilla(SCI_REPLACETARGET, utf8.size(), utf8.data());
}

std::size_t CodePane::Caret() const {
    const std::size_t caret = SendScintilla(SCI_GETCURRENTPOS);
    return FromUtf8(Utf8().substr(0, caret), '?').size();
}

QString CodePane::CaretReadOut() const {
    int line = 0;
    int column = 0;
    lineIndexFromPosition(static_cast<int>(SendScintilla(SCI_GETSELECTIONEND)), &line, &column);
    return QStringLiteral("Line %1, Col %2").arg(line + 1).arg(column + 1);
}

void CodePane::FindAndReplace() {
    if (find_ == nullptr)
        find_ = new FindReplaceDialog(this);
    find_->Present();
}

void CodePane::CompleteWord() {
    const auto caret = SendScintilla(SCI_GETCURRENTPOS);
    const auto start = SendScintilla(SCI_WORDSTARTPOSITION, static_cast<unsigned long>(caret), 1L);
    const std::string_view text = Utf8();
    const std::string_view prefix = text.substr(start, caret - start);
    std::string list;
    for (const std::string& word : CompletionWords(text, prefix, lexer_->Words()))
        list += (list.empty() ? "" : std::string(1, kListSeparator)) + word;
    if (!list.empty())
        SendScintilla(SCI_AUTOCSHOW, prefix.size(), list.c_str());
}

// Ctrl+Return is the window's, not the editor's, and so is Esc where nothing can be edited.
bool CodePane::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool isReturn = key->key() == Qt::Key_Return && key->modifiers() == Qt::ControlModifier;
        if (isReturn || (key->key() == Qt::Key_Escape && isReadOnly())) {
            event->ignore();
            return true;
        }
    }
    return QsciScintilla::event(event);
}

void CodePane::focusInEvent(QFocusEvent* event) {
    QsciScintilla::focusInEvent(event);
    if (!handlers_.GotFocus)
        return;
    Q_EMIT GotFocus();
    Q_EMIT CaretReadOutDue();
}

void CodePane::keyPressEvent(QKeyEvent* event) {
    // A pane on a covered tab may have the focus; nobody could see what is typed there. Return goes no
    // further: it would press the default button in the middle of the typing.
    if (!isVisible()) {
        event->setAccepted(event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter);
        return;
    }
    if (IsForMenu(*event))
        return event->ignore();
    const bool plainControl = event->modifiers() == Qt::ControlModifier;
    if (handlers_.FindKey && plainControl && event->key() == Qt::Key_H) {
        FindAndReplace();
        return;
    }
    if (plainControl && event->key() == Qt::Key_Space) {
        CompleteWord();
        return;
    }
    const QString typed = InsertableText(*event);
    const QString kept = KeepDocumentCharacters(typed);
    if (kept.isEmpty() && !typed.isEmpty())
        return;
    QKeyEvent key(event->type(), event->key(), event->modifiers(), kept, event->isAutoRepeat());
    QsciScintilla::keyPressEvent(&key);
    event->setAccepted(key.isAccepted());
    FollowChange();
}

void CodePane::mouseReleaseEvent(QMouseEvent* event) {
    QsciScintilla::mouseReleaseEvent(event);
    if (handlers_.MouseReleased)
        Q_EMIT CaretReadOutDue();
}

void CodePane::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() != Qt::ControlModifier) {
        QsciScintilla::wheelEvent(event);
        return;
    }
    if (event->angleDelta().y() > 0)
        zoomIn();
    else if (event->angleDelta().y() < 0)
        zoomOut();
    event->accept();
}

void CodePane::changeEvent(QEvent* event) {
    QsciScintilla::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ApplyLook();
}

void CodePane::hideEvent(QHideEvent* event) {
    QsciScintilla::hideEvent(event);
    if (find_ != nullptr)
        find_->hide();
}

void CodePane::OnModified(int, int type, const char*, int length) {
    if (!settingText_ && length > 0 && (type & (SC_MOD_INSERTTEXT | SC_MOD_DELETETEXT)) != 0)
        TellChange();
}

void CodePane::setText(const QString& text) { SetText(ToAnsi(KeepDocumentCharacters(text)).Text); }

// What is pasted and what is dropped.
QByteArray CodePane::fromMimeData(const QMimeData* source, bool& rectangular) const {
    const QByteArray utf8 = QsciScintilla::fromMimeData(source, rectangular);
    return KeepDocumentCharacters(QString::fromUtf8(utf8)).toUtf8();
}

void CodePane::inputMethodEvent(QInputMethodEvent* event) {
    const QString kept = KeepDocumentCharacters(event->commitString());
    event->setCommitString(kept, event->replacementStart(), event->replacementLength());
    QsciScintilla::inputMethodEvent(event);
    FollowChange();
}

QString CodePane::KeepDocumentCharacters(const QString& text) const {
    const QString leftOut = CharactersOutsideDocuments(text);
    if (!leftOut.isEmpty())
        Q_EMIT CharactersLeftOut(leftOut);
    return DocumentCharacters(text);
}

void CodePane::TellChange() {
    if (!handlers_.TextChanged)
        return;
    readOutDue_ = true;
    Q_EMIT TextEdited();
}

// A change is told before the editor moves the caret, so what depends on the caret follows here.
void CodePane::FollowChange() {
    if (std::exchange(readOutDue_, false))
        Q_EMIT CaretReadOutDue();
    const bool overtype = SendScintilla(SCI_GETOVERTYPE) != 0;
    if (std::exchange(overtype_, overtype) != overtype && handlers_.OvertypeChanged)
        Q_EMIT OvertypeSet(overtype);
}

} // namespace orvane
