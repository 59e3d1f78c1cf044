// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/MemoryFiles.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvane {

namespace {

std::error_code Error(std::errc error) { return make_error_code(error); }

} // namespace

void MemoryFiles::Put(const Path& path, const std::string& bytes, std::uint32_t mode) {
    auto file = std::make_shared<File>();
    file->Bytes = file->OnDisk = bytes;
    file->Facts.Size = bytes.size();
    file->Facts.Mode = mode;
    file->Facts.Owner = file->Facts.Group = kUser;
    file->Facts.Number = ++clock_;
    file->Facts.Changed = static_cast<std::int64_t>(++clock_);
    files_[path] = named_[path] = file;
}

void MemoryFiles::PutSpecial(const Path& path, FileKind kind) {
    Put(path, "");
    Find(path)->Facts.Kind = kind;
}

MemoryFiles::File* MemoryFiles::Find(const Path& path) { return At(path).get(); }

std::optional<std::string> MemoryFiles::Bytes(const Path& path) {
    const File* file = Find(path);
    return file ? std::optional(file->Bytes) : std::nullopt;
}

std::vector<std::string> MemoryFiles::AllNames() const {
    std::vector<std::string> names;
    for (const auto& [path, file] : files_)
        names.push_back(path.generic_string());
    return names;
}

void MemoryFiles::FailAt(int call, std::error_code why, bool forGood) {
    calls_ = 0;
    failingCall_ = call;
    why_ = why;
    forGood_ = forGood;
}

int MemoryFiles::OpenHandles() const { return static_cast<int>(handles_.size()); }

std::optional<std::string> MemoryFiles::AfterPowerFailure(const Path& path, bool renamesWereLost) const {
    const auto& names = renamesWereLost ? named_ : files_;
    const auto found = names.find(path);
    return found == names.end() ? std::nullopt : std::optional(found->second->OnDisk);
}

void MemoryFiles::Stand() {
    const std::lock_guard lock(gate_->Mutex);
    gate_->IsClosed = true;
}

void MemoryFiles::LetGo() {
    const std::lock_guard lock(gate_->Mutex);
    gate_->IsClosed = false;
    gate_->Opened.notify_all();
}

std::error_code MemoryFiles::Next() {
    {
        std::unique_lock lock(gate_->Mutex);
        gate_->Opened.wait(lock, [this] { return !gate_->IsClosed; });
    }
    ++calls_;
    return calls_ == failingCall_ || (forGood_ && calls_ > failingCall_) ? why_ : std::error_code();
}

std::error_code MemoryFiles::NextOn(FileHandle file) {
    const std::error_code failure = Next();
    return failure || handles_.contains(file.Number) ? failure : Error(std::errc::bad_file_descriptor);
}

MemoryFiles::Shared MemoryFiles::At(const Path& path) const {
    const auto found = files_.find(Followed(path));
    return found == files_.end() ? nullptr : found->second;
}

FileSystem::Path MemoryFiles::Followed(Path path) const {
    auto link = links_.find(path);
    for (int i = 0; i < 40 && link != links_.end(); ++i, link = links_.find(path))
        path = path.parent_path() / link->second;
    return path;
}

Result<FileHandle> MemoryFiles::Opened(Shared file) {
    const FileHandle handle{nextHandle_++};
    handles_[handle.Number] = {std::move(file), 0};
    return {handle, {}};
}

Result<FileFacts> MemoryFiles::Look(const Path& path) {
    if (const std::error_code failure = Next())
        return {{}, failure};
    const Shared file = At(path);
    if (!file)
        return {{}, Error(std::errc::no_such_file_or_directory)};
    return {file->Facts, {}};
}

Result<FileFacts> MemoryFiles::Look(FileHandle file) {
    if (const std::error_code failure = Next())
        return {{}, failure};
    return {Of(file).Open->Facts, {}};
}

Result<FileSystem::Path> MemoryFiles::ReadLink(const Path& path) {
    if (const std::error_code failure = Next())
        return {{}, failure};
    const auto link = links_.find(path);
    if (link != links_.end())
        return {link->second, {}};
    return {{}, Error(At(path) ? std::errc::invalid_argument : std::errc::no_such_file_or_directory)};
}

std::error_code MemoryFiles::AskToWrite(const Path& path) {
    if (const std::error_code failure = Next())
        return failure;
    const Shared file = At(path);
    const std::uint32_t mine = file->Facts.Owner == kUser ? 0200 : file->Facts.Group == kUser ? 0020 : 0002;
    return (file->Facts.Mode & mine) != 0 ? std::error_code() : Error(std::errc::permission_denied);
}

Result<FileHandle> MemoryFiles::OpenToRead(const Path& path, Opening) {
    if (const std::error_code failure = Next())
        return {{}, failure};
    Shared file = At(path);
    if (!file)
        return {{}, Error(std::errc::no_such_file_or_directory)};
    return Opened(std::move(file));
}

Result<FileHandle> MemoryFiles::OpenToOverwrite(const Path& path) {
    if (const std::error_code failure = Next())
        return {{}, failure};
    Log.push_back("overwrite");
    Shared file = At(path);
    file->Bytes.clear();
    return Opened(std::move(file));
}

Result<FileHandle> MemoryFiles::Create(const Path& path, std::uint32_t mode) {
    if (const std::error_code failure = Next())
        return {{}, failure};
    Log.push_back("create");
    if (files_.contains(path))
        return {{}, Error(std::errc::file_exists)};
    constexpr std::uint32_t restriction = 0022;
    const auto before = named_;
    Put(path, "", mode & ~restriction);
    named_ = before;
    return Opened(files_[path]);
}

