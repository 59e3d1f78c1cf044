// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ImportVerb.h"

#include "cli/DocumentPath.h"
#include "cli/MessageText.h"
#include "core/DocumentWriter.h"
#include "export/Forms.h"
#include "text/Ascii.h"

namespace orvane::cli {

namespace {

std::string FormatOf(const Arguments& arguments) {
    if (!arguments.Exporting.Format.empty())
        return arguments.Exporting.Format;
    const std::string extension = AsciiLower(Utf8(PathOf(arguments.Documents.front()).extension()));
    return extension.empty() ? "" : extension.substr(1);
}

} // namespace

Outcome RunImport(const Arguments& arguments, const TestFiles& files) {
    const std::string& name = arguments.Documents.front();
    const std::optional<exports::ImportForm> form = exports::ImportFormOf(FormatOf(arguments));
    if (!arguments.Output)
        return WrongUsage("import needs -o and the document to write");
    if (!form)
        return WrongUsage("The form of " + ShownName(name) +
                          " is not known; say --format=json, csv or scxml");
    Outcome outcome;
    const std::optional<std::string> bytes = files.BytesOf(name, outcome);
    if (!bytes)
        return outcome;
    const exports::ImportResult read = exports::Read(*form, *bytes);
    for (const ReaderMessage& message : read.Messages)
        outcome.Errors += MessageLine(name, message);
    if (!read.Document)
        outcome.Raise(kFileError);
    else if (*arguments.Output == kStandardOutput)
        outcome.Output = WriteDocument(*read.Document);
    else
        files.WriteTests(*arguments.Output, WriteDocument(*read.Document), outcome);
    return outcome;
}

} // namespace orvane::cli
