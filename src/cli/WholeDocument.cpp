// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/WholeDocument.h"

#include "cli/DocumentPath.h"
#include "cli/MessageText.h"
#include "core/ForeignBytes.h"
#include "files/FileReader.h"

#include <utility>

namespace orvane::cli {

std::optional<ReadResult> ReadNamedDocument(FileSystem& files, const std::string& name, Outcome& outcome,
                                            TextStarts* starts) {
    const FileContent file = ReadStream(files, PathOf(name), kLargestDocument);
    if (file.Failure) {
        const bool tooLarge = file.Failure->Reason == std::errc::file_too_large;
        outcome.Errors += tooLarge ? FailureLine(name, "is " + std::string(kTooLargeForADocument))
                                   : FailureLine(name, "cannot be read", ReasonText(*file.Failure));
        outcome.Raise(kFileError);
        return std::nullopt;
    }
    ReadResult read = ReadDocument(file.Bytes(), starts);
    for (const ReaderMessage& message : ForeignMessages(file.Bytes()))
        outcome.Errors += MessageLine(name, message);
    for (const ReaderMessage& message : read.Messages)
        outcome.Errors += MessageLine(name, message);
    if (read.BrokeOff)
        outcome.Raise(kFileError);
    return read;
}

std::optional<FsmDocument> ReadWholeDocument(FileSystem& files, const std::string& name, Outcome& outcome) {
    std::optional<ReadResult> read = ReadNamedDocument(files, name, outcome);
    if (!read || read->BrokeOff)
        return std::nullopt;
    return std::move(read->Document);
}

} // namespace orvane::cli
