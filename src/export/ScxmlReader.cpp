// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TimingMode.h"
#include "export/ImportFault.h"
#include "export/ImportNames.h"
#include "export/ScxmlWords.h"
#include "export/XmlScanner.h"
#include "text/AnsiText.h"
#include "text/Ascii.h"
#include "text/NumberText.h"

#include <algorithm>
#include <map>

namespace orvane::exports {

namespace {

// What a chart says, before anything has a number.
struct ChartTransition {
    std::vector<std::string> Events; // empty: ELSE
    std::string Target;              // empty: it leads nowhere
    std::string Action;
    std::size_t Line;
};

struct ChartState {
    std::string Id;
    std::size_t Line;
    std::string Entry;
    std::string Exit;
    std::map<std::string, std::string> Delays; // by event
    std::vector<ChartTransition> Transitions;
};

struct Chart {
    std::string Name;
    std::string Initial;
    std::vector<ChartState> States;
};

std::vector<std::string> Words(const std::string& text) {
    std::vector<std::string> words(1);
    for (const char character : text) {
        if (character != ' ' && character != '\n' && character != '\t' && character != '\r')
            words.back() += character;
        else if (!words.back().empty())
            words.emplace_back();
    }
    if (words.back().empty())
        words.pop_back();
    return words;
}

// "1F" as that control character.
char HexByte(std::string_view digits) {
    unsigned number = 0;
    for (const char digit : digits) {
        const std::size_t value = std::string_view("0123456789ABCDEF").find(AsciiUpper(digit));
        number = number * 16 + unsigned(value < 16 ? value : 0);
    }
    return number < 0x80 ? char(number) : '?';
}

// The text of a literal in quotes; none for any other expression.
std::optional<std::string> LiteralText(const std::string& expression) {
    if (expression.size() < 2 || expression.front() != '\'' || expression.back() != '\'')
        return std::nullopt;
    std::string text;
    for (std::size_t i = 1; i + 1 < expression.size(); ++i) {
        if (expression[i] == '\'')
            return std::nullopt;
        if (expression[i] != '\\') {
            text += expression[i];
            continue;
        }
        const char sign = expression[++i];
        if (sign == 'x') {
            text += HexByte(std::string_view(expression).substr(i + 1, 2));
            i += 2;
        } else {
            text += sign == 'n' ? '\n' : sign == 'r' ? '\r' : sign == 't' ? '\t' : sign;
        }
    }
    return text;
}

class ChartReader {
  public:
    ChartReader(std::string_view utf8, std::vector<ReaderMessage>& messages)
        : scanner_(utf8), messages_(messages) {}

    Chart Read() {
        while (const std::optional<XmlTag> tag = scanner_.Next()) {
            if (tag->Opens)
                Open(*tag);
            if (tag->Closes)
                Close(*tag);
        }
        if (!isChart_)
            throw ImportFault{"The text is no state chart: it has no element \"scxml\"", 1};
        return std::move(chart_);
    }

  private:
    void Open(const XmlTag& tag) {
        if (tag.Name == "scxml")
            OpenChart(tag);
        else if (tag.Name == "parallel" || tag.Name == "history")
            Refuse(tag, "which a table has no counterpart for");
        else if (tag.Name == "state" || tag.Name == "final")
            OpenState(tag);
        else if (tag.Name == "transition")
            OpenTransition(tag);
        else if (tag.Name == "onentry" || tag.Name == "onexit")
            part_ = tag.Name;
        else if (tag.Name == "send")
            TakeDelay(tag);
        else if (tag.Name == "log")
            TakeCode(tag);
        else if (tag.Name != "cancel" && tag.Name != "initial")
            Tell("The element \"" + tag.Name + "\" is left out", tag.Line);
    }

    void Close(const XmlTag& tag) {
        if (tag.Name == "state" || tag.Name == "final")
            isInState_ = false;
        else if (tag.Name == "transition")
            isInTransition_ = false;
        else if (tag.Name == part_)
            part_.clear();
    }

