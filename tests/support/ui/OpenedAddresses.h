// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

namespace orvane {

// Stands in for the desktop: what the program has opened is kept here, and is told to have worked.
class OpenedAddresses : public QObject {
    Q_OBJECT

  public:
    OpenedAddresses() {
        for (const QString& scheme : schemes_)
            QDesktopServices::setUrlHandler(scheme, this, "Open");
    }
    ~OpenedAddresses() override {
        for (const QString& scheme : schemes_)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QList<QUrl> Addresses;

  public Q_SLOTS:
    void Open(const QUrl& address) { Addresses += address; }

  private:
    const QStringList schemes_{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("file")};
};

} // namespace orvane
