// SPDX-License-Identifier: GPL-3.0-or-later
// Random sessions: what a journal brings back is what the window had.
#include "core/DocumentWriter.h"
#include "core/TightPacked.h"
#include "session/RecoveryFolder.h"
#include "support/JournaledWindow.h"
#include "support/MemoryFiles.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "table/UndoRing.h"

#include <string>
#include <vector>

namespace orvane::test {
namespace {

constexpr const char* kJournals = "/recovery";

JournalPlace PlaceIn(MemoryFiles& files) {
    return {files, kJournals, "Orvane 1", TestClock, JournalSyncer::How::WhenTold};
}

RecoveredJournal Read(MemoryFiles& files, const JournaledWindow& window) {
    return Recover(*files.Bytes(std::string(kJournals) + "/" + window.Writer.Name()));
}

// A document under edits and its window.
struct KeptSession {
    MemoryFiles Files;
    FsmDocument Document;
    JournaledWindow Window{PlaceIn(Files), Pack(FsmDocument())};

    KeptSession() { Window.View = ViewOf(Document); }

    void Edit(const DocumentEdit& edit) {
        edit.Apply(Document);
        Window.Document = WriteDocument(Document);
        Window.View = ViewOf(Document);
        const std::string image = Pack(Document);
        if (image != Window.Present())
            Window.Edit(image, edit.What);
        Window.Writer.ViewChanged(Window.View);
    }
    void Move(int steps) {
        if (Window.Move(steps))
            RC_ASSERT(Unpack(Window.Present(), Document).empty());
    }
    void Type(int state) { Window.Type({JournalDraftKind::Action, {6, state}, {{"Code", *AnyText()}}}); }
};

void DoSomething(KeptSession& session) {
    switch (*rc::gen::inRange(0, 12)) {
    case 0:
        return session.Move(-1);
    case 1:
        return session.Move(1);
    case 2:
        return session.Move(-*rc::gen::inRange(2, 120));
    case 3:
        return session.Window.Save();
    case 4:
        return session.Type(*rc::gen::inRange(1, 4));
    case 5:
        return session.Window.CloseEditor({JournalDraftKind::Action, {6, *rc::gen::inRange(1, 4)}, {}});
    default:
        return session.Edit(*AnyEdit());
    }
}

TEST(JournalProperties, AfterEveryCallTheJournalHoldsTheSession) {
    ExpectProperty({.Cases = 60}, [] {
        KeptSession session;
        for (int left = *rc::gen::inRange(1, 40); left > 0; --left) {
            DoSomething(session);
            if (session.Window.Writer.Name().empty())
                continue;
            const RecoveredJournal journal = Read(session.Files, session.Window);
            RC_ASSERT(journal.End == JournalEnd::Clean);
            RC_ASSERT(Differences(journal, session.Window) == "");
            RC_ASSERT(Pack(journal.Document) == Pack(session.Document));
            RC_ASSERT(ViewOf(journal.Document) == ViewOf(session.Document));
        }
    });
}

// As the session fills its own after a crash.
TEST(JournalProperties, TheUndoRingIsFilledAsItWas) {
    ExpectProperty({.Cases = 30}, [] {
        KeptSession session;
        session.Edit({"first", [](FsmDocument& document) { document.General.FsmName = "FIRST"; }});
        for (int left = *rc::gen::element(5, 150, 260); left > 0; --left)
            DoSomething(session);
        const RecoveredJournal journal = Read(session.Files, session.Window);
        UndoRing ring;
        ring.Reset(journal.History.front().Image);
        for (std::size_t i = 1; i < journal.History.size(); ++i)
            RC_ASSERT(ring.Commit(journal.History[i].Image));
        for (std::size_t i = journal.History.size() - 1; i > journal.Current; --i)
            ring.UndoStep();
        ring.MarkSaved(*journal.SavedImage);
        RC_ASSERT(ring.Current() == session.Window.Present());
        RC_ASSERT(ring.IsModified() == (session.Window.Present() != session.Window.Saved));
        for (std::size_t i = session.Window.Current; i > 0; --i)
            RC_ASSERT(*ring.UndoStep() == session.Window.Images[i - 1].Image);
        RC_ASSERT(!ring.CanUndo());
    });
}

TEST(JournalProperties, CutAnywhereItHoldsAnEarlierMoment) {
    ExpectProperty({.Cases = 60}, [] {
        KeptSession session;
        session.Edit({"first", [](FsmDocument& document) { document.General.FsmName = "FIRST"; }});
        std::vector<std::string> moments{session.Window.Present()};
        for (int left = 20; left > 0; --left) {
            DoSomething(session);
            moments.push_back(session.Window.Present());
        }
        const std::string bytes =
            *session.Files.Bytes(std::string(kJournals) + "/" + session.Window.Writer.Name());
        const RecoveredJournal journal =
            Recover(bytes.substr(0, *rc::gen::inRange<std::size_t>(0, bytes.size())));
        RC_ASSERT(journal.End != JournalEnd::Damaged);
        if (journal.Records > 5) // the history that the file began with
            RC_ASSERT(std::find(moments.begin(), moments.end(), journal.History[journal.Current].Image) !=
                      moments.end());
    });
}

TEST(JournalProperties, KilledAndAdoptedAgainAndAgainNothingIsLost) {
    ExpectProperty({.Cases = 40}, [] {
        KeptSession session;
        session.Edit({"first", [](FsmDocument& document) { document.General.FsmName = "FIRST"; }});
        std::vector<std::unique_ptr<JournaledWindow>> killed;
        JournaledWindow* window = &session.Window;
        for (int life = 0; life < 4; ++life) {
            for (int left = *rc::gen::inRange(0, 10); left > 0; --left)
                window->Edit("0 " + std::to_string(life) + *AnyText() + std::to_string(left));
            if (*rc::gen::inRange(0, 2) == 0)
                window->Writer.SyncNow();
            session.Files.CloseAll();
            const RecoveryFolder folder(session.Files, kJournals);
            const std::vector<OrphanedJournal> orphans = folder.Orphans();
            RC_ASSERT(orphans.size() == 1u);
            Result<AdoptedJournal> adopted = folder.Adopt(orphans.front().Name, TestClock());
            RC_ASSERT(Differences(adopted.Got.Journal, *window) == "");
            killed.push_back(std::make_unique<JournaledWindow>(PlaceIn(session.Files)));
            window = killed.back().get();
            window->Continue(std::move(adopted.Got));
        }
    });
}

} // namespace
} // namespace orvane::test
