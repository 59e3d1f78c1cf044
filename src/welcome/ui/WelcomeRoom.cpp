// SPDX-License-Identifier: GPL-3.0-or-later
#include "welcome/ui/WelcomeRoom.h"

#include "core/ProgramVersion.h"
#include "kit/CommandLine.h"
#include "kit/Logo.h"
#include "kit/OpenInDesktop.h"
#include "kit/Trace.h"
#include "kit/UserMessageBox.h"
#include "kit/WebAddresses.h"
#include "kit/WhenIdle.h"
#include "session/Change.h"
#include "session/Commands.h"
#include "welcome/UpdatePage.h"
#include "welcome/ui/UpdateCheck.h"
#include "welcome/ui/frmSplash.h"

#include <QEvent>
#include <QMainWindow>
#include <QMessageBox>
#include <QTimer>

namespace orvane {

namespace {

constexpr int kSplashLogo = 128; // pixels
constexpr int kAboutLogo = 64;

// Does something once, as soon as the window has been painted.
template <typename Act>
class OncePainted : public QObject {
  public:
    OncePainted(QWidget* window, Act act) : QObject(window), act_(std::move(act)) {
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
    Act act_;
};

void OfferUpdate(QWidget* window, const std::string& latestVersion) {
    if (Ask(window, {QStringLiteral("Update available"),
                     QString::fromStdString(UpdateQuestion(ProgramVersion(), latestVersion)),
                     QMessageBox::Information, QMessageBox::No}))
        OpenInDesktop(DownloadPage());
}

} // namespace

WelcomeRoom::WelcomeRoom(const RoomPlace& place) : window_(place.Window) {}

std::span<const Command> WelcomeRoom::Commands() const {
    static constexpr auto commands = std::to_array<Command>({Command::HelpPages, Command::About});
    return commands;
}

void WelcomeRoom::Run(Command command) {
    if (command == Command::HelpPages)
        ShowHelp();
    else
        ShowAbout();
}

ObserverRank WelcomeRoom::Rank() const { return ObserverRank::Rooms; }

// The labels mark how far the start has come: the document is there (nothing, a), title and name show it (b),
// the page with the latest version has been asked for (c), the program waits for the user (d).
void WelcomeRoom::Start(const CommandLine& commandLine) {
    if (commandLine.DocumentPath.isEmpty() && !commandLine.NoSplash)
        ShowSplash();
    for (const char* label : {"", "a", "b"})
        Trace(label);
    CheckForUpdate();
    for (const char* label : {"c", "d"})
        Trace(label);
}

void WelcomeRoom::ShowSplash() {
    new OncePainted(&window_, [window = &window_] {
        auto* splash = new frmSplash(Logo().pixmap(kSplashLogo), window);
        splash->setAttribute(Qt::WA_DeleteOnClose);
        connect(splash, &frmSplash::HomePageRequested, splash, [] { OpenInDesktop(HomePage()); });
        splash->show();
    });
}

void WelcomeRoom::CheckForUpdate() {
    auto* check = new UpdateCheck(&window_);
    check->setObjectName(QStringLiteral("Inet1"));
    connect(check, &UpdateCheck::NewerVersionFound, this, [this](const std::string& latestVersion) {
        OnceIdle(*this, [this, latestVersion] { OfferUpdate(&window_, latestVersion); });
    });
    check->Start(DownloadPage());
}

void WelcomeRoom::ShowHelp() {
    const QUrl page = HelpStart();
    if (!OpenInDesktop(page))
        Tell(&window_, tr("The help pages could not be opened. They are at\r\n%1").arg(ShownAddress(page)));
}

void WelcomeRoom::ShowAbout() {
    QMessageBox box(QMessageBox::NoIcon, tr("About Orvane"),
                    tr("Orvane %1\n\nState machines for Zorlan controllers, designed as tables.")
                        .arg(QString::fromStdString(ProgramVersion())),
                    QMessageBox::Ok, &window_);
    box.setInformativeText(tr("Free software under the GNU General Public License, version 3 or later. "
                              "It comes without any warranty, to the extent permitted by law."));
    box.setIconPixmap(Logo().pixmap(kAboutLogo, kAboutLogo));
    box.exec();
}

} // namespace orvane
