// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileSystem.h"
#include "session/JournalReader.h"

namespace orvane {

// A window that is killed between a save and its record leaves a file that its journal has not heard of: it
// would be taken for another program's work. The bytes tell: those that a save of the recovered document
// writes. Returns whether the file has them, and then the journal knows of the save.
bool TakeOwnSave(FileSystem& files, RecoveredJournal& journal);

} // namespace orvane
