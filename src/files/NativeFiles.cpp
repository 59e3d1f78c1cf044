// SPDX-License-Identifier: GPL-3.0-or-later
// What is the same on every system.
#include "files/NativeFiles.h"

namespace orvane {

namespace fs = std::filesystem;

std::error_code NativeFiles::Rename(const Path& from, const Path& to) {
    std::error_code failure;
    fs::rename(from, to, failure);
    return failure;
}

std::error_code NativeFiles::Remove(const Path& path) {
    std::error_code failure;
    if (!fs::remove(path, failure) && !failure)
        return make_error_code(std::errc::no_such_file_or_directory);
    return failure;
}

Result<std::vector<FileSystem::Path>> NativeFiles::Names(const Path& folder) {
    Result<std::vector<Path>> names;
    fs::directory_iterator entry(folder, names.Failure);
    for (; !names.Failure && entry != fs::directory_iterator(); entry.increment(names.Failure))
        names.Got.push_back(entry->path().filename());
    return names;
}

} // namespace orvane
