// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileSystem.h"

namespace orvane {

// Where a chain of links ends, whether or not there is a file; the path itself when it is no link. Only the
// last part of the path is followed.
Result<FileSystem::Path> LinkTarget(FileSystem& files, FileSystem::Path path);

} // namespace orvane
