// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileSystem.h"

namespace orvane {

// The files of this machine. Holds nothing: two of them are the same. A call that a signal interrupts is made
// again. Files are not handed on to programs that this one starts.
class NativeFiles final : public FileSystem {
  public:
    Result<FileFacts> Look(const Path& path) override;
    Result<FileFacts> Look(FileHandle file) override;
    Result<Path> ReadLink(const Path& path) override;
    std::error_code AskToWrite(const Path& path) override;
    Result<FileHandle> OpenToRead(const Path& path, Opening opening) override;
    Result<FileHandle> OpenToOverwrite(const Path& path) override;
    Result<FileHandle> Create(const Path& path, std::uint32_t mode) override;
    Result<std::size_t> Read(FileHandle file, std::span<char> room) override;
    Result<std::size_t> Write(FileHandle file, std::string_view bytes) override;
    std::error_code Sync(FileHandle file) override;
    std::error_code SyncFolder(const Path& folder) override;
    std::error_code Close(FileHandle file) override;
    std::error_code SetGroup(FileHandle file, std::uint32_t group) override;
    std::error_code SetOwner(FileHandle file, std::uint32_t owner) override;
    std::error_code SetMode(FileHandle file, std::uint32_t mode) override;
    std::error_code CopyAttributes(const Path& from, FileHandle to) override;
    std::error_code Swap(const Path& one, const Path& other) override;
    std::error_code Rename(const Path& from, const Path& to) override;
    std::error_code Remove(const Path& path) override;
    Result<std::vector<Path>> Names(const Path& folder) override;
    std::error_code MakePrivateFolder(const Path& folder) override;
    Result<FileHandle> OpenLocked(const Path& path, Existence existence) override;
    std::error_code Truncate(FileHandle file, std::uint64_t size) override;
};

// A write beyond the size that the system allows a file ends a program, unless this was called at its start:
// then it fails like any other.
void OutliveFileSizeLimit();

} // namespace orvane
