// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileStamp.h"
#include "text/Sha256.h"

namespace orvane {

// What a file was when it was looked at. Only the digest says whether it is another one now: a stamp also
// changes when somebody touches the file or brings the same bytes back.
struct KnownFile {
    FileStamp Stamp;
    Sha256Digest Digest{};

    bool operator==(const KnownFile&) const = default;
};

// The file as it is now. Its bytes are read only when the stamp is not the one it had last. Fails with
// no_such_file_or_directory when it is gone.
Result<KnownFile> LookAgain(FileSystem& files, const FileSystem::Path& path, const KnownFile& last);

} // namespace orvane
