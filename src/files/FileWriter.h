// SPDX-License-Identifier: GPL-3.0-or-later
// Writes a file as a whole, for both programs: all or nothing.
#pragma once

#include "files/FileError.h"
#include "files/FileStamp.h"
#include "files/FileSystem.h"
#include "files/Patience.h"
#include "files/UnfinishedFiles.h"

#include <initializer_list>
#include <optional>
#include <string_view>
#include <vector>

namespace orvane {

// What the written file outlives: the end of this program, or that of the machine too. The second waits for
// the disk, which takes many times as long as all the rest; it is for what cannot be made again.
enum class Outlives { Process, Machine };

// What happens to a name that leads to no regular file: a device, a pipe, or something that this process was
// started with. Whoever gave the name as the output to write to means it.
enum class SpecialFiles { Refused, WrittenInto };

struct WriteOptions {
    Outlives Must = Outlives::Machine;
    SpecialFiles Special = SpecialFiles::Refused;
    std::chrono::milliseconds Patience = kSavingPatience;
    UnfinishedFiles* Unfinished = nullptr; // is told of the temporary file, if there
};

struct WrittenFile {
    std::optional<FileError>
        Failure; // the old file is as it was; after FileStep::SyncFolder the new one is there
    std::vector<FileNote> Notes;
    FileStamp Stamp; // of the new file, when there was no failure

    explicit operator bool() const { return !Failure; }
};

// Writes the pieces in a row as the bytes of a file. They go into a temporary file beside it, which then
// takes its place in one step: whoever reads meanwhile sees all of the old bytes or all of the new ones, and
// nothing that goes wrong costs the old ones. A link stays a link. The file keeps owner, group, permissions
// and attributes as far as this user may; what it loses is noted. The temporary file is never more readable
// than the file. What may not be changed is not replaced either.
[[nodiscard]] WrittenFile WriteFile(FileSystem& files, const std::filesystem::path& path,
                                    std::initializer_list<std::string_view> pieces,
                                    const WriteOptions& options = {});

} // namespace orvane
