// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/FileWriter.h"

#include "files/LinkTarget.h"
#include "files/TemporaryName.h"

#include <utility>

namespace orvane {

namespace {

using Path = FileSystem::Path;
using Pieces = std::initializer_list<std::string_view>;

// Who may do what with a file: read and write for its owner, and as the user's own restriction says.
constexpr std::uint32_t kOnlyOwner = 0600;
constexpr std::uint32_t kAsUserSays = 0666;
constexpr std::uint32_t kGroupBits = 0070;
constexpr std::uint32_t kSetIdBits = 06000;

class Replacement {
  public:
    Replacement(FileSystem& files, const WriteOptions& options) : files_(files), options_(options) {}
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;
    ~Replacement() { TakeBack(); }

    WrittenFile Write(const Path& path, Pieces pieces);

  private:
    // Each is a step on the way; false when it failed, which is told in written_ then.
    bool Find(const Path& path);
    bool Refuse(FileKind kind);
    bool MakeTemporary();
    bool Fill(Pieces pieces);
    bool KeepRights();
    bool Finish();
    bool TakePlace();
    bool SyncFolder();

    bool KeepGroup(const FileFacts& fresh);
    bool KeepOwner(const FileFacts& fresh);
    bool SwapIn();
    Result<FileHandle> Create(const Path& path, std::uint32_t mode) {
        return options_.Unfinished ? options_.Unfinished->Create(path, mode) : files_.Create(path, mode);
    }
    void Forget(const Path& path) {
        if (options_.Unfinished)
            options_.Unfinished->Forget(path);
    }
    void TakeBack();

    bool Did(FileStep step, std::error_code failure) {
        if (failure)
            written_.Failure = {step, failure};
        return !failure;
    }
    void Note(FileNote note) { written_.Notes.push_back(note); }

