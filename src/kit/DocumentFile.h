// SPDX-License-Identifier: GPL-3.0-or-later
// Documents, and other files that must not be lost. What goes wrong comes back as a text for the user.
#pragma once

#include "core/DocumentReader.h"

#include <QString>

#include <optional>

namespace orvane {

struct DocumentFile {
    std::optional<ReadResult> Content; // none when the file could not be read or is no document
    QString Error;                     // why; empty otherwise
};

// Reads a document. A file that broke off has content; one that holds no document at all has none.
DocumentFile ReadDocumentFile(const QString& path);

// Writes all of the bytes or leaves the old file as it is: they go into a temporary file beside it, which
// then takes its name. Returns why it failed, nothing when it did not.
[[nodiscard]] std::optional<QString> WriteWholeFile(const QString& path, std::string_view bytes);

[[nodiscard]] std::optional<QString> WriteDocumentFile(const QString& path, const FsmDocument& document);

} // namespace orvane
