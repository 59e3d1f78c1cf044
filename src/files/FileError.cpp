// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/FileError.h"

#include <cerrno>

namespace orvane {

namespace {

std::string_view WhatItIs(FileKind kind) {
    switch (kind) {
    case FileKind::Folder:
        return "It is a folder";
    case FileKind::Pipe:
        return "It is a pipe, not a file";
    case FileKind::Device:
        return "It is a device, not a file";
    case FileKind::Socket:
        return "It is a socket, not a file";
    case FileKind::Regular:
        break;
    }
    return "It is a file";
}

std::string_view Forbidden(FileStep step) {
    switch (step) {
    case FileStep::Create:
        return "You may not make files in its folder";
    case FileStep::AskToWrite:
        return "You may not change it: it is write-protected, or it belongs to another user";
    case FileStep::Replace:
#ifdef _WIN32
        return "Another program has it open. Close it there";
#endif
    default:
        return "Permission denied";
    }
}

bool IsQuota([[maybe_unused]] const std::error_code& reason) {
#ifdef EDQUOT
    return reason == std::error_code(EDQUOT, std::generic_category());
#else
    return false;
#endif
}

// None where the system's own words must do.
std::string_view Known(const FileError& error) {
    const std::error_code& reason = error.Reason;
    if (reason == std::errc::no_space_on_device)
        return "The disk is full. Make room on it, or choose another one";
    if (IsQuota(reason))
        return "Your share of the disk is used up. Remove something of yours, or choose another disk";
    if (reason == std::errc::file_too_large && error.Step != FileStep::Read)
        return "The system allows no file as large as that here";
    if (reason == std::errc::read_only_file_system)
        return "The disk can only be read. Choose another one";
    if (reason == std::errc::permission_denied || reason == std::errc::operation_not_permitted)
        return Forbidden(error.Step);
    if (reason == std::errc::no_such_file_or_directory && error.Step == FileStep::Create)
        return "There is no such folder";
    if (reason == std::errc::too_many_symbolic_link_levels)
        return "Its links lead in a circle";
    if (reason == std::errc::filename_too_long)
        return "The name is too long for the disk";
    return {};
}

} // namespace

FileError Refusal(FileKind kind) {
    const bool isFolder = kind == FileKind::Folder;
    return {FileStep::Find, make_error_code(isFolder ? std::errc::is_a_directory : std::errc::not_supported),
            kind};
}

std::string ReasonText(std::error_code reason) {
    if (reason == std::errc::too_many_symbolic_link_levels) // of which the runtime of Windows says nothing
        return "Too many levels of symbolic links";
    return reason.default_error_condition().message();
}

std::string ReasonText(const FileError& error) {
    if (error.Refused && *error.Refused != FileKind::Folder)
        return std::string(WhatItIs(*error.Refused));
    return ReasonText(error.Reason);
}

std::string Sentence(const FileError& error) {
    if (error.Refused)
        return std::string(WhatItIs(*error.Refused));
    const std::string_view known = Known(error);
    std::string sentence = known.empty() ? ReasonText(error) : std::string(known);
    if (error.Step == FileStep::SyncFolder)
        return "It is written, but the disk does not say that it keeps it: " + sentence;
    return sentence;
}

std::string Sentence(FileNote note) {
    switch (note) {
    case FileNote::OtherNames:
        return "The file has other names (hard links): these keep what was there before";
    case FileNote::Owner:
        return "The file belonged to another user and now belongs to you";
    case FileNote::Group:
        return "The file could not be left to its group, which has the rights of everybody now";
    case FileNote::Rights:
        return "The permissions of the file could not be kept: only its owner may open it";
    case FileNote::Attributes:
        return "The access list or extended attributes of the file could not all be kept";
    case FileNote::Unsynced:
        return "The folder cannot be told to wait for the disk: after a power failure the file may be the "
               "old one";
    case FileNote::LeftBehind:
        break;
    }
    return "A temporary file could not be removed from the folder";
}

} // namespace orvane
