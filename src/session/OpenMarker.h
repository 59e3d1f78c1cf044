// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileSystem.h"

#include <optional>

namespace orvane {

// Says to other windows, those of other processes included, that a document is open here: an empty file in
// the recovery folder, named after the document's path and locked as long as the window has the document
// open. A process that ends, however it ends, leaves no lock.
class OpenMarker {
  public:
    // Without a folder nobody is told, nor is anybody heard of.
    OpenMarker(FileSystem& files, std::optional<FileSystem::Path> folder);
    OpenMarker(const OpenMarker&) = delete;
    OpenMarker& operator=(const OpenMarker&) = delete;
    ~OpenMarker() { Release(); }

    // Marks the document as open, in the place of the one before. False when another window has marked it.
    bool Take(const FileSystem::Path& document);
    // No document with a file is open here any more.
    void Release();

  private:
    FileSystem& files_;
    std::optional<FileSystem::Path> folder_;
    FileSystem::Path marker_; // of the document that was asked for last
    FileHandle lock_;
};

} // namespace orvane
