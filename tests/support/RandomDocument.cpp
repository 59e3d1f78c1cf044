// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/RandomDocument.h"

#include "core/DocumentWriter.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <array>
#include <limits>
#include <ostream>

namespace orvane {

void showValue(const FsmDocument& document, std::ostream& out) { out << ToUtf8(WriteDocument(document)); }

} // namespace orvane

namespace orvane::test {

namespace gen = rc::gen;
using rc::Gen;

namespace {

constexpr std::array kGeneralTexts = {
    &GeneralCode::FsmName,   &GeneralCode::HeaderComment, &GeneralCode::CodeSeg,   &GeneralCode::InitSeg,
    &GeneralCode::NvEm0Data, &GeneralCode::TestSeg,       &GeneralCode::Instances, &GeneralCode::BuildFile};
constexpr std::array kStateTexts = {&StateRecord::Name,     &StateRecord::Tooltip,   &StateRecord::EntryCode,
                                    &StateRecord::ExitCode, &StateRecord::TimeConst, &StateRecord::TimingVar,
                                    &StateRecord::TimerId};
constexpr std::array kEventTexts = {&EventRecord::Name, &EventRecord::Code, &EventRecord::Tooltip};
constexpr std::array kMarks = {&ViewOptions::Polytask, &ViewOptions::ShowTimeTarget,
                               &ViewOptions::ShowTimingMode, &ViewOptions::ShowElse};
constexpr std::array kHeights = {&RowHeights::Else, &RowHeights::ExitAction, &RowHeights::TimingMode,
                                 &RowHeights::TimeTarget};

template <typename Number>
Gen<int> AnyOf(NumberRange<Number> range) {
    return gen::inRange(range.First().Number(), range.Last().Number() + 1);
}

Gen<std::int32_t> AnyInt32() {
    using Limits = std::numeric_limits<std::int32_t>;
    return gen::oneOf(gen::arbitrary<std::int32_t>(), gen::inRange<std::int32_t>(-3, 260),
                      gen::element<std::int32_t>(Limits::min(), Limits::max(), 945, 1890));
}

Gen<std::string> Piece() {
    const auto anyByte = gen::map(gen::inRange(0, 256), [](int code) {
        const char byte = static_cast<char>(code);
        const bool allowed = byte != kDelimiter && byte != '\r' && byte != '\n';
        return std::string(1, allowed ? byte : ' ');
    });
    const auto word = gen::element<std::string>("\r\n", " ", "\t", "Motor On", "Idle", "12:", "<NAME>", "/",
                                                ">", "True", ";", "\x80\x9F\xFF", "100%");
    return gen::oneOf(anyByte, word);
}

Gen<DocumentEdit> StateTextEdit() {
    return gen::apply(
        [](int state, std::string StateRecord::*field, const std::string& text) {
            return DocumentEdit{"text of state " + NumberText(state),
                                [=](FsmDocument& document) { document.State(state).*field = text; }};
        },
        AnyOf(StateNumbers()), gen::elementOf(kStateTexts), AnyText());
}

Gen<DocumentEdit> StateNumberEdit() {
    return gen::apply(
        [](int state, int field, std::int32_t number) {
            return DocumentEdit{"number of state " + NumberText(state), [=](FsmDocument& document) {
                                    StateRecord& record = document.State(state);
                                    if (field == 0)
                                        record.TimingMode = number;
                                    else if (field == 1)
                                        record.ColWidth = number;
                                    else
                                        record.LastTab = static_cast<std::int16_t>(number);
                                }};
        },
        AnyOf(StateNumbers()), gen::inRange(0, 3), AnyInt32());
}

Gen<DocumentEdit> CellEdit() {
    return gen::apply(
        [](int state, int row, int target, const std::string& action) {
            return DocumentEdit{"cell " + NumberText(row) + " of state " + NumberText(state),
                                [=](FsmDocument& document) {
                                    document.State(state).Targets[row] = target;
                                    document.State(state).Actions[row] = action;
                                }};
        },
        AnyOf(StateNumbers()), AnyOf(CellRows()), AnyOf(TargetNumbers()), AnyText());
}

Gen<DocumentEdit> EventEdit() {
    return gen::apply(
        [](int row, std::string EventRecord::*field, const std::string& text) {
            return DocumentEdit{"event row " + NumberText(row), [=](FsmDocument& document) {
                                    document.Event(row).*field = text;
                                    document.Event(row).LastTab = static_cast<std::int16_t>(text.size());
                                }};
        },
        AnyOf(CellRows()), gen::elementOf(kEventTexts), AnyText());
}

Gen<DocumentEdit> GeneralEdit() {
    return gen::apply(
        [](std::string GeneralCode::*field, const std::string& text, bool launch) {
            return DocumentEdit{"general code", [=](FsmDocument& document) {
                                    document.General.*field = text;
                                    document.General.LaunchSeg = launch;
                                }};
        },
        gen::elementOf(kGeneralTexts), AnyText(), gen::arbitrary<bool>());
}

Gen<DocumentEdit> ViewEdit() {
    return gen::apply(
        [](bool ViewOptions::*mark, bool on, Twips RowHeights::*row, std::int32_t twips) {
            return DocumentEdit{"view", [=](FsmDocument& document) {
                                    document.View.*mark = on;
                                    document.View.RowVisible.*row = twips;
                                    document.View.Col0Width = twips / 2;
                                }};
        },
        gen::elementOf(kMarks), gen::arbitrary<bool>(), gen::elementOf(kHeights), AnyInt32());
}

// All cells of one column, so that documents get large without many random choices.
Gen<DocumentEdit> ColumnEdit() {
    return gen::apply(
        [](int state, int target, const std::string& action) {
            return DocumentEdit{"all cells of state " + NumberText(state), [=](FsmDocument& document) {
                                    for (const RowNumber row : CellRows()) {
                                        document.State(state).Targets[row] = target;
                                        document.State(state).Actions[row] =
                                            action + NumberText(row.Number());
                                    }
                                }};
        },
        AnyOf(StateNumbers()), AnyOf(TargetNumbers()), AnyText());
}

// All cells and events of one row.
Gen<DocumentEdit> RowEdit() {
    return gen::apply(
        [](int row, const std::string& text) {
            return DocumentEdit{"all of row " + NumberText(row), [=](FsmDocument& document) {
                                    document.Event(row) = {text, text, text, 1};
                                    for (const StateNumber state : StateNumbers()) {
                                        document.State(state).Targets[row] = StateNumbers().Last() - state;
                                        document.State(state).Actions[row] = text;
                                    }
                                }};
        },
        AnyOf(CellRows()), AnyText());
}

struct Damage {
    int Kind = 0; // 0 cut, 1 doubled, 2 overwritten, 3 put in, 4 everything behind it cut
    unsigned Place = 0;
    unsigned Length = 0;
    std::string Text;
};

void Apply(const Damage& damage, std::string& bytes) {
    const std::size_t place = damage.Place % (bytes.size() + 1);
    const std::size_t length = std::min<std::size_t>(damage.Length, bytes.size() - place);
    switch (damage.Kind) {
    case 0:
        bytes.erase(place, length);
        break;
    case 1:
        bytes.insert(place, bytes.substr(place, length));
        break;
    case 2:
        bytes.replace(place, std::min(damage.Text.size(), bytes.size() - place), damage.Text);
        break;
    case 3:
        bytes.insert(place, damage.Text);
        break;
    default:
        bytes.resize(place);
    }
}

Gen<std::string> FormatWord() {
    return gen::oneOf(gen::element<std::string>("\xA4<", ">", "\xA4/", "\r\n", "\n", "\r", ":", "\xA4", "-",
                                                "7:", "0", "55", "101:", "99999999999", "4:", "\xA4/\r\n"),
                      gen::element<std::string>("\xA4<STATE>3:\xA4/\r\n", "\xA4<EVENT>6:\xA4/\r\n",
                                                "\xA4<TRANSITIONS>\r\n", "\xA4<TRANS>6:3\xA4/\r\n",
                                                "\xA4<TACT>7:;x\xA4/\r\n", "\xA4</TRANSITIONS>\r\n",
                                                "\xA4</STATE>\r\n", "\xA4</EVENT>\xA4/\r\n",
                                                "\xA4<ROWVISIBLE>\xA4/\r\n", "\xA4</ROWVISIBLE>\xA4/\r\n"),
                      gen::element<std::string>("\xA4<NAME>", "\xA4<CODE>", "\xA4<POLYTASK>",
                                                "\xA4<COLWIDTH>", "\xA4<LASTTAB>", "\xA4<LAUNCHSEG>",
                                                "\xA4<FSM_NAME>", "\xA4<NOSUCHTAG>", "\xA4<ELSE>"),
                      Piece());
}

} // namespace

void showValue(const DocumentEdit& edit, std::ostream& out) { out << edit.What; }

Gen<std::string> AnyText() {
    const auto join = [](const std::vector<std::string>& pieces) {
        std::string text;
        for (const std::string& piece : pieces)
            text += piece;
        return text;
    };
    return gen::map(gen::resize(6, gen::container<std::vector<std::string>>(Piece())), join);
}

Gen<DocumentEdit> AnyEdit() {
    return gen::weightedOneOf<DocumentEdit>({{5, StateTextEdit()},
                                             {3, StateNumberEdit()},
                                             {6, CellEdit()},
                                             {3, EventEdit()},
                                             {3, GeneralEdit()},
                                             {2, ViewEdit()},
                                             {1, ColumnEdit()},
                                             {1, RowEdit()}});
}

Gen<FsmDocument> AnyDocument() {
    return gen::map(gen::container<std::vector<DocumentEdit>>(AnyEdit()),
                    [](const std::vector<DocumentEdit>& edits) {
                        FsmDocument document;
                        for (const DocumentEdit& edit : edits)
                            edit.Apply(document);
                        return document;
                    });
}

FsmDocument StoredPart(FsmDocument document) {
    for (const RowNumber row : CellRows()) {
        document.Event(row).LastTab = 0;
        if (!EventRows().Contains(row))
            document.Event(row) = {};
    }
    for (const StateNumber state : StateNumbers())
        document.State(state).LastTab = 0;
    return document;
}

Gen<std::string> TagSoup() {
    return gen::map(gen::container<std::vector<std::string>>(FormatWord()),
                    [](const std::vector<std::string>& words) {
                        std::string bytes;
                        for (const std::string& word : words)
                            bytes += word;
                        return bytes;
                    });
}

Gen<std::string> DamagedFile() {
    const auto damage = gen::build<Damage>(
        gen::set(&Damage::Kind, gen::inRange(0, 5)), gen::set(&Damage::Place),
        gen::set(&Damage::Length, gen::inRange(0u, 40u)), gen::set(&Damage::Text, FormatWord()));
    return gen::apply(
        [](const FsmDocument& document, const std::vector<Damage>& damages) {
            std::string bytes = WriteDocument(document);
            for (const Damage& one : damages)
                Apply(one, bytes);
            return bytes;
        },
        AnyDocument(), gen::resize(5, gen::container<std::vector<Damage>>(damage)));
}

} // namespace orvane::test
