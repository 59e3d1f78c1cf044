// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/FindRoom.h"

#include "find/Replacement.h"
#include "find/ui/SubjectAt.h"
#include "find/ui/dckFind.h"
#include "find/ui/frmReplace.h"
#include "kit/AnsiString.h"
#include "session/Commands.h"
#include "session/Session.h"

#include <QMainWindow>
#include <QShortcut>

namespace orvane {

FindRoom::FindRoom(const RoomPlace& place)
    : PaneRoom(place.Window, Command::ViewFind, Qt::BottomDockWidgetArea),
      session_(place.Open),
      window_(place.Window) {
    for (const auto& [key, by] :
         {std::pair{QKeySequence(Qt::Key_F3), 1}, std::pair{QKeySequence(Qt::SHIFT | Qt::Key_F3), -1}}) {
        auto* shortcut = new QShortcut(key, &window_);
        connect(shortcut, &QShortcut::activated, this, [this, by = by] { Step(by); });
    }
}

std::span<const Command> FindRoom::Commands() const {
    static constexpr auto commands = std::to_array<Command>(
        {Command::Find, Command::WhereUsed, Command::ViewFind, Command::StateUses, Command::EventUses});
    return commands;
}

ObserverRank FindRoom::Rank() const { return ObserverRank::Rooms; }

void FindRoom::Run(Command command) {
    switch (command) {
    case Command::ViewFind:
        return Toggle();
    case Command::WhereUsed:
        return ShowUsesOf(ChosenSubject(window_, session_));
    case Command::StateUses:
        return ShowUsesOf(find::OfState{session_.Pressed().State});
    case Command::EventUses:
        return ShowUsesOf(find::OfEvent{session_.Pressed().Row});
    default:
        return Open();
    }
}

Pane* FindRoom::MakePane() {
    pane_ = new dckFind(session_.Document(), &window_);
    connect(pane_, &dckFind::QueryChanged, this, &FindRoom::LookForText);
    connect(pane_, &dckFind::ReplaceWanted, this, &FindRoom::Replace);
    connect(pane_, &dckFind::PieceChosen, this, &FindRoom::GoTo);
    connect(pane_, &dckFind::PlaceChosen, this, &Room::PlaceChosen);
    return pane_;
}

void FindRoom::Shown() { LookAgain(); }

void FindRoom::Step(int by) {
    if (pane_ == nullptr)
        return Run(Command::Find);
    ShowPane();
    pane_->Step(by);
}

void FindRoom::Told(const Change& change) {
    if (change.Kind == ChangeKind::Replaced)
        subject_.reset(); // of another document
    if (ChangesTexts(change.Kind) || change.Kind == ChangeKind::Viewed)
        LookAgain();
}

void FindRoom::LookAgain() {
    LookForText();
    if (pane_->ShowsUses())
        LookForUses();
}

void FindRoom::LookForText() {
    const find::SearchQuery query = pane_->Query();
    if (query.Text.empty())
        return pane_->ShowFault({});
    const auto read = find::ReadPattern(query);
    if (const auto* fault = std::get_if<find::PatternFault>(&read))
        return pane_->ShowFault(FromAnsi(fault->Text));
    pane_->ShowHits(Search(session_.Document(), std::get<find::Pattern>(read)));
}

// States and events are numbers to the table, but the user means the one of that name: it is followed where
// it is moved, by whatever command, undo included. A name that came with a rename is found at the old place.
void FindRoom::FollowSubject() {
    const FsmDocument& document = session_.Document();
    const std::vector<find::Subject> bearers = find::BearersOf(document, *subject_, subjectName_);
    const bool isThere = find::NameOf(document, *subject_) == subjectName_;
    if (!isThere && bearers.size() == 1 && !subjectName_.empty())
        subject_ = bearers.front();
    const std::string name = find::NameOf(document, *subject_);
    subjectName_ = find::BearersOf(document, *subject_, name).size() == 1 ? name : std::string();
}

void FindRoom::LookForUses() {
    if (!subject_)
        return pane_->ShowUses(tr("Nothing"), {});
    FollowSubject();
    pane_->ShowUses(FromAnsi(find::TitleOf(session_.Document(), *subject_)),
                    find::UsesOf(session_.Document(), *subject_));
}

void FindRoom::ShowUsesOf(const find::Subject& subject) {
    subject_ = subject;
    subjectName_.clear();
    ShowPane();
    LookForUses();
}

// All matches are shown before any is replaced.
void FindRoom::Replace() {
    const auto read = find::ReadPattern(pane_->Query());
    const auto* pattern = std::get_if<find::Pattern>(&read);
    if (pattern == nullptr)
        return;
    find::ReplacementPlan plan = PlanReplacement(session_.Document(), *pattern, pane_->Replacement());
    if (!plan.Fault.empty())
        return pane_->ShowFault(FromAnsi(plan.Fault));
    frmReplace preview(session_.Document(), std::move(plan), &window_);
    if (preview.exec() != QDialog::Accepted)
        return;
    const std::vector<find::TextChange> chosen = preview.Chosen();
    session_.Edit({"replace", {Touched::Extent::Everything, {}}},
                  [&](const Editable& open) { Apply(open.Document, chosen); });
    Q_EMIT Said(chosen.size() == 1 ? tr("1 place replaced") : tr("%1 places replaced").arg(chosen.size()));
}

void FindRoom::GoTo(const TextPiece& piece) {
    Q_EMIT PlaceChosen(piece.Place.At);
    Q_EMIT PieceWanted(piece);
}

} // namespace orvane
