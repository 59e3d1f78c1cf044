// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileSystem.h"

#include <mutex>
#include <set>

namespace orvane {

// The temporary files that stand on the disk at this moment, so that they can be taken away when the program
// is told to end. For several threads at a time; not for signal handlers, which may not wait.
class UnfinishedFiles {
  public:
    using Path = FileSystem::Path;

    explicit UnfinishedFiles(FileSystem& files) : files_(files) {}

    // As FileSystem::Create. What this made is known from the moment it is there until it is forgotten.
    Result<FileHandle> Create(const Path& path, std::uint32_t mode);
    // To be called when it has another name or is gone.
    void Forget(const Path& path);

    // Removes them all. Whoever would make another one after that waits for ever: the program is to end now.
    void RemoveAllForGood();

  private:
    FileSystem& files_;
    std::timed_mutex mutex_;
    std::set<Path> paths_;
};

} // namespace orvane
