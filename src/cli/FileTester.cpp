// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/FileTester.h"

#include "cli/DocumentPath.h"
#include "cli/MachineFile.h"
#include "cli/MessageText.h"
#include "run/Obstacles.h"
#include "run/TestEdits.h"
#include "run/TestLexer.h"
#include "run/TestPlan.h"
#include "run/TestReader.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <exception>
#include <set>

namespace orvane::cli {

namespace {

class FileTester {
  public:
    FileTester(const std::string& name, const TestArguments& arguments, const TestFiles& files,
               Outcome& outcome)
        : arguments_(arguments), files_(files), outcome_(outcome) {
        tested_.Name = name;
    }

    TestedFile Do();

  private:
    bool ReadTests();
    bool ReadMachine();
    bool Plan();
    void Rename();
    void Update();
    void Change(const std::vector<run::TextEdit>& edits);
    void List();
    void RunAll();
    void NoteRenames();

    bool Chosen(const run::PlannedTest& test) const {
        return test.Name.find(arguments_.Filter) != std::string::npos;
    }
    void AddSlips(const std::vector<run::TestMessage>& slips);
    void AddTest(const run::PlannedTest& test, run::TestResult result);
    void Tell(const char* kind, std::size_t line, std::size_t column, const std::string& text);
    void TellNotes(const std::string& test, const std::vector<run::TestMessage>& notes);
    std::string TestAt(std::size_t line) const;
    std::string DocumentName() const { return Utf8(PathOf(tested_.Document).filename()); }

