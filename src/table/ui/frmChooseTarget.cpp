// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/frmChooseTarget.h"

#include "core/FsmDocument.h"
#include "core/NameMatch.h"
#include "core/StateLabel.h"
#include "kit/AnsiString.h"
#include "kit/DocumentLineEdit.h"
#include "table/ui/CellIndex.h"
#include "table/ui/FsmGridView.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QStyle>
#include <QTextDocument>
#include <QVBoxLayout>

#include <algorithm>

namespace orvane {

namespace {

constexpr int kMostSeen = 10;       // seen at once
constexpr int kAverageName = 28;    // characters
constexpr int kLongestSeen = 70;    // characters that are seen of a name
constexpr int kRole = Qt::UserRole; // the state's number; none on the line that says there is none

} // namespace

frmChooseTarget::frmChooseTarget(const FsmDocument& document, FsmGridView& view)
    : QFrame(&view),
      document_(document),
      view_(view),
      txtChooseTarget(new DocumentLineEdit(this)),
      lstTargets(new QListWidget(this)) {
    setObjectName(QStringLiteral("frmChooseTarget"));
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
    txtChooseTarget->setObjectName(QStringLiteral("txtChooseTarget"));
    txtChooseTarget->setAccessibleName(tr("Target state, by name or number"));
    txtChooseTarget->setPlaceholderText(tr("Name or number of the target"));
    txtChooseTarget->installEventFilter(this);
    lstTargets->setObjectName(QStringLiteral("lstTargets"));
    lstTargets->setAccessibleName(tr("States to go to"));
    lstTargets->setFocusPolicy(Qt::NoFocus);
    lstTargets->setUniformItemSizes(true);
    lstTargets->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // it would lie over a name
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(txtChooseTarget);
    layout->addWidget(lstTargets);
    hide();
    connect(txtChooseTarget, &QLineEdit::textChanged, this, &frmChooseTarget::Fill);
    connect(lstTargets, &QListWidget::itemClicked, this, &frmChooseTarget::Choose);
}

void frmChooseTarget::Begin(Cell cell, const QString& text) {
    cell_ = cell;
    txtChooseTarget->setText(text);
    Fill();
    Place();
    show();
    raise();
    txtChooseTarget->setFocus();
}

void frmChooseTarget::Abandon() {
    const bool hadFocus = txtChooseTarget->hasFocus();
    hide();
    if (hadFocus)
        view_.setFocus();
}

void frmChooseTarget::Fill() {
    lstTargets->clear();
    for (const StateNumber state : StatesMatching(document_, ToAnsi(txtChooseTarget->text()).Text)) {
        auto* line =
            new QListWidgetItem(FromAnsi(StateLabel(state, document_.State(state).Name)), lstTargets);
        line->setData(kRole, state.Number());
        line->setToolTip(Qt::convertFromPlainText(line->text()));
    }
    if (lstTargets->count() == 0)
        (new QListWidgetItem(tr("No state has this in its name or number"), lstTargets))
            ->setFlags(Qt::NoItemFlags);
    else
        lstTargets->setCurrentRow(0);
}

// What the longest name takes, of whatever state, so that the list stays as it is while a letter is typed.
int frmChooseTarget::WidthOfNames() const {
    const int character = fontMetrics().averageCharWidth();
    int widest = 0;
    for (const StateNumber state : StatesMatching(document_, {})) {
        const QString label = FromAnsi(StateLabel(state, document_.State(state).Name));
        widest = std::max(widest, lstTargets->fontMetrics().horizontalAdvance(label));
    }
    const int beside = style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 4 * frameWidth() + 2 * character;
    return std::clamp(widest + beside, kAverageName * character, kLongestSeen * character);
}

// Over the cell with its upper left corner, moved as far as it must to be seen whole.
void frmChooseTarget::Place() {
    const QRect cell = view_.VisibleRect(IndexOf(*view_.model(), cell_));
    const int width = std::max(cell.width(), WidthOfNames());
    const int frames = 2 * (lstTargets->frameWidth() + frameWidth() + 1);
    const int lines = lstTargets->sizeHintForRow(0) * kMostSeen + frames;
    const QRect room = view_.viewport()->rect();
    const QSize size = QSize(width, txtChooseTarget->sizeHint().height() + lines).boundedTo(room.size());
    const QPoint corner(std::clamp(cell.left(), 0, room.width() - size.width()),
                        std::clamp(cell.top(), 0, room.height() - size.height()));
    setGeometry({corner, size});
}

void frmChooseTarget::Choose() {
    const QListWidgetItem* line = lstTargets->currentItem();
    if (line == nullptr || !line->data(kRole).isValid())
        return;
    const StateNumber target = line->data(kRole).toInt();
    Abandon();
    Q_EMIT Chosen(cell_, target);
}

bool frmChooseTarget::Take(int key) {
    const int row = lstTargets->currentRow();
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Choose();
        return true;
    case Qt::Key_Escape:
        Abandon();
        return true;
    case Qt::Key_Up:
        lstTargets->setCurrentRow(std::max(row - 1, 0));
        return true;
    case Qt::Key_Down:
        lstTargets->setCurrentRow(std::min(row + 1, lstTargets->count() - 1));
        return true;
    case Qt::Key_PageUp:
        lstTargets->setCurrentRow(std::max(row - kMostSeen, 0));
        return true;
    case Qt::Key_PageDown:
        lstTargets->setCurrentRow(std::min(row + kMostSeen, lstTargets->count() - 1));
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true; // there is nothing else to go to
    default:
        return false;
    }
}

void frmChooseTarget::showEvent(QShowEvent* event) {
    QFrame::showEvent(event);
    Q_EMIT OpenChanged(true);
}

void frmChooseTarget::hideEvent(QHideEvent* event) {
    QFrame::hideEvent(event);
    Q_EMIT OpenChanged(false);
}

bool frmChooseTarget::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && Take(static_cast<QKeyEvent*>(event)->key()))
        return true;
    if (event->type() == QEvent::FocusOut)
        hide();
    return QFrame::eventFilter(watched, event);
}

} // namespace orvane
