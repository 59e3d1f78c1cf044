// SPDX-License-Identifier: GPL-3.0-or-later
// Five hundred commands in a row through the pop-up menus, beside the same commands on a document of our own.
#include "support/ui/PopUpFixture.h"

#include "codegen/Reachability.h"
#include "core/TightPacked.h"
#include "support/PopUpCommands.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "table/StructuralEdits.h"

namespace orvane {
namespace {

constexpr std::size_t kInReach = 99; // undo steps

// What the window should hold: document, clipboard, and the images that the commands have left behind.
struct Twin {
    FsmDocument Document;
    TableClipboard Clipboard;
    PasteItems Offered;
    std::vector<std::string> Images;
    bool Yes = false; // to a question that comes up

    // What a refused command has told, or asked.
    std::optional<UserMessage> Told;
};

struct MenuPlace {
    int Row;
    int Column;
};

struct MenuCommand {
    Command Id;
    enum { StateHead, EventHead, EntryCell, TransitionCell } Where;
    void (*Run)(Twin& twin, const MenuPlace& at);
    bool PasteItems::*Needs = nullptr;
};

constexpr std::array kMenuCommands = {
    MenuCommand{
        Command::InsertState, MenuCommand::StateHead,
        [](Twin& t, const MenuPlace& at) { t.Told = InsertState(t.Document, t.Clipboard, at.Column); }},
    MenuCommand{Command::DeleteState, MenuCommand::StateHead,
                [](Twin& t, const MenuPlace& at) { DeleteState(t.Document, t.Clipboard, at.Column); }},
    MenuCommand{Command::CopyState, MenuCommand::StateHead,
                [](Twin& t, const MenuPlace& at) { CopyState(t.Document, t.Clipboard, at.Column); }},
    MenuCommand{Command::PasteState, MenuCommand::StateHead,
                [](Twin& t, const MenuPlace& at) { PasteState(t.Document, t.Clipboard, at.Column); },
                &PasteItems::State},
    MenuCommand{Command::InsertEvent, MenuCommand::EventHead,
                [](Twin& t, const MenuPlace& at) { t.Told = InsertEvent(t.Document, t.Clipboard, at.Row); }},
    MenuCommand{Command::DeleteEvent, MenuCommand::EventHead,
                [](Twin& t, const MenuPlace& at) {
                    t.Told = QuestionBeforeDeleteEvent(t.Document, at.Row);
                    if (!t.Told || t.Yes)
                        DeleteEvent(t.Document, t.Clipboard, at.Row);
                }},
    MenuCommand{Command::CopyEvent, MenuCommand::EventHead,
                [](Twin& t, const MenuPlace& at) { CopyEvent(t.Document, t.Clipboard, at.Row); }},
    MenuCommand{Command::PasteEvent, MenuCommand::EventHead,
                [](Twin& t, const MenuPlace& at) { PasteEvent(t.Document, t.Clipboard, at.Row); },
                &PasteItems::Event},
    MenuCommand{Command::CopyEntryAction, MenuCommand::EntryCell,
                [](Twin& t, const MenuPlace& at) { CopyEntryAction(t.Document, t.Clipboard, at.Column); }},
    MenuCommand{Command::CutEntryAction, MenuCommand::EntryCell,
                [](Twin& t, const MenuPlace& at) { CutEntryAction(t.Document, t.Clipboard, at.Column); }},
    MenuCommand{Command::DeleteEntryAction, MenuCommand::EntryCell,
                [](Twin& t, const MenuPlace& at) { DeleteEntryAction(t.Document, at.Column); }},
    MenuCommand{Command::PasteEntryAction, MenuCommand::EntryCell,
                [](Twin& t, const MenuPlace& at) { PasteEntryAction(t.Document, t.Clipboard, at.Column); },
                &PasteItems::EntryAction},
    MenuCommand{Command::CopyTransition, MenuCommand::TransitionCell,
                [](Twin& t, const MenuPlace& at) {
                    CopyTransition(t.Document, t.Clipboard, {at.Row, at.Column});
                }},
    MenuCommand{Command::CutTransition, MenuCommand::TransitionCell,
                [](Twin& t, const MenuPlace& at) {
                    CutTransition(t.Document, t.Clipboard, {at.Row, at.Column});
                }},
    MenuCommand{Command::PasteTransition, MenuCommand::TransitionCell,
                [](Twin& t, const MenuPlace& at) {
                    PasteTransition(t.Document, t.Clipboard, {at.Row, at.Column});
                },
                &PasteItems::Transition},
    MenuCommand{Command::CopyAction, MenuCommand::TransitionCell,
                [](Twin& t, const MenuPlace& at) {
                    CopyTransitionAction(t.Document, t.Clipboard, {at.Row, at.Column});
                }},
    MenuCommand{Command::CutAction, MenuCommand::TransitionCell,
                [](Twin& t, const MenuPlace& at) {
                    CutTransitionAction(t.Document, t.Clipboard, {at.Row, at.Column});
                }},
    MenuCommand{Command::PasteAction, MenuCommand::TransitionCell,
                [](Twin& t, const MenuPlace& at) {
                    PasteTransitionAction(t.Document, t.Clipboard, {at.Row, at.Column});
                },
                &PasteItems::TransitionAction},
};

static_assert(test::EachPopUpCommandIsTried([](Command command) {
    return std::any_of(kMenuCommands.begin(), kMenuCommands.end(),
                       [command](const MenuCommand& tried) { return tried.Id == command; });
}));

struct MenuStep {
    MenuCommand Do;
    MenuPlace At;
    bool Yes;
};

void showValue(const MenuStep& step, std::ostream& out) {
    out << EntryOf(step.Do.Id).Name << " at row " << step.At.Row << ", column " << step.At.Column
        << (step.Yes ? ", yes" : ", no");
}

// Most steps meet in one corner of the table, where they have something to do with each other.
rc::Gen<MenuStep> AnyMenuStep() {
    const auto number = [](int first, int corner, int last) {
        return rc::gen::weightedOneOf<int>(
            {{4, rc::gen::inRange(first, corner + 1)}, {1, rc::gen::inRange(first, last + 1)}});
    };
    return rc::gen::apply(
        [](const MenuCommand& command, int row, int column, bool yes) {
            switch (command.Where) {
            case MenuCommand::StateHead:
                return MenuStep{command, {kHeadRow, column}, yes};
            case MenuCommand::EventHead:
                return MenuStep{command, {row, 0}, yes};
            case MenuCommand::EntryCell:
                return MenuStep{command, {kEntryActionRow, column}, yes};
            default:
                return MenuStep{command, {row, column}, yes};
            }
        },
        rc::gen::elementOf(kMenuCommands), number(kFirstEventRow, 12, kLastRow), number(1, 8, kStateCount),
        rc::gen::arbitrary<bool>());
}

// A width for each column that tells it from the others, and is a whole number of pixels.
FsmDocument WithColumnsToPress(FsmDocument document) {
    document.View.Col0Width = 1500;
    for (const StateNumber state : StateNumbers())
        document.State(state).ColWidth = 600 + 15 * state.Number();
    return document;
}

class RandomMenuCommands : public PopUpFixture {
  protected:
    void Begin(const FsmDocument& document) {
        StartOn(document);
        twin_ = {
            .Document = document, .Clipboard = {}, .Offered = {}, .Images = {Pack(document)}, .Told = {}};
    }

