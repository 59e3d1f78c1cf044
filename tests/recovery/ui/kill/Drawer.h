// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/frmTable.h"
#include "recovery/ui/kill/Reports.h"

#include <QString>

#include <random>

class QTableView;

namespace orvane {

// Somebody who draws at random in the real main window, by mouse and keys, until the process is killed.
class Drawer {
  public:
    Drawer(unsigned seed, int pipe) : random_(seed), pipe_(pipe) {}

    // Opens the document, or what is offered to be recovered, and draws.
    [[noreturn]] void DrawOn(const QString& document);
    [[noreturn]] void DrawOnRecovered();

  private:
    [[noreturn]] void Draw();
    void Start(const QStringList& arguments);
    void Tell(Doing next);
    void DoSomething();
    void Save();
    void TypeTarget();
    void InsertState();
    bool Trigger(const char* item);
    void PressCell(int row, int column);
    int Number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random_); }
    QTableView& Grid();

    std::mt19937 random_;
    int pipe_;
    frmTable window_;
};

} // namespace orvane
