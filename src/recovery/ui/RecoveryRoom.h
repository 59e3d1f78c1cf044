// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/NativeFiles.h"
#include "kit/Room.h"
#include "session/Journal.h"

#include <QTimer>

#include <optional>

namespace orvane {

// Keeps the journal of what is drawn in this window.
class RecoveryRoom : public Room {
    Q_OBJECT

  public:
    explicit RecoveryRoom(const RoomPlace& place);

    ObserverRank Rank() const override;
    bool Listens() const override { return journal_.has_value(); }
    void Told(const Change& change) override;

  private:
    void WaitForDrafts();

    NativeFiles files_;
    std::optional<Journal> journal_; // none where there is no place for it
    QTimer draftsDue_;
};

} // namespace orvane