Result<std::size_t> MemoryFiles::Read(FileHandle file, std::span<char> room) {
    if (const std::error_code failure = Next())
        return {{}, failure};
    Handle& open = Of(file);
    const std::size_t count =
        std::min({room.size(), open.Open->Bytes.size() - open.At, mostBytes_}); // as a slow drive gives them
    std::copy_n(open.Open->Bytes.data() + open.At, count, room.data());
    open.At += count;
    return {count, {}};
}

Result<std::size_t> MemoryFiles::Write(FileHandle file, std::string_view bytes) {
    if (const std::error_code failure = NextOn(file))
        return {{}, failure};
    Log.push_back("write");
    File& open = *Of(file).Open;
    const std::string_view taken = bytes.substr(0, mostBytes_);
    open.Bytes += taken;
    open.Facts.Size = open.Bytes.size();
    open.Facts.Changed = static_cast<std::int64_t>(++clock_);
    open.OnDisk = open.Bytes.substr(0, open.Bytes.size() / 2); // some of it gets there by itself
    return {taken.size(), {}};
}

std::error_code MemoryFiles::Sync(FileHandle file) {
    if (const std::error_code failure = NextOn(file))
        return failure;
    Log.push_back("sync");
    Of(file).Open->OnDisk = Of(file).Open->Bytes;
    return {};
}

std::error_code MemoryFiles::SyncFolder(const Path& folder) {
    if (const std::error_code failure = Next())
        return failure;
    Log.push_back("sync folder");
    const auto isIn = [&](const auto& entry) { return entry.first.parent_path() == folder; };
    std::erase_if(named_, isIn);
    std::copy_if(files_.begin(), files_.end(), std::inserter(named_, named_.end()), isIn);
    return {};
}

std::error_code MemoryFiles::Close(FileHandle file) {
    handles_.erase(file.Number);
    return Next();
}

std::error_code MemoryFiles::SetGroup(FileHandle file, std::uint32_t group) {
    if (const std::error_code failure = Next())
        return failure;
    if (keepsNothing_)
        return Error(std::errc::operation_not_permitted);
    Log.push_back("group");
    Of(file).Open->Facts.Group = group;
    return {};
}

std::error_code MemoryFiles::SetOwner(FileHandle file, std::uint32_t owner) {
    if (const std::error_code failure = Next())
        return failure;
    if (keepsNothing_)
        return Error(std::errc::operation_not_permitted);
    Log.push_back("owner");
    Of(file).Open->Facts.Owner = owner;
    return {};
}

std::error_code MemoryFiles::SetMode(FileHandle file, std::uint32_t mode) {
    if (const std::error_code failure = Next())
        return failure;
    Log.push_back("mode");
    Of(file).Open->Facts.Mode = mode;
    return {};
}

std::error_code MemoryFiles::CopyAttributes(const Path& from, FileHandle to) {
    if (const std::error_code failure = Next())
        return failure;
    if (keepsNothing_)
        return Error(std::errc::operation_not_permitted);
    Of(to).Open->Attributes = At(from)->Attributes;
    return {};
}

std::error_code MemoryFiles::Swap(const Path& one, const Path& other) {
    if (const std::error_code failure = Next())
        return failure;
    if (!hasSwap_)
        return Error(std::errc::not_supported);
    Log.push_back("swap");
    std::swap(files_.at(one), files_.at(other));
    return {};
}

std::error_code MemoryFiles::Rename(const Path& from, const Path& to) {
    if (const std::error_code failure = Next())
        return failure;
    Log.push_back("rename");
    files_[to] = files_.at(from);
    files_.erase(from);
    return {};
}

std::error_code MemoryFiles::Remove(const Path& path) {
    if (const std::error_code failure = Next())
        return failure;
    Log.push_back("remove");
    return files_.erase(path) == 1 ? std::error_code() : Error(std::errc::no_such_file_or_directory);
}

Result<std::vector<FileSystem::Path>> MemoryFiles::Names(const Path& folder) {
    if (const std::error_code failure = Next())
        return {{}, failure};
    std::vector<Path> names;
    for (const auto& [path, file] : files_) {
        if (path.parent_path() == folder)
            names.push_back(path.filename());
    }
    return {names, {}};
}

Result<FileHandle> MemoryFiles::OpenLocked(const Path& path, Existence existence) {
    if (existence == Existence::New) {
        const Result<FileHandle> made = Create(path, 0600);
        if (!made.Failure)
            Of(made.Got).Locked = true;
        return made;
    }
    if (const std::error_code failure = Next())
        return {{}, failure};
    const Shared file = At(path);
    if (!file)
        return {{}, Error(std::errc::no_such_file_or_directory)};
    const auto hasIt = [&](const auto& entry) { return entry.second.Locked && entry.second.Open == file; };
    if (std::any_of(handles_.begin(), handles_.end(), hasIt))
        return {{}, Error(std::errc::device_or_resource_busy)};
    const Result<FileHandle> opened = Opened(file);
    Of(opened.Got).Locked = true;
    return opened;
}

std::error_code MemoryFiles::Truncate(FileHandle file, std::uint64_t size) {
    if (const std::error_code failure = NextOn(file))
        return failure;
    Log.push_back("truncate");
    File& open = *Of(file).Open;
    open.Bytes.resize(size);
    open.Facts.Size = size;
    return {};
}

} // namespace orvane
