// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/LinkTarget.h"

#include <utility>

namespace orvane {

Result<FileSystem::Path> LinkTarget(FileSystem& files, FileSystem::Path path) {
    constexpr int mostLinks = 40; // as the system itself follows
    for (int i = 0; i <= mostLinks; ++i) {
        const Result<FileSystem::Path> next = files.ReadLink(path);
        const bool isEnd = next.Failure == std::errc::invalid_argument ||
                           next.Failure == std::errc::no_such_file_or_directory;
        if (isEnd)
            return {std::move(path), {}};
        if (next.Failure)
            return {{}, next.Failure};
        path = path.parent_path() / next.Got;
    }
    return {{}, make_error_code(std::errc::too_many_symbolic_link_levels)};
}

} // namespace orvane
