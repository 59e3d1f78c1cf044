// SPDX-License-Identifier: GPL-3.0-or-later
// The least that a Qt program with a main window can do: what Orvane's start is measured beside. With an
// argument the window has a menu of that name: the first text that a program shows makes Qt read the system's
// fonts.
#include "ui/FirstPaint.h"

#include <QMainWindow>
#include <QMenuBar>

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QMainWindow window;
    const orvane::EndAtFirstPaint end(window);
    if (argc > 1)
        window.menuBar()->addMenu(QString::fromLocal8Bit(argv[1]));
    window.resize(1100, 700); // as large as Orvane's
    window.show();
    return QApplication::exec();
}
