// SPDX-License-Identifier: GPL-3.0-or-later
// Stands between a program and the C library (LD_PRELOAD) and kills the program at the call of the number
// ORVANE_KILL_AT, counted from 1, among those that change a file. A call is killed before it does anything; a
// write counts twice, and the second time half of it is done.
#include <atomic>
#include <csignal>
#include <cstdarg>
#include <cstdlib>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::atomic<long> calls{0};

bool IsNow() {
    static const long wanted = std::getenv("ORVANE_KILL_AT") ? std::atol(std::getenv("ORVANE_KILL_AT")) : 0;
    return ++calls == wanted;
}

void KillNow() {
    if (IsNow())
        (void)kill(getpid(), SIGKILL);
}

template <typename Function>
Function* Next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool IsFile(int file) {
    struct stat facts {};
    return fstat(file, &facts) == 0 && S_ISREG(facts.st_mode);
}

int Open(const char* function, const char* path, int flags, va_list more) {
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    if ((flags & (O_CREAT | O_TRUNC)) != 0)
        KillNow();
    return Next<int(const char*, int, ...)>(function)(path, flags, mode);
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const int file = Open("open", path, flags, more);
    va_end(more);
    return file;
}

int open64(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const int file = Open("open64", path, flags, more);
    va_end(more);
    return file;
}

ssize_t write(int file, const void* bytes, size_t count) {
    const auto next = Next<ssize_t(int, const void*, size_t)>("write");
    if (IsFile(file)) {
        KillNow();
        if (IsNow()) {
            (void)!next(file, bytes, count / 2);
            (void)kill(getpid(), SIGKILL);
        }
    }
    return next(file, bytes, count);
}

int fsync(int file) {
    KillNow();
    return Next<int(int)>("fsync")(file);
}

int ftruncate(int file, off_t size) noexcept {
    KillNow();
    return Next<int(int, off_t)>("ftruncate")(file, size);
}

int mkdir(const char* path, mode_t mode) noexcept {
    KillNow();
    return Next<int(const char*, mode_t)>("mkdir")(path, mode);
}

int unlink(const char* path) noexcept {
    KillNow();
    return Next<int(const char*)>("unlink")(path);
}

int remove(const char* path) noexcept {
    KillNow();
    return Next<int(const char*)>("remove")(path);
}

int rename(const char* from, const char* to) noexcept {
    KillNow();
    return Next<int(const char*, const char*)>("rename")(from, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept {
    KillNow();
    return Next<int(int, const char*, int, const char*, unsigned)>("renameat2")(fromFolder, from, toFolder,
                                                                                to, flags);
}

} // extern "C"
