// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ArgumentFiles.h"

#include "cli/DocumentPath.h"
#include "cli/MessageText.h"
#include "files/FileReader.h"

#include <string_view>

namespace orvane::cli {

namespace {

constexpr std::size_t kLargestArgumentFile = 64u << 20; // bytes
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// A verb that takes many files. Others may have an argument that begins with "@", as the text to find.
bool TakesArgumentFiles(std::string_view verb) {
    return verb == "generate" || verb == "check" || verb == "format";
}

void AppendLines(std::vector<std::string>& arguments, std::string_view text) {
    if (text.starts_with(kByteOrderMark))
        text.remove_prefix(kByteOrderMark.size());
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        if (!line.empty())
            arguments.emplace_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

} // namespace

std::variant<std::vector<std::string>, Outcome> WithArgumentFiles(int count, const char* const* values,
                                                                  FileSystem& files) {
    std::vector<std::string> arguments;
    bool expands = count > 1 && TakesArgumentFiles(values[1]);
    for (int i = 1; i < count; ++i) {
        const std::string_view value = values[i];
        expands = expands && value != "--";
        if (!expands || value.size() < 2 || value.front() != '@') {
            arguments.emplace_back(value);
            continue;
        }
        const FileContent file = ReadStream(files, PathOf(value.substr(1)), kLargestArgumentFile);
        if (file.Failure)
            return Outcome{
                {},
                FailureLine(value, "the file of arguments cannot be read", ReasonText(*file.Failure)),
                kFileError};
        AppendLines(arguments, file.Bytes());
    }
    return arguments;
}

} // namespace orvane::cli
