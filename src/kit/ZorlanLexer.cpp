// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/ZorlanLexer.h"

#include "kit/PaneLook.h"
#include "kit/QScintilla.h"
#include "text/AnsiText.h"
#include "text/Ordinal.h"

namespace orvane {

namespace {

constexpr int kStyleCount = 5;

} // namespace

ZorlanLexer::ZorlanLexer(QObject* parent) : QsciLexerCustom(parent) {}

void ZorlanLexer::SetVocabulary(const Vocabulary& vocabulary) {
    words_ = ZorlanWords({ToUtf8(vocabulary.InstructionWords), ToUtf8(vocabulary.DirectiveWords)});
    if (editor() != nullptr)
        editor()->recolor();
}

void ZorlanLexer::SetPalette(const QPalette& palette) {
    palette_ = palette;
    for (int style = 0; style < kStyleCount; ++style) {
        setColor(defaultColor(style), style);
        setPaper(defaultPaper(style), style);
    }
}

QString ZorlanLexer::description(int style) const {
    switch (FromOrdinal<TokenKind>(style)) {
    case TokenKind::Plain:
        return tr("Text");
    case TokenKind::Comment:
        return tr("Comment");
    case TokenKind::String:
        return tr("String");
    case TokenKind::Instruction:
        return tr("Instruction");
    case TokenKind::Directive:
        return tr("Directive");
    }
    return {};
}

QColor ZorlanLexer::defaultColor(int style) const {
    const bool dark = IsDark(palette_);
    switch (FromOrdinal<TokenKind>(style)) {
    case TokenKind::Comment:
        return dark ? QColor(0x7FC97F) : QColor(0x1E7A1E);
    case TokenKind::String:
        return dark ? QColor(0xE8A87C) : QColor(0xA31515);
    case TokenKind::Instruction:
        return dark ? QColor(0x7DB7FF) : QColor(0x0000C8);
    case TokenKind::Directive:
        return dark ? QColor(0xD7A6F0) : QColor(0x800080);
    case TokenKind::Plain:
        break;
    }
    return palette_.color(QPalette::Text);
}

QColor ZorlanLexer::defaultPaper(int) const { return palette_.color(QPalette::Base); }

QFont ZorlanLexer::defaultFont(int) const { return PaneFont(); }

void ZorlanLexer::styleText(int start, int end) {
    if (editor() == nullptr || end <= start)
        return;
    QByteArray bytes(end - start + 1, '\0'); // the editor ends what it gives with a zero
    editor()->SendScintilla(QsciScintillaBase::SCI_GETTEXTRANGE, start, end, bytes.data());
    startStyling(start);
    const std::string_view text(bytes.constData(), end - start);
    for (const Token& token : ScanZorlan(text, words_))
        setStyling(static_cast<int>(token.Length), static_cast<int>(token.Kind));
}

} // namespace orvane
