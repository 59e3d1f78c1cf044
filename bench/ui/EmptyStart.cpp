// SPDX-License-Identifier: GPL-3.0-or-later
// The least that a Qt program with a main window can do: what Orvane's start is measured beside. With an
// argument the window has a menu of that name: the first text that a program shows makes Qt read the system's
// fonts. With several it has that many menus and a table as large as that of a machine at the limit, filled.
#include "ui/FirstPaint.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QTableWidget>

namespace {

constexpr int kRows = 55;
constexpr int kColumns = 101;

void AddTable(QMainWindow& window) {
    auto* table = new QTableWidget(kRows, kColumns, &window);
    for (int row = 0; row < kRows; ++row) {
        for (int column = 0; column < kColumns; ++column)
            table->setItem(row, column, new QTableWidgetItem(QStringLiteral("%1:State*").arg(column)));
    }
    window.setCentralWidget(table);
}

} // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QMainWindow window;
    const orvane::EndAtFirstPaint end(window);
    for (int menu = 1; menu < argc; ++menu)
        window.menuBar()->addMenu(QString::fromLocal8Bit(argv[menu]))->addAction(QStringLiteral("Item"));
    if (argc > 2)
        AddTable(window);
    window.resize(1100, 700); // as large as Orvane's
    window.show();
    return QApplication::exec();
}
