// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ProgramInterpreter.h"

#include "support/Markers.h"
#include "support/ProgramLines.h"

#include <functional>
#include <map>
#include <unordered_map>
#include <unordered_set>

namespace orvane::test {

namespace {

constexpr int kMostStepsAtOneMoment = 200'000;

class Processor {
  public:
    Processor(std::string_view text, World world);

    Trace Run();

  private:
    using Instruction = std::function<void(const std::string& operand)>;

    void FindLabels();
    void DefineInstructions();

    void Execute(const ProgramLine& line);
    void PassLabel(std::size_t line);
    void JumpWhen(bool condition, const std::string& label);
    void LetTimePass();
    void TestTime(const std::string& operand);
    void Fail(const std::string& why);
    long TimeSince(const std::string& timer) const;

    const std::vector<ProgramLine> lines_;
    World world_;
    std::unordered_map<std::string, std::size_t> labels_;
    std::unordered_set<std::size_t> loopLabels_; // by line
    std::map<std::string, Instruction, std::less<>> instructions_;
    bool multitasking_ = false;

    std::size_t at_ = 0;
    bool stopped_ = false;
    bool flag_ = false;
    long accumulator_ = 0;
    long second_ = 0;
    std::unordered_map<std::string, long> started_;
    int state_ = 0;
    int polls_ = 0; // at this moment
    int steps_ = 0; // at this moment
    Trace trace_;
};

Processor::Processor(std::string_view text, World world)
    : lines_(ParseProgram(text)), world_(std::move(world)) {
    FindLabels();
    DefineInstructions();
}

// The first definition of a label counts. Execution of a program for multitasking begins behind the Return
// that guards its launch label.
void Processor::FindLabels() {
    bool afterEntry = false;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const ProgramLine& line = lines_[i];
        if (line.Kind == LineKind::Instruction && line.Word == "Return") {
            multitasking_ = true;
            at_ = i + 1;
        }
        if (line.Kind != LineKind::Label)
            continue;
        labels_.emplace(line.Name, i);
        if (afterEntry)
            loopLabels_.insert(i);
        afterEntry = !afterEntry && StateOfEntryLabel(line.Name).has_value();
    }
}

void Processor::DefineInstructions() {
    instructions_ = {
        {"GoTo", [this](const std::string& label) { JumpWhen(true, label); }},
        {"GoifT", [this](const std::string& label) { JumpWhen(flag_, label); }},
        {"GoIfT", [this](const std::string& label) { JumpWhen(flag_, label); }},
        {"GoIfF", [this](const std::string& label) { JumpWhen(!flag_, label); }},
        {"fGoIfNeg", [this](const std::string& label) { JumpWhen(accumulator_ < 0, label); }},
        {"STStart", [this](const std::string& timer) { started_[timer] = world_.Now(); }},
        {"STTest", [this](const std::string& operand) { TestTime(operand); }},
        {"fSTTimeSince", [this](const std::string& timer) { accumulator_ = TimeSince(timer); }},
        {"fSwap", [this](const std::string&) { std::swap(accumulator_, second_); }},
        {"fSub", [this](const std::string&) { accumulator_ = second_ - accumulator_; }},
        {"YieldTask", [this](const std::string&) { LetTimePass(); }},
        {"Return", [this](const std::string&) { Fail("the task returns"); }},
        {std::string(kDo), [this](const std::string& marker) { trace_.push_back(marker); }},
        {std::string(kTest), [this](const std::string& row) { flag_ = world_.HasEvent(std::stoi(row)); }},
        {std::string(kLoad),
         [this](const std::string& state) { accumulator_ = world_.LimitOf(std::stoi(state)); }}};
}

Trace Processor::Run() {
    while (!stopped_) {
        if (at_ == lines_.size())
            Fail("runs off the end");
        else if (++steps_ > kMostStepsAtOneMoment)
            Fail("runs without end");
        else
            Execute(lines_[at_++]);
    }
    return std::move(trace_);
}

void Processor::Execute(const ProgramLine& line) {
    if (line.Kind == LineKind::Label)
        PassLabel(at_ - 1);
    else if (line.Kind == LineKind::Timer)
        Fail("runs into the timer " + line.Name);
    else if (line.Kind == LineKind::Unknown)
        Fail("runs into " + line.Name);
    if (line.Kind != LineKind::Instruction)
        return;
    const auto found = instructions_.find(line.Word);
    if (found == instructions_.end())
        Fail("does not know " + line.Word);
    else
        found->second(line.Operand);
}

void Processor::PassLabel(std::size_t line) {
    if (loopLabels_.count(line) == 0) {
        state_ = StateOfEntryLabel(lines_[line].Name).value_or(state_);
        return;
    }
    if (++polls_ > kMostPollsAtOneMoment) {
        trace_.push_back(kGoesRound);
        stopped_ = true;
    } else if (!multitasking_) {
        LetTimePass();
    }
}

void Processor::JumpWhen(bool condition, const std::string& label) {
    if (!condition)
        return;
    const auto found = labels_.find(label);
    if (found == labels_.end())
        Fail("jumps to " + label + ", which is not there");
    else
        at_ = found->second;
}

void Processor::LetTimePass() {
    if (!world_.Advance()) {
        stopped_ = true;
        return;
    }
    polls_ = 0;
    steps_ = 0;
    trace_.push_back(StoodIn(state_));
}

void Processor::TestTime(const std::string& operand) {
    const TimerAndLimit test = SplitTimeTest(operand);
    flag_ = TimeSince(test.Timer) < std::stol(test.Limit);
}

long Processor::TimeSince(const std::string& timer) const {
    const auto found = started_.find(timer);
    return world_.Now() - (found == started_.end() ? 0 : found->second);
}

void Processor::Fail(const std::string& why) {
    trace_.push_back("the program " + why + " at line " + std::to_string(at_));
    stopped_ = true;
}

} // namespace

Trace RunProgram(std::string_view text, World world) { return Processor(text, std::move(world)).Run(); }

} // namespace orvane::test
