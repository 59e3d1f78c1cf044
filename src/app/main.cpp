// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"
#include "app/Ending.h"
#include "app/OnScreen.h"
#include "app/Remembered.h"
#include "app/frmTable.h"
#include "files/NativeFiles.h"
#include "kit/CommandLine.h"
#include "kit/Logo.h"

int main(int argc, char* argv[]) {
    orvane::OutliveFileSizeLimit();
    const orvane::Application application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Orvane"));
    QApplication::setWindowIcon(orvane::WindowIcon());
    QGuiApplication::setDesktopFileName(QStringLiteral("org.orvane.Orvane"));
    const orvane::OnScreen onScreen;
    orvane::frmTable window;
    const orvane::Ending ending(window);
    orvane::RestorePlace(window);
    QObject::connect(&window, &orvane::frmTable::Closed, &application, [&window] {
        orvane::RememberPlace(window);
        QApplication::exit();
    });
    window.show();
    window.Start(orvane::ParseCommandLine(QApplication::arguments().mid(1)));
    return QApplication::exec();
}
