// SPDX-License-Identifier: GPL-3.0-or-later
#include "aids/ui/OpenInDesktop.h"

#include "aids/HelpPage.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QShortcut>
#include <QWidget>

namespace orvane {

namespace {

// An installed program has its pages beside itself, one that was just built takes those of the sources.
QString HelpFolder() {
    const QDir program(QCoreApplication::applicationDirPath());
    for (const QString& folder : {QStringLiteral("docs/help"), QStringLiteral("../share/orvane/help")})
        if (program.exists(folder))
            return QDir::cleanPath(program.absoluteFilePath(folder));
    return QStringLiteral(ORVANE_HELP_FOLDER);
}

} // namespace

bool OpenInDesktop(const QUrl& address) { return QDesktopServices::openUrl(address); }

QUrl HelpPage(int page) {
    const QString onTheWeb = qEnvironmentVariable("ORVANE_HELP_URL", QStringLiteral(ORVANE_HELP_URL));
    if (!onTheWeb.isEmpty())
        return QUrl(QString::fromStdString(HelpPageAddress(onTheWeb.toStdString(), page)));
    const std::string folder = HelpFolder().toStdString() + "/";
    return QUrl::fromLocalFile(QString::fromStdString(HelpPageAddress(folder, page)));
}

bool OpenHelpPage(int page) { return OpenInDesktop(HelpPage(page)); }

void AddHelpKey(QWidget& window, int page) {
    auto* key = new QShortcut(QKeySequence(Qt::Key_F1), &window);
    QObject::connect(key, &QShortcut::activated, &window, [page] { OpenHelpPage(page); });
}

} // namespace orvane
