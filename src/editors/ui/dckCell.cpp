// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/dckCell.h"

#include "editors/ui/OneLayout.h"
#include "editors/ui/TimeoutPage.h"
#include "kit/AnsiString.h"
#include "kit/CloseKeys.h"
#include "kit/CodePane.h"
#include "kit/DocumentLineEdit.h"
#include "kit/DocumentTextEdit.h"

#include <QApplication>
#include <QFocusEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr PaneHandlers kHandlers = {.TextChanged = true, .FindKey = true};
constexpr int kCellHelpPage = 4990;
constexpr int kPaneLines = 4; // of code that are seen at least

// Asks for no more room than it must have, so that all parts are to be seen at once where there is room, and
// takes what is left. That it must have it, a layout with texts that turn has to be told by the hint: to a
// size that is ignored it gives nothing.
class ShortPane : public CodePane {
  public:
    explicit ShortPane(QWidget* parent) : CodePane(kHandlers, parent) {
        setMinimumHeight(kPaneLines * fontMetrics().lineSpacing());
    }
    QSize sizeHint() const override { return {CodePane::sizeHint().width(), minimumHeight()}; }
};

QWidget* WidgetOf(const std::variant<DocumentLineEdit*, DocumentTextEdit*, CodePane*>& control) {
    return std::visit([](auto* editor) -> QWidget* { return editor; }, control);
}

} // namespace

dckCell::dckCell(const Vocabulary& words, QWidget* parent)
    : Pane("dckCell", tr("Cell"), kCellHelpPage, parent), lblCell(new QLabel(this)) {
    lblCell->setObjectName(QStringLiteral("lblCell"));
    lblCell->setTextFormat(Qt::PlainText);
    lblCell->setWordWrap(true);
    fraTransition = BuildTransition(words);
    fraEvent = BuildEvent(words);
    fraState = BuildState(words);
    auto* content = new QWidget(this);
    content->setAttribute(Qt::WA_StaticContents); // what does not move is not painted when it becomes longer
    auto* column = new QVBoxLayout(content);
    column->addWidget(lblCell);
    for (QGroupBox* part : {fraTransition, fraEvent, fraState})
        column->addWidget(part, part == fraState ? 2 : 1);
    column->addStretch(); // where there is no part, the words stand at the top all the same
    scroller_ = new QScrollArea(this);
    scroller_->setFrameShape(QFrame::NoFrame);
    scroller_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller_->setWidgetResizable(true);
    scroller_->setWidget(content);
    scroller_->setMinimumWidth(content->minimumSizeHint().width());
    scroller_->setFocusPolicy(Qt::NoFocus);
    setWidget(scroller_);
    // By whatever key or press it comes there.
    connect(qApp, &QApplication::focusChanged, scroller_, [this, content](QWidget*, QWidget* now) {
        if (now != nullptr && content->isAncestorOf(now))
            scroller_->ensureWidgetVisible(now);
    });
    AddKeys();
}

QGroupBox* dckCell::BuildTransition(const Vocabulary& words) {
    auto* part = new QGroupBox(tr("Transition"), this);
    part->setObjectName(QStringLiteral("fraCellTransition"));
    auto* column = new QVBoxLayout(part);
    AddLine(*column, "txtCellTarget", tr("Goes to, by number or name"), &PlaceFields::Target);
    AddPane(*column, "txtCellAction", tr("Action"), words, &PlaceFields::Action);
    return part;
}

QGroupBox* dckCell::BuildEvent(const Vocabulary& words) {
    auto* part = new QGroupBox(tr("Event"), this);
    part->setObjectName(QStringLiteral("fraCellEvent"));
    auto* column = new QVBoxLayout(part);
    AddLine(*column, "txtCellEvent", tr("Name of the event"), &PlaceFields::EventName);
    AddPane(*column, "txtCellTest", tr("Test of the event"), words, &PlaceFields::Test);
    return part;
}

