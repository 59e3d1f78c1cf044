// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/WebAddresses.h"

#include "kit/HelpPage.h"

#include <QCoreApplication>
#include <QDir>

namespace orvane {

namespace {

QString Address(const char* variable, const char* builtIn) {
    return qEnvironmentVariable(variable, QString::fromUtf8(builtIn));
}

// An installed program has its pages beside itself, one that was just built takes those of the sources.
QString HelpFolder() {
    const QDir program(QCoreApplication::applicationDirPath());
    for (const QString& folder : {QStringLiteral("docs/help"), QStringLiteral("../share/orvane/help")})
        if (program.exists(folder))
            return QDir::cleanPath(program.absoluteFilePath(folder));
    return QStringLiteral(ORVANE_HELP_FOLDER);
}

} // namespace

QUrl DownloadPage() { return QUrl(Address("ORVANE_DOWNLOAD_URL", ORVANE_DOWNLOAD_URL)); }

QUrl HomePage() { return QUrl(Address("ORVANE_HOME_URL", ORVANE_HOME_URL)); }

QUrl HelpStart() {
    const QString onTheWeb = Address("ORVANE_HELP_URL", ORVANE_HELP_URL);
    return onTheWeb.isEmpty() ? QUrl::fromLocalFile(HelpFolder() + QStringLiteral("/index.htm"))
                              : QUrl(onTheWeb);
}

QUrl HelpPage(int page) {
    const QString onTheWeb = Address("ORVANE_HELP_URL", ORVANE_HELP_URL);
    if (!onTheWeb.isEmpty())
        return QUrl(QString::fromStdString(HelpPageAddress(onTheWeb.toStdString(), page)));
    const std::string folder = HelpFolder().toStdString() + "/";
    return QUrl::fromLocalFile(QString::fromStdString(HelpPageAddress(folder, page)));
}

} // namespace orvane
