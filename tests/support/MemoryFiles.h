// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileSystem.h"

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace orvane {

// What a call of the system that failed leaves in errno.
inline std::error_code Errno(int number) { return {number, std::generic_category()}; }

// Files that are only remembered, on a disk that fails, writes in parts or loses power when a test wants it
// to. It knows one user, 1000, of one group, 1000, who may do what the permissions say. Paths are taken as
// they stand; every folder is there.
class MemoryFiles final : public FileSystem {
  public:
    struct File {
        FileFacts Facts;
        std::string Bytes;
        std::string OnDisk; // what a power failure leaves of them
        std::string Attributes;
    };

    static constexpr std::uint32_t kUser = 1000;

    // What there is. An open file lives on when its name goes.
    void Put(const Path& path, const std::string& bytes, std::uint32_t mode = 0644);
    void PutLink(const Path& path, const Path& target) { links_[path] = target; }
    void PutSpecial(const Path& path, FileKind kind);
    File* Find(const Path& path);
    std::optional<std::string> Bytes(const Path& path);
    std::vector<std::string> AllNames() const;

    // From now on: the calls are counted from 1, that one fails for this reason, or it and all after it do.
    void FailAt(int call, std::error_code why, bool forGood = false);
    // A write takes no more than this many bytes at a time.
    void WriteInParts(std::size_t most) { mostBytes_ = most; }
    // Attributes, groups and owners cannot be set.
    void KeepNothing() { keepsNothing_ = true; }
    void HaveNoSwap() { hasSwap_ = false; }
    // From now on every call waits until somebody lets them go; then as before. A thread may make the calls,
    // while nobody else looks at the files.
    void Stand();
    void LetGo();
    int Calls() const { return calls_; }
    std::vector<std::string> Log; // the calls that change something, in their order
    int OpenHandles() const;
    // As when a process is killed: what it had open is closed, and what it does with that fails.
    void CloseAll() { handles_.clear(); }

    // What is on the disk after the power has failed now: with the last renames, or without those that were
    // not waited for.
    std::optional<std::string> AfterPowerFailure(const Path& path, bool renamesWereLost) const;

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
    std::error_code MakePrivateFolder(const Path&) override { return Next(); }
    Result<FileHandle> OpenLocked(const Path& path, Existence existence) override;
    std::error_code Truncate(FileHandle file, std::uint64_t size) override;

  private:
    using Shared = std::shared_ptr<File>;
    struct Handle {
        Shared Open;
        std::size_t At = 0;
        bool Locked = false;
    };

    // What this call fails for, if it does.
    std::error_code Next();
    std::error_code NextOn(FileHandle file);
    Shared At(const Path& path) const;
    Path Followed(Path path) const;
    Result<FileHandle> Opened(Shared file);
    Handle& Of(FileHandle file) { return handles_.at(file.Number); }

    std::map<Path, Shared> files_;
    std::map<Path, Shared> named_; // the names that the disk has for sure
    std::map<Path, Path> links_;
    std::map<int, Handle> handles_;
    struct Gate {
        std::mutex Mutex; // guards the next
        bool IsClosed = false;
        std::condition_variable Opened;
    };
    std::unique_ptr<Gate> gate_ = std::make_unique<Gate>();
    int nextHandle_ = 3;
    int calls_ = 0;
    int failingCall_ = 0;
    bool forGood_ = false;
    std::error_code why_;
    std::size_t mostBytes_ = std::string::npos;
    bool keepsNothing_ = false;
    bool hasSwap_ = true;
    std::uint64_t clock_ = 0;
};

} // namespace orvane
