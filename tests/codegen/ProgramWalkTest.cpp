// SPDX-License-Identifier: GPL-3.0-or-later
// The generated program does what the table says: both are walked through the same events and times, and must
// have stood in the same states and run the same texts in the same order.
#include "codegen/CodeGenerator.h"
#include "core/DocumentReader.h"
#include "core/TimingMode.h"
#include "support/Markers.h"
#include "support/ProgramChecker.h"
#include "support/ProgramInterpreter.h"
#include "support/ProgramLines.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "support/RandomMachine.h"
#include "support/TableInterpreter.h"

#include <gmock/gmock.h>

#include <functional>

namespace orvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string GenerateSound(const FsmDocument& document) {
    const GeneratedProgram program =
        GenerateProgram(document, {"C:\\work\\walk.zfsm", "16/11/2026 01:02:03"});
    EXPECT_FALSE(program.Findings.HasErrors()) << ReportText(program.Findings);
    return program.Text;
}

TEST(ProgramWalk, RandomMachinesDoWhatTheirTablesSay) {
    int longWalks = 0;
    int givenUp = 0;
    ExpectProperty({.Cases = 2000, .LargestSize = 100}, [&] {
        const FsmDocument machine = *AnyMachine();
        RC_PRE(!EnteredStates(machine).empty());
        const World world(*AnyTicks());
        const Trace trace = RunTable(machine, world);
        RC_ASSERT(RunProgram(GenerateSound(machine), world) == trace);
        longWalks += trace.size() > 50 ? 1 : 0;
        givenUp += !trace.empty() && trace.back() == kGoesRound ? 1 : 0;
    });
    // So that nothing above agrees only because nothing happens.
    EXPECT_GT(longWalks, 500);
    EXPECT_GT(givenUp, 10);
    EXPECT_LT(givenUp, 1000);
}

TEST(ProgramWalk, ProgramsOfRandomMachinesAreSound) {
    ExpectProperty({.Cases = 1000, .LargestSize = 100}, [] {
        const FsmDocument machine = *AnyMachine();
        RC_ASSERT(ProgramFaults(machine, GenerateSound(machine)) == std::vector<std::string>());
    });
}

// A machine with each construct that the generator knows.
FsmDocument EveryConstruct(bool polytask) {
    FsmDocument document;
    document.General.FsmName = "P";
    document.View.Polytask = polytask;
    for (const int row : {6, 7, 8, 9})
        document.Event(row).Code = "text";
    const auto state = [&](int number, std::int32_t mode, const char* timer) -> StateRecord& {
        StateRecord& record = document.State(number);
        record.EntryCode = record.TimeConst = record.TimingVar = "text";
        record.TimingMode = mode;
        record.TimerId = timer;
        return record;
    };
    const auto cell = [&](int number, int row, int target, const char* action) {
        document.State(number).Targets[row] = static_cast<std::int16_t>(target);
        document.State(number).Actions[row] = action;
    };
    state(1, kNoTiming, "");
    cell(1, 6, 1, ""); // stays
    cell(1, 7, 1, "enters anew");
    cell(1, 8, 2, "");
    state(2, kStartConstant, "");
    cell(2, 7, 1, "action");
    cell(2, 9, 4, "");
    cell(2, kTimeoutRow, 3, "action");
    state(3, kContinueConstant, "");
    cell(3, 6, 1, "");
    cell(3, kTimeoutRow, 4, "");
    state(4, kStartVariable, "A");
    cell(4, 8, 1, "");
    cell(4, kTimeoutRow, 5, "not run");
    state(5, kContinueVariable, "A ");
    cell(5, 6, 2, "");
    cell(5, kTimeoutRow, 7, "");
    state(6, kNoTiming, "");
    cell(6, 6, 1, "");
    cell(6, kElseRow, 6, "action");
    state(7, kNoTiming, "");
    cell(7, 9, 2, "");
    cell(7, kElseRow, 6, "action");
    return WithMarkers(std::move(document));
}

// Many walks through one program; what they did, one after the other.
Trace Walks(const std::function<Trace(const World&)>& run) {
    Trace all;
    for (unsigned seed = 0; seed < 12; ++seed) {
        const Trace one = run(World(RandomTicks(seed, 200)));
        all.insert(all.end(), one.begin(), one.end());
    }
    return all;
}

std::vector<std::string> SplitLines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

std::string JoinLines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}

// The wrong lines that a faulty generator could have put in place of a right one.
std::vector<std::string> WrongLines(const ProgramLine& line, const std::vector<std::string>& labels) {
    std::vector<std::string> wrong = {""};
    const auto add = [&](const std::string& word, const std::string& operand) {
        wrong.push_back("\t" + word + "\t" + operand);
    };
    if (IsJump(line.Word)) {
        for (const std::string& label : labels) {
            if (label != line.Operand)
                add(line.Word, label);
        }
    }
    if (line.Word == "GoifT" || line.Word == "GoIfT")
        add("GoIfF", line.Operand);
    if (line.Word == "GoIfF")
        add("GoIfT", line.Operand);
    if (line.Word == "STTest") {
        add("STTest", line.Operand + "1");
        add("STTest", "P_Timer_B," + SplitTimeTest(line.Operand).Limit);
    }
    if (line.Word == "STStart" || line.Word == "fSTTimeSince")
        add(line.Word, "P_Timer_B");
    return wrong;
}

// Puts each wrong line into the program in turn; returns those that no walk notices.
std::vector<std::string> UnnoticedFaults(const FsmDocument& machine) {
    const std::string text = GenerateSound(machine);
    const Trace right = Walks([&](const World& world) { return RunTable(machine, world); });
    const std::vector<ProgramLine> parsed = ParseProgram(text);
    std::vector<std::string> labels;
    for (const ProgramLine& line : parsed) {
        if (line.Kind == LineKind::Label && line.Name != "P_Launch") // which is where state 1 begins, too
            labels.push_back(line.Name);
    }
    std::vector<std::string> unnoticed;
    std::vector<std::string> lines = SplitLines(text);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool generated = parsed[i].Kind == LineKind::Instruction;
        if (!generated || parsed[i].Word == "Return" || parsed[i].Word == "RunTasksForever")
            continue;
        const std::string rightLine = lines[i];
        for (const std::string& wrongLine : WrongLines(parsed[i], labels)) {
            lines[i] = wrongLine;
            const std::string wrong = JoinLines(lines);
            if (Walks([&](const World& world) { return RunProgram(wrong, world); }) == right)
                unnoticed.push_back(rightLine + " -> " + wrongLine);
        }
        lines[i] = rightLine;
    }
    return unnoticed;
}

TEST(ProgramWalk, EachConstructDoesWhatTheTableSays) {
    for (const bool polytask : {false, true}) {
        const FsmDocument machine = EveryConstruct(polytask);
        const std::string text = GenerateSound(machine);
        EXPECT_THAT(ProgramFaults(machine, text), IsEmpty());
        EXPECT_EQ(Walks([&](const World& world) { return RunProgram(text, world); }),
                  Walks([&](const World& world) { return RunTable(machine, world); }));
    }
}

// The comparison is worth something: no instruction could be missing or be another without notice. But for
// one: behind the last test of a state it is the same to skip the action or to poll again.
TEST(ProgramWalk, NoticesEveryWrongInstruction) {
    for (const bool polytask : {false, true})
        EXPECT_THAT(UnnoticedFaults(EveryConstruct(polytask)), ElementsAre("\tGoIfT\tP_2_1 -> \tGoIfT\tP2"));
}

} // namespace
} // namespace orvane::test
