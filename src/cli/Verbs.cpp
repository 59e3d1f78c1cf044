// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Verbs.h"

#include "cli/DocumentPath.h"
#include "cli/JsonReport.h"
#include "cli/MessageText.h"
#include "codegen/CodeGenerator.h"
#include "core/DocumentReader.h"
#include "core/DocumentWriter.h"
#include "core/ForeignBytes.h"
#include "files/FileReader.h"
#include "files/FileWriter.h"
#include "files/Leftovers.h"
#include "run/Advice.h"
#include "text/AnsiText.h"

#include <exception>
#include <map>

namespace orvane::cli {

namespace fs = std::filesystem;

namespace {

class DocumentRun {
  public:
    DocumentRun(const Run& run, std::size_t index)
        : run_(run), arguments_(run.Asked), index_(index), name_(arguments_.Documents[index]) {}

    Outcome Do();

  private:
    // Reads the document into read_. Tells what there is to tell; false when there is no document at all.
    bool Read();
    void Generate();
    void Check(const Report& report);
    void Format();

    void WriteBytes(const fs::path& target, std::string bytes, Outlives must);
    bool IsFirstOfItsFolder() const;
    bool ToStandardOutput() const { return arguments_.Output == kStandardOutput; }
    bool WritesOver(const fs::path& target) const {
        std::error_code none;
        return !ToStandardOutput() && fs::equivalent(target, PathOf(name_), none);
    }
    std::string HeadedReport(const Report& report) const {
        const std::string head = arguments_.Documents.size() > 1 ? ShownName(name_) + ":\n" : "";
        return head + StreamText(ReportText(report));
    }
    void Fail(std::string_view what, std::string_view reason = {}) {
        outcome_.Errors += FailureLine(name_, what, reason);
        outcome_.Raise(kFileError);
    }
    bool AsJson() const { return arguments_.Format == ReportFormat::Json; }

    const Run& run_;
    const Arguments& arguments_;
    const std::size_t index_;
    const std::string& name_;
    std::optional<ReadResult> read_; // there from Read() on; an empty document when none could be read
    Outcome outcome_;
};

Outcome DocumentRun::Do() {
    const bool isDocument = Read();
    if (arguments_.What == Verb::Check && isDocument)
        Check(GenerateProgram(read_->Document, {}).Findings);
    else if (arguments_.What == Verb::Check && AsJson())
        Check({}); // so that there is a line for each document
    else if (arguments_.What == Verb::Generate && isDocument)
        Generate();
    else if (arguments_.What == Verb::Format && isDocument)
        Format();
    return std::move(outcome_);
}

bool DocumentRun::Read() {
    const FileContent file = ReadStream(run_.Files, PathOf(name_), kLargestDocument);
    if (file.Failure) {
        const bool tooLarge = file.Failure->Reason == std::errc::file_too_large;
        const std::string what = tooLarge ? "is " + std::string(kTooLargeForADocument) : "cannot be read";
        const std::string reason = tooLarge ? "" : ReasonText(*file.Failure);
        Fail(what, reason);
        read_.emplace().BrokeOff = true;
        read_->Messages.push_back({"The file " + what + (tooLarge ? "" : " (" + reason + ")"), 0});
        return false;
    }
    read_ = ReadDocument(file.Bytes());
    const std::vector<ReaderMessage> foreign = ForeignMessages(file.Bytes());
    read_->Messages.insert(read_->Messages.begin(), foreign.begin(), foreign.end());
    for (const ReaderMessage& message : read_->Messages)
        outcome_.Errors += MessageLine(name_, message);
    if (read_->BrokeOff)
        outcome_.Raise(kFileError);
    return !read_->Refused;
}

void DocumentRun::Generate() {
    const fs::path document = FullPath(name_);
    GeneratedProgram program = GenerateProgram(read_->Document, {PathInProgram(document), run_.BannerDate});
    outcome_.Errors += HeadedReport(program.Findings);
    if (program.Findings.HasErrors())
        outcome_.Raise(kDesignError);
    if (program.Findings.HasErrors() || read_->BrokeOff)
        return;
    const fs::path target = arguments_.Output ? PathOf(*arguments_.Output) : ProgramPath(document);
    if (WritesOver(target))
        return Fail("the program would take the place of the document; name another file with -o");
    // Not waiting for the disk: the program can be made again.
    WriteBytes(target, ProgramFileBytes(std::move(program)), Outlives::Process);
}

void DocumentRun::Check(const Report& report) {
    if (report.HasErrors())
        outcome_.Raise(kDesignError);
    std::optional<run::AdviceResult> advice;
    if (arguments_.Advice)
        advice = run::AdviceOn(read_->Document);
    if (AsJson()) {
        outcome_.Output = JsonLine(
            {name_, read_->Document, report, read_->Messages, !read_->BrokeOff, advice ? &*advice : nullptr});
        return;
    }
    outcome_.Output = HeadedReport(report);
    for (const run::Advice& each : advice ? advice->List : std::vector<run::Advice>())
        outcome_.Output += "Advice: " + ShownName(ToUtf8(each.Message)) + " [" +
                           std::string(AdviceKindName(each.Kind)) + "]\n";
}

void DocumentRun::Format() {
    const fs::path target = PathOf(arguments_.Output.value_or(name_));
    if (read_->BrokeOff && WritesOver(target))
        return Fail("is not written over, because it was not read to its end");
    WriteBytes(target, WriteDocument(read_->Document), Outlives::Machine);
}

void DocumentRun::WriteBytes(const fs::path& target, std::string bytes, Outlives must) {
    if (ToStandardOutput()) {
        outcome_.Output = std::move(bytes);
        return;
    }
    const SpecialFiles special = arguments_.Output ? SpecialFiles::WrittenInto : SpecialFiles::Refused;
    const WrittenFile written =
        WriteFile(run_.Files, target, {bytes}, {must, special, kSavingPatience, &run_.Unfinished});
    const std::string shown = ShownName(Utf8(target));
    if (written.Failure)
        return Fail(shown + " cannot be written", ReasonText(*written.Failure));
    for (const FileNote note : written.Notes)
        outcome_.Errors += FailureLine(name_, shown + " is written. " + Sentence(note));
    if (IsFirstOfItsFolder())
        RemoveLeftovers(run_.Files, target, written.Stamp);
}

// A folder of many documents need not be read for each of them.
bool DocumentRun::IsFirstOfItsFolder() const {
    const auto folder = [&](std::size_t index) { return PathOf(arguments_.Documents[index]).parent_path(); };
    return index_ == 0 || folder(index_) != folder(index_ - 1);
}

} // namespace

std::optional<Outcome> ProgramClash(const Arguments& arguments) {
    if (arguments.What != Verb::Generate || arguments.Documents.size() < 2)
        return std::nullopt;
    std::map<fs::path, const std::string*, FileNameOrder> firstOf; // by the path of the program
    for (const std::string& name : arguments.Documents) {
        const fs::path program = ProgramPath(FullPath(name));
        const auto [first, isNew] = firstOf.emplace(program, &name);
        if (!isNew && FullPath(*first->second) != FullPath(name))
            return WrongUsage(ShownName(*first->second) + " and " + ShownName(name) +
                              " would have the same program, " + ShownName(Utf8(program)));
    }
    return std::nullopt;
}

Outcome RunVerb(const Run& run, std::size_t index) noexcept {
    try {
        return DocumentRun(run, index).Do();
    } catch (const std::exception& error) {
        return {{}, FailureLine(run.Asked.Documents[index], error.what()), kFileError};
    }
}

} // namespace orvane::cli
