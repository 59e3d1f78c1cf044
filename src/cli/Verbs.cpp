// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Verbs.h"

#include "cli/DependencyRules.h"
#include "cli/DocumentBytes.h"
#include "cli/DocumentPath.h"
#include "cli/DocumentReport.h"
#include "cli/MessageText.h"
#include "cli/ProgramTargets.h"
#include "cli/WhyNotWritten.h"
#include "codegen/CodeGenerator.h"
#include "codegen/ProgramBanner.h"
#include "core/DocumentReader.h"
#include "core/DocumentWriter.h"
#include "core/ForeignBytes.h"
#include "core/TextStarts.h"
#include "files/FileReader.h"
#include "files/FileWriter.h"
#include "files/Leftovers.h"
#include "run/Advice.h"

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

namespace orvane::cli {

namespace fs = std::filesystem;

namespace {

class DocumentRun {
  public:
    DocumentRun(const Run& run, std::size_t index, Share& share)
        : run_(run),
          arguments_(run.Asked),
          asked_(run.Asked.Building),
          share_(share),
          index_(index),
          name_(arguments_.Documents[index]),
          bytes_(run.Files, name_),
          read_(bytes_.Are() ? ReadDocument(bytes_.Bytes()) : ReadResult()) {}

    Outcome Do();

  private:
    // What there is to tell of the reading; false when there is no document at all.
    bool TellReading();
    // Looks over the design, and writes the program where that is asked for.
    void Judge(bool isDocument);
    void Generate(GeneratedProgram program);
    void Format();
    void Compare(std::string_view formatted);

    // What was found goes where the verb says, in the format that was asked for.
    void TellReport(const Report& report);

    // False when the file could not be written, which was told then.
    bool WriteBytes(const fs::path& target, std::string bytes, Outlives must);
    bool IsUpToDate(const fs::path& target, std::string_view program) const;
    bool IsFirstOfItsFolder() const;
    bool Is(Verb verb) const { return arguments_.What == verb; }
    bool ToStandardOutput() const { return arguments_.Output == kStandardOutput; }
    bool WritesOver(const fs::path& target) const {
        std::error_code none;
        return !ToStandardOutput() && fs::equivalent(target, PathOf(name_), none);
    }
    // A program reads the report: there is nothing beside it.
    bool IsForPrograms() const {
        return asked_.Format == ReportFormat::Json || asked_.Format == ReportFormat::Sarif;
    }
    void Fail(const std::string& what) {
        outcome_.Errors += FailureLine(name_, what);
        failures_.push_back(ShownName(what));
        outcome_.Raise(kFileError);
    }

