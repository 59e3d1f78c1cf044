// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/DocumentPath.h"

#include "codegen/CodeGenerator.h"
#include "codegen/PathInProgram.h"

#include <algorithm>

namespace orvane::cli {

namespace fs = std::filesystem;

namespace {

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

std::string PathInProgram(const fs::path& fullPath) { return orvane::PathInProgram(Utf8(fullPath)); }

} // namespace orvane::cli
