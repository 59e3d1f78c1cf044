// SPDX-License-Identifier: GPL-3.0-or-later
// The undo ring beside the plainest thing that does the same, and with real documents.
#include "core/TightPacked.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "table/UndoRing.h"

#include <string>
#include <vector>

namespace orvane::test {
namespace {

constexpr std::size_t kMostSteps = 99;

// All snapshots in one list, as many of the oldest forgotten as the ring has no room for.
class UndoList {
  public:
    explicit UndoList(std::string image) : images_{std::move(image)}, saved_(images_.front()) {}

    bool Commit(const std::string& image) {
        if (image == Current())
            return false;
        images_.resize(current_ + 1);
        images_.push_back(image);
        ++current_;
        if (current_ - oldest_ > kMostSteps)
            oldest_ = current_ - kMostSteps;
        return true;
    }
    bool Undo() { return CanUndo() && current_-- > 0; }
    bool Redo() { return CanRedo() && ++current_ > 0; }
    bool CanUndo() const { return current_ > oldest_; }
    bool CanRedo() const { return current_ + 1 < images_.size(); }
    void Save() { saved_ = Current(); }
    bool IsModified() const { return Current() != saved_; }
    const std::string& Current() const { return images_[current_]; }

  private:
    std::vector<std::string> images_;
    std::size_t current_ = 0;
    std::size_t oldest_ = 0;
    std::string saved_;
};

void RequireAgreement(const UndoRing& ring, const UndoList& list) {
    RC_ASSERT(ring.Current() == list.Current());
    RC_ASSERT(ring.CanUndo() == list.CanUndo());
    RC_ASSERT(ring.CanRedo() == list.CanRedo());
    RC_ASSERT(ring.IsModified() == list.IsModified());
}

enum class Step { Commit, CommitAgain, Undo, Redo, Save };

// Mostly commits, so that the ring wraps; runs of undo and redo come from repeating a step.
struct Command {
    Step What = Step::Commit;
    int Times = 1;
    int Image = 0; // few of them, so that equal images meet
};

rc::Gen<Command> AnyCommand() {
    return rc::gen::build<Command>(
        rc::gen::set(&Command::What, rc::gen::element(Step::Commit, Step::Commit, Step::CommitAgain,
                                                      Step::Undo, Step::Redo, Step::Save)),
        rc::gen::set(&Command::Times, rc::gen::resize(100, rc::gen::inRange(1, 60))),
        rc::gen::set(&Command::Image, rc::gen::inRange(0, 5)));
}

void showValue(const Command& command, std::ostream& out) {
    out << static_cast<int>(command.What) << " x" << command.Times << " image " << command.Image;
}

void Perform(const Command& command, int time, UndoRing& ring, UndoList& list) {
    const std::string image = "0" + std::to_string((command.Image + time) % 7);
    switch (command.What) {
    case Step::Commit:
        RC_ASSERT(ring.Commit(image) == list.Commit(image));
        break;
    case Step::CommitAgain:
        RC_ASSERT(!ring.Commit(list.Current()));
        break;
    case Step::Undo:
        RC_ASSERT((ring.UndoStep() != nullptr) == list.Undo());
        break;
    case Step::Redo:
        RC_ASSERT((ring.RedoStep() != nullptr) == list.Redo());
        break;
    case Step::Save:
        ring.MarkSaved(ring.Current());
        list.Save();
        break;
    }
}

TEST(UndoRingProperties, TheRingDoesWhatAListWithNinetyNineStepsDoes) {
    ExpectProperty({.Cases = 500}, [] {
        UndoRing ring;
        ring.Reset("0");
        UndoList list("0");
        for (const Command& command : *rc::gen::container<std::vector<Command>>(AnyCommand())) {
            for (int time = 0; time < command.Times; ++time) {
                Perform(command, time, ring, list);
                RequireAgreement(ring, list);
            }
        }
    });
}

// A document under edits, its ring, and every image that was pushed.
struct DrawnDocument {
    FsmDocument Document;
    UndoRing Ring;
    std::vector<std::string> Pushed;

    DrawnDocument() {
        Ring.Reset(Pack(Document));
        Pushed.push_back(Ring.Current());
    }

    void Edit(const DocumentEdit& edit) {
        edit.Apply(Document);
        if (Ring.Commit(Pack(Document)))
            Pushed.push_back(Ring.Current());
    }
    void Restore(const std::string& image) {
        RC_ASSERT(Unpack(image, Document).empty());
        RC_ASSERT(Pack(Document) == image);
    }
};

TEST(UndoRingProperties, UndoneToTheStartAndRedoneToTheEndEveryDocumentComesBack) {
    ExpectProperty({.Cases = 60}, [] {
        const int edits = *rc::gen::element(3, 98, 99, 100, 101, 102, 160, 230);
        DrawnDocument session;
        for (int i = 0; i < edits; ++i)
            session.Edit(*AnyEdit());

        const std::vector<std::string>& pushed = session.Pushed;
        const std::size_t reachable = std::min(pushed.size() - 1, kMostSteps);
        std::size_t at = pushed.size() - 1;
        while (const std::string* image = session.Ring.UndoStep()) {
            RC_ASSERT(*image == pushed[--at]);
            session.Restore(*image);
        }
        RC_ASSERT(pushed.size() - 1 - at == reachable);
        RC_ASSERT(session.Ring.IsModified() == (session.Ring.Current() != pushed.front()));

        while (const std::string* image = session.Ring.RedoStep()) {
            RC_ASSERT(*image == pushed[++at]);
            session.Restore(*image);
        }
        RC_ASSERT(at == pushed.size() - 1);
    });
}

TEST(UndoRingProperties, ASavedDocumentIsUnmodifiedWheneverUndoOrRedoComesBackToIt) {
    ExpectProperty({.Cases = 200}, [] {
        DrawnDocument session;
        const auto before = *rc::gen::container<std::vector<DocumentEdit>>(AnyEdit());
        const auto after = *rc::gen::container<std::vector<DocumentEdit>>(AnyEdit());
        for (const DocumentEdit& edit : before)
            session.Edit(edit);
        const std::string saved = Pack(session.Document);
        session.Ring.MarkSaved(saved);
        RC_ASSERT(!session.Ring.IsModified());
        for (const DocumentEdit& edit : after) {
            session.Edit(edit);
            RC_ASSERT(session.Ring.IsModified() == (Pack(session.Document) != saved));
        }
        while (const std::string* image = session.Ring.UndoStep())
            RC_ASSERT(session.Ring.IsModified() == (*image != saved));
        while (const std::string* image = session.Ring.RedoStep())
            RC_ASSERT(session.Ring.IsModified() == (*image != saved));
    });
}

} // namespace
} // namespace orvane::test