    FileSystem& files_;
    const WriteOptions& options_;
    Path target_;
    std::optional<FileFacts> old_; // none when there is no file yet
    Path temporary_;               // empty unless it stands on the disk
    FileHandle handle_;            // none unless it is open
    WrittenFile written_;
};

std::error_code WriteAll(FileSystem& files, FileHandle file, Pieces pieces) {
    for (std::string_view bytes : pieces) {
        while (!bytes.empty()) {
            const Result<std::size_t> written = files.Write(file, bytes);
            if (written.Failure)
                return written.Failure;
            if (written.Got == 0) // it would go on for ever
                return make_error_code(std::errc::io_error);
            bytes.remove_prefix(written.Got);
        }
    }
    return {};
}

WrittenFile Replacement::Write(const Path& path, Pieces pieces) {
    const bool done = Find(path) && MakeTemporary() && Fill(pieces) && KeepRights() && Finish() &&
                      TakePlace() && SyncFolder();
    if (!done)
        TakeBack();
    return std::move(written_);
}

bool Replacement::Find(const Path& path) {
    const Result<FileFacts> old = files_.Look(path);
    const bool isNew = old.Failure == std::errc::no_such_file_or_directory;
    if (!isNew && !Did(FileStep::Find, old.Failure))
        return false;
    if (!isNew && old.Got.Kind != FileKind::Regular)
        return Refuse(old.Got.Kind);
    Result<Path> target = LinkTarget(files_, path);
    if (!Did(FileStep::Find, target.Failure))
        return false;
    target_ = std::move(target.Got);
    if (isNew)
        return true;
    old_ = old.Got;
    return Did(FileStep::AskToWrite, files_.AskToWrite(target_));
}

bool Replacement::Refuse(FileKind kind) {
    written_.Failure = Refusal(kind);
    return false;
}

bool Replacement::MakeTemporary() {
    constexpr int attempts = 8; // the names are long enough for one to do
    Result<FileHandle> made;
    Path name;
    for (int i = 0; i == 0 || (i < attempts && made.Failure == std::errc::file_exists); ++i) {
        name = target_.parent_path() / TemporaryName();
        made = Create(name, old_ ? kOnlyOwner : kAsUserSays);
    }
    if (!Did(FileStep::Create, made.Failure))
        return false;
    temporary_ = std::move(name);
    handle_ = made.Got;
    return true;
}

bool Replacement::Fill(Pieces pieces) { return Did(FileStep::Write, WriteAll(files_, handle_, pieces)); }

// Group and owner before the permissions: until these are set, only the owner may open the file.
bool Replacement::KeepRights() {
    if (!old_)
        return true;
    const Result<FileFacts> fresh = files_.Look(handle_);
    if (!Did(FileStep::KeepRights, fresh.Failure))
        return false;
    const bool hasGroup = KeepGroup(fresh.Got);
    const bool hasOwner = KeepOwner(fresh.Got);
    std::uint32_t mode = old_->Mode;
    if (!hasGroup) // another group gets no more than everybody
        mode &= ~kGroupBits | (mode << 3);
    if (!hasGroup || !hasOwner)
        mode &= ~kSetIdBits;
    if (files_.CopyAttributes(target_, handle_))
        Note(FileNote::Attributes);
    // Last, because an access list that was copied is bounded by the group's part of it.
    if (files_.SetMode(handle_, mode))
        Note(FileNote::Rights);
    if (old_->Names > 1)
        Note(FileNote::OtherNames);
    return true;
}

bool Replacement::KeepGroup(const FileFacts& fresh) {
    if (fresh.Group == old_->Group || !files_.SetGroup(handle_, old_->Group))
        return true;
    Note(FileNote::Group);
    return false;
}

bool Replacement::KeepOwner(const FileFacts& fresh) {
    if (fresh.Owner == old_->Owner || !files_.SetOwner(handle_, old_->Owner))
        return true;
    Note(FileNote::Owner);
    return false;
}

bool Replacement::Finish() {
    if (options_.Must == Outlives::Machine && !Did(FileStep::Sync, files_.Sync(handle_)))
        return false;
    const Result<FileFacts> fresh = files_.Look(handle_);
    written_.Stamp = StampOf(fresh.Got);
    return Did(FileStep::KeepRights, fresh.Failure) &&
           Did(FileStep::Close, files_.Close(std::exchange(handle_, {})));
}

bool Replacement::TakePlace() {
    if (SwapIn())
        return true;
    const std::error_code failure =
        Patiently(options_.Patience, [&] { return files_.Rename(temporary_, target_); });
    if (!failure)
        Forget(std::exchange(temporary_, {}));
    return Did(FileStep::Replace, failure);
}

// Unlike a replacing rename it does not make the file system start writing the new bytes to the disk, which
// takes longer than all the rest. Where the disk is waited for anyway there is nothing to gain.
bool Replacement::SwapIn() {
    if (!old_ || options_.Must != Outlives::Process || files_.Swap(temporary_, target_))
        return false;
    TakeBack(); // by now it is the old one
    return true;
}

bool Replacement::SyncFolder() {
    if (options_.Must != Outlives::Machine)
        return true;
    const Path folder = target_.parent_path();
    const std::error_code failure = files_.SyncFolder(folder.empty() ? Path(".") : folder);
    // A folder that this user may write to but not read, or a file system that does not do that.
    const bool cannot = failure == std::errc::permission_denied || failure == std::errc::not_supported ||
                        failure == std::errc::invalid_argument;
    if (cannot)
        Note(FileNote::Unsynced);
    return cannot || Did(FileStep::SyncFolder, failure);
}

void Replacement::TakeBack() {
    if (handle_)
        (void)files_.Close(std::exchange(handle_, {})); // nobody wants the bytes any more
    if (temporary_.empty())
        return;
    if (files_.Remove(temporary_))
        Note(FileNote::LeftBehind);
    Forget(std::exchange(temporary_, {}));
}

WrittenFile Failed(FileStep step, std::error_code failure) { return {FileError{step, failure}, {}, {}}; }

// A device, a pipe, an open file: it takes the bytes as they come.
WrittenFile WriteInto(FileSystem& files, const Path& path, Pieces pieces) {
    const Result<FileHandle> file = files.OpenToOverwrite(path);
    if (file.Failure)
        return Failed(FileStep::Open, file.Failure);
    const std::error_code failure = WriteAll(files, file.Got, pieces);
    const std::error_code closing = files.Close(file.Got);
    if (failure)
        return Failed(FileStep::Write, failure);
    return closing ? Failed(FileStep::Close, closing) : WrittenFile();
}

// A name of something this process has open already: replacing the file behind it would pull it away from
// whoever else writes there.
bool NamesOpenFile(const Path& path) {
    const std::string name = path.generic_string();
    return name == "/dev/stdout" || name == "/dev/stderr" || name.starts_with("/dev/fd/") ||
           name.starts_with("/proc/self/fd/");
}

bool TakesBytesAsTheyCome(FileSystem& files, const Path& path) {
    const Result<FileFacts> there = files.Look(path);
    if (there.Failure)
        return false;
    const FileKind kind = there.Got.Kind;
    return NamesOpenFile(path) || (kind != FileKind::Regular && kind != FileKind::Folder);
}

} // namespace

WrittenFile WriteFile(FileSystem& files, const Path& path, Pieces pieces, const WriteOptions& options) {
    if (options.Special == SpecialFiles::WrittenInto && TakesBytesAsTheyCome(files, path))
        return WriteInto(files, path, pieces);
    return Replacement(files, options).Write(path, pieces);
}

} // namespace orvane
