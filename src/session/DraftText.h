// SPDX-License-Identifier: GPL-3.0-or-later
// Drafts of open editors as the journal keeps them.
#pragma once

#include "session/Draft.h"
#include "session/JournalContent.h"

namespace orvane {

class FsmDocument;

// A whole record is kept as a document with nothing else in it, in the words of the document's writer: so it
// has every field that documents have. Anything less is kept as its text.
JournalDraft JournalDraftOf(const Draft& draft);

// Puts what was typed into the document, as if its editor had been closed with OK. A builder script is in no
// document. A draft that says nothing, or that the document refuses, changes nothing.
void ApplyDraft(const JournalDraft& draft, FsmDocument& document);

// The builder script of a draft; none of another one.
std::optional<std::string> ScriptOf(const JournalDraft& draft);

} // namespace orvane
