// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/WholeDocument.h"

#include "cli/DocumentPath.h"
#include "cli/MessageText.h"
#include "core/ForeignBytes.h"
#include "files/FileReader.h"

#include <utility>

namespace orvane::cli {

namespace {

// None when there is no reading it; the outcome has why.
std::optional<FileContent> ReadBytes(FileSystem& files, const std::string& name, Outcome& outcome) {
    FileContent file = ReadStream(files, PathOf(name), kLargestDocument);
    if (!file.Failure)
        return file;
    const bool tooLarge = file.Failure->Reason == std::errc::file_too_large;
    outcome.Errors += tooLarge ? FailureLine(name, "is " + std::string(kTooLargeForADocument))
                               : FailureLine(name, "cannot be read", ReasonText(*file.Failure));
    outcome.Raise(kFileError);
    return std::nullopt;
}

ReadResult ReadAndTell(std::string_view bytes, const std::string& name, Outcome& outcome,
                       TextStarts* starts = nullptr) {
    ReadResult read = ReadDocument(bytes, starts);
    for (const ReaderMessage& message : ForeignMessages(bytes))
        outcome.Errors += MessageLine(name, message);
    for (const ReaderMessage& message : read.Messages)
        outcome.Errors += MessageLine(name, message);
    if (read.BrokeOff)
        outcome.Raise(kFileError);
    return read;
}

} // namespace

std::optional<ReadResult> ReadNamedDocument(FileSystem& files, const std::string& name, Outcome& outcome,
                                            TextStarts* starts) {
    const std::optional<FileContent> file = ReadBytes(files, name, outcome);
    if (!file)
        return std::nullopt;
    return ReadAndTell(file->Bytes(), name, outcome, starts);
}

std::optional<FsmDocument> ReadWholeDocument(FileSystem& files, const std::string& name, Outcome& outcome,
                                             TextMarks marks) {
    const std::optional<FileContent> file = ReadBytes(files, name, outcome);
    if (!file)
        return std::nullopt;
    ReadResult read = ReadAndTell(file->Bytes(), name, outcome);
    if (marks == TextMarks::Refused && !ConflictMarkers(file->Bytes()).empty()) {
        outcome.Errors +=
            FailureLine(name, "is not merged: it holds a merge line by line that nobody finished");
        outcome.Raise(kWrongUsage);
        return std::nullopt;
    }
    if (read.BrokeOff)
        return std::nullopt;
    return std::move(read.Document);
}

} // namespace orvane::cli
