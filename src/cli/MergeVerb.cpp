// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/MergeVerb.h"

#include "cli/ConflictsJson.h"
#include "cli/DocumentPath.h"
#include "cli/MessageText.h"
#include "cli/WholeDocument.h"
#include "core/DocumentWriter.h"
#include "files/FileWriter.h"
#include "review/ConflictBlock.h"
#include "review/Merge.h"
#include "review/Titles.h"
#include "text/NumberText.h"

#include <utility>

namespace orvane::cli {

namespace {

class MergeRun {
  public:
    explicit MergeRun(const Run& run) : run_(run), asked_(run.Asked.Reviewing), names_(run.Asked.Documents) {}

    Outcome Do() {
        const std::optional<FsmDocument> base = Read(names_[0]);
        const std::optional<FsmDocument> ours = Read(names_[1]);
        const std::optional<FsmDocument> theirs = Read(names_[2]);
        if (!base || !ours || !theirs || StillHasConflicts(names_[1], *ours) ||
            StillHasConflicts(names_[2], *theirs))
            return std::move(outcome_);
        const review::MergeResult result = Merged(*base, *ours, *theirs);
        Tell(result);
        if (!result.Conflicts.empty())
            outcome_.Raise(kDifferent);
        if (!asked_.MergeOutput)
            outcome_.Output = WriteDocument(result.Document);
        else if (Write(*asked_.MergeOutput, WriteDocument(result.Document), Outlives::Machine))
            WriteList(result.Conflicts);
        return std::move(outcome_);
    }

  private:
    std::optional<FsmDocument> Read(const std::string& name) {
        return ReadWholeDocument(run_.Files, name, outcome_, TextMarks::Refused);
    }

    review::MergeResult Merged(const FsmDocument& base, const FsmDocument& ours,
                               const FsmDocument& theirs) const {
        if (asked_.TakeOurs)
            return Merge(base, ours, theirs, review::Contradictions::OursCounts);
        if (asked_.TakeTheirs)
            return Merge(base, theirs, ours, review::Contradictions::OursCounts);
        return review::Merge(base, ours, theirs);
    }

    // The blocks of two merges in one text could not be told apart.
    bool StillHasConflicts(const std::string& name, const FsmDocument& document) {
        if (review::FindConflicts(document).empty())
            return false;
        outcome_ =
            WrongUsage(ShownName(name) + " still has conflicts of an earlier merge; \"orvanec conflicts " +
                       ShownName(name) + "\" tells where");
        return true;
    }

    void Tell(const review::MergeResult& result) {
        for (const std::string& note : result.Notes)
            outcome_.Errors += ShownName(ToldName()) + ": note: " + note + "\n";
        for (const review::Conflict& conflict : result.Conflicts)
            outcome_.Errors += ShownName(ToldName()) + ": conflict: " + conflict.What + "\n";
    }

    void WriteList(const std::vector<review::Conflict>& conflicts) {
        const std::string list = asked_.MergePath.value_or(*asked_.MergeOutput) + ".conflicts";
        if (!conflicts.empty()) {
            (void)Write(list, ConflictsJson(ToldName(), conflicts), Outlives::Process);
            return;
        }
        const std::error_code failure = run_.Files.Remove(PathOf(list)); // of an earlier merge
        if (failure && failure != std::errc::no_such_file_or_directory)
            outcome_.Errors += FailureLine(list, "cannot be removed", ReasonText(failure));
    }

    bool Write(const std::string& name, const std::string& bytes, Outlives must) {
        const WrittenFile written =
            WriteFile(run_.Files, PathOf(name), {bytes},
                      {must, SpecialFiles::WrittenInto, kSavingPatience, &run_.Unfinished});
        if (written.Failure) {
            outcome_.Errors += FailureLine(name, "cannot be written", ReasonText(*written.Failure));
            outcome_.Raise(kFileError);
            return false;
        }
        for (const FileNote note : written.Notes)
            outcome_.Errors += FailureLine(name, "is written. " + Sentence(note));
        return true;
    }

    // What the user calls the merged document.
    std::string ToldName() const {
        return asked_.MergePath ? *asked_.MergePath : asked_.MergeOutput.value_or(names_[1]);
    }

    const Run& run_;
    const ReviewArguments& asked_;
    const std::vector<std::string>& names_;
    Outcome outcome_;
};

} // namespace

Outcome MergeDocuments(const Run& run) {
    if (run.Asked.Documents.size() != 3)
        return WrongUsage("merge takes three documents: what both came from, ours, and theirs");
    return MergeRun(run).Do();
}

Outcome TellConflicts(const Run& run) {
    Outcome outcome;
    for (const std::string& name : run.Asked.Documents) {
        const std::optional<ReadResult> read = ReadNamedDocument(run.Files, name, outcome);
        if (!read)
            continue;
        for (const review::PlacedBlock& found : review::FindConflicts(read->Document)) {
            outcome.Output += ShownName(name) + ": " + found.Where + ", line " +
                              NumberText(std::int64_t(found.Block.Line)) + ": " +
                              review::OneLine(found.Block.Title) + "\n";
            outcome.Raise(kDifferent);
        }
    }
    return outcome;
}

} // namespace orvane::cli
