// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Remembered.h"

#include "app/OnScreen.h"
#include "kit/Settings.h"

#include <QScreen>
#include <QWidget>

namespace orvane {

namespace {

constexpr int kMostFiles = 9;

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

} // namespace orvane
