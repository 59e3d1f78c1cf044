// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"
#include "app/Logo.h"
#include "app/frmTable.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Orvane"));
    QApplication::setWindowIcon(orvane::Logo());
    orvane::frmTable window;
    QObject::connect(&window, &orvane::frmTable::Closed, &application, [] { QApplication::exit(); });
    window.show();
    window.Start(orvane::ParseCommandLine(QApplication::arguments().mid(1)));
    return QApplication::exec();
}
