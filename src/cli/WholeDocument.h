// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Outcome.h"
#include "core/DocumentReader.h"
#include "files/FileSystem.h"

#include <optional>
#include <string>

namespace orvane::cli {

// What a file holds as a document, as far as it could be read; the outcome has what there is to tell about
// it, and status 3 when it was not read to its end. None when it could not be read at all. The starts, where
// they are asked for, tell where each text stands.
std::optional<ReadResult> ReadNamedDocument(FileSystem& files, const std::string& name, Outcome& outcome,
                                            TextStarts* starts = nullptr);

// The marks that a merge line by line has put around what two people changed are told; or they are a reason
// not to read the document, which then is neither version: status 2.
enum class TextMarks { Told, Refused };

// The same of a document that is of no use unless it was read to its end.
std::optional<FsmDocument> ReadWholeDocument(FileSystem& files, const std::string& name, Outcome& outcome,
                                             TextMarks marks = TextMarks::Told);

} // namespace orvane::cli
