// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/ui/kill/Drawer.h"

#include "core/TightPacked.h"
#include "kit/CommandLine.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <stdexcept>

namespace orvane {

void Drawer::DrawOn(const QString& document) {
    Start({document});
    Draw();
}

void Drawer::DrawOnRecovered() {
    Start({QStringLiteral("/nosplash")});
    const auto offer = [this] { return window_.findChild<QWidget*>(QStringLiteral("frmRecovery")); };
    if (!QTest::qWaitFor([&] { return offer() != nullptr && offer()->isVisible(); }))
        throw std::runtime_error("nothing is offered for recovery");
    offer()->findChild<QPushButton*>(QStringLiteral("cmdRecover"))->click();
    Draw();
}

void Drawer::Start(const QStringList& arguments) {
    window_.show();
    window_.Start(ParseCommandLine(arguments));
    QApplication::processEvents();
}

void Drawer::Draw() {
    while (true) {
        DoSomething();
        QApplication::processEvents();
    }
}

void Drawer::Tell(Doing next) { Send(pipe_, {next, Pack(window_.Place().Open.Document())}); }

void Drawer::DoSomething() {
    const int choice = Number(0, 19);
    if (choice < 11) {
        Tell(Doing::Drawing);
        TypeTarget();
    } else if (choice < 12) {
        Tell(Doing::Drawing);
        InsertState();
    } else if (choice < 15) {
        Tell(Doing::Undoing);
        Trigger("mnuUndo");
    } else if (choice < 17) {
        Tell(Doing::Redoing);
        Trigger("mnuRedo");
    } else if (choice < 18) {
        Tell(Doing::Drawing);
        Trigger("mnuPolytask");
    } else {
        Save();
    }
}

// A window that was killed between the save and its record asks the one after it whether the file may be
// replaced.
void Drawer::Save() {
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Yes)->click();
    });
    answer.start(5);
    Tell(Doing::Saving);
    Trigger("mnuFSave");
}

void Drawer::TypeTarget() {
    PressCell(Number(6, 7), Number(1, 6));
    auto* editor = window_.findChild<QLineEdit*>(QStringLiteral("txtCellEdit"));
    QTest::keyClicks(editor, QString::number(Number(1, 100)));
    QTest::keyClick(editor, Qt::Key_Return);
}

void Drawer::InsertState() {
    PressCell(6, Number(1, 6));
    Trigger("mnuInsertState");
}

bool Drawer::Trigger(const char* item) {
    auto* action = window_.findChild<QAction*>(QLatin1String(item));
    if (!action->isEnabled())
        return false;
    action->trigger();
    return true;
}

void Drawer::PressCell(int row, int column) {
    QRect rect;
    QMetaObject::invokeMethod(&Grid(), "CellRect", Q_RETURN_ARG(QRect, rect), Q_ARG(int, row),
                              Q_ARG(int, column));
    QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, rect.center());
}

QTableView& Drawer::Grid() { return *window_.findChild<QTableView*>(QStringLiteral("MSFlexGrid1")); }

} // namespace orvane
