// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TimingMode.h"
#include "export/CsvText.h"
#include "export/CsvWords.h"
#include "export/ImportFault.h"
#include "export/ImportNames.h"
#include "text/AnsiText.h"
#include "text/Ascii.h"
#include "text/Utf8.h"

#include <algorithm>

namespace orvane::exports {

namespace {

// Lines of a cell are LF; those of a document are CR LF.
std::string CellText(std::string_view utf8, std::size_t line) {
    std::string lines;
    for (const char character : DocumentText(utf8, line)) {
        if (character == '\n' && !lines.ends_with('\r'))
            lines += '\r';
        lines += character;
    }
    return lines;
}

// The apostrophe that keeps a spreadsheet from seeing a formula.
std::string WithoutApostrophe(std::string cell) {
    const bool isKept =
        cell.size() > 1 && cell[0] == '\'' && csv::kFormulaSigns.find(cell[1]) != std::string_view::npos;
    return isKept ? cell.substr(1) : cell;
}

class GridReader {
  public:
    explicit GridReader(const std::vector<CsvLine>& lines) : lines_(lines) {}

    FsmDocument Read() {
        ReadHead(lines_.front());
        for (std::size_t i = 1; i < lines_.size(); ++i)
            ReadLine(lines_[i]);
        return std::move(document_);
    }

  private:
    static std::string Cell(const CsvLine& line, std::size_t at) {
        return at < line.Cells.size() ? WithoutApostrophe(CellText(line.Cells[at], line.Number)) : "";
    }

    // A column is a state, whatever number stands in its head.
    void ReadHead(const CsvLine& line) {
        document_.General.FsmName = Cell(line, 0);
        if (line.Cells.size() > std::size_t(kStateCount) + 1)
            throw ImportFault{"The table has more than 100 columns of states", line.Number};
        for (std::size_t column = 1; column < line.Cells.size(); ++column) {
            const std::string head = Cell(line, column);
            const NumberedName name = SplitNumber(head);
            const bool isOwn = name.Number == int(column) && head.find(':') != std::string::npos;
            document_.State(int(column)).Name = isOwn ? name.Name : head;
        }
        columns_ = line.Cells.size();
    }

    void ReadLine(const CsvLine& line) {
        const std::string head = AsciiLower(Cell(line, 0));
        const auto is = [&](std::string_view word) { return head == AsciiLower(word); };
        if (is(csv::kEntry))
            return ReadTexts(line, &StateRecord::EntryCode);
        if (is(csv::kExit))
            return ReadTexts(line, &StateRecord::ExitCode);
        if (is(csv::kMode))
            return ReadModes(line);
        if (is(csv::kTimeout))
            return ReadTargets(line, kTimeoutRow);
        if (is(csv::kElse))
            return ReadTargets(line, kElseRow);
        if (nextRow_ > kLastRow)
            throw ImportFault{"The table has more than 49 rows of events", line.Number};
        document_.Event(nextRow_).Name = Cell(line, 0);
        ReadTargets(line, nextRow_);
        ++nextRow_;
    }

    void ReadTexts(const CsvLine& line, std::string StateRecord::*field) {
        for (std::size_t column = 1; column < columns_; ++column)
            document_.State(int(column)).*field = Cell(line, column);
    }

    // "Start T1/30" or "Cont /Var".
    void ReadModes(const CsvLine& line) {
        for (std::size_t column = 1; column < columns_; ++column) {
            const std::string cell = Cell(line, column);
            const std::size_t slash = cell.find('/');
            const bool starts = cell.starts_with("Start ");
            if (slash == std::string::npos || (!starts && !cell.starts_with("Cont ")))
                continue;
            StateRecord& state = document_.State(int(column));
            const std::size_t id = cell.find(' ') + 1;
            state.TimerId = slash < id ? "" : cell.substr(id, slash - id);
            const bool isVariable = cell.substr(slash + 1) == "Var";
            if (!isVariable)
                state.TimeConst = cell.substr(slash + 1);
            state.TimingMode = starts ? (isVariable ? kStartVariable : kStartConstant)
                                      : (isVariable ? kContinueVariable : kContinueConstant);
        }
    }

    // A star stands for an action that the table does not show.
    void ReadTargets(const CsvLine& line, RowNumber row) {
        for (std::size_t column = 1; column < columns_; ++column) {
            std::string cell = Cell(line, column);
            if (cell.ends_with('*'))
                cell.pop_back();
            if (!cell.empty())
                document_.State(int(column)).Targets[row] = Target(cell, line.Number);
        }
    }

    StateNumber Target(const std::string& cell, std::size_t line) const {
        for (StateNumber state = 1; state.Number() < int(columns_); ++state) {
            if (document_.State(state).Name == cell)
                return state;
        }
        const int number = SplitNumber(cell).Number;
        if (number == 0 || number > kStateCount)
            throw ImportFault{"\"" + cell + "\" is no state of the table", line};
        return number;
    }

    const std::vector<CsvLine>& lines_;
    FsmDocument document_;
    std::size_t columns_ = 0; // with that of the heads
    RowNumber nextRow_ = kFirstEventRow;
};

class LongReader {
  public:
    explicit LongReader(const std::vector<CsvLine>& lines) : lines_(lines), names_(document_) {}

    FsmDocument Read() {
        for (std::size_t i = 1; i < lines_.size(); ++i)
            ReadLine(lines_[i]);
        return std::move(document_);
    }

  private:
    void ReadLine(const CsvLine& line) {
        const auto cell = [&](std::size_t at) {
            return at < line.Cells.size() ? CellText(line.Cells[at], line.Number) : "";
        };
        const std::string state = cell(0);
        const std::string event = cell(1);
        const std::string target = cell(2);
        const std::string action = cell(3);
        if (state.empty() && !event.empty())
            names_.Row(event, line.Number);
        if (state.empty())
            return;
        const StateNumber from = names_.State(state, line.Number);
        if (event.empty())
            return;
        const RowNumber row = names_.Row(event, line.Number);
        StateRecord& record = document_.State(from);
        if (record.Targets[row] != kNoState || !record.Actions[row].empty())
            throw ImportFault{"State \"" + state + "\" has two lines for event \"" + event + "\"",
                              line.Number};
        if (!target.empty())
            record.Targets[row] = names_.State(target, line.Number);
        record.Actions[row] = action;
    }

    const std::vector<CsvLine>& lines_;
    FsmDocument document_;
    ImportNames names_;
};

bool IsLong(const CsvLine& head) {
    std::string joined;
    for (const std::string& cell : head.Cells)
        joined += (joined.empty() ? "" : ",") + AsciiLower(cell);
    return joined == csv::kLongHead;
}

} // namespace

ImportResult ReadCsv(std::string_view utf8) {
    return Guarded([&](std::vector<ReaderMessage>&) {
        // Older spreadsheets write the code page of the machine.
        const bool isUtf8 = SoundLength(utf8) == utf8.size();
        const std::optional<std::vector<CsvLine>> lines = CsvLines(isUtf8 ? std::string(utf8) : ToUtf8(utf8));
        if (!lines)
            throw ImportFault{"A quote is not closed", 1};
        if (lines->empty())
            return FsmDocument();
        return IsLong(lines->front()) ? LongReader(*lines).Read() : GridReader(*lines).Read();
    });
}

} // namespace orvane::exports
