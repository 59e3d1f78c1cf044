// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/CellRoom.h"

#include "core/NameMatch.h"
#include "editors/ui/dckCell.h"
#include "kit/AnsiString.h"
#include "kit/LeftOut.h"
#include "session/Commands.h"
#include "session/Session.h"
#include "text/NumberText.h"

#include <QMainWindow>

namespace orvane {

namespace {

using Extent = Touched::Extent;

bool IsTransition(const PlaceFields& before, const PlaceFields& after) {
    return before.Target != after.Target || before.Action != after.Action;
}

bool IsEvent(const PlaceFields& before, const PlaceFields& after) {
    return before.EventName != after.EventName || before.Test != after.Test;
}

// A state's name stands in every cell that leads to it, an event's in its own head.
Touched DrawnFor(Cell place, const PlaceFields& before, const PlaceFields& after) {
    if (IsTransition(before, after))
        return {Extent::Column, place.State};
    return {IsEvent(before, after) ? Extent::RowHeads : Extent::AllColumns, {}};
}

} // namespace

CellRoom::CellRoom(const RoomPlace& place)
    : PaneRoom(place.Window, Command::ViewCell, Qt::RightDockWidgetArea),
      session_(place.Open),
      words_(place.Words),
      window_(place.Window) {
    session_.AddDraftSource(*this);
}

CellRoom::~CellRoom() { session_.RemoveDraftSource(*this); }

std::span<const Command> CellRoom::Commands() const {
    static constexpr auto commands = std::to_array<Command>({Command::ViewCell});
    return commands;
}

ObserverRank CellRoom::Rank() const { return ObserverRank::Rooms; }

void CellRoom::Run(Command) { Toggle(); }

Pane* CellRoom::MakePane() {
    pane_ = new dckCell(words_, &window_);
    connect(pane_, &dckCell::Edited, this, [this] { session_.TellDraft(); });
    connect(pane_, &dckCell::FieldLeft, this, &CellRoom::Commit);
    connect(pane_, &dckCell::CharactersLeftOut, this,
            [this](const QString& characters) { Q_EMIT Said(LeftOutMessage(characters)); });
    return pane_;
}

void CellRoom::Shown() { pane_->ShowPlace(session_.Document(), session_.CurrentCell()); }

void CellRoom::Hiding() { Commit(); }

void CellRoom::Prepare(const CommandEntry&) { Commit(); }

void CellRoom::Told(const Change& change) {
    const Cell current = session_.CurrentCell();
    const bool isElsewhere = !(current == pane_->Place());
    if (!ChangesTexts(change.Kind) && !isElsewhere)
        return;
    if (isElsewhere && change.Kind == ChangeKind::Moved) {
        Commit();
        TellUnfinished();
    }
    pane_->ShowPlace(session_.Document(), current);
}

// The pane counts what it holds as taken before anybody hears of the edit: whoever then asks again finds
// nothing to take.
void CellRoom::Commit() {
    if (pane_ == nullptr)
        return;
    const PlaceFields before = pane_->Shown();
    const PlaceFields after = pane_->Typed();
    if (before == after)
        return;
    const Cell place = pane_->Place();
    pane_->MarkTaken(after);
    std::optional<std::string> refused;
    session_.Edit({NameOfEdit(before, after), DrawnFor(place, before, after)},
                  [&](Editable open) { refused = StoreFields(open.Document, place, before, after); });
    if (refused)
        Q_EMIT Said(
            tr("\"%1\" is not the number or the name of one state: the transition goes where it went.")
                .arg(FromAnsi(*refused)));
}

void CellRoom::TellUnfinished() {
    if (const TimingProblem problem = pane_->Unfinished(); IsLimitMissing(problem))
        Q_EMIT Said(tr("The timeout of the state was left as it was, because it has no limit yet."));
}

// What differs goes as the editor of that part would give it.
std::optional<Draft> CellRoom::CurrentDraft() const {
    if (pane_ == nullptr)
        return std::nullopt;
    const PlaceFields& before = pane_->Shown();
    const PlaceFields after = pane_->Typed();
    const Cell place = pane_->Place();
    if (before == after)
        return std::nullopt;
    if (before.Action != after.Action)
        return Draft{place, ActionText{after.Action}};
    if (before.Target != after.Target) {
        const std::optional<StateNumber> target = TargetMeant(session_.Document(), after.Target);
        return target ? std::optional(Draft{place, TypedTarget{NumberText(target->Number())}}) : std::nullopt;
    }
    FsmDocument document = session_.Document();
    StoreFields(document, place, before, after);
    if (IsEvent(before, after))
        return Draft{{place.Row, kNoState}, document.Event(place.Row)};
    return Draft{{kHeadRow, place.State}, document.State(place.State)};
}

} // namespace orvane
