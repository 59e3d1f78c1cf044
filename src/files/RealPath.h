// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileSystem.h"

namespace orvane {

// What a file or folder of this machine is really called, whatever links and other names lead there: the same
// for all of them, in whatever form the system has for it. Fails with no_such_file_or_directory where nothing
// is, and where the system does not tell it.
Result<FileSystem::Path> RealPath(const FileSystem::Path& path);

} // namespace orvane
