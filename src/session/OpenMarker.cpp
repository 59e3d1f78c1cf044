// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/OpenMarker.h"

#include "text/Sha256.h"

#include <string>
#include <utility>

namespace orvane {

namespace {

constexpr std::size_t kMarkerDigits = 32; // enough that no two documents share a marker

FileSystem::Path NameOf(const FileSystem::Path& document) {
    const std::u8string path = document.u8string();
    return "open-" + DigestText(Sha256(std::string(path.begin(), path.end()))).substr(0, kMarkerDigits);
}

} // namespace

OpenMarker::OpenMarker(FileSystem& files, std::optional<FileSystem::Path> folder)
    : files_(files), folder_(std::move(folder)) {}

bool OpenMarker::Take(const FileSystem::Path& document) {
    if (!folder_)
        return true;
    const FileSystem::Path marker = *folder_ / NameOf(document);
    if (lock_ && marker == marker_)
        return true;
    Release();
    marker_ = marker;
    if (files_.MakePrivateFolder(*folder_))
        return true;
    Result<FileHandle> opened = files_.OpenLocked(marker, Existence::New);
    if (opened.Failure == std::errc::file_exists)
        opened = files_.OpenLocked(marker, Existence::Old);
    if (!opened.Failure)
        lock_ = opened.Got;
    return opened.Failure != std::errc::device_or_resource_busy;
}

// Removed before it is let go: whoever waits for the lock finds that the file is not the one of that name.
void OpenMarker::Release() {
    if (!lock_)
        return;
    (void)files_.Remove(marker_); // one that stays is taken over by the next window
    (void)files_.Close(std::exchange(lock_, {}));
}

} // namespace orvane
