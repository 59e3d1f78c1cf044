// SPDX-License-Identifier: GPL-3.0-or-later
// What the user is told about recovered work.
#pragma once

#include "session/RecoveryFolder.h"

#include <QString>

namespace orvane {

// Why a journal could be neither recovered nor discarded.
QString WhyNotTaken(const std::error_code& failure);

// That there is nothing in a journal any more.
QString NothingReadable();

QString NotAllDeleted(std::size_t left, const FileSystem::Path& folder);

// A setting that the next start will not know.
QString NotRemembered();

struct RecoveredNews {
    QString Line; // for the status bar
    QString Loss; // for a box; empty when nothing is lost
};

RecoveredNews NewsOf(const RecoveredJournal& journal);

} // namespace orvane
