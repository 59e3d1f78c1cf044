// SPDX-License-Identifier: GPL-3.0-or-later
// Documents and what has to come out of them, byte for byte. A case is a folder:
//
//   tests/golden/BEHAVIOUR/           document.zfsm and the expected files
//   tests/golden/examples/NAME/       the expected files of examples/NAME.zfsm
//
// Expected are report.txt and either program.zls or, where the design has an error and no program file is
// written, pane.txt: the text of the code pane. With ORVANE_BLESS=1 in the environment the expected files
// are written instead of compared; read the difference before you commit it.
#include "codegen/CodeGenerator.h"
#include "core/DocumentReader.h"
#include "support/FileBytes.h"
#include "support/Folders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <map>
#include <set>
#include <vector>

namespace orvane {
namespace {

namespace fs = std::filesystem;

constexpr const char* kDocument = "document.zfsm";
constexpr const char* kExamples = "examples";

struct GoldenCase {
    std::string Name;
    fs::path Document;
    fs::path Folder; // of the expected files
};

// gtest tells a failing case with this.
void PrintTo(const GoldenCase& golden, std::ostream* out) { *out << golden.Name; }

std::set<std::string> NamesIn(const fs::path& folder) {
    std::set<std::string> names;
    if (fs::exists(folder)) {
        for (const fs::directory_entry& entry : fs::directory_iterator(folder))
            names.insert(entry.path().filename().string());
    }
    return names;
}

std::vector<GoldenCase> BehaviourCases() {
    const fs::path golden = test::kGoldenFolder;
    std::vector<GoldenCase> cases;
    for (const std::string& name : NamesIn(golden)) {
        if (name != kExamples)
            cases.push_back({name, golden / name / kDocument, golden / name});
    }
    return cases;
}

std::vector<GoldenCase> ExampleCases() {
    std::vector<GoldenCase> cases;
    for (const std::string& file : NamesIn(test::kExamplesFolder)) {
        const fs::path document = fs::path(test::kExamplesFolder) / file;
        const std::string name = document.stem().string();
        if (document.extension() == ".zfsm")
            cases.push_back({name, document, fs::path(test::kGoldenFolder) / kExamples / name});
    }
    return cases;
}

bool Blessing() {
    const char* bless = std::getenv("ORVANE_BLESS");
    return bless && std::string_view(bless) == "1";
}

using Files = std::map<std::string, std::string>; // name -> bytes

Files GeneratedFiles(const GoldenCase& golden) {
    const ReadResult read = ReadDocument(FileBytes(golden.Document));
    EXPECT_TRUE(read.Messages.empty()) << golden.Document << ": " << read.Messages.front().Text;
    const GenerationContext context{"C:\\work\\" + golden.Name + ".zfsm", "16/11/2026 01:02:03"};
    const GeneratedProgram program = GenerateProgram(read.Document, context);
    Files files{{"report.txt", ReportText(program.Findings)}};
    if (program.Findings.HasErrors())
        files["pane.txt"] = program.Text;
    else
        files["program.zls"] = ProgramFileBytes(program);
    return files;
}

void Bless(const GoldenCase& golden, const Files& generated) {
    fs::create_directories(golden.Folder);
    for (const std::string& name : NamesIn(golden.Folder)) {
        if (name != kDocument)
            fs::remove(golden.Folder / name);
    }
    for (const auto& [name, bytes] : generated)
        WriteFileBytes(golden.Folder / name, bytes);
}

// The line that holds the byte at `place`, its end included, control characters made visible.
std::string VisibleLine(const std::string& bytes, std::size_t place) {
    const std::size_t end = bytes.find('\n', place);
    const std::size_t before = place == 0 ? std::string::npos : bytes.rfind('\n', place - 1);
    const std::size_t start = before == std::string::npos ? 0 : before + 1;
    const std::size_t length = end == std::string::npos ? std::string::npos : end + 1 - start;
    return testing::PrintToString(bytes.substr(start, length));
}

testing::AssertionResult SameBytes(const std::string& expected, const std::string& actual) {
    if (expected == actual)
        return testing::AssertionSuccess();
    const auto difference = std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
    const auto place = static_cast<std::size_t>(difference.first - expected.begin());
    const auto line = 1 + std::count(expected.begin(), difference.first, '\n');
    return testing::AssertionFailure()
           << "first difference in line " << line << "\n  expected " << VisibleLine(expected, place)
           << "\n  generated " << VisibleLine(actual, place);
}

class GoldenTest : public testing::TestWithParam<GoldenCase> {};

TEST_P(GoldenTest, ProgramAndReportAreTheExpectedBytes) {
    const GoldenCase& golden = GetParam();
    const Files generated = GeneratedFiles(golden);
    if (Blessing())
        Bless(golden, generated);

    std::set<std::string> names;
    for (const auto& [name, bytes] : generated)
        names.insert(name);
    if (golden.Document.parent_path() == golden.Folder)
        names.insert(kDocument);
    ASSERT_EQ(NamesIn(golden.Folder), names)
        << "a file is missing, or a stray one stands in " << golden.Folder;
    for (const auto& [name, bytes] : generated)
        EXPECT_TRUE(SameBytes(FileBytes(golden.Folder / name), bytes)) << golden.Folder / name;
}

std::string TestName(const testing::TestParamInfo<GoldenCase>& info) {
    std::string name = info.param.Name;
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(GoldenBehaviours, GoldenTest, testing::ValuesIn(BehaviourCases()), TestName);
INSTANTIATE_TEST_SUITE_P(GoldenExamples, GoldenTest, testing::ValuesIn(ExampleCases()), TestName);

TEST(GoldenFolders, EveryExampleHasItsExpectedFilesAndNothingElseStandsThere) {
    std::set<std::string> names;
    for (const GoldenCase& golden : ExampleCases())
        names.insert(golden.Name);
    EXPECT_EQ(NamesIn(fs::path(test::kGoldenFolder) / kExamples), names);
}

} // namespace
} // namespace orvane
