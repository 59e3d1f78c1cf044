// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/CodeGenerator.h"

#include "codegen/DesignChecks.h"
#include "codegen/Labels.h"
#include "codegen/ProgramBanner.h"
#include "codegen/ProgramText.h"
#include "codegen/Reachability.h"
#include "codegen/TimerList.h"
#include "core/TimingMode.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace orvane {

namespace {

// Entry and loop labels of all states, made once a run: a full table jumps to each of them many times.
class StateLabels {
  public:
    explicit StateLabels(const FsmDocument& document) {
        for (const StateNumber state : StateNumbers()) {
            entry_[Index(state)] = StateEntryLabel(document, state);
            loop_[Index(state)] = StateLoopLabel(document, state);
        }
    }

    const std::string& Entry(StateNumber state) const { return entry_[Index(state)]; }
    const std::string& Loop(StateNumber state) const { return loop_[Index(state)]; }

  private:
    static std::size_t Index(StateNumber state) {
        RequireInRange(state, StateNumbers(), "state");
        return IndexIn(StateNumbers(), state);
    }

    std::array<std::string, kStateCount> entry_;
    std::array<std::string, kStateCount> loop_;
};

// At least as long as the program of most designs gets, so that its text need not move while it grows; only
// the speed depends on it, and room that is not used costs nothing. Bounded, because states that are not
// reached count here too, and long texts of theirs are not worth the memory.
std::size_t EstimatedSize(const FsmDocument& document) {
    constexpr std::size_t largest = 8u << 20; // bytes
    constexpr std::size_t jumps = 80;         // bytes that a cell takes beside its texts
    std::size_t size = 4096 + document.General.CodeSeg.size() + document.General.TestSeg.size() +
                       document.General.InitSeg.size() + document.General.NvEm0Data.size();
    for (const StateNumber state : StateNumbers()) {
        const StateRecord& record = document.State(state);
        size += record.EntryCode.size();
        for (const RowNumber row : CellRows()) {
            if (record.Targets[row] != kNoState)
                size += jumps + 3 * document.General.FsmName.size() + record.Actions[row].size() +
                        document.Event(row).Code.size();
        }
    }
    return std::min(size, largest);
}

class CodeGenerator {
  public:
    CodeGenerator(const FsmDocument& document, const GenerationContext& context)
        : document_(document),
          general_(document.General),
          polytask_(document.View.Polytask),
          origin_(";By Orvane from " + context.DocumentPath + ":"),
          context_(context),
          labels_(document) {}

    GeneratedProgram Run();

  private:
    // The segments of the program, in their order.
    void EmitBanner();
    void EmitTestSegment();
    void EmitInitSegment();
    void EmitLaunchSegment();
    void EmitCodeSegment();
    void EmitStateBlocks();
    void EmitTimerDefinitions();
    void EmitNonVolatileData();

    // One state's block, construct by construct.
    void EmitStateBlock(StateNumber state);
    void EmitStateEntry(const StateRecord& record, StateNumber state);
    void EmitEventRow(const StateRecord& record, Cell cell);
    void EmitTimeout(const StateRecord& record, StateNumber state);
    void EmitElse(const StateRecord& record, StateNumber state);
    void EmitAction(const StateRecord& record, Cell cell, std::string_view skipWord);

    void EmitSegmentHead(std::string_view segment) { text_.EmitLine(segment, origin_); }
    void EmitTimerDefinition(std::string_view timerId);

    // Tells the finding if there is one, and returns whether it was an error. An error also marks the place
    // in the program where it was found.
    bool Tell(std::optional<Finding> finding);

    const FsmDocument& document_;
    const GeneralCode& general_;
    const bool polytask_;
    const std::string origin_;
    const GenerationContext& context_;
    const StateLabels labels_;

