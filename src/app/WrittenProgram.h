// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/Change.h"

namespace orvane {

class Session;
class TableStatusBar;

// Tells in the status bar that the program beside the document was written, whenever it was: also when a
// dialog that was cancelled has asked for it.
class WrittenProgram final : public SessionObserver {
  public:
    // Both outlive this.
    WrittenProgram(Session& session, TableStatusBar& status);

    void Told(const Change& change) override;

  private:
    const Session& session_;
    TableStatusBar& status_;
};

} // namespace orvane