    const TestArguments& arguments_;
    const TestFiles& files_;
    Outcome& outcome_;
    TestedFile tested_;
    std::string bytes_;
    std::string bytesOnDisk_;
    run::TestFile file_;
    run::TestPlan plan_;
};

TestedFile FileTester::Do() {
    if (!ReadTests() || !ReadMachine() || !Plan())
        return std::move(tested_);
    if (arguments_.List) {
        List();
        return std::move(tested_);
    }
    if (arguments_.Rename)
        Rename();
    NoteRenames();
    if (arguments_.Update)
        Update();
    RunAll();
    if (bytes_ != bytesOnDisk_)
        files_.WriteTests(tested_.Name, bytes_, outcome_);
    return std::move(tested_);
}

bool FileTester::ReadTests() {
    const std::optional<std::string> bytes = files_.BytesOf(tested_.Name, outcome_);
    if (!bytes)
        return false;
    bytes_ = bytesOnDisk_ = *bytes;
    run::TestReadResult read = run::ReadTestFile(bytes_);
    file_ = std::move(read.File);
    AddSlips(read.Slips);
    return read.Slips.empty();
}

bool FileTester::ReadMachine() {
    const std::optional<run::TestName> named = run::MachineOf(file_);
    tested_.Document = DocumentOf(tested_.Name, named ? std::optional(named->Text) : std::nullopt);
    tested_.Machine = cli::ReadMachine(files_, tested_.Document, outcome_);
    return tested_.Machine != nullptr;
}

bool FileTester::Plan() {
    plan_ = run::PlanTests(file_, *tested_.Machine, DocumentName());
    AddSlips(plan_.Slips);
    return plan_.Slips.empty();
}

void FileTester::Rename() {
    if (!plan_.Renames.empty())
        Change(run::RenameEdits(file_, plan_));
}

void FileTester::Update() {
    if (!run::Obstacles(*tested_.Machine).empty())
        return;
    const run::TestRunner runner(*tested_.Machine, plan_,
                                 {arguments_.Strict, arguments_.AfterLimit, arguments_.UnstartedExpired});
    Change(run::UpdateEdits(plan_, runner));
}

// Only names and expectations change, so that what is read again is understood again.
void FileTester::Change(const std::vector<run::TextEdit>& edits) {
    const std::string changed = run::WithEdits(bytes_, edits);
    if (!arguments_.Json)
        outcome_.Output += run::ChangedLines(ShownName(tested_.Name), bytes_, changed);
    bytes_ = changed;
    file_ = run::ReadTestFile(bytes_).File;
    plan_ = run::PlanTests(file_, *tested_.Machine, DocumentName());
}

void FileTester::NoteRenames() {
    std::set<std::string> told;
    for (const run::Renamed& renamed : plan_.Renames) {
        if (told.insert(renamed.Written.Text).second)
            tested_.Notes.push_back({renamed.Written.At, run::Quoted(renamed.Written.Text) +
                                                             " is now called " +
                                                             run::Quoted(renamed.NewName) + " in " +
                                                             DocumentName() + "; --rename writes that"});
    }
    TellNotes("", tested_.Notes);
}

void FileTester::List() {
    for (const run::PlannedTest& test : plan_.Tests) {
        if (Chosen(test))
            outcome_.Output +=
                ShownName(tested_.Name) + ":" + NumberText(test.At.Line) + ": " + ShownName(test.Name) + "\n";
    }
}

void FileTester::RunAll() {
    const std::vector<std::string> obstacles = run::Obstacles(*tested_.Machine);
    if (!obstacles.empty()) {
        for (const std::string& obstacle : obstacles)
            outcome_.Errors += ShownName(tested_.Document) + ": " + ShownName(ToUtf8(obstacle)) + "\n";
        for (const run::PlannedTest& test : plan_.Tests) {
            if (Chosen(test))
                AddTest(test, {run::Verdict::Failed,
                               test.At,
                               DocumentName() + " cannot be run: " + ToUtf8(obstacles.front()),
                               {}});
        }
        return outcome_.Raise(kDesignError);
    }
    const run::TestRunner runner(*tested_.Machine, plan_,
                                 {arguments_.Strict, arguments_.AfterLimit, arguments_.UnstartedExpired});
    tested_.Seen = runner.NoCoverage();
    for (const run::PlannedTest& test : plan_.Tests) {
        if (Chosen(test))
            AddTest(test, runner.Run(test, *tested_.Seen));
    }
}

void FileTester::AddTest(const run::PlannedTest& test, run::TestResult result) {
    if (result.Is == run::Verdict::Failed) {
        outcome_.Raise(kDesignError);
        Tell("failed", result.At.Line, result.At.Column, test.Name + ": " + result.Message);
    } else if (result.Is == run::Verdict::Error) {
        outcome_.Raise(kFileError);
        Tell("error", result.At.Line, result.At.Column, test.Name + ": " + result.Message);
    }
    TellNotes(test.Name, result.Notes);
    tested_.Tests.push_back({test.Name, result.At.Line, result.At.Column, result.Is,
                             std::move(result.Message), std::move(result.Notes)});
}

void FileTester::AddSlips(const std::vector<run::TestMessage>& slips) {
    for (const run::TestMessage& slip : slips) {
        Tell("error", slip.At.Line, slip.At.Column, slip.Text);
        tested_.Tests.push_back(
            {TestAt(slip.At.Line), slip.At.Line, slip.At.Column, run::Verdict::Error, slip.Text, {}});
        outcome_.Raise(kFileError);
    }
}

// The test that the line belongs to.
std::string FileTester::TestAt(std::size_t line) const {
    for (std::size_t at = std::min(line, file_.Lines.size()); at > 0; --at) {
        if (const auto* test = std::get_if<run::TestHead>(&file_.Lines[at - 1].What))
            return test->Text;
    }
    return "";
}

void FileTester::TellNotes(const std::string& test, const std::vector<run::TestMessage>& notes) {
    for (const run::TestMessage& note : notes) {
        if (arguments_.NotesFail)
            outcome_.Raise(kDesignError);
        Tell("note", note.At.Line, note.At.Column, (test.empty() ? "" : test + ": ") + note.Text);
    }
}

// Errors are for those who wrote the file, the rest is the result.
void FileTester::Tell(const char* kind, std::size_t line, std::size_t column, const std::string& text) {
    const std::string told = ShownName(tested_.Name) + ":" + NumberText(line) + ":" + NumberText(column) +
                             ": " + kind + ": " + ShownName(text) + "\n";
    if (std::string_view(kind) == "error")
        outcome_.Errors += told;
    else if (!arguments_.Json)
        outcome_.Output += told;
}

} // namespace

TestedFile TestOneFile(const std::string& name, const TestArguments& arguments, const TestFiles& files,
                       Outcome& outcome) noexcept {
    try {
        return FileTester(name, arguments, files, outcome).Do();
    } catch (const std::exception& error) {
        outcome.Errors += FailureLine(name, error.what());
        outcome.Raise(kFileError);
        TestedFile failed;
        failed.Name = name;
        failed.Tests.push_back({"", 1, 1, run::Verdict::Error, error.what(), {}});
        return failed;
    }
}

} // namespace orvane::cli
