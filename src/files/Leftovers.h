// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileStamp.h"
#include "files/FileSystem.h"

namespace orvane {

// Removes the temporary files that this program left beside a file when it was killed while it wrote: those
// with such a name, a day older than the file, which was written just now. The clock of the drive is the only
// one asked. Reads the whole folder. What cannot be removed stays.
void RemoveLeftovers(FileSystem& files, const FileSystem::Path& written, const FileStamp& stamp);

} // namespace orvane
