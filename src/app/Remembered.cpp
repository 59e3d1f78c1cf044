// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Remembered.h"

#include "kit/Settings.h"

#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace orvane {

namespace {

constexpr int kMostFiles = 9;
constexpr int kTitleBar = 32; // pixels

QString FilesKey() { return QStringLiteral("RecentFiles"); }

QString PlaceKey() { return QStringLiteral("WindowPlace"); }

} // namespace

QStringList RememberedFiles() { return Settings().value(FilesKey()).toStringList(); }

void RememberFile(const QString& path) {
    const QStringList former = RememberedFiles();
    if (former.value(0) == path)
        return; // writing the settings waits for the disk
    QStringList files = former;
    files.removeAll(path);
    files.prepend(path);
    Settings().setValue(FilesKey(), QStringList(files.mid(0, kMostFiles)));
}

void RememberPlace(const QWidget& window) { Settings().setValue(PlaceKey(), window.saveGeometry()); }

void RestorePlace(QWidget& window) {
    window.restoreGeometry(Settings().value(PlaceKey()).toByteArray());
    FitOnScreen(window, window.screen()->availableGeometry());
}

// What surrounds the window is known only when it is shown; a title bar must find room above.
void FitOnScreen(QWidget& window, const QRect& screen) {
    const QRect room = screen.adjusted(0, kTitleBar, 0, 0);
    const QSize size = window.size().boundedTo(room.size());
    if (size != window.size())
        window.resize(size);
    const QPoint corner(std::clamp(window.x(), room.left(), room.right() + 1 - size.width()),
                        std::clamp(window.y(), screen.top(), room.bottom() + 1 - size.height()));
    if (corner != window.pos())
        window.move(corner);
}

} // namespace orvane
