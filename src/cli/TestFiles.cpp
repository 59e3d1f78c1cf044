// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/TestFiles.h"

#include "cli/DocumentPath.h"
#include "cli/MessageText.h"
#include "core/DocumentReader.h"
#include "files/FileReader.h"
#include "text/Ascii.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace orvane::cli {

namespace fs = std::filesystem;

namespace {

bool HasExtension(const fs::path& path, std::string_view extension) {
    return AsciiLower(Utf8(path.extension())) == extension;
}

std::vector<std::string> FilesIn(const fs::path& folder, std::error_code& failure) {
    std::vector<std::string> files;
    auto entry =
        fs::recursive_directory_iterator(folder, fs::directory_options::skip_permission_denied, failure);
    for (; !failure && entry != fs::recursive_directory_iterator(); entry.increment(failure)) {
        std::error_code unknown;
        if (entry->is_regular_file(unknown) && HasExtension(entry->path(), ".ztest"))
            files.push_back(Utf8(entry->path().lexically_normal()));
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

std::vector<std::string> TestFilesOf(const std::vector<std::string>& arguments, Outcome& outcome) {
    std::vector<std::string> files;
    for (const std::string& argument : arguments) {
        const fs::path path = PathOf(argument);
        std::error_code failure;
        if (fs::is_directory(path, failure)) {
            const std::vector<std::string> found = FilesIn(path, failure);
            if (failure || found.empty()) {
                outcome.Errors += FailureLine(argument, failure ? "cannot be read" : "holds no .ztest file");
                outcome.Raise(kFileError);
            }
            files.insert(files.end(), found.begin(), found.end());
        } else if (HasExtension(path, ".zfsm")) {
            files.push_back(Utf8(fs::path(path).replace_extension(".ztest")));
        } else {
            files.push_back(argument);
        }
    }
    std::set<std::string> met;
    std::erase_if(files, [&](const std::string& file) { return !met.insert(file).second; });
    return files;
}

std::string DocumentOf(const std::string& testFile, const std::optional<std::string>& named) {
    fs::path path = PathOf(testFile);
    if (!named)
        return Utf8(path.replace_extension(".zfsm").make_preferred()); // one name, whoever asks for it
    return Utf8((path.parent_path() / PathOf(*named)).lexically_normal());
}

std::optional<std::string> TestFiles::BytesOf(const std::string& name, Outcome& outcome) const {
    const FileContent file = ReadStream(files_, PathOf(name), kLargestDocument);
    if (!file.Failure)
        return std::string(file.Bytes());
    outcome.Errors += FailureLine(name, "cannot be read", ReasonText(*file.Failure));
    outcome.Raise(kFileError);
    return std::nullopt;
}

void TestFiles::WriteTests(const std::string& name, const std::string& bytes, Outcome& outcome) const {
    Write(name, bytes, {Outlives::Machine, SpecialFiles::Refused, kSavingPatience, &unfinished_}, outcome);
}

// Not waiting for the disk: a report can be made again.
void TestFiles::WriteReport(const std::string& name, const std::string& bytes, Outcome& outcome) const {
    Write(name, bytes, {Outlives::Process, SpecialFiles::WrittenInto, kSavingPatience, &unfinished_},
          outcome);
}

void TestFiles::Write(const std::string& name, const std::string& bytes, const WriteOptions& options,
                      Outcome& outcome) const {
    const WrittenFile written = WriteFile(files_, PathOf(name), {bytes}, options);
    if (written.Failure) {
        outcome.Errors += FailureLine(name, "cannot be written", ReasonText(*written.Failure));
        return outcome.Raise(kFileError);
    }
    for (const FileNote note : written.Notes)
        outcome.Errors += FailureLine(name, "is written. " + Sentence(note));
}

} // namespace orvane::cli
