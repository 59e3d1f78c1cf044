// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Cell.h"
#include "core/TimingMode.h"
#include "export/Exports.h"
#include "export/Names.h"
#include "export/ScxmlWords.h"
#include "export/Titles.h"
#include "text/Append.h"
#include "text/EscapedUtf8.h"
#include "text/NumberText.h"
#include "text/XmlText.h"

#include <algorithm>

namespace orvane::exports {

namespace {

// A comment ends at "--".
std::string CommentText(std::string_view ansi) {
    std::string text = XmlText(OneLine(ansi));
    for (std::size_t at = text.find("--"); at != std::string::npos; at = text.find("--"))
        text.replace(at, 2, "- -");
    return text.ends_with('-') ? text + " " : text;
}

constexpr bool IsMarkup(unsigned char byte) {
    return byte == '&' || byte == '<' || byte == '>' || byte == '"';
}

constexpr ByteSet kEscapedInXml = EscapedBytes(
    [](unsigned char byte) { return byte < 0x20 || byte == '\'' || byte == '\\' || IsMarkup(byte); });

void AppendEscape(std::string& literal, std::string_view rest) {
    const char character = rest.front();
    if (IsMarkup(ByteOf(character)))
        literal += XmlText(rest.substr(0, 1));
    else if (character == '\n')
        literal += "\\n";
    else if (character == '\r')
        literal += "\\r";
    else if (character == '\t')
        literal += "\\t";
    else if (character == '\'')
        literal += "\\&#39;";
    else if (character == '\\')
        literal += "\\\\";
    else // which no XML may hold
        literal += std::string("\\x") + (ByteOf(character) < 0x10 ? "0" : "") + HexText(ByteOf(character));
}

// A text as an expression in an attribute.
void AppendLiteral(std::string& xml, std::string_view ansi) {
    xml += "&#39;";
    AppendEscaped(xml, ansi, kEscapedInXml, AppendEscape);
    xml += "&#39;";
}

void AppendLog(std::string& xml, std::string_view label, std::string_view code) {
    Append(xml, "      <log label=\"", label, "\" expr=\"");
    AppendLiteral(xml, code);
    xml += "\"/>\n";
}

class ScxmlWriter {
  public:
    explicit ScxmlWriter(const FsmDocument& document)
        : document_(document),
          states_(UsedStates(document)),
          ids_([&](StateNumber state) { return Identifier('s', state.Number(), document.State(state).Name); },
               [&](RowNumber row) { return Identifier('e', row.Number(), document.Event(row).Name); }) {}

    std::string Write() {
        text_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                "<scxml xmlns=\"http://www.w3.org/2005/07/scxml\" version=\"1.0\" datamodel=\"ecmascript\"";
        if (!document_.General.FsmName.empty())
            text_ += " name=\"" + Identifier('m', 1, document_.General.FsmName) + "\"";
        if (!states_.empty())
            text_ += " initial=\"" + StateId(states_.front()) + "\"";
        text_ += ">\n";
        for (const StateNumber state : states_)
            WriteState(state);
        return std::move(text_ += "</scxml>\n");
    }

  private:
    const std::string& StateId(StateNumber state) const { return ids_.Of(state); }
    static std::string TimeoutEvent(StateNumber state) {
        return std::string(scxml::kTimeoutEvent) + "s" + NumberText(state.Number());
    }

    void WriteState(StateNumber state) {
        const StateRecord& record = document_.State(state);
        text_ += "  <state id=\"" + StateId(state) + "\">\n";
        WriteEntry(record, state);
        WriteExit(record, state);
        for (const RowNumber row : EventRows())
            WriteTransition(record, {row, state});
        WriteTransition(record, {kTimeoutRow, state});
        WriteTransition(record, {kElseRow, state});
        text_ += "  </state>\n";
    }

    static bool HasDelay(const StateRecord& record) {
        return record.TimingMode == kStartConstant && record.Targets[kTimeoutRow] != kNoState;
    }

    // A limit without a unit is one of the controller's; a chart has only real ones.
    static std::string Delay(const StateRecord& record) {
        const std::string limit = OneLine(record.TimeConst);
        const bool isNumber = !limit.empty() && limit.find_first_not_of("0123456789") == std::string::npos;
        return isNumber ? limit + "s" : limit;
    }

    void WriteEntry(const StateRecord& record, StateNumber state) {
        if (record.EntryCode.empty() && !HasDelay(record))
            return;
        text_ += "    <onentry>\n";
        if (!record.EntryCode.empty())
            AppendLog(text_, scxml::kEntry, record.EntryCode);
        if (HasDelay(record))
            text_ += "      <send id=\"" + TimeoutEvent(state) + "\" event=\"" + TimeoutEvent(state) +
                     "\" delay=\"" + XmlText(Delay(record)) + "\"/><!-- limit " +
                     CommentText(record.TimeConst) + " in the controller's units -->\n";
        text_ += "    </onentry>\n";
    }

    void WriteExit(const StateRecord& record, StateNumber state) {
        if (record.ExitCode.empty() && !HasDelay(record))
            return;
        text_ += "    <onexit>\n";
        if (HasDelay(record))
            text_ += "      <cancel sendid=\"" + TimeoutEvent(state) + "\"/>\n";
        if (!record.ExitCode.empty())
            AppendLog(text_, scxml::kExit, record.ExitCode);
        text_ += "    </onexit>\n";
    }

    void WriteTransition(const StateRecord& record, Cell cell) {
        const StateNumber target = record.Targets[cell.Row];
        if (target == kNoState)
            return;
        if (cell.Row == kTimeoutRow && !HasDelay(record))
            WriteLoss(record);
        text_ += "    <transition";
        if (cell.Row == kTimeoutRow)
            Append(text_, " event=\"", TimeoutEvent(cell.State), "\"");
        else if (cell.Row != kElseRow)
            Append(text_, " event=\"", ids_.Of(cell.Row), "\"");
        Append(text_, " target=\"", StateId(target), "\"");
        WriteContent(record.Actions[cell.Row]);
    }

    void WriteContent(const std::string& action) {
        if (action.empty()) {
            text_ += "/>\n";
            return;
        }
        text_ += ">\n";
        AppendLog(text_, scxml::kAction, action);
        text_ += "    </transition>\n";
    }

    void WriteLoss(const StateRecord& record) {
        const bool continues = IsKnownTimingMode(record.TimingMode) && !StartsTiming(record.TimingMode) &&
                               record.TimingMode != kNoTiming;
        std::string lost = "    <!-- nothing sends this event: ";
        if (continues)
            lost += "the state goes on with the timer " +
                    (record.TimerId.empty() ? std::string("without a name") : CommentText(record.TimerId)) +
                    " that another state started";
        else if (HasVariableLimit(record.TimingMode))
            lost += "its limit is computed by " + CommentText(record.TimingVar);
        else
            lost += "the state has no timing mode";
        text_ += lost + " -->\n";
    }

    const FsmDocument& document_;
    const std::vector<StateNumber> states_;
    const Titles ids_;
    std::string text_;
};

} // namespace

std::string ScxmlOf(const FsmDocument& document) { return ScxmlWriter(document).Write(); }

} // namespace orvane::exports
