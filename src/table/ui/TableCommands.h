// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace orvane {

class Session;
enum class Command : unsigned char;

// The commands that move, copy and paste whole pieces of the table, on the cell that was pressed last, and
// those of the Preferences menu.
class TableCommands {
  public:
    // Both outlive this; questions are asked over the window.
    TableCommands(Session& session, QWidget& window) : session_(session), window_(window) {}

    // Any other command does nothing.
    void Run(Command command);

  private:
    template <typename Row>
    void Edit(const Row& edit);
    bool IsWanted(Command command);

    Session& session_;
    QWidget& window_;
};

} // namespace orvane
