// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ProgramChecker.h"

#include "codegen/Labels.h"
#include "support/ProgramLines.h"
#include "support/TableInterpreter.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

namespace orvane::test {

namespace {

class Checker {
  public:
    Checker(const FsmDocument& document, std::string_view text)
        : document_(document), lines_(ParseProgram(text)), entered_(EnteredStates(document)) {
        for (const int state : entered_) {
            const StateRecord& record = document.State(state);
            if (record.TimingMode == 1 || record.TimingMode == 2)
                startedIds_.insert(record.TimerId);
        }
    }

    std::vector<std::string> Faults() {
        for (const ProgramLine& line : lines_)
            Count(line);
        for (const ProgramLine& line : lines_)
            CheckUses(line);
        for (const auto& [label, count] : labels_) {
            if (count + timers_.count(label) > 1)
                faults_.push_back("the label " + label + " is defined more than once");
        }
        for (const auto& [timer, count] : timers_)
            CheckTimerDefinitions(timer, count);
        CheckBlocks();
        return std::move(faults_);
    }

  private:
    void Count(const ProgramLine& line) {
        if (line.Kind == LineKind::Label)
            ++labels_[line.Name];
        else if (line.Kind == LineKind::Timer)
            ++timers_[line.Name];
        else if (line.Kind == LineKind::Unknown)
            Fault(line, "is no instruction, label or comment");
    }

    void CheckUses(const ProgramLine& line) {
        if (line.Kind != LineKind::Instruction)
            return;
        if (IsJump(line.Word) && labels_.count(line.Operand) == 0)
            Fault(line, "jumps to nothing");
        if (line.Word == "STTest")
            CheckTimerUse(line, SplitTimeTest(line.Operand).Timer);
        else if (line.Word == "STStart" || line.Word == "fSTTimeSince")
            CheckTimerUse(line, line.Operand);
    }

    void CheckTimerUse(const ProgramLine& line, const std::string& timer) {
        if (timers_.count(timer) != 0)
            return;
        const std::set<std::string> ids = StartedIdsOf(timer);
        if (!std::all_of(ids.begin(), ids.end(),
                         [this](const std::string& id) { return IsTailOfAnother(id); }))
            Fault(line, "uses a timer that is not defined");
    }

    void CheckTimerDefinitions(const std::string& timer, std::size_t count) {
        if (count > std::max<std::size_t>(1, StartedIdsOf(timer).size()))
            faults_.push_back("the timer " + timer + " is defined more than once");
    }

    void CheckBlocks() {
        std::set<int> blocks;
        for (const ProgramLine& line : lines_) {
            const auto state = line.Kind == LineKind::Label ? StateOfEntryLabel(line.Name) : std::nullopt;
            if (state)
                blocks.insert(*state);
        }
        if (blocks != entered_)
            faults_.push_back("other states have blocks than are entered");
    }

    std::set<std::string> StartedIdsOf(const std::string& timer) const {
        std::set<std::string> ids;
        std::copy_if(startedIds_.begin(), startedIds_.end(), std::inserter(ids, ids.end()),
                     [&](const std::string& id) { return TimerLabel(document_, id) == timer; });
        return ids;
    }

    bool IsTailOfAnother(const std::string& id) const {
        return std::any_of(startedIds_.begin(), startedIds_.end(), [&](const std::string& other) {
            return other != id && other.size() > id.size() && other.ends_with(id) && !id.empty();
        });
    }

    void Fault(const ProgramLine& line, const std::string& what) {
        faults_.push_back("line " + std::to_string(line.Number) + " " + what + ": " + line.Name + line.Word +
                          " " + line.Operand);
    }

    const FsmDocument& document_;
    const std::vector<ProgramLine> lines_;
    const std::set<int> entered_;
    std::set<std::string> startedIds_;
    std::map<std::string, std::size_t> labels_;
    std::map<std::string, std::size_t> timers_;
    std::vector<std::string> faults_;
};

} // namespace

std::vector<std::string> ProgramFaults(const FsmDocument& document, std::string_view text) {
    return Checker(document, text).Faults();
}

} // namespace orvane::test
