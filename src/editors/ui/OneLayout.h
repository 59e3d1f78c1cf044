// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

class QLayout;
class QScrollArea;

namespace orvane {

// Holds the layouts inside an area still while parts of it come and go, and lays out once when it ends: the
// inner ones say first what they need, then the outer ones give them their places.
//
// Left to itself Qt lays out at each part that comes or goes, and again in several turns of the event loop,
// because an outer layout hears of an inner one by an event. Everything that moves there and back in between
// is painted twice, and the user sees it jump.
class OneLayout {
  public:
    explicit OneLayout(QScrollArea& area);
    ~OneLayout();
    OneLayout(const OneLayout&) = delete;
    OneLayout& operator=(const OneLayout&) = delete;

  private:
    void Enable(bool enabled) const;

    QScrollArea& area_;
    QList<QLayout*> layouts_; // an outer one before those inside it
};

} // namespace orvane
