// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/QScintilla.h"

#include <QPalette>

namespace orvane {

// Colours tests (.ztest) in a QScintilla editor, in colours that can be read on the palette's background.
class TestLexer : public QsciLexerCustom {
    Q_OBJECT

  public:
    explicit TestLexer(QObject* parent = nullptr);

    void SetPalette(const QPalette& palette);

    const char* language() const override { return "Tests"; }
    QString description(int style) const override;
    QColor defaultColor(int style) const override;
    QColor defaultPaper(int style) const override;
    QFont defaultFont(int style) const override;
    void styleText(int start, int end) override;

  private:
    QPalette palette_;
};

} // namespace orvane