QGroupBox* dckCell::BuildState(const Vocabulary& words) {
    auto* part = new QGroupBox(tr("State"), this);
    part->setObjectName(QStringLiteral("fraCellState"));
    auto* column = new QVBoxLayout(part);
    AddLine(*column, "txtCellState", tr("Name of the state"), &PlaceFields::StateName);
    AddPane(*column, "txtCellEntry", tr("Entry action"), words, &PlaceFields::EntryCode);
    timeout_ = new TimeoutPage(part, Qt::Vertical);
    column->addWidget(timeout_);
    for (const Field& field : {Field{&PlaceFields::TimerId, &timeout_->TimerId()},
                               Field{&PlaceFields::TimeConst, &timeout_->TimeConst()},
                               Field{&PlaceFields::TimingVar, &timeout_->TimingVar()}})
        Connect(field);
    connect(timeout_, &TimeoutPage::OptionChosen, this, [this] {
        if (!filling_)
            Q_EMIT FieldLeft(); // an option is a whole answer
    });
    AddPane(*column, "txtCellExit", tr("Exit action"), words, &PlaceFields::ExitCode);
    return part;
}

void dckCell::AddLine(QVBoxLayout& group, const char* name, const QString& caption,
                      std::string PlaceFields::*member) {
    auto* line = new DocumentLineEdit(this);
    line->setObjectName(QString::fromLatin1(name));
    line->setAccessibleName(caption);
    line->setPlaceholderText(caption);
    group.addWidget(line);
    Connect({member, line});
}

void dckCell::AddPane(QVBoxLayout& group, const char* name, const QString& caption, const Vocabulary& words,
                      std::string PlaceFields::*member) {
    auto* pane = new ShortPane(this);
    pane->setObjectName(QString::fromLatin1(name));
    pane->setAccessibleName(caption);
    pane->SetVocabulary(words);
    auto* prompt = new QLabel(caption, this);
    prompt->setBuddy(pane);
    group.addWidget(prompt);
    group.addWidget(pane, 1);
    Connect({member, pane});
}

void dckCell::Connect(const Field& field) {
    fields_.push_back(field);
    WidgetOf(field.Control)->installEventFilter(this);
    const auto edited = [this] {
        if (!filling_)
            Q_EMIT Edited();
    };
    if (auto* const* line = std::get_if<DocumentLineEdit*>(&field.Control)) {
        connect(*line, &QLineEdit::textChanged, this, edited);
        connect(*line, &DocumentLineEdit::CharactersLeftOut, this, &dckCell::CharactersLeftOut);
    } else if (auto* const* text = std::get_if<DocumentTextEdit*>(&field.Control)) {
        connect(*text, &QPlainTextEdit::textChanged, this, edited);
        connect(*text, &DocumentTextEdit::CharactersLeftOut, this, &dckCell::CharactersLeftOut);
    } else if (auto* const* pane = std::get_if<CodePane*>(&field.Control)) {
        connect(*pane, &CodePane::TextEdited, this, edited);
        connect(*pane, &CodePane::CharactersLeftOut, this, &dckCell::CharactersLeftOut);
    }
}

