// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Remembered.h"

#include <QSettings>
#include <QWidget>

namespace orvane {

namespace {

constexpr int kMostFiles = 9;

// A file of its own under the user's settings, also on Windows: nothing is left behind in a registry.
class Settings : public QSettings {
  public:
    Settings()
        : QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Orvane"),
                    QStringLiteral("orvane")) {}
};

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

void RestorePlace(QWidget& window) { window.restoreGeometry(Settings().value(PlaceKey()).toByteArray()); }

} // namespace orvane
