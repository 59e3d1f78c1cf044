// SPDX-License-Identifier: GPL-3.0-or-later
// What a machine does is what the emitted program does and what the table says: all three are walked through
// the same events and times and must agree moment by moment.
#include "run/MachineWalk.h"

#include "codegen/CodeGenerator.h"
#include "run/RuledStep.h"
#include "support/MachineJson.h"
#include "support/ProgramInterpreter.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "support/RandomMachine.h"
#include "support/TableInterpreter.h"

#include <gmock/gmock.h>

namespace orvane::test {
namespace {

FsmDocument WithPolytask(FsmDocument document, bool polytask) {
    document.View.Polytask = polytask;
    return WithMarkers(std::move(document));
}

std::string Program(const FsmDocument& document) {
    return GenerateProgram(document, {"C:\\work\\walk.zfsm", "16/11/2026 01:02:03"}).Text;
}

Trace RunMachine(const FsmDocument& document, const World& world) {
    const run::Machine machine(document);
    return MachineWalk(document, machine, world).Run();
}

TEST(MachineWalk, RandomMachinesDoWhatProgramAndTableDo) {
    std::size_t moments = 0;
    int spins = 0;
    ExpectProperty({.Cases = 2000, .LargestSize = 100}, [&] {
        const FsmDocument any = *AnyMachine();
        RC_PRE(!EnteredStates(any).empty());
        const World world(*AnyTicks());
        for (const bool polytask : {false, true}) {
            const FsmDocument document = WithPolytask(any, polytask);
            const Trace trace = RunMachine(document, world);
            RC_ASSERT(trace == RunTable(document, world));
            RC_ASSERT(trace == RunProgram(Program(document), world));
            moments += trace.size();
            spins += !trace.empty() && trace.back() == kGoesRound ? 1 : 0;
        }
    });
    // So that nothing above agrees only because nothing happens.
    EXPECT_GT(moments, 100'000U);
    EXPECT_GT(spins, 10);
    EXPECT_LT(spins, 1000);
}

TEST(MachineWalk, RealMachinesDoWhatTheirTablesSay) {
    const std::vector<NamedDocument> machines = RealMachines();
    if (machines.empty())
        GTEST_SKIP() << "no machines in the folder that ORVANE_MACHINES names";
    for (const NamedDocument& machine : machines) {
        for (const bool polytask : {false, true}) {
            const FsmDocument document = WithPolytask(machine.Document, polytask);
            for (unsigned seed = 0; seed < 3; ++seed) {
                const World world(RandomTicks(seed, 500));
                ASSERT_EQ(RunMachine(document, world), RunTable(document, world)) << machine.Name;
            }
        }
    }
}

struct Walked {
    FsmDocument Document;
    World Ticks;
    Trace Right;
};

// Mostly without any event, so that timers come to their limits.
World QuietWorld(unsigned seed) {
    std::vector<Tick> ticks = RandomTicks(seed, 100);
    for (std::size_t i = 0; i < ticks.size(); ++i)
        ticks[i].Events = i % 4 == 0 ? ticks[i].Events : 0;
    return World(std::move(ticks));
}

std::vector<Walked> RandomWalks() {
    std::vector<Walked> walks;
    for (unsigned seed = 0; seed < 300; ++seed) {
        const FsmDocument any = AnyMachine()(rc::Random(seed), 100).value();
        if (EnteredStates(any).empty())
            continue;
        const FsmDocument document = WithPolytask(any, seed % 2 == 0);
        const World world = QuietWorld(seed);
        walks.push_back({document, world, RunTable(document, world)});
    }
    return walks;
}

int Differences(const std::vector<Walked>& walks, const BrokenRules& broken) {
    int differences = 0;
    for (const Walked& walk : walks) {
        const RuledStep step(walk.Document, broken);
        if (MachineWalk(walk.Document, step, walk.Ticks).Run() != walk.Right)
            ++differences;
    }
    return differences;
}

TEST(MachineWalk, EachWrongStepFunctionIsNoticed) {
    const std::vector<Walked> walks = RandomWalks();
    ASSERT_EQ(Differences(walks, {}), 0);
    const std::vector<std::pair<const char*, BrokenRules>> wrong = {
        {"HighestRowFirst", {.HighestRowFirst = true}},
        {"TimeoutBeforeEvents", {.TimeoutBeforeEvents = true}},
        {"ElseBeforeTimeout", {.ElseBeforeTimeout = true}},
        {"HoldEnters", {.HoldEnters = true}},
        {"EventToItselfStays", {.EventToItselfStays = true}},
        {"TimeoutToItselfStays", {.TimeoutToItselfStays = true}},
        {"ElseToItselfStays", {.ElseToItselfStays = true}},
        {"ConstantDueAfterLimit", {.ConstantDueAfterLimit = true}},
        {"VariableDueAtLimit", {.VariableDueAtLimit = true}},
        {"ContinuingStarts", {.ContinuingStarts = true}},
        {"OnlyOtherStatesStartTimers", {.OnlyOtherStatesStartTimers = true}},
        {"OneTimerForAll", {.OneTimerForAll = true}},
        {"UnstartedExpired", {.UnstartedExpired = true}},
        {"BeginsInStateOne", {.BeginsInStateOne = true}},
        {"ElseStatesYield", {.ElseStatesYield = true}},
        {"ScanIsOneLook", {.ScanIsOneLook = true}}};
    for (const auto& [name, broken] : wrong)
        EXPECT_GT(Differences(walks, broken), 0) << name << " is broken and nothing tells";
}

} // namespace
} // namespace orvane::test