void dckCell::AddKeys() {
    const auto add = [this](const QKeySequence& keys, auto&& action) {
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    add(Qt::CTRL | Qt::Key_Return, [this] { Q_EMIT FieldLeft(); });
    add(Qt::CTRL | Qt::Key_Enter, [this] { Q_EMIT FieldLeft(); });
    add(Qt::Key_F6, [this] { focusNextPrevChild(true); }); // Tab is typed in code
    add(Qt::SHIFT | Qt::Key_F6, [this] { focusNextPrevChild(false); });
}

void dckCell::ShowPlace(const FsmDocument& document, Cell place) {
    const bool isAnother = !(place == place_);
    const PlaceFields next = FieldsOf(document, place);
    const bool isTimedOtherwise = isAnother || shown_.TimingMode != next.TimingMode;
    std::optional<OneLayout> layout;
    if (isTimedOtherwise) // other parts are there, and other fields for the timeout
        layout.emplace(*scroller_);
    place_ = place;
    filling_ = true;
    for (const Field& field : fields_) {
        const std::string& text = next.*field.Member;
        std::visit(
            [&](auto* editor) {
                if ((isAnother || shown_.*field.Member != text) && editor->Text() != text)
                    editor->SetText(text);
            },
            field.Control);
    }
    if (isTimedOtherwise)
        SetTiming(next.TimingMode);
    filling_ = false;
    shown_ = next;
    ShowParts(document);
}

void dckCell::ShowParts(const FsmDocument& document) {
    if (const QString words = FromAnsi(WordsOf(document, place_)); words != lblCell->text())
        lblCell->setText(words);
    const PlaceParts parts = PartsOf(place_);
    fraTransition->setVisible(parts.Transition);
    fraTransition->setEnabled(!parts.Event || !shown_.EventName.empty()); // it has no transitions before
    fraEvent->setVisible(parts.Event);
    fraState->setVisible(parts.State);
}

// A mode that nobody knows shows no option, and stays.
void dckCell::SetTiming(std::int32_t mode) {
    if (const std::optional<TimingOptions> options = OptionsOf(mode))
        timeout_->SetOptions(*options);
    shownOptions_ = timeout_->Options();
}

PlaceFields dckCell::Typed() const {
    PlaceFields typed = shown_;
    for (const Field& field : fields_)
        std::visit([&](auto* editor) { typed.*field.Member = editor->Text(); }, field.Control);
    const PlaceParts parts = PartsOf(place_);
    if (parts.State && timeout_->Options() != shownOptions_)
        typed.TimingMode = ChooseTimingMode(timeout_->Options(), typed.TimeConst, typed.TimingVar)
                               .Mode.value_or(shown_.TimingMode);
    return typed;
}

TimingProblem dckCell::Unfinished() const {
    if (!PartsOf(place_).State || timeout_->Options() == shownOptions_)
        return TimingProblem::None;
    const PlaceFields typed = Typed();
    return ChooseTimingMode(timeout_->Options(), typed.TimeConst, typed.TimingVar).Problem;
}

void dckCell::TakeFocus() {
    for (const Field& field : fields_) {
        QWidget* control = WidgetOf(field.Control);
        if (control->isEnabled() && control->isVisibleTo(this))
            return control->setFocus();
    }
}

// Whether there was anything to take back.
bool dckCell::TakeBack(QObject& control) {
    for (const Field& field : fields_) {
        if (WidgetOf(field.Control) != &control)
            continue;
        return std::visit(
            [&](auto* editor) {
                const bool isEdited = editor->Text() != shown_.*field.Member;
                if (isEdited)
                    editor->SetText(shown_.*field.Member);
                return isEdited;
            },
            field.Control);
    }
    return false;
}

// A menu or the list of words that comes up over a field does not end it.
bool dckCell::IsEndOfField(const QEvent& event) const {
    return event.type() == QEvent::FocusOut &&
           static_cast<const QFocusEvent&>(event).reason() != Qt::PopupFocusReason;
}

// Esc is taken before it becomes the pane's shortcut: it takes an edited field back first. A list of words
// that is open over the code has it for itself.
bool dckCell::eventFilter(QObject* watched, QEvent* event) {
    if (IsEndOfField(*event))
        Q_EMIT FieldLeft();
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!isPress && event->type() != QEvent::ShortcutOverride)
        return Pane::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const auto* pane = qobject_cast<CodePane*>(watched);
    if (key == Qt::Key_Escape && (pane == nullptr || !pane->isListActive())) {
        event->accept();
        if (isPress && !TakeBack(*watched))
            CloseByKey(*this);
        return true;
    }
    if (isPress && (key == Qt::Key_Return || key == Qt::Key_Enter) &&
        qobject_cast<DocumentLineEdit*>(watched) != nullptr)
        Q_EMIT FieldLeft();
    return Pane::eventFilter(watched, event);
}

} // namespace orvane
