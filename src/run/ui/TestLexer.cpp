// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/TestLexer.h"

#include "kit/PaneLook.h"
#include "run/TestWords.h"
#include "text/Ordinal.h"

#include <string_view>

namespace orvane {

namespace {

using run::TestWordKind;

// Blanks have the style of names.
constexpr int StyleOf(TestWordKind kind) { return int(Ordinal(kind)); }
constexpr int kTestStyleCount = StyleOf(TestWordKind::Wrong) + 1;

} // namespace

TestLexer::TestLexer(QObject* parent) : QsciLexerCustom(parent) {}

void TestLexer::SetPalette(const QPalette& palette) {
    palette_ = palette;
    for (int style = 0; style < kTestStyleCount; ++style) {
        setColor(defaultColor(style), style);
        setPaper(defaultPaper(style), style);
        setFont(defaultFont(style), style);
    }
}

QString TestLexer::description(int style) const {
    switch (FromOrdinal<TestWordKind>(style)) {
    case TestWordKind::Head:
        return tr("Head");
    case TestWordKind::Title:
        return tr("Title");
    case TestWordKind::Doing:
        return tr("Doing");
    case TestWordKind::Check:
        return tr("Check");
    case TestWordKind::Name:
        return tr("Name");
    case TestWordKind::Quoted:
        return tr("Quoted");
    case TestWordKind::Time:
        return tr("Time");
    case TestWordKind::Sign:
        return tr("Sign");
    case TestWordKind::Comment:
        return tr("Comment");
    case TestWordKind::Wrong:
        return tr("Wrong");
    }
    return {};
}

QColor TestLexer::defaultColor(int style) const {
    const bool dark = IsDark(palette_);
    switch (FromOrdinal<TestWordKind>(style)) {
    case TestWordKind::Head:
        return dark ? QColor(0xD7A6F0) : QColor(0x800080);
    case TestWordKind::Doing:
    case TestWordKind::Check:
        return dark ? QColor(0x7DB7FF) : QColor(0x0000C8);
    case TestWordKind::Quoted:
        return dark ? QColor(0xE8A87C) : QColor(0xA31515);
    case TestWordKind::Time:
        return dark ? QColor(0x8FD0C8) : QColor(0x00605C);
    case TestWordKind::Comment:
        return dark ? QColor(0x7FC97F) : QColor(0x1E7A1E);
    case TestWordKind::Wrong:
        return dark ? QColor(0xFF8080) : QColor(0xC00000);
    case TestWordKind::Title:
    case TestWordKind::Name:
    case TestWordKind::Sign:
        break;
    }
    return palette_.color(QPalette::Text);
}

QColor TestLexer::defaultPaper(int) const { return palette_.color(QPalette::Base); }

QFont TestLexer::defaultFont(int style) const {
    QFont font = PaneFont();
    font.setBold(FromOrdinal<TestWordKind>(style) == TestWordKind::Title);
    return font;
}

// The editor gives whole lines, the last one perhaps without its end.
void TestLexer::styleText(int start, int end) {
    if (editor() == nullptr || end <= start)
        return;
    QByteArray bytes(end - start + 1, '\0'); // the editor ends what it gives with a zero
    editor()->SendScintilla(QsciScintillaBase::SCI_GETTEXTRANGE, start, end, bytes.data());
    startStyling(start);
    std::string_view rest(bytes.constData(), std::size_t(end - start));
    while (!rest.empty()) {
        const std::size_t length = std::min(rest.find('\n'), rest.size() - 1) + 1;
        const std::string_view line = rest.substr(0, rest.substr(0, length).find_first_of("\r\n"));
        std::size_t styled = 0;
        for (const run::TestWord& word : run::TestWordsIn(line)) {
            setStyling(int(word.Begin - styled), StyleOf(TestWordKind::Name));
            setStyling(int(word.End - word.Begin), StyleOf(word.Kind));
            styled = word.End;
        }
        setStyling(int(length - styled), StyleOf(TestWordKind::Name));
        rest.remove_prefix(length);
    }
}

} // namespace orvane
