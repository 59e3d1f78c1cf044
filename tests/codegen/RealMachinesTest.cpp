// SPDX-License-Identifier: GPL-3.0-or-later
// State machines from the real world, and our own examples: generated, checked and walked.
#include "codegen/CodeGenerator.h"
#include "core/DocumentReader.h"
#include "core/DocumentWriter.h"
#include "support/MachineJson.h"
#include "support/Markers.h"
#include "support/ProgramChecker.h"
#include "support/ProgramInterpreter.h"
#include "support/TableInterpreter.h"

#include <gmock/gmock.h>

namespace orvane::test {
namespace {

using ::testing::IsEmpty;

GeneratedProgram GenerateMachine(const FsmDocument& document) {
    return GenerateProgram(document, {"C:\\work\\machine.zfsm", "16/11/2026 01:02:03"});
}

bool IsNumber(const std::string& name) {
    return !name.empty() && name.find_first_not_of("0123456789") == std::string::npos;
}

// Some machines call their states 0, 1, 2. The loop label of such a state can be the label behind an action
// of the state with that number (M_2_3), which is how labels are made; users name their states.
FsmDocument WithNamedStates(FsmDocument document) {
    for (const StateNumber state : StateNumbers()) {
        std::string& name = document.State(state).Name;
        if (IsNumber(name))
            name.insert(0, "s");
    }
    return document;
}

// With time constants that a walk can count, with and without multitasking.
std::vector<FsmDocument> Walkable(const FsmDocument& document) {
    std::vector<FsmDocument> machines;
    for (const bool polytask : {false, true}) {
        FsmDocument machine = WithNamedStates(document);
        machine.View.Polytask = polytask;
        machines.push_back(WithMarkers(std::move(machine)));
    }
    return machines;
}

void ExpectSameWalks(const FsmDocument& machine) {
    const std::string text = GenerateMachine(machine).Text;
    EXPECT_THAT(ProgramFaults(machine, text), IsEmpty());
    std::size_t steps = 0;
    for (unsigned seed = 0; seed < 10; ++seed) {
        const World world(RandomTicks(seed, 500));
        const Trace trace = RunTable(machine, world);
        ASSERT_EQ(RunProgram(text, world), trace) << "stream " << seed;
        steps += trace.size();
    }
    EXPECT_GT(steps, 0U);
}

class RealMachines : public ::testing::Test {
  protected:
    void SetUp() override {
        if (machines_.empty())
            GTEST_SKIP() << "no machines in the folder that ORVANE_MACHINES names";
    }

    const std::vector<NamedDocument> machines_ = orvane::test::RealMachines();
};

TEST_F(RealMachines, AreGeneratedWithoutErrors) {
    for (const NamedDocument& machine : machines_) {
        const GeneratedProgram program = GenerateMachine(machine.Document);
        EXPECT_FALSE(program.Findings.HasErrors()) << machine.Name << ReportText(program.Findings);
    }
}

TEST_F(RealMachines, GiveSoundPrograms) {
    for (const NamedDocument& machine : machines_) {
        const FsmDocument document = WithNamedStates(machine.Document);
        EXPECT_THAT(ProgramFaults(document, GenerateMachine(document).Text), IsEmpty()) << machine.Name;
    }
}

TEST_F(RealMachines, ComeBackFromTheirFiles) {
    for (const NamedDocument& machine : machines_) {
        const ReadResult read = ReadDocument(WriteDocument(machine.Document));
        EXPECT_THAT(read.Messages, IsEmpty()) << machine.Name;
        EXPECT_EQ(read.Document, machine.Document) << machine.Name;
    }
}

TEST_F(RealMachines, DoWhatTheirTablesSay) {
    for (const NamedDocument& machine : machines_) {
        SCOPED_TRACE(machine.Name);
        ASSERT_FALSE(EnteredStates(machine.Document).empty());
        for (const FsmDocument& document : Walkable(machine.Document))
            ExpectSameWalks(document);
    }
}

TEST(ExampleWalk, ExamplesDoWhatTheirTablesSay) {
    const std::vector<NamedDocument> examples = ExampleDocuments();
    if (examples.empty())
        GTEST_SKIP() << "no documents in the examples folder";
    int walked = 0;
    for (const NamedDocument& example : examples) {
        SCOPED_TRACE(example.Name);
        if (GenerateMachine(example.Document).Findings.HasErrors())
            continue; // an example of a faulty design
        for (const FsmDocument& document : Walkable(example.Document))
            ExpectSameWalks(document);
        ++walked;
    }
    EXPECT_GT(walked, 0);
}

} // namespace
} // namespace orvane::test
