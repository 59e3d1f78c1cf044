// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/TableDriver.h"

#include "core/DocumentWriter.h"
#include "kit/CommandLine.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>

namespace orvane {

namespace {

const QString kDocumentFile = QStringLiteral("machine.zfsm");
const QString kProgramFile = QStringLiteral("machine.zls");

} // namespace

TableDriver::TableDriver(const FsmDocument& document) {
    QFile file(folder_.filePath(kDocumentFile));
    if (!file.open(QIODevice::WriteOnly))
        throw std::runtime_error("the temporary folder cannot be written to");
    file.write(QByteArray::fromStdString(WriteDocument(document)));
    file.close();
    window_.show();
    Open();
}

void TableDriver::Open() {
    window_.Start({.DocumentPath = folder_.filePath(kDocumentFile), .NoSplash = true});
    QApplication::processEvents();
}

void TableDriver::Trigger(const char* item) {
    if (!Item(item)->isEnabled())
        throw std::runtime_error(std::string(item) + " is disabled");
    Item(item)->trigger();
    QApplication::processEvents();
}

void TableDriver::BeginTarget(int row, int column, const QString& target) {
    Press(row, column, Qt::LeftButton);
    auto& editor = Find<QLineEdit>("txtCellEdit");
    if (!editor.isVisible())
        throw std::runtime_error("the in-place editor did not open");
    for (const QChar digit : target)
        SendKey(editor, digit.unicode(), digit);
    QApplication::processEvents();
}

void TableDriver::CommitTarget() {
    SendKey(Find<QLineEdit>("txtCellEdit"), Qt::Key_Return, QStringLiteral("\r"));
    QApplication::processEvents();
}

// A test that fails in its last line is played up to there.
void TableDriver::PlaySteps(int steps) {
    QFile file(folder_.filePath(QStringLiteral("machine.ztest")));
    if (!file.open(QIODevice::WriteOnly))
        throw std::runtime_error("the tests cannot be written");
    file.write("test many steps\n");
    for (int step = 0; step < steps; ++step)
        file.write(step % 2 == 0 ? "pulse #6\n" : "+5 pulse #7\n");
    file.write("+1 => #1 runs \"nothing of the kind\"\n");
    file.close();
    Trigger("mnuRunTests");
    if (Find<QLabel>("lblTests").text().contains(QStringLiteral("1 failed")))
        return;
    throw std::runtime_error("the run was not played: " + Find<QLabel>("lblTests").text().toStdString());
}

void TableDriver::RepaintTable() { Find<QTableView>("MSFlexGrid1").viewport()->repaint(); }

void TableDriver::ShowPane(const char* item, bool shown) {
    if (Item(item)->isChecked() != shown)
        Trigger(item);
}

void TableDriver::StepRight() {
    SendKey(Find<QTableView>("MSFlexGrid1"), Qt::Key_Right, {});
    QApplication::processEvents();
}

void TableDriver::StepLeft() {
    SendKey(Find<QTableView>("MSFlexGrid1"), Qt::Key_Left, {});
    QApplication::processEvents();
}

void TableDriver::ClearFind() {
    ShowPane("mnuViewFind", true);
    Find<QLineEdit>("txtFind").clear();
    QApplication::processEvents();
}

void TableDriver::TypeFind(char letter) {
    SendKey(Find<QLineEdit>("txtFind"), QChar::fromLatin1(letter).toUpper().unicode(),
            QString(QChar::fromLatin1(letter)));
    QApplication::processEvents();
}

void TableDriver::Scroll(bool forward) {
    auto& table = Find<QTableView>("MSFlexGrid1");
    for (QScrollBar* bar : {table.horizontalScrollBar(), table.verticalScrollBar()})
        bar->triggerAction(forward ? QAbstractSlider::SliderPageStepAdd : QAbstractSlider::SliderPageStepSub);
    QApplication::processEvents();
}

void TableDriver::PressForMenu(int row, int column) {
    Press(row, column, Qt::RightButton);
    QWidget* popup = QApplication::activePopupWidget();
    if (popup == nullptr)
        throw std::runtime_error("no menu came up");
    popup->close();
    QApplication::processEvents();
}

void TableDriver::UseGeneralCodeEditor(const std::function<void()>& use) {
    QTimer::singleShot(0, &window_, [this, use] {
        QApplication::processEvents();
        use();
        QApplication::activeModalWidget()->findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
    });
    Trigger("mnuGeneralCode");
}

void TableDriver::TypeLetter(const char* pane) {
    SendKey(Find<QWidget>(pane), Qt::Key_X, QStringLiteral("x"));
    QApplication::processEvents();
}

void TableDriver::KeepJournal(bool keep) {
    if (window_.findChild<QCheckBox*>(QStringLiteral("chkKeepJournal")) == nullptr) {
        Trigger("mnuFRecover");
        Find<QWidget>("frmRecovery").hide();
    }
    auto& box = Find<QCheckBox>("chkKeepJournal");
    if (box.isChecked() != keep)
        box.click();
    QApplication::processEvents();
}

qint64 TableDriver::ProgramSize() const { return QFileInfo(folder_.filePath(kProgramFile)).size(); }

void TableDriver::Press(int row, int column, Qt::MouseButton button) {
    auto& grid = Find<QTableView>("MSFlexGrid1");
    QRect cell;
    QMetaObject::invokeMethod(&grid, "CellRect", Q_RETURN_ARG(QRect, cell), Q_ARG(int, row),
                              Q_ARG(int, column));
    const QPointF place = cell.center();
    const QPointF global = grid.viewport()->mapToGlobal(place);
    QMouseEvent press(QEvent::MouseButtonPress, place, global, button, button, {});
    QApplication::sendEvent(grid.viewport(), &press);
    QMouseEvent release(QEvent::MouseButtonRelease, place, global, button, {}, {});
    QApplication::sendEvent(grid.viewport(), &release);
    QApplication::processEvents();
}

void SendKey(QWidget& widget, int key, const QString& text) {
    QKeyEvent press(QEvent::KeyPress, key, {}, text);
    QApplication::sendEvent(&widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, {}, text);
    QApplication::sendEvent(&widget, &release);
}

} // namespace orvane
