// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef _WIN32

#include "files/NativeFiles.h"
#include "files/RealPath.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <limits>
#include <string>
#include <type_traits>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/xattr.h>
#endif

namespace orvane {

namespace {

// What leaves an owner or a group as it is.
constexpr uid_t kNoOwner = std::numeric_limits<uid_t>::max();
constexpr gid_t kNoGroup = std::numeric_limits<gid_t>::max();

std::error_code LastError() { return {errno, std::generic_category()}; }

// A call of the system that answers -1 when it fails, made again when a signal was all that stopped it.
template <typename Call>
auto Uninterrupted(Call call) {
    auto answer = call();
    while (answer == -1 && errno == EINTR)
        answer = call();
    return answer;
}

template <typename Call>
std::error_code Try(Call call) {
    return Uninterrupted(call) == -1 ? LastError() : std::error_code();
}

// A size that the system gave and that is none of its errors.
template <typename Number>
auto Unsigned(Number size) {
    return static_cast<std::make_unsigned_t<Number>>(size);
}

Result<FileHandle> Open(const FileSystem::Path& path, int how, mode_t mode = 0) {
    const int file = Uninterrupted([&] { return open(path.c_str(), how | O_CLOEXEC, mode); });
    if (file == -1)
        return {{}, LastError()};
    return {{file}, {}};
}

FileKind KindOf(mode_t mode) {
    if (S_ISDIR(mode))
        return FileKind::Folder;
    if (S_ISFIFO(mode))
        return FileKind::Pipe;
    if (S_ISSOCK(mode))
        return FileKind::Socket;
    return S_ISREG(mode) ? FileKind::Regular : FileKind::Device;
}

FileFacts FactsOf(const struct stat& told) {
    FileFacts facts;
    facts.Kind = KindOf(told.st_mode);
    facts.Size = Unsigned(told.st_size);
    facts.Changed = told.st_mtim.tv_sec * 1'000'000'000LL + told.st_mtim.tv_nsec;
    facts.Device = told.st_dev;
    facts.Number = told.st_ino;
    facts.Names = told.st_nlink;
    facts.Owner = told.st_uid;
    facts.Group = told.st_gid;
    facts.Mode = told.st_mode & 07777;
    return facts;
}

#ifdef __linux__

// Asks with more room until the answer fits: get(room, size) gives its length.
template <typename Get>
Result<std::string> Whole(Get get) {
    std::string room(1024, '\0');
    ssize_t length = get(room.data(), room.size());
    while (length == -1 && errno == ERANGE) {
        room.resize(room.size() * 4);
        length = get(room.data(), room.size());
    }
    if (length == -1)
        return {{}, LastError()};
    room.resize(Unsigned(length));
    return {room, {}};
}

// Each ends in NUL. None where files cannot have any.
Result<std::string> AttributeNames(const FileSystem::Path& path) {
    Result<std::string> names =
        Whole([&](char* room, std::size_t size) { return listxattr(path.c_str(), room, size); });
    if (names.Failure == std::errc::not_supported)
        names.Failure.clear();
    return names;
}

std::error_code CopyAttribute(const FileSystem::Path& from, int to, const char* name) {
    const auto old =
        Whole([&](char* room, std::size_t size) { return getxattr(from.c_str(), name, room, size); });
    const auto own = Whole([&](char* room, std::size_t size) { return fgetxattr(to, name, room, size); });
    if (old.Failure)
        return old.Failure;
    const bool isThere = !own.Failure && old.Got == own.Got; // also one that may not be set
    if (isThere || fsetxattr(to, name, old.Got.data(), old.Got.size(), 0) == 0)
        return {};
    return LastError();
}

// The only one that a new file can have got from its folder.
constexpr const char* kAccessList = "system.posix_acl_access";

// The system makes these itself for each file, from its policy or from the bytes.
bool IsOfTheSystem(std::string_view name) { return name.starts_with("security."); }

std::error_code RemoveAccessList(int file) {
    if (fremovexattr(file, kAccessList) == 0 || errno == ENODATA || errno == ENOTSUP)
        return {};
    return LastError();
}

#endif

// Those above a folder, which are not this program's alone, and so only private when they are new.
std::error_code MakePrivateParents(const FileSystem::Path& folder) {
    if (mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST)
        return {};
    if (errno != ENOENT || !folder.has_parent_path() || folder.parent_path() == folder)
        return LastError();
    if (const std::error_code failure = MakePrivateParents(folder.parent_path()))
        return failure;
    return mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST ? std::error_code() : LastError();
}

} // namespace

Result<FileFacts> NativeFiles::Look(const Path& path) {
    struct stat told {};
    if (const std::error_code failure = Try([&] { return stat(path.c_str(), &told); }))
        return {{}, failure};
    return {FactsOf(told), {}};
}

Result<FileFacts> NativeFiles::Look(FileHandle file) {
    struct stat told {};
    if (const std::error_code failure = Try([&] { return fstat(file.Number, &told); }))
        return {{}, failure};
    return {FactsOf(told), {}};
}

Result<FileSystem::Path> RealPath(const FileSystem::Path& path) {
    Result<FileSystem::Path> real;
    real.Got = std::filesystem::canonical(path, real.Failure);
    return real;
}

Result<FileSystem::Path> NativeFiles::ReadLink(const Path& path) {
    std::array<char, 4096> target{}; // no link is longer
    const ssize_t length = readlink(path.c_str(), target.data(), target.size());
    if (length == -1)
        return {{}, LastError()};
    return {Path(target.begin(), target.begin() + length), {}};
}

std::error_code NativeFiles::AskToWrite(const Path& path) {
    return Try([&] { return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS); });
}

