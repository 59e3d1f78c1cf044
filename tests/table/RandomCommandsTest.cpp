// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/PopUpCommands.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "table/BacktrackList.h"
#include "table/CellEdit.h"
#include "table/StructuralEdits.h"

namespace orvane {
namespace {

using namespace test;

// A user at work on one table, who pastes only what the menus offer.
struct User {
    FsmDocument Document;
    TableClipboard Clipboard;
    PasteItems Offered;

    // As a menu that comes up now.
    bool IsOffered(bool PasteItems::*item) {
        Offered = EnablePasteItems(Clipboard.Kind, Offered);
        return Offered.*item;
    }
};

struct Place {
    int State;
    int Row;      // of any cell
    int EventRow; // of an event
    int Number;   // that is typed; its parity is the answer to a question
};

struct UserCommand {
    std::optional<Command> Id; // none: a number is typed
    void (*Run)(User& user, const Place& at);
};

constexpr std::array kUserCommands = {
    UserCommand{Command::InsertState,
                [](User& user, const Place& at) { InsertState(user.Document, user.Clipboard, at.State); }},
    UserCommand{Command::DeleteState,
                [](User& user, const Place& at) { DeleteState(user.Document, user.Clipboard, at.State); }},
    UserCommand{Command::InsertEvent,
                [](User& user, const Place& at) { InsertEvent(user.Document, user.Clipboard, at.EventRow); }},
    UserCommand{Command::DeleteEvent,
                [](User& user, const Place& at) {
                    if (!QuestionBeforeDeleteEvent(user.Document, at.EventRow) || at.Number % 2 == 0)
                        DeleteEvent(user.Document, user.Clipboard, at.EventRow);
                }},
    UserCommand{std::nullopt,
                [](User& user, const Place& at) {
                    StoreTypedTarget(user.Document, {at.Row, at.State}, std::to_string(at.Number));
                }},
    UserCommand{Command::CopyState,
                [](User& user, const Place& at) { CopyState(user.Document, user.Clipboard, at.State); }},
    UserCommand{Command::CopyEvent,
                [](User& user, const Place& at) { CopyEvent(user.Document, user.Clipboard, at.EventRow); }},
    UserCommand{Command::CutEntryAction,
                [](User& user, const Place& at) { CutEntryAction(user.Document, user.Clipboard, at.State); }},
    UserCommand{Command::CopyTransition,
                [](User& user, const Place& at) {
                    CopyTransition(user.Document, user.Clipboard, {at.Row, at.State});
                }},
    UserCommand{Command::CutTransition,
                [](User& user, const Place& at) {
                    CutTransition(user.Document, user.Clipboard, {at.Row, at.State});
                }},
    UserCommand{Command::CutAction,
                [](User& user, const Place& at) {
                    CutTransitionAction(user.Document, user.Clipboard, {at.Row, at.State});
                }},
    UserCommand{
        Command::CopyEntryAction,
        [](User& user, const Place& at) { CopyEntryAction(user.Document, user.Clipboard, at.State); }},
    UserCommand{Command::DeleteEntryAction,
                [](User& user, const Place& at) { DeleteEntryAction(user.Document, at.State); }},
    UserCommand{Command::CopyAction,
                [](User& user, const Place& at) {
                    CopyTransitionAction(user.Document, user.Clipboard, {at.Row, at.State});
                }},
    UserCommand{Command::PasteState,
                [](User& user, const Place& at) {
                    if (user.IsOffered(&PasteItems::State))
                        PasteState(user.Document, user.Clipboard, at.State);
                }},
    UserCommand{Command::PasteEvent,
                [](User& user, const Place& at) {
                    if (user.IsOffered(&PasteItems::Event))
                        PasteEvent(user.Document, user.Clipboard, at.EventRow);
                }},
    UserCommand{Command::PasteEntryAction,
                [](User& user, const Place& at) {
                    if (user.IsOffered(&PasteItems::EntryAction))
                        PasteEntryAction(user.Document, user.Clipboard, at.State);
                }},
    UserCommand{Command::PasteTransition,
                [](User& user, const Place& at) {
                    if (user.IsOffered(&PasteItems::Transition))
                        PasteTransition(user.Document, user.Clipboard, {at.Row, at.State});
                }},
    UserCommand{Command::PasteAction,
                [](User& user, const Place& at) {
                    if (user.IsOffered(&PasteItems::TransitionAction))
                        PasteTransitionAction(user.Document, user.Clipboard, {at.Row, at.State});
                }},
};

static_assert(EachPopUpCommandIsTried([](Command command) {
    return std::any_of(kUserCommands.begin(), kUserCommands.end(),
                       [command](const UserCommand& tried) { return tried.Id == command; });
}));

struct Step {
    UserCommand Do;
    Place At;
};

void showValue(const Step& step, std::ostream& out) {
    out << (step.Do.Id ? EntryOf(*step.Do.Id).Name : "typing") << " at state " << step.At.State << ", row "
        << step.At.Row << ", event row " << step.At.EventRow << ", number " << step.At.Number;
}

rc::Gen<Step> AnyStep() {
    const auto place =
        rc::gen::build<Place>(rc::gen::set(&Place::State, rc::gen::inRange(1, kStateCount + 1)),
                              rc::gen::set(&Place::Row, rc::gen::inRange(kFirstCellRow, kLastRow + 1)),
                              rc::gen::set(&Place::EventRow, rc::gen::inRange(kFirstEventRow, kLastRow + 1)),
                              rc::gen::set(&Place::Number, rc::gen::inRange(-5, 111)));
    return rc::gen::apply(
        [](const UserCommand& command, const Place& at) {
            return Step{command, at};
        },
        rc::gen::elementOf(kUserCommands), place);
}

void RequireValid(const User& user) {
    for (const StateNumber state : StateNumbers())
        for (const RowNumber row : CellRows())
            RC_ASSERT(TargetNumbers().Contains(user.Document.State(state).Targets[row]));
    RC_ASSERT(TargetNumbers().Contains(user.Clipboard.ClipTarget));
}

// Each transition stands in the list of exactly one state.
void RequireEveryTransitionInOneList(const FsmDocument& document) {
    std::size_t transitions = 0;
    std::size_t listed = 0;
    for (const StateNumber state : StateNumbers()) {
        listed += BacktrackLines(document, state).size();
        for (const RowNumber row : CellRows())
            transitions += document.State(state).Targets[row] != kNoState;
    }
    RC_ASSERT(listed == transitions);
}

TEST(RandomCommands, FiveHundredOfThemLeaveAValidTable) {
    ExpectProperty({.Cases = 20}, [] {
        User user{.Document = *AnyDocument(), .Clipboard = {}, .Offered = {}};
        for (const Step& step : *rc::gen::container<std::vector<Step>>(500, AnyStep())) {
            step.Do.Run(user, step.At);
            RequireValid(user);
        }
        RequireEveryTransitionInOneList(user.Document);
    });
}

} // namespace
} // namespace orvane
