// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/UnfinishedFiles.h"

#include <chrono>

namespace orvane {

Result<FileHandle> UnfinishedFiles::Create(const Path& path, std::uint32_t mode) {
    const std::lock_guard lock(mutex_);
    Result<FileHandle> made = files_.Create(path, mode);
    if (!made.Failure)
        paths_.insert(path);
    return made;
}

void UnfinishedFiles::Forget(const Path& path) {
    const std::lock_guard lock(mutex_);
    paths_.erase(path);
}

void UnfinishedFiles::RemoveAllForGood() {
    // A drive that does not answer may hold up the one who makes a file; the end does not wait for it.
    std::unique_lock lock(mutex_, std::chrono::seconds(1));
    if (!lock.owns_lock())
        return;
    for (const Path& path : paths_)
        (void)files_.Remove(path); // there is nobody left to be told
    lock.release();                // it stays locked
}

} // namespace orvane
