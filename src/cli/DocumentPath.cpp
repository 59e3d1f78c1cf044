// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/DocumentPath.h"

#include "codegen/PathInProgram.h"
#include "text/SiblingPath.h"

#include <algorithm>

#ifdef _WIN32
#include <windows.h>
#endif

namespace orvane::cli {

namespace fs = std::filesystem;

fs::path PathOf(std::string_view utf8) { return std::u8string(utf8.begin(), utf8.end()); }

std::string Utf8(const fs::path& path) {
    const std::u8string utf8 = path.u8string();
    return {utf8.begin(), utf8.end()};
}

std::string PortableText(const fs::path& path) {
    const std::u8string utf8 = path.generic_u8string();
    return {utf8.begin(), utf8.end()};
}

#ifdef _WIN32

// The library takes a network path for one of the current drive; the system also knows "C:name" and "\name".
fs::path FullPath(const std::string& name) {
    const fs::path path = PathOf(name);
    std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0'); // with room for a NUL
    const DWORD length =
        GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    if (length == 0 || length >= full.size())
        return path;
    full.resize(length);
    return full;
}

bool FileNameOrder::operator()(const fs::path& one, const fs::path& other) const {
    return CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_LESS_THAN;
}

#else

fs::path FullPath(const std::string& name) {
    std::error_code failed;
    fs::path full = fs::absolute(PathOf(name), failed);
    if (failed)
        return PathOf(name);
    // Only the file system knows where ".." leads behind a link.
    if (std::find(full.begin(), full.end(), "..") != full.end()) {
        const fs::path folder = fs::weakly_canonical(full.parent_path(), failed);
        if (!failed)
            full = folder / full.filename();
    }
    return full.lexically_normal();
}

bool FileNameOrder::operator()(const fs::path& one, const fs::path& other) const { return one < other; }

#endif

fs::path ProgramPath(const fs::path& fullPath) { return PathOf(ProgramFilePath(Utf8(fullPath))); }

std::string PathInProgram(const fs::path& fullPath) { return orvane::PathInProgram(Utf8(fullPath)); }

} // namespace orvane::cli
