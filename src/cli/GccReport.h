// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CheckedDocument.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane::cli {

// "DOC:LINE: error: MESSAGE [kind]" for each finding, as compilers say it and editors understand it; advice
// is a note. Nothing when there is nothing to tell.
std::string GccReport(const CheckedDocument& checked);

// Something to be told of a line of a file, whatever the format; the message is document text.
struct Remark {
    std::size_t Line = 0; // 0: the file as a whole
    std::string_view Severity;
    std::string_view Message;
    std::string_view Kind;
};
Remark RemarkOf(const Finding& finding, const CheckedDocument& checked);
Remark RemarkOf(const run::Advice& advice, const CheckedDocument& checked);

std::string GccLine(std::string_view path, const Remark& remark);

// A message of several lines on one.
std::string OneLine(std::string_view ansi);

} // namespace orvane::cli
