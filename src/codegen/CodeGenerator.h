// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "codegen/Report.h"
#include "core/FsmDocument.h"

#include <string>
#include <string_view>

namespace orvane {

// What a run needs to know beside the document. Nothing that changes by itself is read inside a run.
struct GenerationContext {
    std::string DocumentPath; // full path of the document, ANSI; empty for one that was never saved
    std::string BannerDate;   // the date and time in the first line
};

struct GeneratedProgram {
    std::string
        Text; // the code pane's text: ANSI, CR LF line ends; holds "Orvane reports " lines where it fails
    Report Findings;
};

// Checks the design and turns it into the text of a controller program. Same input, same bytes. Throws
// BoundsError when a transition leads to a state that the table does not have.
GeneratedProgram GenerateProgram(const FsmDocument& document, const GenerationContext& context);

// What stands behind the text in the .zls file.
inline constexpr std::string_view kProgramFileEnd = "\r\n";

// The bytes of the .zls file of a program without errors.
std::string ProgramFileBytes(GeneratedProgram program);

} // namespace orvane
