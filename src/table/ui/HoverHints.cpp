// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/HoverHints.h"

#include "core/FsmDocument.h"
#include "kit/AnsiString.h"
#include "table/HoverHint.h"
#include "table/ui/CellIndex.h"
#include "table/ui/FsmGridModel.h"
#include "table/ui/FsmGridView.h"
#include "table/ui/NextStateMarker.h"

#include <QEvent>

#include <algorithm>

namespace orvane {

namespace {

constexpr int kLowestHighlight = 1; // pixels; 26 twips; lower rows show no head to set off
constexpr int kHighlightIndent = 2; // pixels at its left
constexpr int kHighlightGap = 1;    // pixels at its right

QLineEdit* MakeRowHeader(QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(QStringLiteral("txtRowheader"));
    box->setAccessibleName(HoverHints::tr("Head of the row under the pointer"));
    box->setReadOnly(true);
    box->setFrame(false);
    box->setMouseTracking(true);
    box->setFocusPolicy(Qt::ClickFocus);
    QPalette palette = box->palette();
    palette.setColor(QPalette::Base, QColor(255, 225, 238));
    palette.setColor(QPalette::Text, Qt::black);
    box->setPalette(palette);
    box->hide();
    return box;
}

} // namespace

HoverHints::HoverHints(const FsmDocument& document, FsmGridModel& model, FsmGridView& view)
    : QObject(&view),
      document_(document),
      model_(model),
      view_(view),
      txtRowheader_(MakeRowHeader(view.viewport())),
      picNextStateMarker_(new NextStateMarker(view.viewport())) {
    txtRowheader_->installEventFilter(this);
    connect(&view, &FsmGridView::PointerMoved, this, &HoverHints::PointerAt);
    connect(&view, &FsmGridView::PointerLeft, this, [this] {
        pointer_.reset();
        ClearHoverEffects();
    });
    connect(&view, &FsmGridView::CellsMoved, this, [this] {
        txtRowheader_->hide();
        PlaceMarker();
    });
}

void HoverHints::PointerAt(Cell cell) {
    Q_EMIT CellEntered();
    if (pointer_ == cell)
        return;
    pointer_ = cell;
    ClearHoverEffects();
    ShowCellHint(cell);
}

void HoverHints::ShowCellHint(Cell cell) {
    Q_EMIT HintGone();
    if (const std::optional<Hint> hint = HoverHint(document_, cell, shiftHeld_); hint && !isQuiet_)
        Q_EMIT HintWanted(FromAnsi(hint->Text), hint->Wrap);
    if (cell.State == kNoState || cell.Row < kFirstCellRow)
        return;
    ShowRowHeaderHighlight(cell.Row);
    if (shiftHeld_)
        ShowNextState(cell);
}

void HoverHints::FollowChange() {
    if (!pointer_ || isQuiet_)
        return;
    const std::optional<Hint> hint = HoverHint(document_, *pointer_, shiftHeld_);
    Q_EMIT HintChanged(hint ? FromAnsi(hint->Text) : QString(), hint && hint->Wrap);
}

void HoverHints::SetQuiet(bool quiet) {
    isQuiet_ = quiet;
    if (quiet)
        Q_EMIT HintGone();
}

void HoverHints::ClearHoverEffects() {
    Q_EMIT HintGone();
    txtRowheader_->hide();
    HideNextState();
}

void HoverHints::ShowNextState(Cell cell) {
    const StateNumber target = document_.State(cell.State).Targets[cell.Row];
    if (target == kNoState)
        return;
    model_.Highlight(cell);
    markedState_ = target;
    picNextStateMarker_->show();
    picNextStateMarker_->raise();
    PlaceMarker();
}

void HoverHints::HideNextState() {
    markedState_ = kNoState;
    model_.ClearHighlight();
    picNextStateMarker_->hide();
}

// At the head of the marked state; at the edge of the table, towards it, when that is out of sight.
void HoverHints::PlaceMarker() {
    if (markedState_ == kNoState)
        return;
    const QRect head = view_.visualRect(IndexOf(model_, {kHeadRow, markedState_}));
    const int first = view_.FrozenSize().width();
    const int last = view_.viewport()->width() - picNextStateMarker_->width();
    picNextStateMarker_->move(std::clamp(head.left(), first, std::max(first, last)), head.top());
}

void HoverHints::ShowRowHeaderHighlight(RowNumber row) {
    txtRowheader_->hide();
    const QModelIndex head = IndexOf(model_, {row, kNoState});
    const QString text = head.data().toString();
    const QRect area = view_.VisibleRect(head);
    if (text.trimmed().isEmpty() || view_.rowHeight(row.Number()) <= kLowestHighlight || area.isEmpty())
        return;
    txtRowheader_->setGeometry(area.left() + kHighlightIndent, area.top(), area.width() - kHighlightGap,
                               area.height());
    txtRowheader_->setText(text);
    txtRowheader_->setCursorPosition(0);
    txtRowheader_->show();
}

bool HoverHints::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        view_.setFocus();
    else if (event->type() == QEvent::MouseMove)
        txtRowheader_->hide();
    return QObject::eventFilter(watched, event);
}

} // namespace orvane
