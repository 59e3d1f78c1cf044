// SPDX-License-Identifier: GPL-3.0-or-later
#include "welcome/ui/Greeting.h"

#include "core/ProgramVersion.h"
#include "kit/Logo.h"
#include "kit/OpenInDesktop.h"
#include "kit/WebAddresses.h"
#include "welcome/UpdatePage.h"
#include "welcome/ui/UpdateCheck.h"
#include "welcome/ui/frmSplash.h"

#include <QEvent>
#include <QMessageBox>
#include <QTimer>

#include <functional>
#include <utility>

namespace orvane {

namespace {

constexpr int kLogoSize = 128; // pixels

// Does something once, as soon as the window has been painted.
class OncePainted : public QObject {
  public:
    OncePainted(QWidget* window, std::function<void()> act) : QObject(window), act_(std::move(act)) {
        window->installEventFilter(this);
        window->update();
    }

    bool eventFilter(QObject* window, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            window->removeEventFilter(this);
            QTimer::singleShot(0, window, act_); // the rest of the window is painted in this turn
            deleteLater();
        }
        return false;
    }

  private:
    std::function<void()> act_;
};

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
    new OncePainted(window, [window] {
        auto* splash = new frmSplash(Logo().pixmap(kLogoSize), window);
        splash->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(splash, &frmSplash::HomePageRequested, splash, [] { OpenInDesktop(HomePage()); });
        splash->show();
    });
}

void CheckForUpdate(QWidget* window) {
    auto* check = new UpdateCheck(window);
    check->setObjectName(QStringLiteral("Inet1"));
    QObject::connect(check, &UpdateCheck::NewerVersionFound, window,
                     [window](const std::string& latestVersion) { OfferUpdate(window, latestVersion); });
    check->Start(DownloadPage());
}

} // namespace orvane
