// SPDX-License-Identifier: GPL-3.0-or-later
// What reading and writing files asks of the system, one call each, so that a test can let any of them fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>
#include <system_error>
#include <vector>

namespace orvane {

enum class FileKind { Regular, Folder, Pipe, Device, Socket };

// What the system says of a file.
struct FileFacts {
    FileKind Kind = FileKind::Regular;
    std::uint64_t Size = 0;   // bytes
    std::int64_t Changed = 0; // when its bytes were changed last: nanoseconds, from a moment the system chose
    std::uint64_t Device = 0; // together with Number names the file for as long as it exists
    std::uint64_t Number = 0;
    std::uint64_t Names = 1; // hard links
    std::uint32_t Owner = 0; // the three below are 0 on Windows
    std::uint32_t Group = 0;
    std::uint32_t Mode = 0; // the lowest 12 bits: who may do what
};

struct FileHandle {
    int Number = -1;

    explicit operator bool() const { return Number != -1; }
};

// The value is there only without a failure.
template <typename Value>
struct Result {
    Value Got{};
    std::error_code Failure;
};

// Whether opening something that is not there yet, as a pipe without a writer, may wait for it.
enum class Opening { AtOnce, Waiting };

// Of a file to be opened: it must be there, or must not.
enum class Existence { Old, New };

class FileSystem {
  public:
    using Path = std::filesystem::path;

    virtual ~FileSystem() = default;

    // What the path leads to, links followed. Fails with no_such_file_or_directory where nothing is.
    virtual Result<FileFacts> Look(const Path& path) = 0;
    virtual Result<FileFacts> Look(FileHandle file) = 0;
    // Where a link leads, as it is written there. Fails with invalid_argument for what is no link.
    virtual Result<Path> ReadLink(const Path& path) = 0;
    // Fails when this user may not change the file's bytes.
    virtual std::error_code AskToWrite(const Path& path) = 0;

    virtual Result<FileHandle> OpenToRead(const Path& path, Opening opening) = 0;
    // Empties a regular file. What is there must be there already.
    virtual Result<FileHandle> OpenToOverwrite(const Path& path) = 0;
    // A new file of that mode, as far as the user's own restriction (umask) allows. Fails with file_exists.
    virtual Result<FileHandle> Create(const Path& path, std::uint32_t mode) = 0;

    // How many bytes were read; 0 at the end.
    virtual Result<std::size_t> Read(FileHandle file, std::span<char> room) = 0;
    // How many bytes were written, which may be fewer than there are.
    virtual Result<std::size_t> Write(FileHandle file, std::string_view bytes) = 0;
    // Waits until the disk has it.
    virtual std::error_code Sync(FileHandle file) = 0;
    // Waits until the disk has what was renamed, made and removed in the folder. Succeeds where the system
    // sees to that by itself.
    virtual std::error_code SyncFolder(const Path& folder) = 0;
    // The handle is gone, also after a failure.
    virtual std::error_code Close(FileHandle file) = 0;

    virtual std::error_code SetGroup(FileHandle file, std::uint32_t group) = 0;
    virtual std::error_code SetOwner(FileHandle file, std::uint32_t owner) = 0;
    virtual std::error_code SetMode(FileHandle file, std::uint32_t mode) = 0;
    // Gives an open file the access list and the extended attributes of another one, and no others.
    virtual std::error_code CopyAttributes(const Path& from, FileHandle to) = 0;

    // Exchanges two files in one step. Fails with not_supported where that cannot be done.
    virtual std::error_code Swap(const Path& one, const Path& other) = 0;
    // Replaces what stands at `to`.
    virtual std::error_code Rename(const Path& from, const Path& to) = 0;
    virtual std::error_code Remove(const Path& path) = 0;
    // The names in a folder, in no order.
    virtual Result<std::vector<Path>> Names(const Path& folder) = 0;
    // A folder and those that it is in, as far as they are missing. It is its owner's alone afterwards.
    virtual std::error_code MakePrivateFolder(const Path& folder) = 0;

    // Opens a file that nobody else has open so, to read it from its front and to write at its end. It is let
    // go with the handle, and with the process however that ends. Fails with device_or_resource_busy while
    // somebody has it. A new one is its owner's alone.
    virtual Result<FileHandle> OpenLocked(const Path& path, Existence existence) = 0;
    // Cuts off what stands behind that many bytes.
    virtual std::error_code Truncate(FileHandle file, std::uint64_t size) = 0;
};

} // namespace orvane
