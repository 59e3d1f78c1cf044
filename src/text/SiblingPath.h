// SPDX-License-Identifier: GPL-3.0-or-later
// The names of the files that belong to a document. The last "." of the whole path counts, folders included.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// The path before its last ".", unless that is its first character; the path itself without one.
std::string_view StripExtension(std::string_view path);

// The program that is written beside the document.
std::string ProgramFilePath(std::string_view documentPath);

// The builder script beside the document: the path up to and including its last "." and "b1d". Empty without
// a ".".
std::string BuilderScriptPath(std::string_view documentPath);

} // namespace orvane
