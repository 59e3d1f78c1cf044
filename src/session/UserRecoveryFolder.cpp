// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/UserRecoveryFolder.h"

#include "session/RecoveryFolder.h"

#include <cstdlib>

namespace orvane {

namespace {

// Empty for what is not set. UTF-8.
#ifdef _WIN32
std::string EnvironmentValue(const wchar_t* name) {
    const wchar_t* value = _wgetenv(name);
    const std::u8string text = FileSystem::Path(value != nullptr ? value : L"").u8string();
    return {text.begin(), text.end()};
}

RecoveryEnvironment Environment() { return {{}, {}, EnvironmentValue(L"LOCALAPPDATA")}; }
#else
std::string EnvironmentValue(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

RecoveryEnvironment Environment() {
    return {EnvironmentValue("XDG_STATE_HOME"), EnvironmentValue("HOME"), {}};
}
#endif

} // namespace

JournalTime TimeNow() {
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

std::optional<FileSystem::Path> UserRecoveryFolder() { return RecoveryFolderPath(Environment()); }

Result<FileSystem::Path> KeepForUser(FileSystem& files, const FileSystem::Path& replaced,
                                     std::string_view bytes) {
    const std::optional<FileSystem::Path> folder = UserRecoveryFolder();
    if (!folder)
        return {{}, make_error_code(std::errc::no_such_file_or_directory)};
    return RecoveryFolder(files, *folder).KeepReplaced(replaced, bytes, TimeNow());
}

} // namespace orvane
