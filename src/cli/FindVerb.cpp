// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/FindVerb.h"

#include "cli/DocumentPath.h"
#include "cli/JsonReport.h"
#include "cli/MessageText.h"
#include "cli/OrderedWork.h"
#include "cli/StandardStreams.h"
#include "cli/WholeDocument.h"
#include "core/TextStarts.h"
#include "find/PlaceText.h"
#include "find/Search.h"
#include "text/AnsiText.h"
#include "text/JsonString.h"
#include "text/NumberText.h"

#include <algorithm>
#include <exception>
#include <limits>

namespace orvane::cli {

namespace {

constexpr int kFound = 0;
constexpr int kNothingFound = 1;

// Nobody waits at a prompt for the next letter: all hits, and some minutes for an expression.
constexpr find::SearchLimits kLimits = {std::numeric_limits<std::size_t>::max(), 50'000'000'000};

// The pattern as document text; none when it holds a character that no document can hold.
std::optional<std::string> DocumentText(const std::string& utf8) {
    std::string text = FromUtf8(utf8, '?');
    return ToUtf8(text) == utf8 ? std::optional(std::move(text)) : std::nullopt;
}

// What was found in one document, with where its texts stand in the file.
struct Found {
    const std::string& Name;
    const FsmDocument& Document;
    const TextStarts& Starts;
    const find::SearchResult& Result;
    bool Complete; // the document was read and looked through to its end
};

std::size_t FileLine(const Found& found, const find::Hit& hit) {
    return found.Starts.LineOf(hit.Place) + hit.Line - 1;
}

// The line of the text that has the hit, tabs as blanks so that it stays one column of a line.
std::string ShownLine(const Found& found, const find::Hit& hit) {
    const std::string_view line = find::LineAt(TextAt(found.Document, hit.Place), hit.Start);
    return ToUtf8(Trim(Replace(line, '\t', ' ')));
}

std::string HitLine(const Found& found, const find::Hit& hit) {
    return ShownName(found.Name) + ":" + NumberText(FileLine(found, hit)) + ": " +
           ShownName(ToUtf8(find::PlaceTitle(found.Document, hit.Place))) + ": " +
           ShownName(ShownLine(found, hit)) + "\n";
}

std::string HitObject(const Found& found, const find::Hit& hit) {
    const std::string& text = TextAt(found.Document, hit.Place);
    const Cell at = hit.Place.At;
    const bool hasRow = at.State == kNoState || std::holds_alternative<CellAction>(hit.Place.Field);
    return "{\"line\":" + NumberText(FileLine(found, hit)) +
           ",\"place\":" + JsonStringOfAnsi(find::PlaceTitle(found.Document, hit.Place)) +
           ",\"state\":" + NumberOrNull(at.State.Number()) +
           ",\"row\":" + NumberOrNull(hasRow ? at.Row.Number() : kNoRow) +
           ",\"field\":" + JsonString(KindOf(hit.Place).Tag) + ",\"textLine\":" + NumberText(hit.Line) +
           ",\"column\":" + NumberText(hit.Column) +
           ",\"match\":" + JsonStringOfAnsi(std::string_view(text).substr(hit.Start, hit.Length)) +
           ",\"text\":" + JsonStringOfAnsi(find::LineAt(text, hit.Start)) + "}";
}

std::string JsonOf(const Found& found) {
    std::string hits;
    for (const find::Hit& hit : found.Result.Hits)
        hits += (hits.empty() ? "" : ",") + HitObject(found, hit);
    return "{\"version\":1,\"path\":" + JsonString(found.Name) +
           ",\"complete\":" + (found.Complete ? "true" : "false") + ",\"hits\":[" + hits + "]}\n";
}

std::string LinesOf(const Found& found) {
    std::string lines;
    for (const find::Hit& hit : found.Result.Hits)
        lines += HitLine(found, hit);
    return lines;
}

// In the order of the file, which may be another one than that of a file the editor wrote.
void SortByLine(find::SearchResult& result, const TextStarts& starts) {
    std::stable_sort(result.Hits.begin(), result.Hits.end(), [&](const find::Hit& a, const find::Hit& b) {
        return starts.LineOf(a.Place) < starts.LineOf(b.Place);
    });
}

Outcome FindIn(const std::string& name, const find::Pattern& pattern, bool json, FileSystem& files) {
    Outcome outcome;
    TextStarts starts;
    const std::optional<ReadResult> read = ReadNamedDocument(files, name, outcome, &starts);
    const FsmDocument nothing;
    const FsmDocument& document = read ? read->Document : nothing;
    find::SearchResult result = Search(document, pattern, kLimits);
    SortByLine(result, starts);
    if (result.End != find::SearchEnd::Complete) {
        outcome.Errors += FailureLine(name, TextOf(result.End));
        outcome.Raise(kFileError);
    }
    if (result.Hits.empty())
        outcome.Raise(kNothingFound);
    const Found found = {name, document, starts, result, outcome.Status < kFileError};
    outcome.Output = json ? JsonOf(found) : LinesOf(found);
    return outcome;
}

} // namespace

int RunFind(const Arguments& arguments, FileSystem& files) {
    const FindArguments& asked = arguments.Finding;
    const std::optional<std::string> text = DocumentText(asked.Pattern);
    if (!text)
        return Deliver(WrongUsage(ShownName(asked.Pattern) + " holds a character that no document can hold"));
    const auto read = find::ReadPattern({*text, !asked.IgnoreCase, asked.Word, asked.Regex});
    if (const auto* fault = std::get_if<find::PatternFault>(&read))
        return Deliver(WrongUsage(ShownName(ToUtf8(fault->Text))));
    const find::Pattern& pattern = std::get<find::Pattern>(read);
    bool found = false;
    int status = kNothingFound;
    WorkInOrder(
        arguments.Documents.size(),
        [&](std::size_t index) -> Outcome {
            const std::string& name = arguments.Documents[index];
            try {
                return FindIn(name, pattern, asked.Json, files);
            } catch (const std::exception& error) {
                return {{}, FailureLine(name, error.what()), kFileError};
            }
        },
        [&](const Outcome& outcome) {
            const int delivered = Deliver(outcome);
            found = found || delivered == kFound;
            status = std::max(status, delivered);
        });
    return status == kNothingFound && found ? kFound : status;
}

} // namespace orvane::cli
