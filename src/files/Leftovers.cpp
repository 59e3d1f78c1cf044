// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/Leftovers.h"

#include "files/LinkTarget.h"
#include "files/TemporaryName.h"

namespace orvane {

namespace {

// Longer than any write takes, also one that waits for a drive that was away over night.
constexpr std::int64_t kAge = 24LL * 3600 * 1'000'000'000; // nanoseconds

bool IsLeftover(FileSystem& files, const FileSystem::Path& path, std::int64_t now) {
    if (files.ReadLink(path).Failure != std::errc::invalid_argument)
        return false; // a link, which this program never makes
    const Result<FileFacts> facts = files.Look(path);
    return !facts.Failure && facts.Got.Kind == FileKind::Regular && facts.Got.Changed < now - kAge;
}

} // namespace

void RemoveLeftovers(FileSystem& files, const FileSystem::Path& written, const FileStamp& stamp) {
    const Result<FileSystem::Path> target = LinkTarget(files, written);
    if (target.Failure)
        return;
    const FileSystem::Path folder = target.Got.parent_path();
    const Result<std::vector<FileSystem::Path>> names = files.Names(folder.empty() ? "." : folder);
    for (const FileSystem::Path& name : names.Got) {
        if (IsTemporaryName(name) && IsLeftover(files, folder / name, stamp.Changed))
            (void)files.Remove(folder / name); // the next write tries again
    }
}

} // namespace orvane
