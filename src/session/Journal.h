// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/Change.h"
#include "session/DraftPace.h"
#include "session/JournalWriter.h"
#include "session/RecoveryFolder.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane {

class Session;

// Keeps a journal of what happens in a session, so that however the program ends nothing drawn is lost but
// the last letters in an open editor. It is told of a change before what writes the program or asks the user.
class Journal final : public SessionObserver, private JournalSource {
  public:
    // The session outlives this and tells it from now on.
    Journal(Session& session, JournalPlace place);

    void Told(const Change& change) override;

    // When what is typed in open editors is to be written next; none while nothing waits. Whoever has a timer
    // asks after each Told, and calls WriteDrafts when the moment is there.
    std::optional<DraftPace::Clock::time_point> DraftsDue() const { return pace_.Due(); }
    void WriteDrafts();

    // Recovered work takes the place of the document, with its history; what was typed in open editors
    // becomes one more step each, and the builder's script waits in the session. From the first moment on
    // this journal holds all of it: until then the recovered one does.
    void GoOnWith(AdoptedJournal recovered);

    // Whether a journal is kept at all. Who wants none leaves none behind: what was written so far goes.
    void Keep(bool keep);
    bool Keeps() const { return keeps_; }

    // Waits until the disk has everything.
    void SyncNow() { writer_.SyncNow(); }
    // A line for the status bar, once each time: that the journal cannot be written, or can be again.
    std::optional<std::string> TakeMessage() { return writer_.TakeMessage(); }

  private:
    JournalState State() const override;
    std::string DocumentText() const override;
    void Write(const Change& change);
    void Close(const Change& change);
    void WriteView();

    Session& session_;
    JournalWriter writer_;
    DraftPace pace_;
    std::vector<JournalDraft> drafts_; // as they were last written
    JournalView view_;                 // likewise
    bool keeps_ = true;
};

} // namespace orvane
