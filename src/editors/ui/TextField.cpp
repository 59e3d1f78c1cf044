// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/TextField.h"

#include "kit/AnsiString.h"
#include "kit/CodePane.h"
#include "text/AnsiText.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>

#include <algorithm>
#include <array>

namespace orvane {

namespace {

// The field of each text, by the text's tag in the file.
struct FieldName {
    std::string_view Tag;
    const char* Name;
};
constexpr auto kFieldNames = std::to_array<FieldName>({
    {tag::kFsmName, "txtName"},
    {tag::kCodeSeg, "txtCodeSeg"},
    {tag::kInitSeg, "txtInitSeg"},
    {tag::kNvEm0Data, "txtNV0Data"},
    {tag::kTestSeg, "txtTestSeg"},
    {tag::kHeaderComment, "txtHeader"},
    {tag::kInstances, "txtInstanceCount"},
    {tag::kName, "txtName"},
    {tag::kTooltip, "txtComment"},
    {tag::kCode, "txtEventCode"},
    {tag::kEntry, "txtEntryCode"},
    {tag::kExit, "txtExitCode"},
    {tag::kTimeConst, "txtTimeCONST"},
    {tag::kTimingVar, "txtTimeVAR"},
    {tag::kTimerId, "txtTimerID"},
    {tag::kAction, "txtCode"},
});

QWidget* FieldOf(const QWidget& dialog, std::string_view tag) {
    const auto* field = std::find_if(kFieldNames.begin(), kFieldNames.end(),
                                     [tag](const FieldName& f) { return f.Tag == tag; });
    return field == kFieldNames.end() ? nullptr : dialog.findChild<QWidget*>(QLatin1String(field->Name));
}

// The pages on the way to the field come to the front; one that is hidden stays so.
void BringToFront(QWidget& field) {
    for (QWidget* page = &field; page != nullptr; page = page->parentWidget()) {
        QWidget* stack = page->parentWidget();
        auto* tabs = stack != nullptr ? qobject_cast<QTabWidget*>(stack->parentWidget()) : nullptr;
        if (tabs != nullptr && tabs->isTabVisible(tabs->indexOf(page)))
            tabs->setCurrentWidget(page);
    }
}

void SelectIn(CodePane& pane, std::string_view before, std::string_view piece) {
    const auto start = ToUtf8(before).size();
    pane.SendScintilla(QsciScintillaBase::SCI_SETSEL, start, ToUtf8(before).size() + ToUtf8(piece).size());
    pane.ensureCursorVisible();
}

// A line break is one character there.
int CharactersOf(std::string_view text) {
    QString shown = FromAnsi(text);
    shown.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return int(shown.size());
}

void SelectIn(QPlainTextEdit& field, std::string_view before, std::string_view piece) {
    QTextCursor cursor = field.textCursor();
    cursor.setPosition(CharactersOf(before));
    cursor.setPosition(CharactersOf(before) + CharactersOf(piece), QTextCursor::KeepAnchor);
    field.setTextCursor(cursor);
    field.ensureCursorVisible();
}

} // namespace

void ShowPiece(QWidget& dialog, const TextPiece& piece, std::string_view text) {
    QWidget* field = FieldOf(dialog, KindOf(piece.Place).Tag);
    if (field == nullptr || piece.Start > text.size())
        return;
    BringToFront(*field);
    field->setFocus();
    const std::string_view before = text.substr(0, piece.Start);
    const std::string_view shown = text.substr(piece.Start, piece.Length);
    if (auto* pane = qobject_cast<CodePane*>(field))
        SelectIn(*pane, before, shown);
    else if (auto* lines = qobject_cast<QPlainTextEdit*>(field))
        SelectIn(*lines, before, shown);
    else if (auto* line = qobject_cast<QLineEdit*>(field))
        line->setSelection(int(before.size()), int(shown.size()));
}

} // namespace orvane
