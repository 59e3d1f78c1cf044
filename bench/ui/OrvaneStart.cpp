// SPDX-License-Identifier: GPL-3.0-or-later
// Starts as `orvane` does and ends when its main window is painted.
#include "app/frmTable.h"
#include "kit/CommandLine.h"
#include "kit/Logo.h"
#include "ui/FirstPaint.h"

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Orvane"));
    QApplication::setWindowIcon(orvane::WindowIcon());
    orvane::frmTable window;
    const orvane::EndAtFirstPaint end(window);
    window.show();
    window.Start(orvane::ParseCommandLine(QApplication::arguments().mid(1)));
    return QApplication::exec();
}
