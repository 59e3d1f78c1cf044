// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/FileAccess.h"

#include "files/Patience.h"
#include "text/NumberText.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <random>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace orvane::cli {

namespace fs = std::filesystem;

namespace {

enum class Mode { Read, Change, Write, CreateNew };

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closer>;

#ifdef _WIN32
// Names of any language, which the narrow function does not know.
std::FILE* OpenNative(const fs::path& path, Mode mode) {
    constexpr std::array names{L"rb", L"r+b", L"wb", L"wb"};
    if (mode == Mode::CreateNew && fs::exists(path)) { // the runtime has no exclusive mode
        errno = EEXIST;
        return nullptr;
    }
    return _wfopen(path.c_str(), names[static_cast<std::size_t>(mode)]);
}
#else
std::FILE* OpenNative(const fs::path& path, Mode mode) {
    constexpr std::array names{"rb", "r+b", "wb", "wbx"};
    return std::fopen(path.c_str(), names[static_cast<std::size_t>(mode)]);
}
#endif

// Reads and writes here are few and large: a buffer would only copy.
File Open(const fs::path& path, Mode mode) {
    errno = 0;
    File file(OpenNative(path, mode));
    if (file)
        std::setvbuf(file.get(), nullptr, _IONBF, 0);
    return file;
}

std::error_code LastError() {
    return errno != 0 ? std::error_code(errno, std::generic_category())
                      : make_error_code(std::errc::io_error);
}

std::error_code Sync(std::FILE* file) {
#ifdef _WIN32
    const bool synced = _commit(_fileno(file)) == 0;
#else
    const bool synced = fsync(fileno(file)) == 0;
#endif
    return synced ? std::error_code() : LastError();
}

std::error_code Write(std::FILE* file, std::string_view bytes) {
    errno = 0;
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    return written && std::fflush(file) == 0 ? std::error_code() : LastError();
}

std::error_code Close(File file) {
    errno = 0;
    return std::fclose(file.release()) == 0 ? std::error_code() : LastError();
}

std::error_code WriteDirectly(const fs::path& path, std::string_view bytes) {
    File file = Open(path, Mode::Write);
    if (!file)
        return LastError();
    if (const std::error_code failure = Write(file.get(), bytes))
        return failure;
    return Close(std::move(file));
}

// The name of a file that is gone again unless it was kept.
class TemporaryFile {
  public:
    explicit TemporaryFile(const fs::path& folder) {
        std::random_device random;
        for (int attempt = 0; attempt < 100 && !file_; ++attempt) {
            path_ = folder / (".orvanec-" + HexText(random()) + ".tmp");
            file_ = Open(path_, Mode::CreateNew);
            if (!file_ && errno != EEXIST)
                break;
        }
        if (!file_)
            failure_ = LastError();
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (failure_ || path_.empty())
            return;
        file_.reset();
        std::error_code ignored;
        fs::remove(path_, ignored);
    }

    std::error_code Failure() const { return failure_; }

    std::error_code Fill(std::string_view bytes, Durability durability) {
        std::error_code failure = Write(file_.get(), bytes);
        if (!failure && durability == Durability::Synced)
            failure = Sync(file_.get());
        if (failure)
            return failure;
        return Close(std::move(file_));
    }

    std::error_code TakePlaceOf(const fs::path& target, fs::file_status older) {
        std::error_code failure;
        if (fs::exists(older))
            fs::permissions(path_, older.permissions(), failure);
        if (!failure)
            fs::rename(path_, target, failure);
        if (!failure)
            path_.clear();
        return failure;
    }

  private:
    fs::path path_;
    File file_;
    std::error_code failure_;
};

FileBytes Failed(std::error_code failure) { return {nullptr, 0, failure}; }

// Where a chain of links ends, whether or not there is a file.
fs::path LinkTarget(fs::path path) {
    constexpr int mostLinks = 40;
    std::error_code failure;
    for (int i = 0; i < mostLinks && fs::is_symlink(fs::symlink_status(path, failure)); ++i) {
        const fs::path next = fs::read_symlink(path, failure);
        if (failure)
            break;
        path = path.parent_path() / next;
    }
    return path;
}

// A name of something this process has open already: replacing the file behind it would pull it away from
// whoever else writes there.
bool NamesOpenFile(const fs::path& path) {
    const std::string name = path.generic_string();
    return name == "/dev/stdout" || name == "/dev/stderr" || name.starts_with("/dev/fd/") ||
           name.starts_with("/proc/self/fd/");
}

std::error_code Replace(const fs::path& path, fs::file_status older, std::string_view bytes,
                        Durability durability) {
    // A file that may not be changed is not replaced either.
    if (fs::exists(older) && !Open(path, Mode::Change))
        return LastError();

    const fs::path target = LinkTarget(path);
    TemporaryFile temporary(target.parent_path());
    if (temporary.Failure())
        return temporary.Failure();
    if (const std::error_code failure = temporary.Fill(bytes, durability))
        return failure;
    return temporary.TakePlaceOf(target, older);
}

} // namespace

FileBytes ReadWholeFile(const fs::path& path, std::size_t limit) {
    std::error_code noSize;
    const fs::file_status status = fs::status(path, noSize);
    if (fs::is_directory(status)) // not every system says so by itself
        return Failed(make_error_code(std::errc::is_a_directory));
    const File file = Open(path, Mode::Read);
    if (!file)
        return Failed(LastError());
    const std::uintmax_t size = fs::is_regular_file(status) ? fs::file_size(path, noSize) : 0;
    if (!noSize && size > limit)
        return Failed(make_error_code(std::errc::file_too_large));

    constexpr std::size_t chunk = 64u << 10;
    std::size_t room =
        std::max<std::size_t>(noSize ? 0 : size + 1, chunk); // one more, to meet the end at once
    FileBytes bytes{std::make_unique_for_overwrite<char[]>(room), 0, {}};
    while (const std::size_t read =
               std::fread(bytes.Buffer.get() + bytes.Length, 1, room - bytes.Length, file.get())) {
        bytes.Length += read;
        if (bytes.Length > limit)
            return Failed(make_error_code(std::errc::file_too_large));
        if (bytes.Length < room)
            break;
        auto larger = std::make_unique_for_overwrite<char[]>(room *= 2);
        std::copy_n(bytes.Buffer.get(), bytes.Length, larger.get());
        bytes.Buffer = std::move(larger);
    }
    if (std::ferror(file.get()) != 0)
        return Failed(LastError());
    return bytes;
}

std::error_code WriteWholeFile(const fs::path& path, std::string_view bytes, Durability durability) {
    std::error_code failure;
    const fs::file_status older = fs::status(path, failure);
    if (failure && older.type() != fs::file_type::not_found)
        return failure;
    if (fs::is_directory(older))
        return make_error_code(std::errc::is_a_directory);
    if ((fs::exists(older) && !fs::is_regular_file(older)) || NamesOpenFile(path))
        return WriteDirectly(path, bytes);
    return Patiently(kSavingPatience, [&] { return Replace(path, older, bytes, durability); });
}

} // namespace orvane::cli
