// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/RecoveryFiles.h"

#include <array>

namespace orvane {

std::error_code WriteAll(FileSystem& files, FileHandle file, std::string_view bytes) {
    while (!bytes.empty()) {
        const Result<std::size_t> written = files.Write(file, bytes);
        if (written.Failure)
            return written.Failure;
        if (written.Got == 0) // it would go on like that for ever
            return make_error_code(std::errc::io_error);
        bytes.remove_prefix(written.Got);
    }
    return {};
}

Result<std::string> ReadAll(FileSystem& files, FileHandle file) {
    Result<std::string> bytes;
    const Result<FileFacts> facts = files.Look(file);
    if (!facts.Failure)
        bytes.Got.reserve(facts.Got.Size);
    std::array<char, 1 << 16> room;
    while (true) {
        const Result<std::size_t> count = files.Read(file, room);
        if (count.Failure)
            return {{}, count.Failure};
        if (count.Got == 0)
            return bytes;
        bytes.Got.append(room.data(), count.Got);
    }
}

void PutAway(FileSystem& files, const FileSystem::Path& folder, std::span<const RetiredJournal> retired) {
    for (const RetiredJournal& journal : retired) {
        if (journal.KeepAs.empty())
            (void)files.Remove(folder / journal.Name);
        else
            (void)files.Rename(folder / journal.Name, folder / journal.KeepAs);
        (void)files.Close(journal.Lock);
    }
}

} // namespace orvane
