// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ReviewVerbs.h"

#include "cli/DiffJson.h"
#include "cli/GitVerb.h"
#include "cli/MergeVerb.h"
#include "cli/MessageText.h"
#include "cli/WholeDocument.h"
#include "review/Compare.h"
#include "review/DiffHtml.h"
#include "review/Match.h"
#include "review/ShowText.h"
#include "review/TellChanges.h"
#include "review/WishReader.h"

#include <exception>

namespace orvane::cli {

namespace {

// What the user says about identities, or what is wrong with it.
std::optional<Outcome> ReadWishes(const ReviewArguments& asked, const FsmDocument& oldOne,
                                  const FsmDocument& newOne, review::Wishes& wishes) {
    for (const std::string& text : asked.Same) {
        if (const auto fault = review::AddSame(wishes, text, {oldOne, newOne}))
            return WrongUsage("--same: " + ShownName(*fault));
    }
    for (const std::string& text : asked.Different) {
        if (const auto fault = review::AddDifferent(wishes, text, oldOne))
            return WrongUsage("--different: " + ShownName(*fault));
    }
    return std::nullopt;
}

std::string Told(const ComparedDocuments& compared, DiffFormat format) {
    const std::string names = ShownName(compared.OldName) + " -> " + ShownName(compared.NewName);
    switch (format) {
    case DiffFormat::Json:
        return DiffJson(compared);
    case DiffFormat::Html:
        return DiffHtml(compared.List, compared.Old, compared.New, names);
    case DiffFormat::Text:
        break;
    }
    return DiffText(compared.List, compared.Old, compared.New, names);
}

Outcome Diff(const Arguments& arguments, FileSystem& files) {
    const ReviewArguments& asked = arguments.Reviewing;
    if (arguments.Documents.size() != 2)
        return WrongUsage("diff takes two documents, the old one and the new one");
    Outcome outcome;
    const std::optional<FsmDocument> oldOne = ReadWholeDocument(files, arguments.Documents[0], outcome);
    const std::optional<FsmDocument> newOne = ReadWholeDocument(files, arguments.Documents[1], outcome);
    if (!oldOne || !newOne)
        return outcome;
    review::Wishes wishes;
    if (const std::optional<Outcome> wrong = ReadWishes(asked, *oldOne, *newOne, wishes))
        return *wrong;
    review::ChangeList list = review::Compare(*oldOne, *newOne, review::Match(*oldOne, *newOne, wishes));
    if (asked.NoView)
        list = list.WithoutView();
    if (!list.IsEmpty())
        outcome.Raise(kDifferent);
    outcome.Output =
        Told({arguments.Documents[0], arguments.Documents[1], *oldOne, *newOne, list}, asked.Format);
    return outcome;
}

Outcome Show(const Arguments& arguments, FileSystem& files) {
    if (arguments.Documents.size() != 1)
        return WrongUsage("show takes one document");
    Outcome outcome;
    const std::string& name = arguments.Documents.front();
    const std::optional<ReadResult> read = ReadNamedDocument(files, name, outcome);
    if (!read)
        return outcome;
    if (!read->Refused)
        outcome.Output = review::ShowText(read->Document);
    if (read->BrokeOff)
        outcome.Output += "not read to its end: " + ShownMessage(read->Messages.back()) + "\n";
    if (arguments.Reviewing.TextConversion)
        outcome.Status = kSuccess;
    return outcome;
}

} // namespace

Outcome RunReviewVerb(const Run& run) noexcept {
    try {
        switch (run.Asked.What) {
        case Verb::Diff:
            return Diff(run.Asked, run.Files);
        case Verb::Merge:
            return MergeDocuments(run);
        case Verb::Conflicts:
            return TellConflicts(run);
        case Verb::Git:
            return EnableGit(run);
        default:
            return Show(run.Asked, run.Files);
        }
    } catch (const std::exception& error) {
        return {{}, FailureLine(run.Asked.Documents.front(), error.what()), kFileError};
    }
}

} // namespace orvane::cli
