// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/FileReader.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

using Path = FileSystem::Path;

class Reading {
  public:
    Reading(FileSystem& files, std::size_t limit) : files_(files), limit_(limit) {}
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;
    ~Reading() {
        if (handle_)
            (void)files_.Close(handle_); // nothing was written through it
    }

    FileContent Read(const Path& path, Opening opening);

  private:
    // Steps on the way; false when they failed, which is told in read_ then.
    bool Look(const Path& path, Opening opening);
    bool Open(const Path& path, Opening opening);
    bool ReadToEnd();

    void Grow(std::size_t room);
    bool Fail(FileError error) {
        read_ = {};
        read_.Failure = error;
        return false;
    }
    bool FailTooLarge() { return Fail({FileStep::Read, make_error_code(std::errc::file_too_large)}); }

    FileSystem& files_;
    const std::size_t limit_;
    std::size_t room_ = 0; // bytes that the buffer can hold
    FileHandle handle_;
    FileContent read_;
};

FileContent Reading::Read(const Path& path, Opening opening) {
    (void)(Look(path, opening) && Open(path, opening) && ReadToEnd());
    return std::move(read_);
}

bool Reading::Look(const Path& path, Opening opening) {
    const Result<FileFacts> facts = files_.Look(path);
    if (facts.Failure)
        return Fail({FileStep::Find, facts.Failure});
    const FileKind kind = facts.Got.Kind;
    const bool isStream = kind != FileKind::Regular && kind != FileKind::Folder;
    if (kind == FileKind::Folder || (isStream && opening == Opening::AtOnce))
        return Fail(Refusal(kind));
    return true;
}

bool Reading::Open(const Path& path, Opening opening) {
    const Result<FileHandle> opened = files_.OpenToRead(path, opening);
    if (opened.Failure)
        return Fail({FileStep::Open, opened.Failure});
    handle_ = opened.Got;
    const Result<FileFacts> facts = files_.Look(handle_); // by now it may be another file
    if (facts.Failure)
        return Fail({FileStep::Open, facts.Failure});
    const bool isRegular = facts.Got.Kind == FileKind::Regular;
    if (!isRegular && opening == Opening::AtOnce)
        return Fail(Refusal(facts.Got.Kind));
    if (isRegular && facts.Got.Size > limit_)
        return FailTooLarge();
    constexpr std::size_t least = 64u << 10;
    read_.Stamp = StampOf(facts.Got);
    Grow(std::max<std::size_t>(isRegular ? facts.Got.Size + 1 : 0,
                               least)); // one more, to meet the end at once
    return true;
}

bool Reading::ReadToEnd() {
    for (;;) {
        const Result<std::size_t> part =
            files_.Read(handle_, {read_.Buffer.get() + read_.Length, room_ - read_.Length});
        if (part.Failure)
            return Fail({FileStep::Read, part.Failure});
        if (part.Got == 0)
            return true;
        read_.Length += part.Got;
        if (read_.Length > limit_)
            return FailTooLarge();
        if (read_.Length == room_)
            Grow(2 * room_);
    }
}

void Reading::Grow(std::size_t room) {
    auto larger = std::make_unique_for_overwrite<char[]>(room);
    std::copy_n(read_.Buffer.get(), read_.Length, larger.get());
    read_.Buffer = std::move(larger);
    room_ = room;
}

} // namespace

FileContent ReadFile(FileSystem& files, const Path& path, std::size_t limit) {
    return Reading(files, limit).Read(path, Opening::AtOnce);
}

FileContent ReadStream(FileSystem& files, const Path& path, std::size_t limit) {
    return Reading(files, limit).Read(path, Opening::Waiting);
}

} // namespace orvane
