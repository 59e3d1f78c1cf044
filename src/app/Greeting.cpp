// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Greeting.h"

#include "aids/ui/OpenInDesktop.h"
#include "aids/ui/WebAddresses.h"
#include "app/Logo.h"
#include "core/ProgramVersion.h"
#include "core/UpdatePage.h"
#include "core/ui/UpdateCheck.h"
#include "core/ui/frmSplash.h"

#include <QMessageBox>

namespace orvane {

namespace {

constexpr int kLogoSize = 128; // pixels

void OfferUpdate(QWidget* window, const std::string& latestVersion) {
    QMessageBox box(QMessageBox::Information, QStringLiteral("Update available"),
                    QString::fromStdString(UpdateQuestion(ProgramVersion(), latestVersion)),
                    QMessageBox::Yes | QMessageBox::No, window);
    box.setTextFormat(Qt::PlainText);
    if (box.exec() == QMessageBox::Yes)
        OpenInDesktop(DownloadPage());
}

} // namespace

void ShowSplash(QWidget* window) {
    auto* splash = new frmSplash(Logo().pixmap(kLogoSize), window);
    splash->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(splash, &frmSplash::HomePageRequested, splash, [] { OpenInDesktop(HomePage()); });
    splash->show();
}

void CheckForUpdate(QWidget* window) {
    auto* check = new UpdateCheck(window);
    check->setObjectName(QStringLiteral("Inet1"));
    QObject::connect(check, &UpdateCheck::NewerVersionFound, window,
                     [window](const std::string& latestVersion) { OfferUpdate(window, latestVersion); });
    check->Start(DownloadPage());
}

} // namespace orvane
