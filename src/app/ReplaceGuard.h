// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace orvane {

class Session;

enum class ReplaceAnswer { Save, SaveElsewhere, Nothing };

struct ReplaceDecision {
    ReplaceAnswer Answer = ReplaceAnswer::Save;
    QString Copy; // of what was there and is about to be replaced; empty without
};

// Asks before a save replaces what another program has made of the document's file since this window read or
// wrote it. What is replaced is kept in the recovery folder first; where that fails, nothing is saved, and
// the user has been told.
ReplaceDecision MayReplaceFile(QWidget* window, const Session& session, const QString& path);

} // namespace orvane
