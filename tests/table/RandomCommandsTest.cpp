// SPDX-License-Identifier: GPL-3.0-or-later
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
};

struct Place {
    int State;
    int Row;      // of any cell
    int EventRow; // of an event
    int Number;   // that is typed; its parity is the answer to a question
};

struct Command {
    const char* What;
    void (*Run)(User& user, const Place& at);
};

constexpr std::array kCommands = {
    Command{"insert state",
            [](User& user, const Place& at) { InsertState(user.Document, user.Clipboard, at.State); }},
    Command{"delete state",
            [](User& user, const Place& at) { DeleteState(user.Document, user.Clipboard, at.State); }},
    Command{"insert event",
            [](User& user, const Place& at) { InsertEvent(user.Document, user.Clipboard, at.EventRow); }},
    Command{"delete event",
            [](User& user, const Place& at) {
                if (!QuestionBeforeDeleteEvent(user.Document, at.EventRow) || at.Number % 2 == 0)
                    DeleteEvent(user.Document, user.Clipboard, at.EventRow);
            }},
    Command{"type",
            [](User& user, const Place& at) {
                StoreTypedTarget(user.Document, {at.Row, at.State}, std::to_string(at.Number));
            }},
    Command{"copy state",
            [](User& user, const Place& at) { CopyState(user.Document, user.Clipboard, at.State); }},
    Command{"copy event",
            [](User& user, const Place& at) { CopyEvent(user.Document, user.Clipboard, at.EventRow); }},
    Command{"cut entry action",
            [](User& user, const Place& at) { CutEntryAction(user.Document, user.Clipboard, at.State); }},
    Command{"copy transition",
            [](User& user, const Place& at) {
                CopyTransition(user.Document, user.Clipboard, {at.Row, at.State});
            }},
    Command{"cut transition",
            [](User& user, const Place& at) {
                CutTransition(user.Document, user.Clipboard, {at.Row, at.State});
            }},
    Command{"cut action",
            [](User& user, const Place& at) {
                CutTransitionAction(user.Document, user.Clipboard, {at.Row, at.State});
            }},
    Command{"paste",
            [](User& user, const Place& at) {
                user.Offered = EnablePasteItems(user.Clipboard.Kind, user.Offered);
                if (user.Offered.State)
                    PasteState(user.Document, user.Clipboard, at.State);
                if (user.Offered.Event)
                    PasteEvent(user.Document, user.Clipboard, at.EventRow);
                if (user.Offered.EntryAction)
                    PasteEntryAction(user.Document, user.Clipboard, at.State);
                if (user.Offered.Transition)
                    PasteTransition(user.Document, user.Clipboard, {at.Row, at.State});
                if (user.Offered.TransitionAction)
                    PasteTransitionAction(user.Document, user.Clipboard, {at.Row, at.State});
            }},
};

struct Step {
    Command Do;
    Place At;
};

void showValue(const Step& step, std::ostream& out) {
    out << step.Do.What << " at state " << step.At.State << ", row " << step.At.Row << ", event row "
        << step.At.EventRow << ", number " << step.At.Number;
}

rc::Gen<Step> AnyStep() {
    const auto place =
        rc::gen::build<Place>(rc::gen::set(&Place::State, rc::gen::inRange(1, kStateCount + 1)),
                              rc::gen::set(&Place::Row, rc::gen::inRange(kFirstCellRow, kLastRow + 1)),
                              rc::gen::set(&Place::EventRow, rc::gen::inRange(kFirstEventRow, kLastRow + 1)),
                              rc::gen::set(&Place::Number, rc::gen::inRange(-5, 111)));
    return rc::gen::apply(
        [](const Command& command, const Place& at) {
            return Step{command, at};
        },
        rc::gen::elementOf(kCommands), place);
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
