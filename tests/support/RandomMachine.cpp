// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/RandomMachine.h"

#include "core/TimingMode.h"
#include "support/Markers.h"

#include <algorithm>

namespace orvane::test {

namespace gen = rc::gen;
using rc::Gen;

namespace {

// The choices of one state. A target is a number that is taken modulo the number of states; none is 0.
struct StateChoice {
    std::string Name;
    std::string TimerId;
    std::int32_t Mode = 0;
    int TimeoutTarget = 0;
    int ElseTarget = 0;
    bool HasEntryCode = false;
    bool HasTimeoutAction = false;
    bool HasElseAction = false;
};

struct CellChoice {
    int State = 0;
    int Row = 0;
    int Target = 0;
    bool HasAction = false;
};

struct MachineChoice {
    std::string Prefix;
    std::vector<StateChoice> States;
    std::vector<CellChoice> Cells;
    bool Polytask = false;
    bool HasSegments = false;
};

constexpr const char* kText = "text"; // becomes a marker

int Pick(int number, std::size_t states) { return number % static_cast<int>(states) + 1; }

StateRecord MakeState(const StateChoice& choice, std::size_t states, const StateRecord& blank) {
    StateRecord state = blank;
    state.Name = choice.Name;
    state.EntryCode = choice.HasEntryCode ? kText : "";
    state.ExitCode = kText;
    state.TimingMode = choice.Mode;
    state.TimerId = choice.TimerId;
    if (HasConstantLimit(choice.Mode))
        state.TimeConst = kText;
    if (HasVariableLimit(choice.Mode))
        state.TimingVar = kText;
    if (choice.Mode != kNoTiming && choice.TimeoutTarget >= 0)
        state.Targets[kTimeoutRow] = static_cast<std::int16_t>(Pick(choice.TimeoutTarget, states));
    state.Actions[kTimeoutRow] = choice.HasTimeoutAction ? kText : "";
    if (choice.ElseTarget >= 0)
        state.Targets[kElseRow] = static_cast<std::int16_t>(Pick(choice.ElseTarget, states));
    state.Actions[kElseRow] = choice.HasElseAction ? kText : "";
    return state;
}

FsmDocument MakeMachine(const MachineChoice& choice) {
    FsmDocument document;
    document.General.FsmName = choice.Prefix;
    document.View.Polytask = choice.Polytask;
    document.General.LaunchSeg = choice.HasSegments;
    if (choice.HasSegments) {
        GeneralCode& general = document.General;
        for (std::string* text : {&general.HeaderComment, &general.CodeSeg, &general.InitSeg,
                                  &general.TestSeg, &general.NvEm0Data})
            *text = kText;
        general.Instances = "4";
    }
    const std::size_t states = std::min<std::size_t>(choice.States.size(), kStateCount);
    for (std::size_t i = 0; i < states; ++i)
        document.State(static_cast<int>(i) + 1) =
            MakeState(choice.States[i], states, document.StateTemplate());
    for (const CellChoice& cell : choice.Cells) {
        StateRecord& state = document.State(Pick(cell.State, states));
        state.Targets[cell.Row] = static_cast<std::int16_t>(Pick(cell.Target, states));
        state.Actions[cell.Row] = cell.HasAction ? kText : "";
        document.Event(cell.Row).Code = kText;
    }
    return WithMarkers(std::move(document));
}

// A target or, more often, none.
Gen<int> MaybeTarget() { return gen::oneOf(gen::just(-1), gen::just(-1), gen::inRange(0, kStateCount)); }

Gen<StateChoice> AnyState() {
    return gen::build<StateChoice>(
        gen::set(&StateChoice::Name, gen::element<std::string>("", "Idle", "Run", "Motor On", "Wait_2")),
        gen::set(&StateChoice::TimerId,
                 gen::element<std::string>("", "", "A", "BA", " A", "A ", "A B", "A_B", " ", "Tank")),
        gen::set(&StateChoice::Mode, gen::inRange<std::int32_t>(kNoTiming, kContinueVariable + 1)),
        gen::set(&StateChoice::TimeoutTarget, gen::oneOf(gen::inRange(0, kStateCount), MaybeTarget())),
        gen::set(&StateChoice::ElseTarget, MaybeTarget()), gen::set(&StateChoice::HasEntryCode),
        gen::set(&StateChoice::HasTimeoutAction), gen::set(&StateChoice::HasElseAction));
}

Gen<CellChoice> AnyCell() {
    return gen::build<CellChoice>(gen::set(&CellChoice::State, gen::inRange(0, kStateCount)),
                                  gen::set(&CellChoice::Row, gen::inRange(kFirstEventRow, kLastRow + 1)),
                                  gen::set(&CellChoice::Target, gen::inRange(0, kStateCount)),
                                  gen::set(&CellChoice::HasAction));
}

} // namespace

Gen<FsmDocument> AnyMachine() {
    return gen::map(gen::build<MachineChoice>(
                        gen::set(&MachineChoice::Prefix, gen::element<std::string>("P", "PMP", "Pump 2")),
                        gen::set(&MachineChoice::States,
                                 gen::nonEmpty(gen::container<std::vector<StateChoice>>(AnyState()))),
                        gen::set(&MachineChoice::Cells,
                                 gen::scale(3.0, gen::container<std::vector<CellChoice>>(AnyCell()))),
                        gen::set(&MachineChoice::Polytask), gen::set(&MachineChoice::HasSegments)),
                    MakeMachine);
}

Gen<std::vector<Tick>> AnyTicks() {
    const auto events = gen::apply(
        [](std::uint64_t a, std::uint64_t b, std::uint64_t c) { return a & b & c; },
        gen::resize(100, gen::arbitrary<std::uint64_t>()), gen::resize(100, gen::arbitrary<std::uint64_t>()),
        gen::resize(100, gen::arbitrary<std::uint64_t>()));
    const auto tick = gen::build<Tick>(gen::set(&Tick::Elapsed, gen::resize(100, gen::inRange(0L, 4L))),
                                       gen::set(&Tick::Events, events),
                                       gen::set(&Tick::Limit, gen::resize(100, gen::inRange(0L, 7L))));
    return gen::scale(3.0, gen::container<std::vector<Tick>>(tick));
}

} // namespace orvane::test
