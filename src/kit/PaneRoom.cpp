// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/PaneRoom.h"

#include "kit/Pane.h"
#include "kit/Settings.h"

#include <QMainWindow>

#include <algorithm>

namespace orvane {

namespace {

QString SizeKey(const Pane& pane) { return QStringLiteral("PaneSizes/") + pane.objectName(); }

} // namespace

PaneRoom::PaneRoom(QMainWindow& window, Command toggle, Qt::DockWidgetArea side)
    : window_(window), toggle_(toggle), side_(side) {}

void PaneRoom::Toggle() {
    if (IsShown())
        pane_->close();
    else
        Open();
}

void PaneRoom::Open() {
    ShowPane();
    pane_->TakeFocus();
}

void PaneRoom::ShowPane() {
    if (IsShown())
        return;
    if (pane_ == nullptr)
        Place();
    pane_->show();
    pane_->raise();
}

// It is known to be shown when the window says so, not when it was asked to.
void PaneRoom::Place() {
    pane_ = MakePane();
    pane_->hide();
    window_.addDockWidget(side_, pane_);
    const int wanted = Settings().value(SizeKey(*pane_), FirstSize()).toInt();
    const bool isBeside = side_ == Qt::RightDockWidgetArea;
    const int most = (isBeside ? window_.width() : window_.height()) * 2 / 3; // some of the table is left
    if (wanted > 0)
        window_.resizeDocks({pane_}, {std::min(wanted, most)}, isBeside ? Qt::Horizontal : Qt::Vertical);
    connect(pane_, &QDockWidget::visibilityChanged, this, &PaneRoom::Follow);
}

// Panes are hidden with their window, too.
void PaneRoom::Follow(bool shown) {
    if (shown == isShown_)
        return;
    if (!shown) {
        RememberSize();
        Hiding();
    }
    isShown_ = shown;
    Q_EMIT PaneTurned(toggle_, shown);
    if (shown)
        Shown();
}

int PaneRoom::FirstSize() const {
    constexpr int percentBelow = 30; // of the window's height
    return side_ == Qt::BottomDockWidgetArea ? window_.height() * percentBelow / 100 : 0;
}

int PaneRoom::Size() const { return side_ == Qt::RightDockWidgetArea ? pane_->width() : pane_->height(); }

// Where the user has put it elsewhere, its size there says nothing about this side.
void PaneRoom::RememberSize() const {
    if (pane_->isFloating() || window_.dockWidgetArea(pane_) != side_)
        return;
    Settings settings;
    if (settings.value(SizeKey(*pane_)).toInt() != Size()) // writing the settings waits for the disk
        settings.setValue(SizeKey(*pane_), Size());
}

} // namespace orvane
