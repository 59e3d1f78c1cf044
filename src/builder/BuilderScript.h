// SPDX-License-Identifier: GPL-3.0-or-later
// The builder script: the text file that tells the maker's build tool in which order to place the segments of
// a project and which program files it has.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// The script that a new project starts with, CR LF line ends. The segment names are the markers that the
// generator writes; the program file stands last, if the document has one and a script beside it.
std::string StarterScript(std::string_view documentPath);

// What the builder window says about its script, CR LF line ends.
std::string_view BuilderExplanation();

} // namespace orvane
