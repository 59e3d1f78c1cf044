// SPDX-License-Identifier: GPL-3.0-or-later
// Documents as files. What goes wrong comes back as a text for the user.
#pragma once

#include "core/DocumentReader.h"
#include "files/FileReader.h"
#include "text/Sha256.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace orvane {

struct DocumentFile {
    std::optional<ReadResult> Content; // none when the file could not be read or is no document
    QString Error;                     // why; empty otherwise
    FileContent File;                  // the bytes that the content was made from, and which file they are of
    Sha256Digest Digest{};             // of the bytes
};

// Reads a document. A file that broke off has content; one that holds no document at all has none.
DocumentFile ReadDocumentFile(const QString& path);

struct SavedDocument {
    QString Error;         // why it was not saved: the old file is as it was; empty when it was
    QStringList Notes;     // what the file has lost beside its old bytes, a sentence each, without the stop
    FileStamp Stamp;       // of the file that was saved
    Sha256Digest Digest{}; // of its bytes
};

// Writes all of the document, through to the disk, or leaves the old file as it is.
[[nodiscard]] SavedDocument WriteDocumentFile(const QString& path, const FsmDocument& document);

} // namespace orvane
