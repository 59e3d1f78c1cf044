// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/OwnSave.h"

#include "core/DocumentReader.h"
#include "core/DocumentWriter.h"
#include "files/FileReader.h"
#include "text/Sha256.h"

namespace orvane {

// No step follows such a save, so the present image is the saved one.
bool TakeOwnSave(FileSystem& files, RecoveredJournal& journal) {
    if (journal.Head.Path.empty() || journal.History.empty())
        return false;
    const std::string& name = journal.Head.Path;
    const FileContent file = ReadFile(files, std::u8string(name.begin(), name.end()), kLargestDocument);
    if (!file || file.Bytes() != WriteDocument(journal.Document))
        return false;
    journal.Head.Stamp = {file.Stamp.Size, file.Stamp.Changed, Sha256(file.Bytes())};
    journal.SavedImage = journal.History[journal.Current].Image;
    journal.Changes = 0;
    return true;
}

} // namespace orvane
