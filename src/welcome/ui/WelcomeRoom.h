// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Room.h"

namespace orvane {

// What greets the user and tells him about the program: the splash window, the offer of a newer version, the
// help pages.
class WelcomeRoom : public Room {
    Q_OBJECT

  public:
    explicit WelcomeRoom(const RoomPlace& place);

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    bool Listens() const override { return false; }
    void Told(const Change&) override {}
    void Start(const CommandLine& commandLine) override;

  private:
    void ShowSplash();
    void CheckForUpdate();
    void ShowHelp();
    void ShowAbout();

    QMainWindow& window_;
};

} // namespace orvane
