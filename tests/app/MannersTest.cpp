// SPDX-License-Identifier: GPL-3.0-or-later
// What every desktop program is expected to do.
#include "app/OnScreen.h"
#include "app/Remembered.h"
#include "kit/CodePane.h"
#include "kit/DocumentLineEdit.h"
#include "kit/DocumentTextEdit.h"
#include "kit/Settings.h"
#include "support/ui/Controls.h"
#include "support/ui/TableFixture.h"

#include <QApplication>
#include <QFileDialog>
#include <QMenu>
#include <QScrollBar>
#include <QWheelEvent>

namespace orvane {
namespace {

class MannersTest : public TableFixture {
  protected:
    ~MannersTest() override { Settings().remove(QStringLiteral("TableZoom")); }

    void Wheel(int turned) {
        const QPointF middle = CellRect(6, 1).center();
        QWheelEvent wheel(middle, Grid()->viewport()->mapToGlobal(middle), {}, {0, turned}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(Grid()->viewport(), &wheel);
    }
    bool Says(const char* text) { return Panel("Panel3").find(text) != std::string::npos; }
};

TEST_F(MannersTest, AltAndALetterOpensAMenuAndF10TheFirst) {
    StartOn(PumpDocument());
    for (const auto& [key, menu] : {std::pair(Qt::Key_F, "mnuFile"),
                                    {Qt::Key_E, "mnuEdit"},
                                    {Qt::Key_C, "mnuCode"},
                                    {Qt::Key_P, "mnuPref"},
                                    {Qt::Key_V, "mnuView"},
                                    {Qt::Key_R, "mnuRun"},
                                    {Qt::Key_H, "mnuHelp"}}) {
        QTest::keyClick(Grid(), key, Qt::AltModifier);
        EXPECT_EQ(PoppedUp(), menu);
    }
    QTest::keyClick(Grid(), Qt::Key_F10);
    EXPECT_EQ(PoppedUp(), "mnuFile");
}

TEST_F(MannersTest, ALetterWithAltIsNoText) {
    DocumentLineEdit line;
    DocumentTextEdit text;
    CodePane pane({});
    for (QWidget* field :
         {static_cast<QWidget*>(&line), static_cast<QWidget*>(&text), static_cast<QWidget*>(&pane)}) {
        field->show();
        QTest::keyClick(field, Qt::Key_X, Qt::AltModifier);
        QTest::keyClick(field, Qt::Key_Y);
    }
    EXPECT_EQ(line.Text(), "y");
    EXPECT_EQ(text.Text(), "y");
    EXPECT_EQ(pane.Text(), "y");
}

TEST_F(MannersTest, F5GeneratesAndCtrlQEnds) {
    StartOn(PumpDocument());
    EXPECT_EQ(ReadFile(QStringLiteral("machine.zls")), "");
    QTest::keyClick(Grid(), Qt::Key_F5);
    EXPECT_NE(ReadFile(QStringLiteral("machine.zls")), "");
    EXPECT_TRUE(Says("Program written: machine.zls"));
    Window().activateWindow();
    QTest::keyClick(Grid(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(Window().isVisible());
}

TEST_F(MannersTest, QuitAsksAboutUnsavedWork) {
    StartOn(PumpDocument());
    TypeTarget(6, 2, QStringLiteral("1"));
    Answers.Press(QMessageBox::Cancel);
    Trigger("mnuFQuit");
    EXPECT_TRUE(Window().isVisible());
}

TEST_F(MannersTest, EveryFileThatIsWrittenIsTold) {
    StartOn(PumpDocument());
    Trigger("mnuFSave");
    EXPECT_TRUE(Says("Saved: "));
    EXPECT_TRUE(Says("machine.zfsm"));
    Answers.Do([](QWidget& dialog) { dialog.close(); }); // also by a dialog that is cancelled
    Click(6, 0);
    EXPECT_TRUE(Says("Program written: machine.zls"));
    FsmDocument faulty = PumpDocument();
    faulty.General.FsmName.clear();
    StartOn(faulty);
    Trigger("mnuCodeGenerate");
    EXPECT_FALSE(Says("Program written"));
}

TEST_F(MannersTest, RecentFilesAreInTheFileMenuToo) {
    StartOn(PumpDocument());
    Trigger("mnuFSave");
    auto* file = Find<QMenu>("mnuFile");
    Q_EMIT file->aboutToShow();
    auto* recent = Find<QMenu>("mnuFRecent");
    ASSERT_FALSE(recent->actions().isEmpty());
    EXPECT_TRUE(recent->actions().constFirst()->text().contains(QStringLiteral("machine.zfsm")));
}

TEST_F(MannersTest, SaveAsOffersTheMachinesName) {
    Start({QStringLiteral("/nosplash")});
    Window().Place().Open.Edit({"test", {Touched::Extent::Everything, {}}},
                               [](Editable open) { open.Document.General.FsmName = "PU/MP"; });
    Answers.Do([](QWidget& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(files.selectedFiles().constFirst().section(QLatin1Char('/'), -1),
                  QStringLiteral("PUMP.zfsm"));
        EXPECT_TRUE(files.selectedNameFilter().contains(QStringLiteral("zfsm")));
        files.reject();
    });
    Trigger("mnuFSaveAs");
}

TEST_F(MannersTest, TheWindowFitsTheScreenHoweverItWasRemembered) {
    QWidget window;
    window.setGeometry(1500, 900, 1600, 1100);
    const QRect screen(0, 0, 1024, 768);
    FitOnScreen(window, screen);
    EXPECT_TRUE(screen.contains(window.geometry())) << window.width() << " x " << window.height();
    const QRect fitting(100, 100, 500, 300);
    window.setGeometry(fitting);
    FitOnScreen(window, screen);
    EXPECT_EQ(window.geometry(), fitting);
}

TEST_F(MannersTest, TheTableIsZoomedAndTheDocumentStaysWhatItIs) {
    const FsmDocument document = PumpDocument();
    StartOn(document);
    const int width = Grid()->columnWidth(2);
    const int height = Grid()->rowHeight(6);
    Wheel(120);
    EXPECT_GT(Grid()->columnWidth(2), width);
    EXPECT_GT(Grid()->rowHeight(6), height);
    EXPECT_EQ(Text(6, 1), "2:Run");
    Trigger("mnuZoomIn");
    Trigger("mnuZoomIn");
    EXPECT_EQ(Grid()->columnWidth(2), width * 3 / 2 + 1); // 63 pixels at 150 %, rounded
    EXPECT_EQ(SavedDocument(), document);
    Trigger("mnuZoomReset");
    EXPECT_EQ(Grid()->columnWidth(2), width);
    EXPECT_EQ(Grid()->rowHeight(6), height);
    Wheel(-120);
    EXPECT_LT(Grid()->columnWidth(2), width);
}

TEST_F(MannersTest, ZoomLeavesTheCurrentCellInSight) {
    StartOn(PumpDocument());
    Window().resize(1100, 700);
    QApplication::processEvents();
    const QModelIndex cut = Grid()->indexAt(Grid()->viewport()->rect().bottomRight());
    Grid()->setCurrentIndex(cut.siblingAtColumn(cut.column() - 1).siblingAtRow(cut.row() - 1));
    for (int step = 0; step < 7; ++step) { // 250 %
        Trigger("mnuZoomIn");
        const QRect cell = Grid()->visualRect(Grid()->currentIndex());
        EXPECT_TRUE(Grid()->viewport()->rect().contains(cell)) << step;
        EXPECT_GE(cell.left(), Grid()->columnWidth(0)) << step;
    }
}

TEST_F(MannersTest, ZoomLeavesATableThereThatWasScrolledAwayFromTheCurrentCell) {
    StartOn(PumpDocument());
    Grid()->setCurrentIndex(Grid()->model()->index(6, 1));
    Grid()->horizontalScrollBar()->setValue(2000);
    Grid()->verticalScrollBar()->setValue(300);
    Trigger("mnuZoomIn");
    EXPECT_EQ(Grid()->horizontalScrollBar()->value(), 2000);
    EXPECT_EQ(Grid()->verticalScrollBar()->value(), 300);
}

TEST_F(MannersTest, AWindowThatIsMadeLargerThanTheScreenComesUpWithin) {
    const OnScreen onScreen;
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    for (const Qt::WindowType type : {Qt::Window, Qt::Dialog}) {
        QWidget window(nullptr, type);
        window.resize(screen + QSize(100, 100));
        window.show();
        EXPECT_LE(window.width(), screen.width());
        EXPECT_LT(window.height(), screen.height()); // its title bar is seen too
    }
    QWidget popUp(nullptr, Qt::Popup);
    popUp.resize(screen + QSize(100, 100));
    popUp.show();
    EXPECT_GT(popUp.width(), screen.width());
}

TEST_F(MannersTest, TheSizeIsRemembered) {
    StartOn(PumpDocument());
    const int width = Grid()->columnWidth(2);
    Trigger("mnuZoomIn");
    const int larger = Grid()->columnWidth(2);
    StartOn(PumpDocument());
    EXPECT_EQ(Grid()->columnWidth(2), larger);
    Trigger("mnuZoomReset");
    EXPECT_EQ(Grid()->columnWidth(2), width);
}

TEST_F(MannersTest, AColumnThatIsDraggedInAZoomedTableGetsTheWidthThatIsMeant) {
    StartOn(PumpDocument());
    while (Grid()->columnWidth(2) < 126) // 200 %
        Trigger("mnuZoomIn");
    const QRect head = CellRect(0, 2);
    const QPoint border(head.right(), head.center().y());
    QTest::mousePress(Grid()->viewport(), Qt::LeftButton, {}, border);
    QMouseEvent move(QEvent::MouseMove, border + QPoint(74, 0),
                     Grid()->viewport()->mapToGlobal(border + QPoint(74, 0)), Qt::LeftButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(Grid()->viewport(), &move);
    QTest::mouseRelease(Grid()->viewport(), Qt::LeftButton, {}, border + QPoint(74, 0));
    EXPECT_EQ(SavedDocument().State(2).ColWidth, Twips(1500)); // 100 pixels at the normal size
}

} // namespace
} // namespace orvane