    const Run& run_;
    const Arguments& arguments_;
    const BuildArguments& asked_;
    Share& share_;
    const std::size_t index_;
    const std::string& name_;
    DocumentBytes bytes_;
    ReadResult read_; // an empty document when none could be read
    std::vector<run::Advice> advice_;
    std::vector<std::string> failures_; // beyond those that the reader tells
    Outcome outcome_;
};

Outcome DocumentRun::Do() {
    const bool isDocument = TellReading();
    if (!Is(Verb::Format))
        Judge(isDocument);
    else if (isDocument)
        Format();
    return std::move(outcome_);
}

bool DocumentRun::TellReading() {
    if (!bytes_.Are()) {
        outcome_.Errors += FailureLine(name_, bytes_.WhyNot());
        outcome_.Raise(kFileError);
        read_.BrokeOff = true;
        read_.Messages.push_back({"The file " + bytes_.WhyNot(), 0});
        return false;
    }
    const std::vector<ReaderMessage> foreign = ForeignMessages(bytes_.Bytes());
    read_.Messages.insert(read_.Messages.begin(), foreign.begin(), foreign.end());
    for (const ReaderMessage& message : read_.Messages)
        outcome_.Errors += MessageLine(name_, message);
    if (read_.BrokeOff)
        outcome_.Raise(kFileError);
    return !read_.Refused;
}

void DocumentRun::Judge(bool isDocument) {
    if (!isDocument) {
        if (IsForPrograms())
            TellReport({}); // so that it stands for each document
        return;
    }
    const std::string path = Is(Verb::Check)           ? ""
                             : name_ == kStandardInput ? name_
                                                       : PathInProgram(FullPath(name_));
    GeneratedProgram program = GenerateProgram(read_.Document, {path, run_.BannerDate});
    program.Findings.WarningsAreErrors = asked_.WarningsAreErrors;
    if (asked_.Advice)
        advice_ = run::AdviceOn(read_.Document).List;
    if (program.Findings.HasErrors())
        outcome_.Raise(kDesignError);
    if (Is(Verb::Generate))
        Generate(std::move(program));
    else
        TellReport(program.Findings);
}

void DocumentRun::Generate(GeneratedProgram program) {
    const Report report = program.Findings;
    if (!IsForPrograms()) // else it also tells what becomes of the file
        TellReport(report);
    if (!report.HasErrors() && !read_.BrokeOff) {
        const fs::path target = ProgramTarget(arguments_, name_);
        // Not waiting for the disk: the program can be made again.
        if (WritesOver(target))
            Fail("the program would take the place of the document; name another file with -o");
        else if (WriteBytes(target, ProgramFileBytes(std::move(program)), Outlives::Process) &&
                 asked_.DependencyFile)
            share_.DependencyRule = DependencyRule(NameOfTarget(arguments_, name_), name_);
    }
    if (IsForPrograms())
        TellReport(report);
}

void DocumentRun::TellReport(const Report& report) {
    TextStarts starts;
    if (asked_.Format != ReportFormat::Text && !(report.Findings.empty() && advice_.empty()))
        ReadDocument(bytes_.Bytes(),
                     &starts); // only now, because keeping the lines takes longer than reading
    const CheckedDocument checked = {
        name_,     read_.Document, report,          read_.Messages,
        failures_, starts,         !read_.BrokeOff, asked_.Advice ? &advice_ : nullptr};
    if (asked_.Format == ReportFormat::Sarif)
        share_.Log = SarifOf(checked);
    const std::string text = DocumentReport(
        checked, {asked_.Format, arguments_.Documents.size() > 1 || asked_.Project, asked_.Quiet});
    if (Is(Verb::Check))
        outcome_.Output += text;
    else if (IsForPrograms())
        outcome_.Errors = text; // which has all that stood there
    else
        outcome_.Errors += text;
}

void DocumentRun::Format() {
    std::string formatted = WriteDocument(read_.Document);
    if (asked_.OnlyCompare)
        return Compare(formatted);
    const fs::path target = PathOf(arguments_.Output.value_or(name_));
    if (read_.BrokeOff && WritesOver(target))
        return Fail("is not written over, because it was not read to its end");
    if (!arguments_.Output && formatted == bytes_.Bytes())
        return; // a file that is as it should be keeps its date
    WriteBytes(target, std::move(formatted), Outlives::Machine);
}

void DocumentRun::Compare(std::string_view formatted) {
    const std::string_view bytes = bytes_.Bytes();
    if (read_.BrokeOff || bytes == formatted)
        return;
    const auto [differs, other] =
        std::mismatch(bytes.begin(), bytes.end(), formatted.begin(), formatted.end());
    const auto line = 1 + std::count(bytes.begin(), differs, '\n');
    outcome_.Output += MessageLine(name_, {"Not as the editor would save it; \"orvanec format\" writes it so",
                                           static_cast<std::size_t>(line)});
    outcome_.Raise(kDifferent);
}

bool DocumentRun::WriteBytes(const fs::path& target, std::string bytes, Outlives must) {
    if (ToStandardOutput()) {
        outcome_.Output = std::move(bytes);
        return true;
    }
    if (asked_.IfChanged && IsUpToDate(target, bytes))
        return true;
    const SpecialFiles special = arguments_.Output ? SpecialFiles::WrittenInto : SpecialFiles::Refused;
    const WrittenFile written =
        WriteFile(run_.Files, target, {bytes}, {must, special, kSavingPatience, &run_.Unfinished});
    const std::string shown = ShownName(Utf8(target));
    if (written.Failure) {
        Fail(shown + " cannot be written (" + WhyNotWritten(*written.Failure, target) + ")");
        return false;
    }
    for (const FileNote note : written.Notes)
        outcome_.Errors += FailureLine(name_, shown + " is written. " + Sentence(note));
    if (IsFirstOfItsFolder())
        RemoveLeftovers(run_.Files, target, written.Stamp);
    return true;
}

bool DocumentRun::IsUpToDate(const fs::path& target, std::string_view program) const {
    const FileContent old = ReadFile(run_.Files, target, 2 * program.size());
    return old && HasProgramBanner(old.Bytes()) && WithoutBanner(old.Bytes()) == WithoutBanner(program);
}

// A folder of many documents need not be read for each of them.
bool DocumentRun::IsFirstOfItsFolder() const {
    if (asked_.OutputFolder)
        return index_ == 0;
    const auto folder = [&](std::size_t index) { return PathOf(arguments_.Documents[index]).parent_path(); };
    return index_ == 0 || folder(index_) != folder(index_ - 1);
}

} // namespace

Outcome RunVerb(const Run& run, std::size_t index, Share& share) noexcept {
    try {
        return DocumentRun(run, index, share).Do();
    } catch (const std::exception& error) {
        return {{}, FailureLine(run.Asked.Documents[index], error.what()), kFileError};
    }
}

} // namespace orvane::cli