Result<FileHandle> NativeFiles::OpenToRead(const Path& path, Opening opening) {
    return Open(path, O_RDONLY | (opening == Opening::AtOnce ? O_NONBLOCK : 0));
}

Result<FileHandle> NativeFiles::OpenToOverwrite(const Path& path) { return Open(path, O_WRONLY | O_TRUNC); }

Result<FileHandle> NativeFiles::Create(const Path& path, std::uint32_t mode) {
    return Open(path, O_WRONLY | O_CREAT | O_EXCL, mode);
}

Result<std::size_t> NativeFiles::Read(FileHandle file, std::span<char> room) {
    const ssize_t count = Uninterrupted([&] { return read(file.Number, room.data(), room.size()); });
    if (count == -1)
        return {0, LastError()};
    return {Unsigned(count), {}};
}

Result<std::size_t> NativeFiles::Write(FileHandle file, std::string_view bytes) {
    const ssize_t count = Uninterrupted([&] { return write(file.Number, bytes.data(), bytes.size()); });
    if (count == -1)
        return {0, LastError()};
    return {Unsigned(count), {}};
}

std::error_code NativeFiles::Sync(FileHandle file) {
    return Try([&] { return fsync(file.Number); });
}

std::error_code NativeFiles::SyncFolder(const Path& folder) {
    const Result<FileHandle> opened = Open(folder, O_RDONLY | O_DIRECTORY);
    if (opened.Failure)
        return opened.Failure;
    const std::error_code failure = Sync(opened.Got);
    close(opened.Got.Number); // nothing was written through it
    return failure;
}

// Not called again when a signal stopped it: the handle is free by then and may be another file's already.
std::error_code NativeFiles::Close(FileHandle file) {
    return close(file.Number) == 0 || errno == EINTR ? std::error_code() : LastError();
}

std::error_code NativeFiles::SetGroup(FileHandle file, std::uint32_t group) {
    return Try([&] { return fchown(file.Number, kNoOwner, group); });
}

std::error_code NativeFiles::SetOwner(FileHandle file, std::uint32_t owner) {
    return Try([&] { return fchown(file.Number, owner, kNoGroup); });
}

std::error_code NativeFiles::SetMode(FileHandle file, std::uint32_t mode) {
    return Try([&] { return fchmod(file.Number, mode); });
}

std::error_code NativeFiles::CopyAttributes([[maybe_unused]] const Path& from,
                                            [[maybe_unused]] FileHandle to) {
    std::error_code failure;
#ifdef __linux__
    const Result<std::string> names = AttributeNames(from);
    if (names.Failure)
        return names.Failure;
    if (names.Got.find(kAccessList) == std::string::npos)
        failure = RemoveAccessList(to.Number);
    for (const char* name = names.Got.c_str(); *name != '\0'; name += std::strlen(name) + 1) {
        if (IsOfTheSystem(name))
            continue;
        if (const std::error_code why = CopyAttribute(from, to.Number, name))
            failure = why;
    }
#endif
    return failure;
}

std::error_code NativeFiles::Swap([[maybe_unused]] const Path& one, [[maybe_unused]] const Path& other) {
#ifdef __linux__
    return Try([&] { return renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE); });
#else
    return make_error_code(std::errc::not_supported);
#endif
}

void OutliveFileSizeLimit() { std::signal(SIGXFSZ, SIG_IGN); }

std::error_code NativeFiles::MakePrivateFolder(const Path& folder) {
    constexpr mode_t owner = S_IRWXU;
    if (mkdir(folder.c_str(), owner) == 0)
        return {};
    if (errno == ENOENT && folder.has_parent_path() && folder.parent_path() != folder) {
        const std::error_code failure = MakePrivateParents(folder.parent_path());
        return failure ? failure : Try([&] { return mkdir(folder.c_str(), owner); });
    }
    if (errno != EEXIST)
        return LastError();
    const Result<FileFacts> facts = Look(folder);
    if (facts.Failure)
        return facts.Failure;
    if (facts.Got.Kind != FileKind::Folder)
        return make_error_code(std::errc::not_a_directory);
    return facts.Got.Mode == owner ? std::error_code() : Try([&] { return chmod(folder.c_str(), owner); });
}

Result<FileHandle> NativeFiles::OpenLocked(const Path& path, Existence existence) {
    constexpr mode_t owner = S_IRUSR | S_IWUSR;
    const int how = O_RDWR | O_APPEND | O_NOFOLLOW | (existence == Existence::New ? O_CREAT | O_EXCL : 0);
    const Result<FileHandle> opened = Open(path, how, owner);
    if (opened.Failure)
        return opened;
    std::error_code failure = Try([&] { return flock(opened.Got.Number, LOCK_EX | LOCK_NB); });
    if (failure == std::errc::operation_would_block)
        failure = make_error_code(std::errc::device_or_resource_busy);
    // Between opening and locking somebody may have removed or renamed it.
    const Result<FileFacts> own = Look(opened.Got);
    const Result<FileFacts> named = Look(path);
    const bool isStillThere = !own.Failure && !named.Failure && own.Got.Device == named.Got.Device &&
                              own.Got.Number == named.Got.Number;
    if (!failure && !isStillThere)
        failure = make_error_code(std::errc::no_such_file_or_directory);
    if (!failure)
        return opened;
    close(opened.Got.Number); // nothing was written
    return {{}, failure};
}

std::error_code NativeFiles::Truncate(FileHandle file, std::uint64_t size) {
    return Try([&] { return ftruncate(file.Number, static_cast<off_t>(size)); });
}

} // namespace orvane

#endif
