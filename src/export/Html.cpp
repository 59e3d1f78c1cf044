// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Cell.h"
#include "export/Exports.h"
#include "export/Names.h"
#include "export/Titles.h"
#include "text/NumberText.h"
#include "text/XmlText.h"

namespace orvane::exports {

namespace {

constexpr std::string_view kStyle =
    "body{font-family:Helvetica,Arial,sans-serif;margin:1.5em;color:#000;background:#fff}\n"
    "table{border-collapse:collapse;font-size:90%}\n"
    "th,td{border:1px solid #888;padding:.25em .5em;text-align:left;vertical-align:top}\n"
    "th{background:#eef3fa}\n"
    "pre{background:#f4f4f4;padding:.5em;white-space:pre-wrap}\n"
    "a{color:#24476b}\n"
    "@media print{body{margin:0}thead{display:table-header-group}tr,pre{break-inside:avoid}}\n";

std::string StateId(StateNumber state) { return "state-" + NumberText(state.Number()); }
std::string RowId(RowNumber row) { return "row-" + NumberText(row.Number()); }

// The text is markup.
std::string Link(const std::string& id, const std::string& text) {
    std::string link = "<a href=\"#";
    return (((link += id) += "\">") += text) += "</a>";
}

std::string CodeParagraph(const std::string& title, std::string_view ansi) {
    if (ansi.empty())
        return "";
    return "<p>" + title + "</p>\n<pre>" + XmlText(ansi) + "</pre>\n";
}

class HtmlWriter {
  public:
    explicit HtmlWriter(const FsmDocument& document)
        : document_(document),
          states_(UsedStates(document)),
          rows_(UsedRows(document)),
          titles_([&](StateNumber state) { return XmlText(StateText(document, state)); },
                  [&](RowNumber row) { return XmlText(RowText(document, row)); }) {}

    std::string Write() {
        const std::string name = document_.General.FsmName.empty() ? "Machine" : document_.General.FsmName;
        html_ = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
                XmlText(name) + "</title>\n<style>\n" + std::string(kStyle) +
                "</style>\n</head>\n<body>\n<h1>" + XmlText(name) + "</h1>\n" +
                CodeParagraph("Header", document_.General.HeaderComment);
        WriteTable();
        html_ += "<h2>States</h2>\n";
        for (const StateNumber state : states_)
            WriteState(state);
        html_ += "<h2>Events</h2>\n";
        for (const RowNumber row : rows_)
            WriteEvent(row);
        html_ += "<h2>Machine</h2>\n" + CodeParagraph("TESTSEG", document_.General.TestSeg) +
                 CodeParagraph("INITSEG", document_.General.InitSeg) +
                 CodeParagraph("CODESEG", document_.General.CodeSeg) +
                 CodeParagraph("NVEM0DATA", document_.General.NvEm0Data) + "</body>\n</html>\n";
        return std::move(html_);
    }

  private:
    void WriteTable() {
        html_ += "<table>\n<thead><tr><th></th>";
        for (const StateNumber state : states_)
            html_ += "<th>" + Link(StateId(state), titles_.Of(state)) + "</th>";
        html_ += "</tr></thead>\n<tbody>\n";
        for (const RowNumber row : rows_) {
            html_ += "<tr><th>" + Link(RowId(row), titles_.Of(row)) + "</th>";
            for (const StateNumber state : states_)
                WriteCell(state, row);
            html_ += "</tr>\n";
        }
        html_ += "</tbody>\n</table>\n";
    }

    void AppendCellId(Cell cell) {
        ((html_ += "cell-") += numbers_.Of(cell.State)) += '-';
        html_ += numbers_.Of(cell.Row);
    }

    // A cell with an action leads to it, one without to the state that it leads to.
    void WriteCell(StateNumber state, RowNumber row) {
        const StateRecord& record = document_.State(state);
        const StateNumber target = record.Targets[row];
        html_ += "<td>";
        if (!record.Actions[row].empty()) {
            html_ += "<a href=\"#";
            AppendCellId({row, state});
            ((html_ += "\">") += target == kNoState ? std::string() : titles_.Of(target)) += "*</a>";
        } else if (target != kNoState) {
            WriteLinkTo(target);
        }
        html_ += "</td>";
    }

    void WriteLinkTo(StateNumber state) {
        (html_ += "<a href=\"#state-") += numbers_.Of(state);
        ((html_ += "\">") += titles_.Of(state)) += "</a>";
    }

    void WriteState(StateNumber state) {
        const StateRecord& record = document_.State(state);
        html_ += "<h3 id=\"" + StateId(state) + "\">" + titles_.Of(state) + "</h3>\n";
        if (!record.Tooltip.empty())
            html_ += "<p>" + XmlText(record.Tooltip) + "</p>\n";
        html_ += CodeParagraph("Entry action", record.EntryCode);
        for (const RowNumber row : rows_)
            WriteWay(record, {row, state});
        html_ += CodeParagraph("Exit action", record.ExitCode);
    }

    void WriteWay(const StateRecord& record, Cell cell) {
        const StateNumber target = record.Targets[cell.Row];
        if (target == kNoState && record.Actions[cell.Row].empty())
            return;
        html_ += "<p id=\"";
        AppendCellId(cell);
        (html_ += "\">") += cell.Row == kTimeoutRow ? XmlText(TimeoutText(record)) : titles_.Of(cell.Row);
        if (target != kNoState) {
            html_ += ": to ";
            WriteLinkTo(target);
        }
        html_ += "</p>\n";
        if (record.Actions[cell.Row].empty())
            return;
        html_ += "<pre>";
        AppendXmlText(html_, record.Actions[cell.Row]);
        html_ += "</pre>\n";
    }

    void WriteEvent(RowNumber row) {
        html_ += "<h3 id=\"" + RowId(row) + "\">" + titles_.Of(row) + "</h3>\n";
        if (!document_.Event(row).Tooltip.empty())
            html_ += "<p>" + XmlText(document_.Event(row).Tooltip) + "</p>\n";
        html_ += CodeParagraph("Test", document_.Event(row).Code);
    }

    const FsmDocument& document_;
    const std::vector<StateNumber> states_;
    const std::vector<RowNumber> rows_;
    const Titles titles_; // as markup
    const Titles numbers_{[](StateNumber state) { return NumberText(state.Number()); },
                          [](RowNumber row) { return NumberText(row.Number()); }};
    std::string html_;
};

} // namespace

std::string HtmlOf(const FsmDocument& document) { return HtmlWriter(document).Write(); }

} // namespace orvane::exports
