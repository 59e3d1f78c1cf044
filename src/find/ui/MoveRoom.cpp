// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/MoveRoom.h"

#include "find/MoveWish.h"
#include "find/Rename.h"
#include "find/ui/SubjectAt.h"
#include "find/ui/frmMove.h"
#include "kit/AnsiString.h"
#include "kit/UserMessageBox.h"
#include "session/Commands.h"
#include "session/Session.h"

#include <QMainWindow>
#include <QShortcut>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>

namespace orvane {

MoveRoom::MoveRoom(const RoomPlace& place) : session_(place.Open), window_(place.Window) {
    AddKey(Qt::CTRL | Qt::SHIFT | Qt::Key_Left, 0, -1);
    AddKey(Qt::CTRL | Qt::SHIFT | Qt::Key_Right, 0, 1);
    AddKey(Qt::CTRL | Qt::SHIFT | Qt::Key_Up, -1, 0);
    AddKey(Qt::CTRL | Qt::SHIFT | Qt::Key_Down, 1, 0);
}

// Heard in the table alone: fields choose words by these keys.
void MoveRoom::AddKey(const QKeySequence& key, int rows, int columns) {
    auto* shortcut = new QShortcut(key, window_.centralWidget());
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, rows, columns] { MoveBy(rows, columns); });
}

std::span<const Command> MoveRoom::Commands() const {
    static constexpr auto commands =
        std::to_array<Command>({Command::Move, Command::MoveState, Command::MoveEvent});
    return commands;
}

ObserverRank MoveRoom::Rank() const { return ObserverRank::Rooms; }

void MoveRoom::Run(Command command) {
    if (command == Command::MoveState)
        return Ask({kHeadRow, session_.Pressed().State});
    if (command == Command::MoveEvent)
        return Ask({session_.Pressed().Row, kNoState});
    Ask(ChosenCell(window_, session_));
}

void MoveRoom::Ask(Cell what) {
    if (what.State == kNoState && !EventRows().Contains(what.Row)) {
        Q_EMIT Said(tr("Choose a state or an event to move"));
        return;
    }
    frmMove dialog(session_.Document(), what, &window_);
    if (dialog.exec() == QDialog::Accepted)
        Make(dialog.Plan(), dialog.ChosenLabels(), find::StepName(dialog.Wish()));
}

// One place on.
void MoveRoom::MoveBy(int rows, int columns) {
    const Cell cell = ChosenCell(window_, session_);
    const Cell to{cell.Row + rows, cell.State + columns};
    const bool ofState = columns != 0;
    const bool possible = ofState ? StateNumbers().Contains(cell.State) && StateNumbers().Contains(to.State)
                                  : EventRows().Contains(cell.Row) && EventRows().Contains(to.Row);
    if (!possible) {
        Q_EMIT Said(ofState ? tr("There is no place further on for a state")
                            : tr("There is no place further on for an event"));
        return;
    }
    find::TableOrder order = EventOrder();
    if (ofState)
        order = StateOrder::Moving(cell.State, to.State);
    else
        order = EventOrder::Moving(cell.Row, to.Row);
    const find::MovePlan plan = find::PlanMove(session_.Document(), order);
    if (!IsAccepted(plan))
        return;
    std::vector<bool> sure;
    for (const find::TextUse& label : plan.Labels)
        sure.push_back(label.IsSure);
    Make(plan, sure, ofState ? "move state" : "move event");
    Q_EMIT Room::PlaceChosen(find::NewPlace(order, cell));
}

// A key moves at once, unless there is something to know.
bool MoveRoom::IsAccepted(const find::MovePlan& plan) {
    QStringList lines;
    for (const std::string& note : plan.Notes)
        lines += FromAnsi(note) + QLatin1Char('.');
    if (lines.isEmpty())
        return true;
    lines += QString();
    lines += tr("Move it?");
    return AskYesNo(&window_, lines.join(QStringLiteral("\r\n")));
}

std::size_t MoveRoom::PresentImage() const { return std::hash<std::string>()(session_.History().Current()); }

void MoveRoom::Make(const find::MovePlan& plan, const std::vector<bool>& labels, std::string_view step) {
    const std::size_t before = PresentImage();
    session_.Edit({step, {Touched::Extent::Everything, {}}},
                  [&](const Editable& open) { Apply(open.Document, open.Clipboard, plan, labels); });
    FollowOrder(plan.Order);
    image_ = PresentImage();
    made_.push_back({before, image_, plan.Order});
}

// What is not in the document itself.
void MoveRoom::FollowOrder(const find::TableOrder& order) {
    session_.Press(find::NewPlace(order, session_.Pressed()));
    const StateNumber current = session_.CurrentState();
    if (find::NewNumber(order, current) != current)
        session_.SetCurrentState(find::NewNumber(order, current));
}

void MoveRoom::Told(const Change& change) {
    if (change.Kind == ChangeKind::Replaced)
        made_.clear();
    const std::size_t before = std::exchange(image_, PresentImage());
    if (change.Kind == ChangeKind::Undone)
        FollowStep(before, &Made::After, &Made::Before);
    else if (change.Kind == ChangeKind::Redone)
        FollowStep(before, &Made::Before, &Made::After);
}

// The step is known by the images on both its sides.
void MoveRoom::FollowStep(std::size_t before, std::size_t Made::*came, std::size_t Made::*went) {
    const auto step = std::find_if(made_.rbegin(), made_.rend(), [&](const Made& made) {
        return made.*came == before && made.*went == image_;
    });
    if (step == made_.rend())
        return;
    const find::TableOrder order = came == &Made::After ? find::InverseOf(step->Order) : step->Order;
    session_.Edit({"", {Touched::Extent::Everything, {}}, EditKind::View},
                  [&](const Editable& open) { find::ApplyUnkept(open.Document, open.Clipboard, order); });
    FollowOrder(order);
}

} // namespace orvane
