// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/DocumentFile.h"

#include "core/DocumentWriter.h"
#include "files/FileWriter.h"
#include "files/Leftovers.h"
#include "files/NativeFiles.h"
#include "kit/AnsiString.h"
#include "kit/FilePath.h"

#include <utility>

namespace orvane {

namespace {

DocumentFile Failed(const QString& why) { return {std::nullopt, why, {}}; }

QString WhyUnread(const FileError& error) {
    const bool isTooLarge = error.Reason == std::errc::file_too_large;
    return isTooLarge ? QStringLiteral("The file is ") + FromAnsi(kTooLargeForADocument) : Message(error);
}

} // namespace

DocumentFile ReadDocumentFile(const QString& path) {
    NativeFiles files;
    FileContent file = ReadFile(files, NativePath(path), kLargestDocument);
    if (file.Failure)
        return Failed(WhyUnread(*file.Failure));
    ReadResult result = ReadDocument(file.Bytes());
    if (result.Refused)
        return Failed(FromAnsi(result.Messages.front().Text));
    return {std::move(result), {}, std::move(file)};
}

SavedDocument WriteDocumentFile(const QString& path, const FsmDocument& document) {
    NativeFiles files;
    const std::filesystem::path native = NativePath(path);
    const std::string bytes = WriteDocument(document);
    const WrittenFile written = WriteFile(files, native, {bytes});
    SavedDocument saved;
    if (written.Failure) {
        saved.Error = Message(*written.Failure);
        return saved;
    }
    for (const FileNote note : written.Notes)
        saved.Notes += Message(note);
    saved.Stamp = written.Stamp;
    saved.Digest = Sha256(bytes);
    RemoveLeftovers(files, native, written.Stamp);
    return saved;
}

} // namespace orvane