    // The command in the window and on the twin; the window must offer it exactly when it should.
    void Take(const MenuStep& step) {
        QAction* item = PopUpWith(step.At.Row, step.At.Column, EntryOf(step.Do.Id).Name);
        PoppedUp();
        twin_.Offered = EnablePasteItems(twin_.Clipboard.Kind, twin_.Offered);
        RC_ASSERT(item != nullptr);
        RC_ASSERT(item->isEnabled() == ShouldBeOffered(step));
        if (!item->isEnabled())
            return;
        twin_.Yes = step.Yes;
        twin_.Told.reset();
        step.Do.Run(twin_, step.At);
        const std::size_t seen = Answers.Seen().size();
        if (twin_.Told)
            Answers.Press(twin_.Told->Buttons == MessageButtons::Ok ? QMessageBox::Ok
                          : step.Yes                                ? QMessageBox::Yes
                                                                    : QMessageBox::No);
        item->trigger();
        RC_ASSERT(Answers.Seen().size() == seen + (twin_.Told ? 1 : 0));
        if (std::string image = Pack(twin_.Document); image != twin_.Images.back())
            twin_.Images.push_back(std::move(image));
    }

    bool ShouldBeOffered(const MenuStep& step) const {
        if (step.Do.Needs != nullptr)
            return twin_.Offered.*step.Do.Needs;
        if (step.Do.Id == Command::DeleteState)
            return !ComputeReachability(twin_.Document).Reached(step.At.Column);
        return true;
    }

    void RequireWindowHolds(const std::string& image) {
        const FsmDocument saved = SavedDocument();
        RC_ASSERT(Pack(saved) == image);
        for (const StateNumber state : StateNumbers())
            for (const RowNumber row : CellRows())
                RC_ASSERT(TargetNumbers().Contains(saved.State(state).Targets[row]));
    }

    void RequireWidthsTravelled() {
        const FsmDocument saved = SavedDocument();
        for (const StateNumber state : StateNumbers())
            RC_ASSERT(saved.State(state).ColWidth == twin_.Document.State(state).ColWidth);
    }

    Twin twin_;
};

TEST_F(RandomMenuCommands, FiveHundredOfThemKeepTheTableValidAndAreUndoneAndRedoneAsFarAsTheyReach) {
    test::ExpectProperty({.Cases = 6}, [this] {
        Begin(test::StoredPart(WithColumnsToPress(*test::AnyDocument())));
        for (const MenuStep& step : *rc::gen::container<std::vector<MenuStep>>(500, AnyMenuStep()))
            Take(step);
        RequireWindowHolds(twin_.Images.back());
        RequireWidthsTravelled();
        const std::size_t steps = std::min(twin_.Images.size() - 1, kInReach);
        RC_ASSERT(static_cast<std::size_t>(UndoSteps()) == steps);
        RequireWindowHolds(twin_.Images[twin_.Images.size() - 1 - steps]);
        while (Item("mnuRedo")->isEnabled())
            Trigger("mnuRedo");
        RequireWindowHolds(twin_.Images.back());
    });
}

} // namespace
} // namespace orvane
