// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileSystem.h"

namespace orvane {

// Which bytes a file had when this program last read or wrote it, as far as that can be seen without reading
// it again. Equal stamps: nobody has written to it. Different ones: somebody may have; only a look at the
// bytes tells.
struct FileStamp {
    std::uint64_t Size = 0;
    std::int64_t Changed = 0; // as in FileFacts
    std::uint64_t Device = 0;
    std::uint64_t Number = 0;

    bool operator==(const FileStamp&) const = default;
};

inline FileStamp StampOf(const FileFacts& facts) {
    return {facts.Size, facts.Changed, facts.Device, facts.Number};
}

} // namespace orvane
