// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ui/TableFixture.h"

#include "core/DocumentReader.h"
#include "core/DocumentWriter.h"
#include "kit/CommandLine.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

namespace orvane {

TableFixture::TableFixture() : formerFolder_(QDir::currentPath()) {
    QDir::setCurrent(folder_.path());
    qputenv("APPDATA", folder_.path().toLocal8Bit());
    for (const char* state : {"XDG_STATE_HOME", "LOCALAPPDATA"}) // recovery stays in the folder too
        qputenv(state, folder_.filePath(QStringLiteral("state")).toLocal8Bit());
    qputenv("SOURCE_DATE_EPOCH", "0");
}

TableFixture::~TableFixture() {
    window_.reset();
    QDir::setCurrent(formerFolder_);
}

void TableFixture::Start(const QStringList& arguments) {
    window_ = std::make_unique<frmTable>();
    window_->show();
    window_->Start(ParseCommandLine(arguments));
    QApplication::processEvents();
}

void TableFixture::StartOn(const FsmDocument& document) { StartOnBytes(WriteDocument(document)); }

void TableFixture::StartOnBytes(const std::string& bytes) {
    WriteFile(QStringLiteral("machine.zfsm"), bytes);
    Start({Path(QStringLiteral("machine.zfsm"))});
}

void TableFixture::WriteFile(const QString& name, const std::string& bytes) const {
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(bytes));
}

std::string TableFixture::ReadFile(const QString& name) const {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

FsmDocument TableFixture::SavedDocument() {
    Trigger("mnuFSave");
    return ReadDocument(ReadFile(QStringLiteral("machine.zfsm"))).Document;
}

std::string TableFixture::Text(int row, int column) {
    return Grid()->model()->index(row, column).data().toString().toStdString();
}

QColor TableFixture::Colour(int row, int column) {
    return Grid()->model()->index(row, column).data(Qt::BackgroundRole).value<QColor>();
}

std::string TableFixture::Title() { return window_->windowTitle().toStdString(); }

std::string TableFixture::EditorText() { return Editor()->text().toStdString(); }

std::string TableFixture::Panel(const char* name) { return Find<QLabel>(name)->text().toStdString(); }

QAction* TableFixture::Item(const char* name) { return Find<QAction>(name); }

QRect TableFixture::CellRect(int row, int column) {
    QRect rect;
    QMetaObject::invokeMethod(Grid(), "CellRect", Q_RETURN_ARG(QRect, rect), Q_ARG(int, row),
                              Q_ARG(int, column));
    return rect;
}

void TableFixture::Click(int row, int column, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    const QPoint middle = CellRect(row, column).center();
    QTest::mouseClick(Grid()->viewport(), button, modifiers, middle);
}

void TableFixture::MoveTo(int row, int column) {
    const QPoint middle = CellRect(row, column).center();
    QMouseEvent move(QEvent::MouseMove, middle, Grid()->viewport()->mapToGlobal(QPointF(middle)),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(Grid()->viewport(), &move);
}

void TableFixture::Trigger(const char* item) {
    ASSERT_NE(Item(item), nullptr) << item;
    ASSERT_TRUE(Item(item)->isEnabled()) << item;
    Item(item)->trigger();
}

std::string TableFixture::PoppedUp() {
    QWidget* popup = QApplication::activePopupWidget();
    if (popup == nullptr)
        return {};
    popup->close();
    return popup->objectName().toStdString();
}

void TableFixture::TypeTarget(int row, int column, const QString& digits) {
    Click(row, column);
    ASSERT_TRUE(Editor()->isVisible());
    QTest::keyClicks(Editor(), digits);
    QTest::keyClick(Editor(), Qt::Key_Return);
}

FsmDocument PumpDocument() {
    FsmDocument document;
    document.General.FsmName = "PMP";
    document.Event(6).Name = "Start";
    document.Event(6).Code = ";start?";
    document.Event(7).Name = "Stop";
    document.Event(7).Code = ";stop?";
    document.State(1).Name = "Idle";
    document.State(1).EntryCode = ";idle entry";
    document.State(1).Targets[6] = 2;
    document.State(2).Name = "Run";
    document.State(2).EntryCode = ";run entry";
    document.State(2).Targets[7] = 1;
    document.State(2).Actions[7] = ";stop action";
    return document;
}

} // namespace orvane
