// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/HelpMenu.h"

#include "app/Remembered.h"
#include "core/ProgramVersion.h"
#include "kit/Logo.h"
#include "kit/OpenInDesktop.h"
#include "kit/UserMessageBox.h"
#include "kit/WebAddresses.h"

#include <QDir>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

namespace orvane {

namespace {

// A digit to press in front of the name; what the name has of the mark for such keys is doubled.
QString Caption(int number, const QString& path) {
    const QString shown = QDir::toNativeSeparators(path);
    return QStringLiteral("&%1 %2").arg(number).arg(
        QString(shown).replace(QLatin1Char('&'), QStringLiteral("&&")));
}

} // namespace

HelpMenu::HelpMenu(QMainWindow* window) : QObject(window), window_(window) {
    QMenu* menu = window->menuBar()->addMenu(tr("Help"));
    menu->setObjectName(QStringLiteral("mnuHelp"));
    const auto add = [this, menu](const char* name, const QString& caption, void (HelpMenu::*command)()) {
        QAction* item = menu->addAction(caption);
        item->setObjectName(QLatin1String(name));
        connect(item, &QAction::triggered, this, command);
    };
    add("mnuHelpPages", tr("Help pages"), &HelpMenu::ShowHelp);
    mnuRecent = menu->addMenu(tr("Recent files"));
    mnuRecent->setObjectName(QStringLiteral("mnuRecent"));
    connect(menu, &QMenu::aboutToShow, this, &HelpMenu::FillRecent);
    menu->addSeparator();
    add("mnuAbout", tr("About Orvane"), &HelpMenu::ShowAbout);
}

// A document that is away, on a drive that is not there now, comes back with it.
void HelpMenu::FillRecent() {
    mnuRecent->clear();
    int number = 0;
    for (const QString& path : RememberedFiles()) {
        if (!QFileInfo::exists(path))
            continue;
        QAction* item = mnuRecent->addAction(Caption(++number, path));
        connect(item, &QAction::triggered, this, [this, path] { Q_EMIT OpenWanted(path); });
    }
    mnuRecent->setEnabled(number > 0);
}

void HelpMenu::ShowHelp() {
    const QUrl page = HelpStart();
    if (!OpenInDesktop(page))
        Tell(window_, tr("The help pages could not be opened. They are at\r\n%1").arg(ShownAddress(page)));
}

void HelpMenu::ShowAbout() {
    QMessageBox box(QMessageBox::NoIcon, tr("About Orvane"),
                    tr("Orvane %1\n\nState machines for Zorlan controllers, designed as tables.")
                        .arg(QString::fromStdString(ProgramVersion())),
                    QMessageBox::Ok, window_);
    box.setInformativeText(tr("Free software under the GNU General Public License, version 3 or later. "
                              "It comes without any warranty, to the extent permitted by law."));
    box.setIconPixmap(Logo().pixmap(64, 64));
    box.exec();
}

} // namespace orvane
