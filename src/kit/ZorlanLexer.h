// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/QScintilla.h"
#include "text/ZorlanScanner.h"

#include <QPalette>

namespace orvane {

// Colours controller code in a QScintilla editor, in colours that can be read on the palette's background.
class ZorlanLexer : public QsciLexerCustom {
    Q_OBJECT

  public:
    explicit ZorlanLexer(QObject* parent = nullptr);

    void SetVocabulary(const Vocabulary& vocabulary);
    const ZorlanWords& Words() const { return words_; } // in UTF-8, as the editor's text is
    void SetPalette(const QPalette& palette);

    const char* language() const override { return "Zorlan"; }
    bool caseSensitive() const override { return false; }
    QString description(int style) const override;
    QColor defaultColor(int style) const override;
    QColor defaultPaper(int style) const override;
    QFont defaultFont(int style) const override;
    void styleText(int start, int end) override;

  private:
    ZorlanWords words_;
    QPalette palette_;
};

} // namespace orvane
