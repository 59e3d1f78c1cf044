// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/KnownFile.h"

#include "core/DocumentReader.h"
#include "files/FileReader.h"

namespace orvane {

Result<KnownFile> LookAgain(FileSystem& files, const FileSystem::Path& path, const KnownFile& last) {
    const Result<FileFacts> facts = files.Look(path);
    if (facts.Failure)
        return {{}, facts.Failure};
    if (StampOf(facts.Got) == last.Stamp)
        return {last, {}};
    const FileContent file = ReadFile(files, path, kLargestDocument);
    if (file.Failure)
        return {{},
                file.Failure->Refused ? make_error_code(std::errc::no_such_file_or_directory)
                                      : file.Failure->Reason};
    return {{file.Stamp, Sha256(file.Bytes())}, {}};
}

} // namespace orvane