    ProgramText text_;
    Report report_;
    TimerList timers_;
    unsigned localLabelCounter_ = 0; // of the state whose block is being emitted
};

GeneratedProgram CodeGenerator::Run() {
    if (Tell(CheckPrefix(document_))) {
        report_.EndedEarly = true;
        return {text_.Take(), std::move(report_)};
    }
    text_.Reserve(EstimatedSize(document_));
    EmitBanner();
    EmitTestSegment();
    EmitInitSegment();
    EmitLaunchSegment();
    EmitCodeSegment();
    EmitStateBlocks();
    EmitTimerDefinitions();
    EmitNonVolatileData();
    for (Finding& conflict : CheckMergeConflicts(document_))
        Tell(std::move(conflict));
    return {text_.Take(), std::move(report_)};
}

void CodeGenerator::EmitBanner() { text_.EmitLine(";", general_.FsmName, kBannerWords, context_.BannerDate); }

void CodeGenerator::EmitTestSegment() {
    if (general_.TestSeg.empty() || !polytask_)
        return;
    text_.EmitLine(";<TESTSEG>");
    text_.EmitLine(origin_);
    text_.EmitLine(general_.TestSeg);
    text_.EmitLine();
}

void CodeGenerator::EmitInitSegment() {
    if (general_.InitSeg.empty() || !polytask_)
        return;
    EmitSegmentHead(";<INITSEG>");
    text_.EmitLine(general_.InitSeg);
}

void CodeGenerator::EmitLaunchSegment() {
    if (!general_.LaunchSeg || !polytask_)
        return;
    EmitSegmentHead(";<LAUNCHSEG>");
    text_.EmitInstruction("RunTasksForever");
}

void CodeGenerator::EmitCodeSegment() {
    if (polytask_)
        text_.EmitLine(";<CODESEG>");
    text_.EmitLine(origin_);
    text_.EmitLine(general_.HeaderComment);
    text_.EmitLine(general_.CodeSeg);
    if (polytask_) {
        // So that user code above cannot run on into the state machine.
        text_.EmitInstruction("Return", ";Insurance provided by Orvane");
        text_.EmitLabel(LaunchLabel(document_));
    }
}

void CodeGenerator::EmitStateBlocks() {
    const Reachability reachability = ComputeReachability(document_);
    for (const StateNumber state : StateNumbers()) {
        if (reachability.Reached(state))
            EmitStateBlock(state);
    }
    for (const StateNumber state : StateNumbers())
        Tell(CheckUnreachable(document_, reachability, state));
}

void CodeGenerator::EmitTimerDefinitions() {
    if (timers_.DefaultTimerUsed())
        EmitTimerDefinition({});
    for (const std::string& timerId : timers_.Ids())
        EmitTimerDefinition(timerId);
}

void CodeGenerator::EmitTimerDefinition(std::string_view timerId) {
    text_.EmitLine(TimerLabel(document_, timerId), ":\tdefTIME24", InstanceSuffix(document_));
}

void CodeGenerator::EmitNonVolatileData() {
    if (general_.NvEm0Data.empty() || !polytask_)
        return;
    EmitSegmentHead(";<NVEM0DIR>");
    text_.EmitInstruction("NVEM0");
    EmitSegmentHead(";<NVEM0DATA>");
    text_.EmitLine(general_.NvEm0Data);
}

void CodeGenerator::EmitStateBlock(StateNumber state) {
    const StateRecord& record = document_.State(state);
    localLabelCounter_ = 0;
    EmitStateEntry(record, state);
    for (const RowNumber row : EventRows()) {
        if (record.Targets[row] != kNoState)
            EmitEventRow(record, {row, state});
    }
    EmitTimeout(record, state);
    EmitElse(record, state);
    Tell(CheckDeadEnd(document_, state));
    Tell(CheckTimeoutAndElse(document_, state));
    text_.EmitLine();
}

void CodeGenerator::EmitStateEntry(const StateRecord& record, StateNumber state) {
    text_.EmitLabel(labels_.Entry(state));
    text_.EmitLine(record.EntryCode);
    if (StartsTiming(record.TimingMode)) {
        text_.EmitInstruction("STStart", TimerLabel(document_, record.TimerId));
        timers_.Add(record.TimerId);
    }
    text_.EmitLabel(labels_.Loop(state));
    // A state that ELSE always leaves never waits, so it never yields.
    const StateNumber elseTarget = record.Targets[kElseRow];
    if (polytask_ && (elseTarget == kNoState || elseTarget == state))
        text_.EmitInstruction("YieldTask");
}

void CodeGenerator::EmitEventRow(const StateRecord& record, Cell cell) {
    if (Tell(CheckEventCode(document_, cell)))
        return;
    text_.EmitLine(document_.Event(cell.Row).Code);
    const StateNumber target = record.Targets[cell.Row];
    if (!record.Actions[cell.Row].empty())
        EmitAction(record, cell, "GoIfF");
    else // Without an action, staying in the state does not run its entry code again.
        text_.EmitInstruction("GoifT", target == cell.State ? labels_.Loop(target) : labels_.Entry(target));
}

void CodeGenerator::EmitTimeout(const StateRecord& record, StateNumber state) {
    const bool failed = Tell(CheckTimeout(document_, state));
    const StateNumber target = record.Targets[kTimeoutRow];
    if (failed || target == kNoState)
        return;
    const std::string timer = TimerLabel(document_, record.TimerId);
    if (HasVariableLimit(record.TimingMode)) {
        // The timeout's action has no place in this form and is left out.
        text_.EmitLine(record.TimingVar);
        text_.EmitInstruction("fSwap");
        text_.EmitInstruction("fSTTimeSince", timer);
        text_.EmitInstruction("fSub");
        text_.EmitInstruction("fGoIfNeg", labels_.Entry(target));
        return;
    }
    text_.EmitInstruction("STTest", timer, ",", record.TimeConst);
    if (!record.Actions[kTimeoutRow].empty())
        EmitAction(record, {kTimeoutRow, state}, "GoIfT");
    else
        text_.EmitInstruction("GoIfF", labels_.Entry(target));
}

void CodeGenerator::EmitElse(const StateRecord& record, StateNumber state) {
    const StateNumber target = record.Targets[kElseRow];
    if (target == kNoState) {
        text_.EmitInstruction("GoTo", labels_.Loop(state));
        return;
    }
    text_.EmitLine(record.Actions[kElseRow]);
    text_.EmitInstruction("GoTo", labels_.Entry(target));
}

// A transition with an action always enters its target anew, also when that is the state itself.
void CodeGenerator::EmitAction(const StateRecord& record, Cell cell, std::string_view skipWord) {
    const std::string skipLabel = ActionSkipLabel(document_, cell.State, localLabelCounter_++);
    text_.EmitInstruction(skipWord, skipLabel);
    text_.EmitLine(record.Actions[cell.Row]);
    text_.EmitInstruction("GoTo", labels_.Entry(record.Targets[cell.Row]));
    text_.EmitLabel(skipLabel);
}

bool CodeGenerator::Tell(std::optional<Finding> finding) {
    if (!finding)
        return false;
    const bool isError = finding->Level() == Severity::Error;
    if (isError)
        text_.EmitLine("Orvane reports ", finding->Message);
    report_.Findings.push_back(std::move(*finding));
    return isError;
}

} // namespace

GeneratedProgram GenerateProgram(const FsmDocument& document, const GenerationContext& context) {
    return CodeGenerator(document, context).Run();
}

std::string ProgramFileBytes(GeneratedProgram program) {
    return std::move(program.Text.append(kProgramFileEnd));
}

} // namespace orvane
