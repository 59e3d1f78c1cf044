// SPDX-License-Identifier: GPL-3.0-or-later
// Qt loads this into a program that is started with QT_QPA_GENERIC_PLUGINS=orvanedrawing. It draws in the
// window with mouse and keys: the strokes from ORVANE_DRAW_FROM up to ORVANE_DRAW_TO, each told to the pipe
// ORVANE_DRAW_PIPE before it is begun, and then half a target. With ORVANE_DRAW_RECOVERED it takes what is
// offered for recovery first. The program itself is the one that is shipped and knows nothing of it.
#include "recovery/ui/program/Strokes.h"

#include <QAction>
#include <QApplication>
#include <QGenericPlugin>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <unistd.h>

namespace orvane::test {

namespace {

QWidget* WindowNamed(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String(name) && window->isVisible())
            return window;
    }
    return nullptr;
}

class Drawer : public QObject {
    Q_OBJECT

  public:
    Drawer() {
        connect(&timer_, &QTimer::timeout, this, &Drawer::GoOn);
        timer_.start();
    }

  private:
    // One thing each time that the program has nothing else to do.
    void GoOn() {
        if (WindowNamed("frmTable") == nullptr || !Recover())
            return;
        if (next_ < last_) {
            Tell(next_);
            Draw(StrokeOf(next_++));
        } else if (next_ == last_) {
            Tell(next_++);
            Type(kHalfTyped);
            QTimer::singleShot(kDraftTime, this, [] { Tell(kHalfTypedIsKept); });
        }
    }

    // False while nothing is offered yet.
    bool Recover() {
        if (recovered_)
            return true;
        QWidget* offer = WindowNamed("frmRecovery");
        if (offer == nullptr)
            return false;
        recovered_ = true;
        offer->findChild<QPushButton*>(QStringLiteral("cmdRecover"))->click();
        return true;
    }

    static void Draw(const Stroke& stroke) {
        switch (stroke.Kind) {
        case StrokeKind::Target:
            Type(stroke);
            return QTest::keyClick(&Editor(), Qt::Key_Return);
        case StrokeKind::Undo:
            return Trigger("mnuUndo");
        case StrokeKind::Redo:
            return Trigger("mnuRedo");
        case StrokeKind::Save:
            return Trigger("mnuFSave");
        }
    }

    static void Type(const Stroke& stroke) {
        auto& grid = *WindowNamed("frmTable")->findChild<QTableView*>(QStringLiteral("MSFlexGrid1"));
        QRect cell;
        QMetaObject::invokeMethod(&grid, "CellRect", Q_RETURN_ARG(QRect, cell), Q_ARG(int, stroke.Row),
                                  Q_ARG(int, stroke.State));
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cell.center());
        QTest::keyClicks(&Editor(), QString::number(stroke.Target));
    }

    static QLineEdit& Editor() {
        return *WindowNamed("frmTable")->findChild<QLineEdit*>(QStringLiteral("txtCellEdit"));
    }

    static void Trigger(const char* item) {
        auto* action = WindowNamed("frmTable")->findChild<QAction*>(QLatin1String(item));
        if (action->isEnabled())
            action->trigger();
    }

    static void Tell(std::int32_t what) {
        if (write(qEnvironmentVariableIntValue("ORVANE_DRAW_PIPE"), &what, sizeof what) != sizeof what)
            std::abort();
    }

    static constexpr std::chrono::milliseconds kDraftTime{600}; // more than the draft waits for

    QTimer timer_;
    int next_ = qEnvironmentVariableIntValue("ORVANE_DRAW_FROM");
    int last_ = qEnvironmentVariableIntValue("ORVANE_DRAW_TO");
    bool recovered_ = !qEnvironmentVariableIsSet("ORVANE_DRAW_RECOVERED");
};

} // namespace

class DrawingPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "drawing.json")

  public:
    QObject* create(const QString&, const QString&) override { return new Drawer; }
};

} // namespace orvane::test

#include "DrawingPlugin.moc"