    [[noreturn]] static void Refuse(const XmlTag& tag, const std::string& why) {
        const std::string id = tag.Attribute("id");
        throw ImportFault{"The chart has the " + tag.Name +
                              (id.empty() ? "" : " \"" + FromUtf8(id, '?') + "\"") + ", " + why,
                          tag.Line};
    }

    void Tell(const std::string& what, std::size_t line) { messages_.push_back({FromUtf8(what, '?'), line}); }

    void OpenChart(const XmlTag& tag) {
        isChart_ = true;
        chart_.Name = DocumentText(tag.Attribute("name"), tag.Line);
        chart_.Initial = tag.Attribute("initial");
    }

    void OpenState(const XmlTag& tag) {
        if (isInState_)
            Refuse(tag, "which stands within \"" + DocumentText(chart_.States.back().Id, tag.Line) +
                            "\"; a table has no states within states");
        if (tag.Attribute("id").empty())
            throw ImportFault{"A state has no id", tag.Line};
        for (const ChartState& state : chart_.States) {
            if (state.Id == tag.Attribute("id"))
                Refuse(tag, "which is there twice");
        }
        chart_.States.push_back({tag.Attribute("id"), tag.Line, "", "", {}, {}});
        isInState_ = true;
    }

    void OpenTransition(const XmlTag& tag) {
        if (!isInState_) {
            if (chart_.Initial.empty())
                chart_.Initial = tag.Attribute("target");
            return;
        }
        isInTransition_ = true;
        if (!tag.Attribute("cond").empty())
            Tell("The condition \"" + tag.Attribute("cond") + "\" is left out", tag.Line);
        chart_.States.back().Transitions.push_back(
            {Words(tag.Attribute("event")), tag.Attribute("target"), "", tag.Line});
    }

    void TakeDelay(const XmlTag& tag) {
        const std::string delay = tag.Attribute("delay");
        if (isInState_ && part_ == "onentry" && !delay.empty())
            chart_.States.back().Delays[tag.Attribute("event")] = delay;
        else
            Tell("The element \"send\" is left out", tag.Line);
    }

    void TakeCode(const XmlTag& tag) {
        const std::optional<std::string> code = LiteralText(tag.Attribute("expr"));
        if (!isInState_ || !code) {
            Tell("The element \"log\" is left out", tag.Line);
            return;
        }
        ChartState& state = chart_.States.back();
        const std::string text = DocumentText(*code, tag.Line);
        if (isInTransition_)
            state.Transitions.back().Action += text;
        else
            (part_ == "onexit" ? state.Exit : state.Entry) += text;
    }

    XmlScanner scanner_;
    std::vector<ReaderMessage>& messages_;
    Chart chart_;
    std::string part_;
    bool isChart_ = false;
    bool isInState_ = false;
    bool isInTransition_ = false;
};

// "s3_Idle" as number and name; number 0 for any other id.
NumberedName IdParts(char kind, const std::string& id) {
    const std::size_t end = id.find('_');
    const std::string number = id.empty() || id[0] != kind ? "" : id.substr(1, end - 1);
    const NumberedName parts = SplitNumber(number);
    if (number.empty() || number.front() == '0' || parts.Number == 0 || !parts.Name.empty())
        return {0, id};
    return {parts.Number, end == std::string::npos ? "" : id.substr(end + 1)};
}

class ChartDocument {
  public:
    explicit ChartDocument(const Chart& chart) : chart_(chart), names_(document_) {}

    FsmDocument Make() {
        document_.General.FsmName = IdParts('m', chart_.Name).Name;
        NumberStates();
        for (const ChartState& state : chart_.States)
            Fill(state);
        return std::move(document_);
    }

