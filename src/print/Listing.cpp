// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/Listing.h"

#include "core/TimingMode.h"
#include "export/Names.h"
#include "export/Titles.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"
#include "text/Utf8.h"

namespace orvane::print {

namespace {

constexpr int kTab = 8;          // letters from one stop to the next
constexpr int kIndent = 200;     // of what belongs to a heading
constexpr int kNumberGap = 120;  // between a number and its line
constexpr int kParagraph = 80;   // between two blocks
constexpr int kKeptTogether = 3; // lines of code that stand on the page of their heading

std::string WithoutTabs(std::string_view line) {
    std::string text;
    std::size_t column = 0;
    while (!line.empty()) {
        const std::string_view before = line;
        TakeCharacter(line);
        const std::string_view letter = before.substr(0, before.size() - line.size());
        const std::size_t stop = (column / kTab + 1) * kTab;
        if (letter == "\t")
            text.append(stop - column, ' ');
        else
            text += letter;
        column = letter == "\t" ? stop : column + 1;
    }
    return text;
}

class ListingWriter {
  public:
    ListingWriter(PageFlow& flow, const FsmDocument& document)
        : flow_(flow),
          document_(document),
          rows_(exports::UsedRows(document)),
          titles_([&](StateNumber state) { return ToUtf8(exports::StateText(document, state)); },
                  [&](RowNumber row) { return ToUtf8(exports::RowText(document, row)); }) {}

    void Write() {
        flow_.BeginChapter("States");
        for (const StateNumber state : exports::UsedStates(document_))
            WriteState(state);
        flow_.BeginChapter("Events");
        for (const RowNumber row : rows_) {
            if (row >= kFirstEventRow)
                WriteEvent(row);
        }
        flow_.BeginChapter("General code");
        WriteBlock("Header", document_.General.HeaderComment);
        WriteBlock("TESTSEG", document_.General.TestSeg);
        WriteBlock("INITSEG", document_.General.InitSeg);
        WriteBlock("CODESEG", document_.General.CodeSeg);
        WriteBlock("NVEM0DATA", document_.General.NvEm0Data);
    }

  private:
    void WriteState(StateNumber number) {
        const StateRecord& state = document_.State(number);
        WriteHeading(titles_.Of(number));
        WriteComment(state.Tooltip);
        WriteTiming(state);
        WriteBlock("Entry action", state.EntryCode);
        for (const RowNumber row : rows_)
            WriteWay(state, row);
        WriteBlock("Exit action", state.ExitCode);
    }

    void WriteEvent(RowNumber row) {
        WriteHeading(titles_.Of(row));
        WriteComment(document_.Event(row).Tooltip);
        WriteBlock("Test", document_.Event(row).Code);
    }

    void WriteTiming(const StateRecord& state) {
        if (state.TimingMode == kNoTiming || !IsKnownTimingMode(state.TimingMode))
            return;
        const std::string limit = HasConstantLimit(state.TimingMode) ? state.TimeConst : state.TimingVar;
        flow_.Write(kIndent, Face::Body,
                    std::string(StartsTiming(state.TimingMode) ? "Starts" : "Continues") + " the timer " +
                        ToUtf8(exports::OneLine(state.TimerId)) + ", limit " +
                        ToUtf8(exports::OneLine(limit)));
    }

    void WriteWay(const StateRecord& state, RowNumber row) {
        const StateNumber target = state.Targets[row];
        const std::string& action = state.Actions[row];
        if (target == kNoState && action.empty())
            return;
        const std::string way = titles_.Of(row) + (target == kNoState ? "" : ": to " + titles_.Of(target));
        if (!action.empty())
            return WriteBlock(way, action);
        flow_.Skip(kParagraph);
        flow_.Write(kIndent, Face::Body, way);
    }

    void WriteHeading(const std::string& title) {
        flow_.Skip(2 * kParagraph);
        flow_.Need(flow_.Measure().LineHeight(Face::Heading) + Kept());
        flow_.Write(0, Face::Heading, title);
    }

    void WriteComment(std::string_view comment) {
        if (!comment.empty())
            flow_.Write(kIndent, Face::Body, exports::Utf8Lines(comment));
    }

    void WriteBlock(const std::string& caption, std::string_view code) {
        if (code.empty())
            return;
        flow_.Skip(kParagraph);
        flow_.Need(flow_.Measure().LineHeight(Face::Body) + Kept());
        flow_.Write(kIndent, Face::Body, caption);
        WriteCode(flow_, code);
    }

    int Kept() const { return kKeptTogether * flow_.Measure().LineHeight(Face::Code); }

    PageFlow& flow_;
    const FsmDocument& document_;
    const std::vector<RowNumber> rows_;
    const exports::Titles titles_;
};

} // namespace

void WriteListing(PageFlow& flow, const FsmDocument& document) { ListingWriter(flow, document).Write(); }

void WriteCode(PageFlow& flow, std::string_view ansi) {
    const std::string utf8 = exports::Utf8Lines(ansi);
    std::string_view rest = utf8;
    const int digit = flow.Measure().Width(U'0', Face::Code);
    const int codeAt = kIndent + 5 * digit + kNumberGap; // a text has up to 99,999 lines before it moves
    for (int number = 1; !rest.empty(); ++number) {
        const std::size_t end = rest.find('\n');
        const std::string shown = NumberText(number);
        flow.Need(flow.Measure().LineHeight(Face::Code));
        flow.Put(codeAt - kNumberGap - int(shown.size()) * digit, Face::Code, shown);
        flow.Write(codeAt, Face::Code, WithoutTabs(rest.substr(0, end)));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
}

} // namespace orvane::print
