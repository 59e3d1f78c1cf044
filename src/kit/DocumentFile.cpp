// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/DocumentFile.h"

#include "core/DocumentWriter.h"
#include "files/FileWriter.h"
#include "files/Leftovers.h"
#include "files/NativeFiles.h"
#include "kit/AnsiString.h"
#include "kit/FilePath.h"

#include <future>
#include <string_view>
#include <utility>

namespace orvane {

namespace {

DocumentFile Failed(const QString& why) { return {std::nullopt, why, {}, {}}; }

QString WhyUnread(const FileError& error) {
    const bool isTooLarge = error.Reason == std::errc::file_too_large;
    return isTooLarge ? QStringLiteral("The file is ") + FromAnsi(kTooLargeForADocument) : Message(error);
}

// It takes as long as reading the document, and a disk that is waited for takes longer. The bytes outlive
// what comes back, which waits for the thread when it goes.
std::future<Sha256Digest> DigestMeanwhile(std::string_view bytes) {
    return std::async(std::launch::async, [bytes] { return Sha256(bytes); });
}

} // namespace

DocumentFile ReadDocumentFile(const QString& path) {
    NativeFiles files;
    FileContent file = ReadFile(files, NativePath(path), kLargestDocument);
    if (file.Failure)
        return Failed(WhyUnread(*file.Failure));
    std::future<Sha256Digest> digest = DigestMeanwhile(file.Bytes());
    ReadResult result = ReadDocument(file.Bytes());
    if (result.Refused)
        return Failed(FromAnsi(result.Messages.front().Text));
    return {std::move(result), {}, std::move(file), digest.get()};
}

SavedDocument WriteDocumentFile(const QString& path, const FsmDocument& document) {
    NativeFiles files;
    const std::filesystem::path native = NativePath(path);
    const std::string bytes = WriteDocument(document);
    std::future<Sha256Digest> digest = DigestMeanwhile(bytes);
    const WrittenFile written = WriteFile(files, native, {bytes});
    SavedDocument saved;
    if (written.Failure) {
        saved.Error = Message(*written.Failure);
        return saved;
    }
    for (const FileNote note : written.Notes)
        saved.Notes += Message(note);
    saved.Stamp = written.Stamp;
    saved.Digest = digest.get();
    RemoveLeftovers(files, native, written.Stamp);
    return saved;
}

} // namespace orvane
