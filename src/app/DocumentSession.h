// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "core/TightPacked.h"
#include "table/UndoRing.h"

#include <QString>

namespace orvane {

// The open document with its history and its file.
struct DocumentSession {
    FsmDocument Document;
    UndoRing Undo;
    QString CurrentFileName; // full path; empty for a document without a file

    bool IsModified() const { return Undo.IsModified(); }

    // The document as it stands begins its history and counts as saved.
    void ResetUndoRing() { Undo.Reset(Pack(Document)); }
};

} // namespace orvane
