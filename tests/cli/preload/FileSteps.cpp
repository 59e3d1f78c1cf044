// SPDX-License-Identifier: GPL-3.0-or-later
// Stands between a program and the C library (LD_PRELOAD) and writes down, in the file that ORVANE_FILE_STEPS
// names, in which order the program waits for the disk and renames files. A line is "sync NAME" or
// "rename FROM TO", with names without their folders. With ORVANE_FAIL_SYNC in the environment the disk
// refuses: each wait for it fails.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

std::string_view NameOf(std::string_view path) { return path.substr(path.rfind('/') + 1); }

void WriteDown(const std::string& step) {
    const char* path = std::getenv("ORVANE_FILE_STEPS");
    const int file = path == nullptr ? -1 : open(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    const std::string line = step + "\n";
    // Half a line would be taken for a step that was not made.
    if (file < 0 || write(file, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
        std::abort();
    close(file);
}

// The function that this one has taken the place of.
template <typename Function>
Function* Next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

int Sync(const char* function, int file) {
    std::string path(4096, '\0');
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t length = readlink(link.c_str(), path.data(), path.size());
    path.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    WriteDown("sync " + std::string(NameOf(path)));
    if (std::getenv("ORVANE_FAIL_SYNC") != nullptr) {
        errno = EIO;
        return -1;
    }
    return Next<int(int)>(function)(file);
}

void WriteDownRename(const char* from, const char* to) {
    WriteDown("rename " + std::string(NameOf(from)) + " " + std::string(NameOf(to)));
}

} // namespace

extern "C" {

int fsync(int file) { return Sync("fsync", file); }

int fdatasync(int file) { return Sync("fdatasync", file); }

int rename(const char* from, const char* to) noexcept {
    WriteDownRename(from, to);
    return Next<int(const char*, const char*)>("rename")(from, to);
}

int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept {
    WriteDownRename(from, to);
    return Next<int(int, const char*, int, const char*)>("renameat")(fromFolder, from, toFolder, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept {
    WriteDownRename(from, to);
    return Next<int(int, const char*, int, const char*, unsigned)>("renameat2")(fromFolder, from, toFolder,
                                                                                to, flags);
}

} // extern "C"
