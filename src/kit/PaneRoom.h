// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Room.h"

namespace orvane {

class Pane;

// A room that is a pane beside the table. One command shows and closes it. It is made when it is first
// wanted; until then, and while it is hidden, the room costs nothing. How large the user has made it is
// remembered.
class PaneRoom : public Room {
    Q_OBJECT

  public:
    bool Listens() const override { return IsShown(); }

  protected:
    PaneRoom(QMainWindow& window, Command toggle, Qt::DockWidgetArea side);

    bool IsShown() const { return isShown_; }
    // Shows the pane and gives it the focus, or closes it.
    void Toggle();
    // Shows the pane in front of others, with the focus in it or where the focus was.
    void Open();
    void ShowPane();

    virtual Pane* MakePane() = 0;
    // How large a new pane is across, in pixels; 0 is as large as its fields want to be. Below the table it
    // is a few lines, because lists want half of the window.
    virtual int FirstSize() const;
    // The pane is to be seen from now on and may show what has been changed long ago.
    virtual void Shown() = 0;
    // It is about to be hidden, also by the user's pressing its own button. The room listens yet.
    virtual void Hiding() = 0;

  private:
    void Place();
    void Follow(bool shown);
    int Size() const;
    void RememberSize() const;

    QMainWindow& window_;
    Command toggle_;
    Qt::DockWidgetArea side_;
    Pane* pane_ = nullptr; // belongs to the window
    bool isShown_ = false;
};

} // namespace orvane
