// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/CommandState.h"

#include "session/Session.h"
#include "table/RowVisibility.h"

namespace orvane {

namespace {

// The marks of the generator's last run, which every edit brings up to date.
bool IsReached(const Session& session, StateNumber state) {
    return session.Program().Reached.test(IndexIn(TableColumns(), state));
}

} // namespace

bool IsPossible(const Session& session, const CommandEntry& entry) {
    switch (entry.Needs) {
    case Need::OlderStep:
        return session.CanUndo();
    case Need::NewerStep:
        return session.CanRedo();
    case Need::StateToPaste:
        return session.Pasteable().State;
    case Need::EventToPaste:
        return session.Pasteable().Event;
    case Need::EntryActionToPaste:
        return session.Pasteable().EntryAction;
    case Need::TransitionToPaste:
        return session.Pasteable().Transition;
    case Need::ActionToPaste:
        return session.Pasteable().TransitionAction;
    case Need::Finding:
        return !session.Findings().empty();
    case Need::UnreachedState:
        return !IsReached(session, session.Pressed().State);
    case Need::Nothing:
        break;
    }
    return true;
}

bool IsChecked(const Session& session, Command toggle) {
    const ViewOptions& view = session.Document().View;
    switch (toggle) {
    case Command::ShowExitAction:
        return IsMarked(view, SpecialRow::ExitAction);
    case Command::ShowElse:
        return IsMarked(view, SpecialRow::Else);
    case Command::ShowTimingMode:
        return IsMarked(view, SpecialRow::TimingMode);
    case Command::ShowTimeTarget:
        return IsMarked(view, SpecialRow::TimeTarget);
    case Command::Polytask:
        return view.Polytask;
    default:
        return session.IsPaneShown(toggle);
    }
}

} // namespace orvane
