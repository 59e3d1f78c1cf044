// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RecentFiles.h"

#include "app/Remembered.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>

namespace orvane {

namespace {

// A digit to press in front of the name; what the name has of the mark for such keys is doubled.
QString Caption(int number, const QString& path) {
    const QString shown = QDir::toNativeSeparators(path);
    return QStringLiteral("&%1 %2").arg(number).arg(
        QString(shown).replace(QLatin1Char('&'), QStringLiteral("&&")));
}

} // namespace

RecentFiles::RecentFiles(QMenu& parent, QMenu& menu, QObject* owner) : QObject(owner), menu_(menu) {
    connect(&parent, &QMenu::aboutToShow, this, &RecentFiles::Fill);
}

// A document that is away, on a drive that is not there now, comes back with it.
void RecentFiles::Fill() {
    menu_.clear();
    int number = 0;
    for (const QString& path : RememberedFiles()) {
        if (!QFileInfo::exists(path))
            continue;
        QAction* item = menu_.addAction(Caption(++number, path));
        connect(item, &QAction::triggered, this, [this, path] { Q_EMIT OpenWanted(path); });
    }
    menu_.setEnabled(number > 0);
}

} // namespace orvane
