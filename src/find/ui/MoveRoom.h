// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/MovePlan.h"
#include "kit/Room.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace orvane {

// Gives states and events other places, with all that leads to them.
class MoveRoom : public Room {
    Q_OBJECT

  public:
    explicit MoveRoom(const RoomPlace& place);

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    bool Listens() const override { return !made_.empty(); }
    void Told(const Change& change) override;

  private:
    // A move that was made, with the images of the document before and after it. Widths, the current state
    // and the clipboard are in no image: they are moved back with it.
    struct Made {
        std::size_t Before;
        std::size_t After;
        find::TableOrder Order;
    };

    void Ask(Cell what);
    void AddKey(const QKeySequence& key, int rows, int columns);
    void MoveBy(int rows, int columns);
    bool IsAccepted(const find::MovePlan& plan);
    void Make(const find::MovePlan& plan, const std::vector<bool>& labels, std::string_view step);
    void FollowStep(std::size_t before, std::size_t Made::*came, std::size_t Made::*went);
    void FollowOrder(const find::TableOrder& order);
    std::size_t PresentImage() const;

    Session& session_;
    QMainWindow& window_;
    std::vector<Made> made_;
    std::size_t image_ = 0; // of the document after the last change that was told
};

} // namespace orvane
