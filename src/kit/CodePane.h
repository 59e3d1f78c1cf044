// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/QScintilla.h"
#include "text/Vocabulary.h"

#include <string>
#include <string_view>

namespace orvane {

class FindReplaceDialog;
class ZorlanLexer;

// What a pane tells its window and does beyond plain editing. The panes differ on purpose.
struct PaneHandlers {
    bool GotFocus = false;
    bool TextChanged = false;
    bool FindKey = false; // Ctrl+H opens find and replace
    bool MouseReleased = false;
    bool OvertypeChanged = false;
};

// The editor for controller code: coloured words, line numbers, matching braces, Ctrl+Space for completion.
//
// Its text is document text: ANSI bytes, handed in and out unchanged. A character that a document cannot hold
// does not get in, however it comes; CharactersLeftOut names it.
class CodePane : public QsciScintilla {
    Q_OBJECT

  public:
    explicit CodePane(PaneHandlers handlers, QWidget* parent = nullptr);

    void SetVocabulary(const Vocabulary& vocabulary);

    // Puts the caret to the start; what was there before cannot be undone back. Takes any document text, also
    // one with the delimiter in it.
    void SetText(std::string_view ansi);
    std::string Text() const;

    // The text as the pane keeps it, good until it changes.
    std::string_view Utf8() const;
    // Puts `utf8` in the place of the `length` bytes of Utf8() from `start` on; caret and selection move
    // along.
    void ReplaceUtf8(std::size_t start, std::size_t length, std::string_view utf8);

    // As SetText, but leaves out what a document cannot hold.
    void setText(const QString& text) override;

    // Where the caret is in Text(), in bytes.
    std::size_t Caret() const;

    // "Line 12, Col 5" for the end of the selection.
    QString CaretReadOut() const;

    void FindAndReplace();
    void CompleteWord();

  Q_SIGNALS:
    void GotFocus();
    void TextEdited();
    void CaretReadOutDue(); // follows focus, changes and mouse releases, the caret being where it belongs
    void OvertypeSet(bool overtype);
    void CharactersLeftOut(const QString& characters) const;

  protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QByteArray fromMimeData(const QMimeData* source, bool& rectangular) const override;

  private:
    void SetUpEditing();
    void ApplyLook();
    void ApplyMargin();
    void FollowLines();
    void OnModified(int position, int type, const char* text, int length);
    QString KeepDocumentCharacters(const QString& text) const;
    void TellChange();
    void FollowChange();

    PaneHandlers handlers_;
    ZorlanLexer* lexer_;
    FindReplaceDialog* find_ = nullptr; // made when it is first asked for
    qsizetype marginDigits_ = 0;
    bool settingText_ = false;
    bool readOutDue_ = false;
    bool overtype_ = false; // as last told
};

} // namespace orvane
