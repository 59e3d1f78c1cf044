// SPDX-License-Identifier: GPL-3.0-or-later
#ifdef _WIN32

#include "files/NativeFiles.h"
#include "files/RealPath.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

namespace orvane {

namespace {

std::error_code LastError() { return {errno, std::generic_category()}; }

std::error_code LastWindowsError() {
    const DWORD reason = GetLastError();
    switch (reason) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
        return make_error_code(std::errc::no_such_file_or_directory);
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
        return make_error_code(std::errc::permission_denied);
    case ERROR_CANT_RESOLVE_FILENAME:
        return make_error_code(std::errc::too_many_symbolic_link_levels);
    default:
        return {static_cast<int>(reason), std::system_category()};
    }
}

Result<FileHandle> Open(const FileSystem::Path& path, int how, int mode = 0) {
    const int file = _wopen(path.c_str(), how | _O_BINARY | _O_NOINHERIT, mode);
    if (file == -1)
        return {{}, LastError()};
    return {{file}, {}};
}

constexpr std::uint64_t Joined(DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; }

Result<FileFacts> FactsOf(HANDLE file) {
    FileFacts facts;
    const DWORD type = GetFileType(file);
    if (type != FILE_TYPE_DISK) {
        facts.Kind = type == FILE_TYPE_PIPE ? FileKind::Pipe : FileKind::Device;
        return {facts, {}};
    }
    BY_HANDLE_FILE_INFORMATION told{};
    if (GetFileInformationByHandle(file, &told) == 0)
        return {{}, LastWindowsError()};
    if ((told.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        facts.Kind = FileKind::Folder;
    facts.Size = Joined(told.nFileSizeHigh, told.nFileSizeLow);
    const std::uint64_t changed =
        Joined(told.ftLastWriteTime.dwHighDateTime, told.ftLastWriteTime.dwLowDateTime);
    facts.Changed = static_cast<std::int64_t>(changed * 100); // it counts tenths of microseconds
    facts.Device = told.dwVolumeSerialNumber;
    facts.Number = Joined(told.nFileIndexHigh, told.nFileIndexLow);
    facts.Names = told.nNumberOfLinks;
    return {facts, {}};
}

// What is there is left to everybody else meanwhile, and may be a folder.
HANDLE OpenToLook(const FileSystem::Path& path) {
    const DWORD others = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, others, nullptr, OPEN_EXISTING,
                       FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

// Empty where the system does not tell it, as of devices.
std::wstring RealName(HANDLE file) {
    std::wstring name(GetFinalPathNameByHandleW(file, nullptr, 0, FILE_NAME_NORMALIZED), L'\0'); // with a NUL
    const DWORD length =
        GetFinalPathNameByHandleW(file, name.data(), static_cast<DWORD>(name.size()), FILE_NAME_NORMALIZED);
    name.resize(length < name.size() ? length : 0);
    return name;
}

// A real name as users and the library write it: C:\folder, \\server\share.
std::wstring WithoutPrefix(const std::wstring& name) {
    constexpr std::wstring_view network = L"\\\\?\\UNC\\";
    constexpr std::wstring_view prefix = L"\\\\?\\";
    if (name.starts_with(network))
        return L"\\\\" + name.substr(network.size());
    return name.starts_with(prefix) ? name.substr(prefix.size()) : name;
}

bool AreOneName(const FileSystem::Path& one, const FileSystem::Path& other) {
    return CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

HANDLE HandleOf(FileHandle file) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(file.Number)); // how the runtime hands it out
}

} // namespace

Result<FileFacts> NativeFiles::Look(const Path& path) {
    const HANDLE file = OpenToLook(path);
    if (file == INVALID_HANDLE_VALUE)
        return {{}, LastWindowsError()};
    const Result<FileFacts> facts = FactsOf(file);
    CloseHandle(file);
    return facts;
}

Result<FileFacts> NativeFiles::Look(FileHandle file) { return FactsOf(HandleOf(file)); }

Result<FileSystem::Path> RealPath(const FileSystem::Path& path) {
    const HANDLE file = OpenToLook(path);
    if (file == INVALID_HANDLE_VALUE)
        return {{}, LastWindowsError()};
    const std::wstring name = RealName(file);
    CloseHandle(file);
    if (name.empty())
        return {{}, make_error_code(std::errc::not_supported)};
    return {WithoutPrefix(name), {}};
}

// The library reads no links here. One shows in that the file is really called something else than its folder
// and its name say; so does the short name that older programs use (PROGRA~1), which a new file would not
// keep. A link to what is not there yet is not seen.
Result<FileSystem::Path> NativeFiles::ReadLink(const Path& path) {
    Result<Path> real = RealPath(path);
    if (real.Failure == std::errc::no_such_file_or_directory ||
        real.Failure == std::errc::too_many_symbolic_link_levels)
        return real;
    const Result<Path> folder = RealPath(path.has_parent_path() ? path.parent_path() : Path("."));
    if (real.Failure || folder.Failure || AreOneName(folder.Got / path.filename(), real.Got))
        return {{}, make_error_code(std::errc::invalid_argument)};
    return real;
}

std::error_code NativeFiles::AskToWrite(const Path& path) {
    constexpr int writing = 2;
    return _waccess(path.c_str(), writing) == 0 ? std::error_code() : LastError();
}

Result<FileHandle> NativeFiles::OpenToRead(const Path& path, Opening) { return Open(path, _O_RDONLY); }

Result<FileHandle> NativeFiles::OpenToOverwrite(const Path& path) { return Open(path, _O_WRONLY | _O_TRUNC); }

// Who may read it follows from its folder; of the mode only whether it may be written could be kept.
Result<FileHandle> NativeFiles::Create(const Path& path, std::uint32_t) {
    return Open(path, _O_WRONLY | _O_CREAT | _O_EXCL, _S_IREAD | _S_IWRITE);
}

Result<std::size_t> NativeFiles::Read(FileHandle file, std::span<char> room) {
    constexpr std::size_t most = 1u << 30;
    const int count = _read(file.Number, room.data(), static_cast<unsigned>(std::min(room.size(), most)));
    if (count == -1)
        return {0, LastError()};
    return {static_cast<std::size_t>(count), {}};
}

Result<std::size_t> NativeFiles::Write(FileHandle file, std::string_view bytes) {
    constexpr std::size_t most = 1u << 30;
    const int count = _write(file.Number, bytes.data(), static_cast<unsigned>(std::min(bytes.size(), most)));
    if (count == -1)
        return {0, LastError()};
    return {static_cast<std::size_t>(count), {}};
}

std::error_code NativeFiles::Sync(FileHandle file) {
    return _commit(file.Number) == 0 ? std::error_code() : LastError();
}

std::error_code NativeFiles::SyncFolder(const Path&) { return {}; }

std::error_code NativeFiles::Close(FileHandle file) {
    return _close(file.Number) == 0 ? std::error_code() : LastError();
}

std::error_code NativeFiles::SetGroup(FileHandle, std::uint32_t) { return {}; }
std::error_code NativeFiles::SetOwner(FileHandle, std::uint32_t) { return {}; }
std::error_code NativeFiles::SetMode(FileHandle, std::uint32_t) { return {}; }
std::error_code NativeFiles::CopyAttributes(const Path&, FileHandle) { return {}; }

std::error_code NativeFiles::Swap(const Path&, const Path&) {
    return make_error_code(std::errc::not_supported);
}

void OutliveFileSizeLimit() {}

// A folder in the user's own profile is nobody else's.
std::error_code NativeFiles::MakePrivateFolder(const Path& folder) {
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    return failure;
}

// Others may read, rename and remove it, but not open it to write, as everybody does who wants it so.
Result<FileHandle> NativeFiles::OpenLocked(const Path& path, Existence existence) {
    const HANDLE opened =
        CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                    existence == Existence::New ? CREATE_NEW : OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE && GetLastError() == ERROR_SHARING_VIOLATION)
        return {{}, make_error_code(std::errc::device_or_resource_busy)};
    if (opened == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_EXISTS)
        return {{}, make_error_code(std::errc::file_exists)};
    if (opened == INVALID_HANDLE_VALUE)
        return {{}, LastWindowsError()};
    const int file =
        _open_osfhandle(reinterpret_cast<std::intptr_t>(opened), _O_RDWR | _O_APPEND | _O_BINARY);
    if (file != -1)
        return {{file}, {}};
    CloseHandle(opened);
    return {{}, make_error_code(std::errc::too_many_files_open)};
}

std::error_code NativeFiles::Truncate(FileHandle file, std::uint64_t size) {
    const errno_t failure = _chsize_s(file.Number, static_cast<std::int64_t>(size));
    return {failure, std::generic_category()};
}

} // namespace orvane

#endif
