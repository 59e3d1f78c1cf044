// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/TestTextPane.h"

#include "kit/PaneLook.h"
#include "run/ui/TestLexer.h"

#include <QEvent>

namespace orvane {

namespace {

constexpr int kLineMargin = 0;
constexpr int kSymbolMargin = 1;
constexpr int kShownMark = 0; // the ground of the line
constexpr int kFailedMark = 1;
constexpr int kArrowMark = 2;   // beside it, for those who do not see the colour
constexpr int kArrowWidth = 14; // pixels
constexpr int kLinesAround = 3;
constexpr int kLinesShown = 6;

} // namespace

TestTextPane::TestTextPane(QWidget* parent) : QsciScintilla(parent), lexer_(new TestLexer(this)) {
    setObjectName(QStringLiteral("txtTests"));
    setAccessibleName(tr("Text of the tests"));
    setUtf8(true);
    setReadOnly(true);
    setLexer(lexer_);
    SendScintilla(SCI_SETSCROLLWIDTH, 1);
    SendScintilla(SCI_SETSCROLLWIDTHTRACKING, 1);
    markerDefine(Background, kShownMark);
    markerDefine(Background, kFailedMark);
    markerDefine(RightTriangle, kArrowMark);
    ApplyLook();
    setMinimumHeight(textHeight(0) * kLinesShown);
}

void TestTextPane::ApplyLook() {
    const bool dark = IsDark(palette());
    lexer_->SetPalette(palette());
    setMarginsFont(PaneFont());
    setMarginsBackgroundColor(dark ? palette().color(QPalette::Window) : QColor(kAccent));
    setMarginsForegroundColor(dark ? QColor(kAccent) : QColor(Qt::black));
    setCaretForegroundColor(palette().color(QPalette::Text));
    setSelectionBackgroundColor(palette().color(QPalette::Highlight));
    setSelectionForegroundColor(palette().color(QPalette::HighlightedText));
    setMarkerBackgroundColor(dark ? QColor(0x274B2E) : QColor(0xDDF2DD), kShownMark);
    setMarkerBackgroundColor(dark ? QColor(0x5A2A2A) : QColor(0xFFDDDD), kFailedMark);
    setMarkerBackgroundColor(palette().color(QPalette::Text), kArrowMark);
    setMarginType(kLineMargin, NumberMargin);
    setMarginWidth(kLineMargin, QStringLiteral("0%1").arg(qMax(lines(), 10)));
    setMarginWidth(kSymbolMargin, kArrowWidth);
    setMarginMarkerMask(kSymbolMargin, 1 << kArrowMark);
}

void TestTextPane::ShowTests(std::string_view utf8) {
    setReadOnly(false);
    SendScintilla(SCI_CLEARALL);
    SendScintilla(SCI_ADDTEXT, utf8.size(), utf8.data());
    SendScintilla(SCI_EMPTYUNDOBUFFER);
    SendScintilla(SCI_GOTOPOS, 0);
    setReadOnly(true);
    ApplyLook();
}

void TestTextPane::ShowLine(std::size_t line, bool failed) {
    for (const int mark : {kShownMark, kFailedMark, kArrowMark})
        markerDeleteAll(mark);
    if (line == 0)
        return;
    const int index = int(line) - 1;
    markerAdd(index, failed ? kFailedMark : kShownMark);
    markerAdd(index, kArrowMark);
    setCursorPosition(index, 0);
    SendScintilla(SCI_SETFIRSTVISIBLELINE, qMax(index - kLinesAround, 0));
}

void TestTextPane::changeEvent(QEvent* event) {
    QsciScintilla::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ApplyLook();
}

} // namespace orvane
