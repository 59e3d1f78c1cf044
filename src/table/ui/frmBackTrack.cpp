// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/frmBackTrack.h"

#include "kit/AnsiString.h"
#include "kit/CloseKeys.h"
#include "kit/OpenInDesktop.h"
#include "kit/PaneLook.h"
#include "table/ui/ToQColor.h"

#include <QEvent>
#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

#include <utility>

namespace orvane {

namespace {

constexpr QSize kBackTrackSize{360, 400};
constexpr int kBackTrackHelpPage = 4965;
constexpr int kEventColumn = 0;
constexpr int kFromColumn = 1;
constexpr int kEventPercent = 45; // of the grid's width; the other column has the rest

// In the colours that the table has.
QTableWidgetItem* ListItem(const std::string& text, Colour light, bool isDark) {
    const Colour ground = isDark ? OnDark(light) : light;
    const bool isBlack = !isDark || TakesBlackText(ground);
    auto* item = new QTableWidgetItem(FromAnsi(text));
    item->setBackground(ToQColor(ground));
    item->setForeground(isBlack ? QColor(Qt::black) : ToQColor(kLightText));
    return item;
}

} // namespace

frmBackTrack::frmBackTrack(QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName(QStringLiteral("frmBackTrack"));
    BuildGrid();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(MSFlexGrid1);
    resize(kBackTrackSize);
    AddHelpKey(*this, kBackTrackHelpPage);
    AddCloseKeys(*this);
}

void frmBackTrack::BuildGrid() {
    MSFlexGrid1 = new QTableWidget(0, 2, this);
    MSFlexGrid1->setObjectName(QStringLiteral("MSFlexGrid1"));
    MSFlexGrid1->setAccessibleName(tr("Transitions into the state"));
    MSFlexGrid1->setHorizontalHeaderLabels({tr("Event"), tr("From state")});
    MSFlexGrid1->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    MSFlexGrid1->horizontalHeader()->setHighlightSections(false);
    MSFlexGrid1->verticalHeader()->hide();
    MSFlexGrid1->setEditTriggers(QAbstractItemView::NoEditTriggers);
    MSFlexGrid1->setSelectionMode(QAbstractItemView::NoSelection);
    MSFlexGrid1->viewport()->installEventFilter(this);
    connect(MSFlexGrid1, &QTableWidget::cellPressed, this, &frmBackTrack::Choose);
}

void frmBackTrack::BackTrack(const FsmDocument& document, StateNumber state) {
    backtrackState_ = state;
    Fill(document);
    MSFlexGrid1->scrollToTop();
    show();
    raise();
}

void frmBackTrack::RefreshBackTrack(const FsmDocument& document) {
    if (isVisible())
        Fill(document);
}

// A list that stays the same is left alone, scrolled to where it is.
void frmBackTrack::Fill(const FsmDocument& document) {
    setWindowTitle(FromAnsi(BacktrackTitle(document, backtrackState_)));
    std::vector<BacktrackLine> lines = BacktrackLines(document, backtrackState_);
    if (lines == lines_)
        return;
    lines_ = std::move(lines);
    MSFlexGrid1->setRowCount(static_cast<int>(lines_.size()));
    FillGrid();
}

void frmBackTrack::FillGrid() {
    for (int row = 0; const BacktrackLine& line : lines_)
        AddBacktrackLine(row++, line);
}

void frmBackTrack::AddBacktrackLine(int row, const BacktrackLine& line) {
    const bool isDark = IsDark(palette());
    MSFlexGrid1->setItem(row, kEventColumn, ListItem(line.EventText, line.EventColour, isDark));
    MSFlexGrid1->setItem(row, kFromColumn, ListItem(line.FromText, kStateHeadColour, isDark));
}

void frmBackTrack::FitColumns() {
    const int width = MSFlexGrid1->viewport()->width();
    const int eventWidth = width * kEventPercent / 100;
    MSFlexGrid1->setColumnWidth(kEventColumn, eventWidth);
    MSFlexGrid1->setColumnWidth(kFromColumn, width - eventWidth);
}

bool frmBackTrack::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        FitColumns();
    return QWidget::eventFilter(watched, event);
}

void frmBackTrack::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        FillGrid();
    QWidget::changeEvent(event);
}

void frmBackTrack::Choose(int row, int column) {
    if (column == kFromColumn)
        Q_EMIT StateChosen(lines_[row].From);
}

} // namespace orvane
