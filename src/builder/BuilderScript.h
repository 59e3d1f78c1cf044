// SPDX-License-Identifier: GPL-3.0-or-later
// The builder script: the text file that tells the maker's build tool in which order to place the segments of
// a project and which program files it has.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// The script beside the document: its path up to and including the last "." and "b1d". Empty without a ".".
std::string BuilderScriptName(std::string_view documentPath);

// The program beside the document, likewise with "zls".
std::string ProgramFileName(std::string_view documentPath);

// The script that a new project starts with, CR LF line ends. The segment names are the markers that the
// generator writes; the program file, if the document has one, stands last.
std::string StarterScript(std::string_view documentPath);

// What the builder window says about its script, CR LF line ends.
std::string_view BuilderExplanation();

} // namespace orvane
