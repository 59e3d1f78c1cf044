// SPDX-License-Identifier: GPL-3.0-or-later
// The least that a Qt program with a main window can do: what Orvane's start is measured beside.
#include "ui/FirstPaint.h"

#include <QMainWindow>

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QMainWindow window;
    const orvane::EndAtFirstPaint end(window);
    window.resize(1100, 700); // as large as Orvane's
    window.show();
    return QApplication::exec();
}
