// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/DocumentPath.h"

#include "codegen/CodeGenerator.h"
#include "core/AnsiText.h"

#include <algorithm>

namespace orvane::cli {

namespace fs = std::filesystem;

namespace {

constexpr char kSubstitute = '?';

std::string Utf8(const fs::path& path) {
    const std::u8string utf8 = path.u8string();
    return {utf8.begin(), utf8.end()};
}

} // namespace

fs::path FullPath(const std::string& name) {
    std::error_code failed;
    fs::path full = fs::absolute(name, failed);
    if (failed)
        return name;
    // Only the file system knows where ".." leads behind a link.
    if (std::find(full.begin(), full.end(), "..") != full.end()) {
        const fs::path folder = fs::weakly_canonical(full.parent_path(), failed);
        if (!failed)
            full = folder / full.filename();
    }
    return full.lexically_normal();
}

fs::path ProgramPath(const fs::path& fullPath) {
    const std::string program = ProgramFilePath(Utf8(fullPath));
    return std::u8string(program.begin(), program.end());
}

std::string PathInProgram(const fs::path& fullPath) {
    std::string path = FromUtf8(Utf8(fullPath), kSubstitute);
    const auto breaksComment = [](char byte) {
        const char32_t character = ToUnicode(byte);
        return character < 0x20 || (character >= 0x7F && character < 0xA0);
    };
    std::replace_if(path.begin(), path.end(), breaksComment, kSubstitute);
    return path;
}

} // namespace orvane::cli
