// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/DocumentLineEdit.h"

#include "kit/AnsiString.h"
#include "kit/LeftOut.h"
#include "text/AnsiText.h"

#include <QKeyEvent>
#include <QValidator>

#include <limits>

namespace orvane {

namespace {

bool IsLineEnd(QChar character) { return character == QLatin1Char('\r') || character == QLatin1Char('\n'); }

QString Capitals(const QString& text) { return FromAnsi(ToUpper(FieldText(text))); }

} // namespace

// Sees every new text of the field, however it came about, before the field takes it.
class DocumentLineEdit::Filter : public QValidator {
  public:
    explicit Filter(DocumentLineEdit* field) : QValidator(field), field_(*field) {}

    State validate(QString& input, int& caret) const override {
        QString kept;
        QString leftOut;
        int keptCaret = caret;
        for (qsizetype at = 0; at < input.size(); ++at) {
            const QString taken = Take(input[at], leftOut);
            kept += taken;
            if (at < caret)
                keptCaret += static_cast<int>(taken.size()) - 1;
        }
        input = kept;
        caret = keptCaret;
        if (!leftOut.isEmpty())
            Q_EMIT field_.CharactersLeftOut(leftOut);
        return Acceptable;
    }

  private:
    QString Take(QChar character, QString& leftOut) const {
        if (field_.brought_.contains(character))
            return character;
        if (IsLineEnd(character))
            return character == QLatin1Char('\n') ? QStringLiteral(" ") : QString();
        const QString outside = CharactersOutsideDocuments(character);
        leftOut += outside;
        return outside.isEmpty() ? QString(character) : QString();
    }

    DocumentLineEdit& field_;
};

DocumentLineEdit::DocumentLineEdit(QWidget* parent, Typing typing) : QLineEdit(parent), typing_(typing) {
    setValidator(new Filter(this));
    setMaxLength(std::numeric_limits<int>::max()); // else a long text of a document would be cut off
}

void DocumentLineEdit::SetText(std::string_view ansi) {
    brought_ = FromAnsi(ansi);
    setText(brought_);
    setCursorPosition(0);
}

std::string DocumentLineEdit::Text() const { return FieldText(text()); }

// A character that is left out must not take the place of a selection.
void DocumentLineEdit::keyPressEvent(QKeyEvent* event) {
    if (IsForMenu(*event))
        return event->ignore();
    const QString leftOut = CharactersOutsideDocuments(event->text());
    if (!leftOut.isEmpty()) {
        Q_EMIT CharactersLeftOut(leftOut);
        return;
    }
    const QString typed = typing_ == Typing::Capitals ? Capitals(event->text()) : event->text();
    QKeyEvent key(event->type(), event->key(), event->modifiers(), typed, event->isAutoRepeat());
    QLineEdit::keyPressEvent(&key);
    event->setAccepted(key.isAccepted());
}

} // namespace orvane
