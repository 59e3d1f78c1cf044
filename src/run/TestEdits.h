// SPDX-License-Identifier: GPL-3.0-or-later
// Changes of a test file that leave all else as its author wrote it: spacing, comments, the order of lines.
#pragma once

#include "run/TestPlan.h"
#include "run/TestRunner.h"
#include "run/TestText.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::run {

struct TextEdit {
    Span Where;
    std::string Text;
};

// The names that the document has now in place of those that the plan recognised as renamed, in the file's
// names line too.
std::vector<TextEdit> RenameEdits(const TestFile& file, const TestPlan& plan);

// The expectations as they would pass in place of those that fail.
std::vector<TextEdit> UpdateEdits(const TestPlan& plan, const TestRunner& runner);

// The edits must not overlap.
std::string WithEdits(std::string_view bytes, std::vector<TextEdit> edits);

// The lines that are different, for people to look at: "NAME:LINE:", then the old one behind "-" and the new
// one behind "+". Edits never change the number of lines.
std::string ChangedLines(const std::string& name, std::string_view before, std::string_view after);

} // namespace orvane::run