  private:
    // By the numbers in the ids when all have one, else as they come, the initial state first.
    void NumberStates() {
        if (chart_.States.size() > std::size_t(kStateCount))
            throw ImportFault{"The chart has more than 100 states", chart_.States.back().Line};
        const bool areNumbered =
            std::all_of(chart_.States.begin(), chart_.States.end(), [](const ChartState& state) {
                const int number = IdParts('s', state.Id).Number;
                return number >= 1 && number <= kStateCount;
            });
        int next = 1;
        for (const ChartState& state : chart_.States) {
            if (!areNumbered && state.Id == chart_.Initial)
                Give(state, {next++, state.Id});
        }
        for (const ChartState& state : chart_.States) {
            if (areNumbered)
                Give(state, IdParts('s', state.Id));
            else if (state.Id != chart_.Initial)
                Give(state, {next++, state.Id});
        }
    }

    void Give(const ChartState& state, const NumberedName& name) {
        const bool isFirst =
            numbers_.emplace(state.Id, name.Number).second && taken_.emplace(name.Number, state.Id).second;
        if (!isFirst)
            throw ImportFault{"Two states have the number " + NumberText(name.Number), state.Line};
        document_.State(name.Number).Name = DocumentText(name.Name, state.Line);
    }

    void Fill(const ChartState& state) {
        StateRecord& record = document_.State(numbers_.at(state.Id));
        record.EntryCode = state.Entry;
        record.ExitCode = state.Exit;
        for (const ChartTransition& transition : state.Transitions) {
            if (transition.Events.empty())
                Set(record, kElseRow, transition);
            for (const std::string& event : transition.Events)
                Set(record, RowOf(state, record, event, transition.Line), transition);
        }
    }

    RowNumber RowOf(const ChartState& state, StateRecord& record, const std::string& event,
                    std::size_t line) {
        const auto delay = state.Delays.find(event);
        if (delay != state.Delays.end()) {
            record.TimingMode = kStartConstant;
            record.TimeConst = LimitOf(event, DocumentText(delay->second, line));
            return kTimeoutRow;
        }
        if (event.starts_with(scxml::kTimeoutEvent))
            return kTimeoutRow;
        const NumberedName parts = IdParts('e', event);
        const bool isNumbered = parts.Number >= kFirstEventRow && parts.Number <= kLastRow;
        return names_.Row(isNumbered ? NumberText(parts.Number) + ":" + DocumentText(parts.Name, line)
                                     : DocumentText(event, line),
                          line);
    }

    // The unit that stands for the controller's own one is taken off again.
    static std::string LimitOf(const std::string& event, std::string delay) {
        if (event.starts_with(scxml::kTimeoutEvent) && delay.size() > 1 && delay.ends_with('s') &&
            std::all_of(delay.begin(), delay.end() - 1, IsAsciiDigit))
            delay.pop_back();
        return delay;
    }

    void Set(StateRecord& record, RowNumber row, const ChartTransition& transition) {
        if (record.Targets[row] != kNoState || transition.Target.empty())
            return; // the first one that matches is taken
        const std::vector<std::string> targets = Words(transition.Target);
        const auto found = targets.size() == 1 ? numbers_.find(targets.front()) : numbers_.end();
        if (found == numbers_.end())
            throw ImportFault{"A transition leads to \"" + FromUtf8(transition.Target, '?') +
                                  "\", which is no state of the chart",
                              transition.Line};
        record.Targets[row] = found->second;
        record.Actions[row] = transition.Action;
    }

    const Chart& chart_;
    FsmDocument document_;
    ImportNames names_;
    std::map<std::string, int> numbers_; // by id
    std::map<int, std::string> taken_;
};

} // namespace

ImportResult ReadScxml(std::string_view utf8) {
    return Guarded([&](std::vector<ReaderMessage>& messages) {
        const Chart chart = ChartReader(utf8, messages).Read();
        return ChartDocument(chart).Make();
    });
}

} // namespace orvane::exports
