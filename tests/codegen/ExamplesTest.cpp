// SPDX-License-Identifier: GPL-3.0-or-later
// The example documents: sound as files, free of errors as designs, and together a show of every feature.
#include "codegen/CodeGenerator.h"
#include "codegen/Reachability.h"
#include "core/DocumentReader.h"
#include "core/DocumentWriter.h"
#include "core/TightPacked.h"
#include "core/TimingMode.h"
#include "support/FileBytes.h"
#include "support/Folders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <sstream>

namespace orvane {
namespace {

namespace fs = std::filesystem;

// The examples that are there for their mistakes.
const std::set<std::string> kFaultyExamples{"faulty", "nameless"};

std::vector<fs::path> ExampleFiles() {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(test::kExamplesFolder)) {
        if (entry.path().extension() == ".zfsm")
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

FsmDocument Load(const fs::path& path) { return ReadDocument(FileBytes(path)).Document; }

FsmDocument Example(const std::string& name) {
    return Load(fs::path(test::kExamplesFolder) / (name + ".zfsm"));
}

std::map<std::string, FsmDocument> SoundExamples() {
    std::map<std::string, FsmDocument> documents;
    for (const fs::path& path : ExampleFiles()) {
        if (!kFaultyExamples.contains(path.stem().string()))
            documents.emplace(path.stem().string(), Load(path));
    }
    return documents;
}

GeneratedProgram Generate(const FsmDocument& document) {
    return GenerateProgram(document, {"C:\\work\\example.zfsm", "16/11/2026 01:02:03"});
}

bool AnyExample(const std::function<bool(const FsmDocument&)>& holds) {
    const auto documents = SoundExamples();
    return std::any_of(documents.begin(), documents.end(),
                       [&holds](const auto& example) { return holds(example.second); });
}

bool AnyState(const std::function<bool(const StateRecord&)>& holds) {
    return AnyExample([&holds](const FsmDocument& document) {
        return std::any_of(StateNumbers().begin(), StateNumbers().end(),
                           [&](StateNumber state) { return holds(document.State(state)); });
    });
}

class ExampleFile : public testing::TestWithParam<fs::path> {};

TEST_P(ExampleFile, IsReadWithoutMessages) {
    const ReadResult read = ReadDocument(FileBytes(GetParam()));
    EXPECT_EQ(read.Messages, std::vector<ReaderMessage>());
    EXPECT_FALSE(read.BrokeOff);
}

TEST_P(ExampleFile, IsWrittenBackToTheSameBytes) {
    EXPECT_EQ(WriteDocument(Load(GetParam())), FileBytes(GetParam()));
}

TEST_P(ExampleFile, SurvivesItsSnapshotImage) {
    const FsmDocument document = Load(GetParam());
    FsmDocument unpacked;
    unpacked.View = document.View;
    unpacked.General.BuildFile = document.General.BuildFile;
    for (const StateNumber state : StateNumbers())
        unpacked.State(state).ColWidth = document.State(state).ColWidth;
    EXPECT_EQ(Unpack(Pack(document), unpacked), std::vector<std::string>());
    EXPECT_EQ(unpacked, document);
}

TEST_P(ExampleFile, ShowsTheSpecialRowsItUses) {
    const FsmDocument document = Load(GetParam());
    const ViewOptions& view = document.View;
    EXPECT_EQ(view.RowVisible.Else, view.ShowElse ? 240 : 0);
    EXPECT_EQ(view.RowVisible.TimingMode, view.ShowTimingMode ? 240 : 0);
    EXPECT_EQ(view.RowVisible.TimeTarget, view.ShowTimeTarget ? 240 : 0);
    for (const StateNumber state : StateNumbers()) {
        const StateRecord& record = document.State(state);
        EXPECT_TRUE(view.ShowTimingMode || record.TimingMode == kNoTiming) << "state " << state;
        EXPECT_TRUE(view.ShowTimeTarget || record.Targets[kTimeoutRow] == kNoState) << "state " << state;
        EXPECT_TRUE(view.ShowElse || record.Targets[kElseRow] == kNoState) << "state " << state;
    }
}

INSTANTIATE_TEST_SUITE_P(Examples, ExampleFile, testing::ValuesIn(ExampleFiles()),
                         [](const auto& example) { return example.param.stem().string(); });

TEST(Examples, AreGeneratedWithoutErrorsAndWarnings) {
    for (const auto& [name, document] : SoundExamples()) {
        const Report report = Generate(document).Findings;
        EXPECT_EQ(report.Count(Severity::Error), 0u) << name << ":\n" << ReportText(report);
        EXPECT_EQ(report.Count(Severity::Warning), 0u) << name << ":\n" << ReportText(report);
    }
}

TEST(Examples, ReachEveryStateAndComeBackToTheFirst) {
    const auto documents = SoundExamples();
    EXPECT_GE(documents.size(), 8u);
    for (const auto& [name, document] : documents) {
        const Reachability reachability = ComputeReachability(document);
        for (const StateNumber state : StateNumbers())
            EXPECT_EQ(reachability.Reached(state), !IsEmpty(document.State(state)))
                << name << ", state " << state;
    }
}

TEST(Examples, UseNoActionThatIsNeverGenerated) {
    for (const auto& [name, document] : SoundExamples()) {
        for (const StateNumber state : StateNumbers()) {
            const StateRecord& record = document.State(state);
            for (const RowNumber row : CellRows()) {
                const bool dropped = row == kTimeoutRow && HasVariableLimit(record.TimingMode);
                const bool generated = record.Targets[row] != kNoState && !dropped;
                EXPECT_TRUE(generated || record.Actions[row].empty())
                    << name << ", state " << state << ", row " << row;
            }
        }
    }
}

TEST(Examples, ContinueOnlyTimersThatAnotherStateStarts) {
    for (const auto& [name, document] : SoundExamples()) {
        std::set<std::string> started;
        for (const StateNumber state : StateNumbers()) {
            if (StartsTiming(document.State(state).TimingMode))
                started.insert(document.State(state).TimerId);
        }
        for (const StateNumber state : StateNumbers()) {
            const StateRecord& record = document.State(state);
            EXPECT_TRUE(record.TimingMode == kNoTiming || started.contains(record.TimerId))
                << name << ", state " << state;
        }
    }
}

TEST(Examples, UseEveryTimingMode) {
    for (const std::int32_t mode : {kStartConstant, kStartVariable, kContinueConstant, kContinueVariable})
        EXPECT_TRUE(AnyState([mode](const StateRecord& state) {
            return state.TimingMode == mode && state.Targets[kTimeoutRow] != kNoState;
        })) << "mode "
            << mode;
}

TEST(Examples, UseEveryTextOfAState) {
    EXPECT_TRUE(AnyState([](const StateRecord& state) { return !state.Tooltip.empty(); }));
    EXPECT_TRUE(AnyState([](const StateRecord& state) { return !state.EntryCode.empty(); }));
    EXPECT_TRUE(AnyState([](const StateRecord& state) { return !state.ExitCode.empty(); }));
    EXPECT_TRUE(AnyState([](const StateRecord& state) { return !state.TimerId.empty(); }));
    EXPECT_TRUE(AnyState([](const StateRecord& state) {
        return state.TimingMode == kStartConstant && state.TimerId.empty();
    }));
    EXPECT_TRUE(AnyState([](const StateRecord& state) { return !state.Actions[kTimeoutRow].empty(); }));
}

TEST(Examples, UseElseAndSelfTransitions) {
    EXPECT_TRUE(AnyState([](const StateRecord& state) { return state.Targets[kElseRow] != kNoState; }));
    const auto selfTransition = [](bool withAction) {
        return AnyExample([withAction](const FsmDocument& document) {
            for (const StateNumber state : StateNumbers())
                for (const RowNumber row : EventRows())
                    if (document.State(state).Targets[row] == state &&
                        document.State(state).Actions[row].empty() != withAction)
                        return true;
            return false;
        });
    };
    EXPECT_TRUE(selfTransition(true));
    EXPECT_TRUE(selfTransition(false));
}

TEST(Examples, UseEveryPartOfTheGeneralCode) {
    using Text = std::string GeneralCode::*;
    for (const Text text : {&GeneralCode::HeaderComment, &GeneralCode::CodeSeg, &GeneralCode::InitSeg,
                            &GeneralCode::NvEm0Data, &GeneralCode::TestSeg, &GeneralCode::Instances})
        EXPECT_TRUE(AnyExample([text](const FsmDocument& document) {
            return document.View.Polytask && !(document.General.*text).empty();
        }));
    for (const bool launch : {false, true})
        EXPECT_TRUE(AnyExample([launch](const FsmDocument& document) {
            return document.View.Polytask && document.General.LaunchSeg == launch;
        }));
}

TEST(Examples, ShowTheViewOptionsBothWays) {
    for (const bool shown : {false, true}) {
        using Mark = bool ViewOptions::*;
        for (const Mark mark : {&ViewOptions::Polytask, &ViewOptions::ShowElse})
            EXPECT_TRUE(
                AnyExample([&](const FsmDocument& document) { return document.View.*mark == shown; }));
        EXPECT_TRUE(AnyExample([shown](const FsmDocument& document) {
            return (document.View.RowVisible.ExitAction != 0) == shown;
        }));
    }
    EXPECT_TRUE(
        AnyExample([](const FsmDocument& document) { return document.View.Col0Width != kDefaultCol0Width; }));
    EXPECT_TRUE(AnyState([](const StateRecord& state) { return state.ColWidth != kDefaultColumnWidth; }));
}

// Words after a label or at the start of a line; ";" begins a comment.
std::set<std::string> InstructionWords(const std::string& program) {
    std::set<std::string> words;
    std::istringstream lines(program);
    for (std::string line; std::getline(lines, line);) {
        line.erase(std::find(line.begin(), line.end(), ';'), line.end());
        std::replace(line.begin(), line.end(), '\r', '\t');
        const std::size_t tab = line.find('\t');
        if (tab == std::string::npos)
            continue;
        const std::string word = line.substr(tab + 1, line.find('\t', tab + 1) - tab - 1);
        if (!word.empty())
            words.insert(word);
    }
    return words;
}

TEST(Examples, UseOnlyWordsOfTheirVocabulary) {
    std::set<std::string> vocabulary;
    std::istringstream lines(FileBytes(fs::path(test::kExamplesFolder) / "appdata/Zorlan32/vocab/vocab.txt"));
    for (std::string line; std::getline(lines, line);) {
        line.erase(std::find(line.begin(), line.end(), '\r'), line.end());
        vocabulary.insert(line.substr(line.find('=') + 1));
    }
    for (const auto& [name, document] : SoundExamples()) {
        for (const std::string& word : InstructionWords(Generate(document).Text))
            EXPECT_TRUE(vocabulary.contains(word)) << name << " uses " << word;
    }
}

TEST(Examples, FaultyRaisesEveryFindingOnce) {
    const std::vector<Finding> findings{
        {FindingKind::TimingModeWithoutTimeout,
         {kTimeoutRow, 1},
         "State 1:Ready has a timing mode specified but no timeout transition"},
        {FindingKind::MissingTimeConstant, {kTimeoutRow, 2}, "State 2:Forward needs a time constant"},
        {FindingKind::MissingVariableTime, {kTimeoutRow, 3}, "State 3:Slow needs a variable time."},
        {FindingKind::MissingTimingMode,
         {kTimeoutRow, 4},
         "State 4:Back has a timeout transition but the timing mode is not specified"},
        {FindingKind::MissingEventCode, {7, 5}, "Missing event test code in row 7"},
        {FindingKind::TimeoutAndElse,
         {kElseRow, 6},
         "State 6:Choose has both a timeout and an ELSE transition."},
        {FindingKind::DeadEnd, {0, 7}, "State 7:Parked is a dead end"},
        {FindingKind::UnreachableState, {0, 8}, "State 8:Service is unreachable"}};
    EXPECT_EQ(Generate(Example("faulty")).Findings.Findings, findings);
}

TEST(Examples, NamelessRaisesTheMissingPrefixAlone) {
    const GeneratedProgram program = Generate(Example("nameless"));
    const std::vector<Finding> findings{
        {FindingKind::MissingPrefix,
         {},
         "You must supply a distinguishing label prefix in the \"Name\"\r\n"
         "box of the General Code editor. This should be unique within your\r\n"
         "project as a whole. Typically this would be a 3-letter mnemonic for\r\n"
         "the overall function of this FSM, for example \"PMP\" for a pump\r\n"
         "control FSM"}};
    EXPECT_EQ(program.Findings.Findings, findings);
    EXPECT_EQ(program.Text, "Orvane reports " + findings.front().Message + "\r\n");
}

} // namespace
} // namespace orvane
