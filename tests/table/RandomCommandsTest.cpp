// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/BacktrackList.h"
#include "table/CellEdit.h"
#include "table/RandomTable.h"
#include "table/StructuralEdits.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

// A user who works on one table without rest, and who pastes only what the menus offer.
class RestlessUser {
  public:
    explicit RestlessUser(unsigned seed) : random_(seed) { Document = random_.Document(); }

    void RunOneCommand() {
        const int state = random_.Number(1, kStateCount);
        const int row = random_.Number(kFirstCellRow, kLastRow);
        const int eventRow = random_.Number(kFirstEventRow, kLastRow);
        switch (random_.Number(0, 4)) {
        case 0:
            return MoveSomething(state, eventRow);
        case 1:
            return CopySomething(state, row, eventRow);
        case 2:
            return CutSomething(state, row);
        case 3:
            return PasteSomething(state, row, eventRow);
        default:
            StoreTypedTarget(Document, row, state, std::to_string(random_.Number(-5, 110)));
        }
    }

    FsmDocument Document;
    TableClipboard Clipboard;

  private:
    void MoveSomething(int state, int eventRow) {
        const auto answer = [this](const UserMessage&) { return random_.OneIn(2); };
        switch (random_.Number(0, 3)) {
        case 0:
            InsertState(Document, Clipboard, state);
            break;
        case 1:
            DeleteState(Document, Clipboard, state);
            break;
        case 2:
            InsertEvent(Document, Clipboard, eventRow);
            break;
        default:
            DeleteEvent(Document, Clipboard, eventRow, answer);
        }
    }

    void CopySomething(int state, int row, int eventRow) {
        switch (random_.Number(0, 4)) {
        case 0:
            return CopyState(Document, Clipboard, state);
        case 1:
            return CopyEvent(Document, Clipboard, eventRow);
        case 2:
            return CopyEntryAction(Document, Clipboard, state);
        case 3:
            return CopyTransition(Document, Clipboard, row, state);
        default:
            return CopyTransitionAction(Document, Clipboard, row, state);
        }
    }

    void CutSomething(int state, int row) {
        switch (random_.Number(0, 2)) {
        case 0:
            return CutEntryAction(Document, Clipboard, state);
        case 1:
            return CutTransition(Document, Clipboard, row, state);
        default:
            return CutTransitionAction(Document, Clipboard, row, state);
        }
    }

    void PasteSomething(int state, int row, int eventRow) {
        offered_ = EnablePasteItems(Clipboard.Kind, offered_);
        if (offered_.State)
            PasteState(Document, Clipboard, state);
        if (offered_.Event)
            PasteEvent(Document, Clipboard, eventRow);
        if (offered_.EntryAction)
            PasteEntryAction(Document, Clipboard, state);
        if (offered_.Transition)
            PasteTransition(Document, Clipboard, row, state);
        if (offered_.TransitionAction)
            PasteTransitionAction(Document, Clipboard, row, state);
    }

    RandomTable random_;
    PasteItems offered_;
};

bool AllTargetsAreStatesOrNone(const FsmDocument& document) {
    for (const int state : StateNumbers())
        for (const int row : CellRows())
            if (!TargetNumbers().Contains(document.State(state).Targets[row]))
                return false;
    return true;
}

TEST(RandomCommands, FiveHundredOfThemLeaveAValidTable) {
    for (unsigned seed = 1; seed <= 4; ++seed) {
        RestlessUser user(seed);
        for (int command = 0; command < 500; ++command) {
            user.RunOneCommand();
            ASSERT_TRUE(AllTargetsAreStatesOrNone(user.Document)) << seed << ' ' << command;
            ASSERT_TRUE(TargetNumbers().Contains(user.Clipboard.ClipTarget)) << seed << ' ' << command;
        }
    }
}

TEST(RandomCommands, TheBacktrackListAgreesWithCountingTransitions) {
    RestlessUser user(9);
    for (int round = 0; round < 20; ++round) {
        for (int command = 0; command < 20; ++command)
            user.RunOneCommand();
        std::size_t transitions = 0;
        for (const int state : StateNumbers())
            for (const int row : CellRows())
                transitions += user.Document.State(state).Targets[row] != kNoState;
        std::size_t listed = 0;
        for (const int state : StateNumbers())
            listed += BacktrackLines(user.Document, state).size();
        ASSERT_EQ(listed, transitions) << round;
    }
}

} // namespace
} // namespace orvane
