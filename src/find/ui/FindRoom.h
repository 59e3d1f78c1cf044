// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/Subject.h"
#include "kit/PaneRoom.h"

#include <optional>
#include <string>

namespace orvane {

class dckFind;

// Finds texts, replaces them, and tells where something is used. The pane is hidden until it is asked for and
// costs nothing then; while it is shown its lists follow every edit.
class FindRoom : public PaneRoom {
    Q_OBJECT

  public:
    explicit FindRoom(const RoomPlace& place);

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    void Told(const Change& change) override;

  protected:
    Pane* MakePane() override;
    void Shown() override;
    void Hiding() override {}

  private:
    void Step(int by);
    void LookAgain();
    void LookForText();
    void LookForUses();
    void ShowUsesOf(const find::Subject& subject);
    void FollowSubject();
    void Replace();
    void GoTo(const TextPiece& piece);

    Session& session_;
    QMainWindow& window_;
    dckFind* pane_ = nullptr;
    std::optional<find::Subject> subject_; // whose uses are listed
    std::string subjectName_;              // as it was listed last; empty when others had it too
};

} // namespace orvane
