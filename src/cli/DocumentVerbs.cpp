// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/DocumentVerbs.h"

#include "cli/DocumentPath.h"
#include "cli/MessageText.h"
#include "cli/OrderedWork.h"
#include "cli/StandardStreams.h"
#include "cli/Verbs.h"
#include "cli/WhyNotWritten.h"
#include "files/FileWriter.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace orvane::cli {

namespace {

// The log of all documents, where one was asked for, goes where their reports would.
Outcome LogOf(const Arguments& arguments, std::vector<Share>& shares) {
    if (arguments.Building.Format != ReportFormat::Sarif)
        return {};
    std::vector<SarifPart> parts;
    for (Share& share : shares)
        parts.push_back(std::move(share.Log));
    Outcome log;
    (arguments.What == Verb::Check ? log.Output : log.Errors) = SarifLog(parts);
    return log;
}

Outcome WriteDependencies(const Run& run, const std::vector<Share>& shares) {
    Outcome outcome;
    const std::optional<std::string>& name = run.Asked.Building.DependencyFile;
    if (!name)
        return outcome;
    std::string rules;
    for (const Share& share : shares)
        rules += share.DependencyRule;
    const std::filesystem::path path = PathOf(*name);
    const WrittenFile written =
        WriteFile(run.Files, path, {rules},
                  {Outlives::Process, SpecialFiles::WrittenInto, kSavingPatience, &run.Unfinished});
    if (written.Failure) {
        outcome.Errors = FailureLine(*name, "cannot be written", WhyNotWritten(*written.Failure, path));
        outcome.Raise(kFileError);
    }
    return outcome;
}

} // namespace

int RunOnDocuments(const Arguments& arguments, FileSystem& files, UnfinishedFiles& unfinished,
                   const std::string& bannerDate, const LastWord& lastWord) {
    const Run run{arguments, bannerDate, files, unfinished};
    std::vector<Share> shares(arguments.Documents.size()); // each its own, so that nobody waits
    int status = kSuccess;
    const auto deliver = [&](const Outcome& outcome) { status = std::max(status, Deliver(outcome)); };
    WorkInOrder(
        shares.size(), [&](std::size_t index) { return RunVerb(run, index, shares[index]); }, deliver,
        arguments.Building.Jobs);
    deliver(WriteDependencies(run, shares));
    deliver({lastWord.Output, {}, kSuccess});
    shares.push_back({lastWord.Log, {}});
    deliver(LogOf(arguments, shares));
    return status;
}

} // namespace orvane::cli
