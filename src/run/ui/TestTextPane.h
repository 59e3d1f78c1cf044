// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/QScintilla.h"

#include <cstddef>
#include <string_view>

namespace orvane {

class TestLexer;

// The text of a file of tests, to be read: coloured, with line numbers, and with one line marked.
class TestTextPane : public QsciScintilla {
    Q_OBJECT

  public:
    explicit TestTextPane(QWidget* parent = nullptr);

    void ShowTests(std::string_view utf8);
    // Marks the line, counted from 1, and brings it into sight with what stands around it; 0 marks none.
    void ShowLine(std::size_t line, bool failed);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void ApplyLook();

    TestLexer* lexer_;
};

} // namespace orvane
