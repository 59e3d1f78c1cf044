// SPDX-License-Identifier: GPL-3.0-or-later
#include "findings/ui/FindingsRoom.h"

#include "findings/ui/dckFindings.h"
#include "kit/AnsiString.h"
#include "session/Commands.h"
#include "session/Session.h"

#include <QMainWindow>

#include <utility>

namespace orvane {

FindingsRoom::FindingsRoom(const RoomPlace& place)
    : PaneRoom(place.Window, Command::ViewFindings, Qt::BottomDockWidgetArea),
      session_(place.Open),
      window_(place.Window) {}

FindingsRoom::~FindingsRoom() = default;

std::span<const Command> FindingsRoom::Commands() const {
    static constexpr auto commands =
        std::to_array<Command>({Command::ViewFindings, Command::NextFinding, Command::PreviousFinding});
    return commands;
}

ObserverRank FindingsRoom::Rank() const { return ObserverRank::Rooms; }

void FindingsRoom::Run(Command command) {
    if (command == Command::ViewFindings)
        Toggle();
    else
        GoOn(command == Command::NextFinding ? 1 : -1);
}

Pane* FindingsRoom::MakePane() {
    pane_ = new dckFindings(session_.Document(), session_.Findings(), &window_);
    connect(pane_, &dckFindings::FindingChosen, this, &FindingsRoom::GoTo);
    connect(pane_, &dckFindings::ExploringWanted, this, &FindingsRoom::Explore);
    return pane_;
}

void FindingsRoom::Shown() { Explore(); }

void FindingsRoom::Hiding() { Forget(); }

// After what the generator has looked at anew.
void FindingsRoom::Told(const Change& change) {
    if (!RunsTheGenerator(change.Kind))
        return;
    if (change.Kind == ChangeKind::Replaced)
        last_.reset();
    Explore();
}

// What was found of the table as it was is not true of this one.
void FindingsRoom::Forget() {
    work_.Drop();
    explored_.clear();
    Gather();
}

void FindingsRoom::Explore() {
    Forget();
    if (!IsShown())
        return;
    const bool wanted = pane_->Explores();
    pane_->ShowExploring(wanted ? tr("Looking...") : QString());
    if (wanted)
        work_.Begin([document = session_.Document()](
                        const std::stop_token& stop) { return findings::Explore(document, stop); },
                    [this](findings::Explored explored) { TakeExplored(std::move(explored)); });
}

void FindingsRoom::TakeExplored(findings::Explored explored) {
    explored_ = std::move(explored.Advice);
    pane_->ShowExploring(explored.Complete ? QString()
                                           : tr("Not all could be looked at: the design has errors, or the "
                                                "machine can be in too many places."));
    Gather();
}

void FindingsRoom::Gather() {
    std::vector<DesignFinding> list = findings::FindingList(session_.Report(), session_.Document());
    list.insert(list.end(), explored_.begin(), explored_.end());
    session_.ShowFindings(std::move(list));
    if (IsShown())
        pane_->ShowFindings();
}

// Where one was mended, the next has taken its place.
void FindingsRoom::GoOn(int step) {
    const std::size_t count = session_.Findings().size();
    if (count == 0)
        return;
    const bool isThere = last_ && at_ < count && session_.Findings()[at_] == *last_;
    if (step < 0)
        at_ = (std::min(at_, count) + count - 1) % count;
    else
        at_ = (at_ + (isThere ? 1 : 0)) % count;
    GoTo(int(at_));
}

void FindingsRoom::GoTo(int row) {
    at_ = std::size_t(row);
    const DesignFinding finding = session_.Findings().at(at_);
    last_ = finding;
    if (IsShown())
        pane_->Choose(row);
    Q_EMIT PlaceChosen(finding.Place);
    Q_EMIT Said(tr("%1: %2").arg(FromAnsi(LevelWord(finding.Level)), FromAnsi(finding.Text)));
}

} // namespace orvane
