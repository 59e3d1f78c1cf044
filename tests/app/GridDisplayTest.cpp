// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ui/TableFixture.h"

#include "core/ViewOptions.h"

#include <QFontMetrics>
#include <QScrollBar>
#include <QTest>

#include <limits>

namespace orvane {
namespace {

class GridDisplay : public TableFixture {
  protected:
    // Drags the border in row 0 with the mouse.
    void DragBorder(const QPoint& from, int by) {
        QWidget* viewport = Grid()->viewport();
        Send(QEvent::MouseButtonPress, from, Qt::LeftButton);
        Send(QEvent::MouseMove, from + QPoint(by / 2, 0), Qt::LeftButton);
        Send(QEvent::MouseMove, from + QPoint(by, 0), Qt::LeftButton);
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, from + QPoint(by, 0));
    }
    void Send(QEvent::Type type, const QPoint& at, Qt::MouseButton button,
              Qt::KeyboardModifiers modifiers = {}) {
        QWidget* viewport = Grid()->viewport();
        QMouseEvent event(type, at, viewport->mapToGlobal(QPointF(at)),
                          type == QEvent::MouseMove ? Qt::NoButton : button, button, modifiers);
        QApplication::sendEvent(viewport, &event);
    }
    QPoint BorderOf(int column) {
        const QRect head = CellRect(0, column);
        return {head.right() + 1, head.center().y()};
    }
};

TEST_F(GridDisplay, TheTableHasHeadsAndTheNumbersOfTheDocument) {
    Start({QStringLiteral("/nosplash")});
    EXPECT_EQ(Grid()->model()->rowCount(), 55);
    EXPECT_EQ(Grid()->model()->columnCount(), 101);
    EXPECT_EQ(Text(0, 100), "100:");
    EXPECT_EQ(Grid()->columnWidth(0), 1890 / 15);
    EXPECT_EQ(Grid()->columnWidth(1), 945 / 15);
}

TEST_F(GridDisplay, AFreshDocumentHidesItsSpecialRows) {
    Start({QStringLiteral("/nosplash")});
    for (const int row : {2, 3, 4, 5})
        EXPECT_TRUE(CellRect(row, 1).isEmpty()) << row;
    for (const char* item : {"mnuShowExitAction", "mnuShowElse", "mnuShowTimingMode", "mnuShowTimeTarget"})
        EXPECT_FALSE(Item(item)->isChecked()) << item;
}

TEST_F(GridDisplay, EachViewItemTogglesItsRowAtTheStandardHeight) {
    Start({QStringLiteral("/nosplash")});
    for (const auto& [item, row] : {std::pair{"mnuShowExitAction", 2}, std::pair{"mnuShowTimingMode", 3},
                                    std::pair{"mnuShowTimeTarget", 4}, std::pair{"mnuShowElse", 5}}) {
        Trigger(item);
        EXPECT_TRUE(Item(item)->isChecked()) << item;
        EXPECT_EQ(Grid()->rowHeight(row), Grid()->rowHeight(6)) << item;
        Trigger(item);
        EXPECT_FALSE(Item(item)->isChecked()) << item;
        EXPECT_TRUE(CellRect(row, 0).isEmpty()) << item;
    }
    EXPECT_EQ(Title().front(), '[');
}

TEST_F(GridDisplay, TheColoursStandWhereTheyBelong) {
    Start({QStringLiteral("/nosplash")});
    EXPECT_EQ(Colour(0, 5), QColor(204, 255, 255));
    EXPECT_EQ(Colour(1, 5), QColor(204, 255, 204));
    EXPECT_EQ(Colour(2, 5), QColor(255, 204, 153));
    EXPECT_EQ(Colour(2, 0), QColor(255, 204, 153));
    EXPECT_EQ(Colour(3, 5), QColor(255, 255, 153));
    EXPECT_EQ(Colour(6, 5), QColor(255, 255, 255));
    EXPECT_EQ(Colour(0, 0), QColor(255, 255, 255));
    EXPECT_EQ(Colour(1, 0), QColor(255, 221, 178));
    EXPECT_EQ(Colour(4, 0), QColor(255, 255, 153));
    EXPECT_EQ(Colour(5, 0), QColor(255, 238, 204));
    EXPECT_EQ(Colour(54, 0), QColor(255, 153, 204));
}

TEST_F(GridDisplay, ADarkDesktopGetsADarkTableWhoseColoursKeepTheirMeaning) {
    const QPalette light = QApplication::palette();
    StartOn(PumpDocument());
    const auto text = [this](int row, int column) {
        return Grid()->model()->index(row, column).data(Qt::ForegroundRole).value<QColor>();
    };
    EXPECT_EQ(text(0, 1), QColor(Qt::black));
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    QApplication::processEvents();
    const QColor entry = Colour(1, 1);
    EXPECT_LT(entry.lightness(), 100);
    EXPECT_EQ(entry.hslHue(), QColor(204, 255, 204).hslHue()); // green as ever
    EXPECT_GT(text(0, 1).lightness(), 200);
    const QImage image = Grid()->viewport()->grab().toImage();
    const QRect head = CellRect(1, 1);
    EXPECT_EQ(image.pixelColor(head.left() + 1, head.top() + 1), entry);
    QApplication::setPalette(light);
    QApplication::processEvents();
    EXPECT_EQ(Colour(1, 1), QColor(204, 255, 204));
}

TEST_F(GridDisplay, ALargeFontOfTheDesktopMakesRowsAndColumnsLargerAndLeavesTheDocumentAlone) {
    const QFont usual = QApplication::font();
    FsmDocument document = PumpDocument();
    document.State(1).Name = "Filling";
    document.View.RowVisible.TimeTarget = 300;
    StartOn(document);
    const int width = Grid()->columnWidth(1);
    const int heights[] = {Grid()->rowHeight(kTimeoutRow), Grid()->rowHeight(6)};
    const std::string shown = Text(0, 1);
    QFont large = usual;
    large.setPointSize(16);
    QApplication::setFont(large);
    StartOn(document);
    EXPECT_GT(Grid()->columnWidth(1), width * 14 / 10);
    const int needed = QFontMetrics(large).height();
    EXPECT_GT(Grid()->rowHeight(kTimeoutRow), std::max(needed, heights[0]));
    EXPECT_GT(Grid()->rowHeight(6), std::max(needed, heights[1]));
    EXPECT_EQ(Text(0, 1), shown);
    EXPECT_EQ(SavedDocument(), document);
    QApplication::setFont(usual);
    QApplication::processEvents(); // a window that is open follows
    EXPECT_EQ(Grid()->columnWidth(1), width);
}

TEST_F(GridDisplay, ALongNameShowsItsLongestFittingBeginning) {
    FsmDocument document = PumpDocument();
    document.State(1).Name = "A state with a rather long name";
    StartOn(document);
    const std::string shown = Text(0, 1);
    ASSERT_TRUE(shown.ends_with(".."));
    const std::string kept = shown.substr(0, shown.size() - 2);
    const std::string whole = "1:" + document.State(1).Name;
    EXPECT_TRUE(whole.starts_with(kept));
    const QFontMetrics metrics(Grid()->font());
    const auto width = [&](std::size_t length) {
        return 15 * metrics.horizontalAdvance(QString::fromStdString(whole.substr(0, length)));
    };
    EXPECT_LT(width(kept.size()), 945 - 200);
    EXPECT_GE(width(kept.size() + 1), 945 - 200);
}

TEST_F(GridDisplay, AColumnNarrowerThanOneCharacterShowsNothing) {
    FsmDocument document = PumpDocument();
    document.State(1).ColWidth = 210;
    StartOn(document);
    for (const int row : {0, 1, 6})
        EXPECT_EQ(Text(row, 1), "") << row;
}

TEST_F(GridDisplay, DraggingABorderStoresTheWidthAndFitsTheTextsAnew) {
    FsmDocument document = PumpDocument();
    document.State(7).Name = "A rather long name";
    StartOn(document);
    ASSERT_TRUE(Text(0, 7).ends_with(".."));
    DragBorder(BorderOf(7), 140);
    EXPECT_EQ(Grid()->columnWidth(7), 63 + 140);
    EXPECT_EQ(Text(0, 7), "7:A rather long name");
    EXPECT_FALSE(Title().starts_with('*'));
    EXPECT_EQ(SavedDocument().State(7).ColWidth, (63 + 140) * 15);
}

TEST_F(GridDisplay, DraggingColumnZeroFitsTheRowHeads) {
    StartOn(PumpDocument());
    EXPECT_TRUE(Text(1, 0).starts_with("Event    ")) << Text(1, 0);
    DragBorder(BorderOf(0), -40);
    EXPECT_TRUE(Text(1, 0).starts_with("Event | A")) << Text(1, 0);
    EXPECT_EQ(SavedDocument().View.Col0Width, 1890 - 40 * 15);
}

TEST_F(GridDisplay, AColumnWithTimingAndElseShowsTheirRowsAgainWhenItIsDragged) {
    FsmDocument document = PumpDocument();
    document.State(2).TimingMode = 1;
    document.State(2).Targets[kElseRow] = 1;
    StartOn(document);
    for (const char* item : {"mnuShowTimingMode", "mnuShowTimeTarget", "mnuShowElse"})
        Trigger(item);
    DragBorder(BorderOf(1), 10);
    EXPECT_FALSE(Item("mnuShowElse")->isChecked());
    DragBorder(BorderOf(2), 10);
    for (const char* item : {"mnuShowTimingMode", "mnuShowTimeTarget", "mnuShowElse"})
        EXPECT_TRUE(Item(item)->isChecked()) << item;
    for (const int row : {3, 4, 5})
        EXPECT_FALSE(CellRect(row, 2).isEmpty()) << row;
}

TEST_F(GridDisplay, AColumnDraggedShutIsDraggedOpenAgain) {
    StartOn(PumpDocument());
    const QPoint border = BorderOf(2);
    DragBorder(border, -100);
    EXPECT_EQ(Grid()->columnWidth(2), 0);
    EXPECT_TRUE(CellRect(6, 2).isEmpty());
    DragBorder(BorderOf(1) + QPoint(1, 0), 50);
    EXPECT_EQ(Grid()->columnWidth(1), 63);
    EXPECT_EQ(Grid()->columnWidth(2), 50);
}

TEST_F(GridDisplay, ABorderIsNotDraggedWithAKeyHeld) {
    StartOn(PumpDocument());
    const QPoint border = BorderOf(2);
    Send(QEvent::MouseButtonPress, border, Qt::LeftButton, Qt::ControlModifier);
    Send(QEvent::MouseMove, border + QPoint(40, 0), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(Grid()->columnWidth(2), 63);
    Send(QEvent::MouseButtonRelease, border, Qt::LeftButton, Qt::ControlModifier);
}

TEST_F(GridDisplay, ADragEndsWithItsButton) {
    StartOn(PumpDocument());
    const QPoint border = BorderOf(2);
    DragBorder(border, 20);
    Send(QEvent::MouseMove, border + QPoint(60, 0), Qt::NoButton);
    EXPECT_EQ(Grid()->columnWidth(2), 63 + 20);
}

TEST_F(GridDisplay, ADraggedBorderOpensNoEditor) {
    StartOn(PumpDocument());
    DragBorder(BorderOf(1), 10);
    EXPECT_TRUE(Answers.Seen().empty());
}

TEST_F(GridDisplay, ADraggedBorderAbandonsATypedTarget) {
    StartOn(PumpDocument());
    Click(7, 1);
    QTest::keyClicks(Editor(), QStringLiteral("2"));
    DragBorder(BorderOf(3), 10);
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(Text(7, 1), "");
}

TEST_F(GridDisplay, WidthsThatArePixelsInNoWayComeBackAsTheyWere) {
    FsmDocument document = PumpDocument();
    document.State(1).ColWidth = 947;
    document.State(2).ColWidth = 0;
    document.State(3).ColWidth = 100000;
    document.State(4).ColWidth = 2147483647;
    document.State(5).ColWidth = -5;
    document.View.Col0Width = 1891;
    StartOn(document);
    MoveTo(6, 1);
    const FsmDocument saved = SavedDocument();
    for (int state = 1; state <= 5; ++state)
        EXPECT_EQ(saved.State(state).ColWidth, document.State(state).ColWidth) << state;
    EXPECT_EQ(saved.View.Col0Width, 1891);
}

TEST_F(GridDisplay, AWidthIsShownInTheNearestWholePixel) {
    FsmDocument document = PumpDocument();
    document.State(1).ColWidth = 60 * 15 + 7;
    document.State(2).ColWidth = 60 * 15 + 8;
    StartOn(document);
    EXPECT_EQ(Grid()->columnWidth(1), 60);
    EXPECT_EQ(Grid()->columnWidth(2), 61);
}

TEST_F(GridDisplay, AHugeColumnZeroLeavesRoomForTheTableAndCanBeDraggedSmaller) {
    FsmDocument document = PumpDocument();
    document.View.Col0Width = 100000;
    StartOn(document);
    const QRect cell = CellRect(6, 1);
    EXPECT_FALSE(cell.isEmpty());
    EXPECT_TRUE(Grid()->viewport()->rect().contains(cell.center()));
    Click(6, 1);
    EXPECT_TRUE(Editor()->isVisible());
    const int border = CellRect(0, 0).right() + 1;
    DragBorder({border, 5}, 150 - border);
    EXPECT_EQ(Grid()->columnWidth(0), 150);
}

TEST_F(GridDisplay, WidthsFromAForeignFileDoNotMakeTextsAsLong) {
    for (const std::int32_t width :
         {std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
        FsmDocument document = PumpDocument();
        document.View.Col0Width = width;
        document.State(1).ColWidth = width;
        document.State(1).EntryCode = std::string(1'000'000, 'x');
        StartOn(document);
        EXPECT_LT(Text(1, 0).size(), 30'000u);
        EXPECT_LT(Text(1, 1).size(), 30'000u);
    }
}

TEST_F(GridDisplay, ALoadedHeightIsShownAndKept) {
    FsmDocument document = PumpDocument();
    document.View.ShowElse = true;
    document.View.RowVisible.Else = 600;
    document.View.RowVisible.ExitAction = 450;
    StartOn(document);
    EXPECT_EQ(Grid()->rowHeight(kElseRow), 40);
    EXPECT_EQ(Grid()->rowHeight(kExitActionRow), 30);
    EXPECT_TRUE(Item("mnuShowExitAction")->isChecked());
    EXPECT_EQ(SavedDocument().View, document.View);
}

TEST_F(GridDisplay, TheTableFillsTheWindowAboveTheStatusBar) {
    StartOn(PumpDocument());
    const auto* statusBar = Find<QWidget>("StatusBar1");
    for (const QSize size : {QSize(900, 600), QSize(400, 260)}) {
        Window().resize(size);
        QApplication::processEvents();
        const QPoint place = Grid()->mapTo(&Window(), QPoint(0, 0));
        EXPECT_EQ(place.x(), 1);
        EXPECT_EQ(place.x() + Grid()->width(), size.width());
        EXPECT_EQ(place.y() + Grid()->height(), statusBar->mapTo(&Window(), QPoint(0, 0)).y());
    }
}

TEST_F(GridDisplay, PolytaskIsTurnedAroundWithoutASnapshot) {
    StartOn(PumpDocument());
    Trigger("mnuPolytask");
    EXPECT_TRUE(Item("mnuPolytask")->isChecked());
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
    EXPECT_NE(ReadFile(QStringLiteral("machine.zls")).find("YieldTask"), std::string::npos);
    EXPECT_TRUE(SavedDocument().View.Polytask);
}

} // namespace
} // namespace orvane
