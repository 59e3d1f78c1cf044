// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/Journal.h"

#include "core/DocumentWriter.h"
#include "core/TightPacked.h"
#include "session/Session.h"
#include "support/JournaledWindow.h"
#include "support/MemoryFiles.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "table/RowVisibility.h"

#include <gmock/gmock.h>

namespace orvane::test {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kFolder = "/recovery";

// A window with its journal; the process ends with it.
struct Window {
    explicit Window(MemoryFiles& files, FsmDocument document = FsmDocument(), std::string path = {})
        : Files(files), Keeper(Open, {files, kFolder, "Orvane 1", TestClock, JournalSyncer::How::WhenTold}) {
        Open.SetStandardHeight(300);
        Open.Replace(std::move(document), std::move(path), JournalStamp{1, 2, {}});
    }
    ~Window() { Files.CloseAll(); }

    void Name(int state, std::string name) {
        Open.Edit({"state", {Touched::Extent::AllColumns, {}}},
                  [&](const Editable& open) { open.Document.State(state).Name = name; });
    }

    MemoryFiles& Files;
    Session Open;
    Journal Keeper;
};

// The editor whose draft the test says.
struct OpenEditor final : DraftSource {
    explicit OpenEditor(Session& session) : Open(session) { Open.AddDraftSource(*this); }
    ~OpenEditor() { Open.RemoveDraftSource(*this); }
    std::optional<Draft> CurrentDraft() const override { return Held; }

    Session& Open;
    std::optional<Draft> Held;
};

class JournalTest : public testing::Test {
  protected:
    RecoveredJournal Written() {
        std::vector<std::string> journals;
        for (const std::string& name : Files.AllNames()) {
            if (name.ends_with(kJournalSuffix))
                journals.push_back(name);
        }
        EXPECT_THAT(journals, SizeIs(1));
        return journals.empty() ? RecoveredJournal() : Recover(*Files.Bytes(journals[0]));
    }

    AdoptedJournal TakeOrphan() {
        const std::vector<OrphanedJournal> orphans = Folder.Orphans();
        EXPECT_THAT(orphans, SizeIs(1));
        return std::move(Folder.Adopt(orphans.at(0).Name, TestClock()).Got);
    }

    // Once the process has ended and a new window has taken the work over.
    void ExpectTheSameAfterACrash(const Window& before) {
        const FsmDocument document = before.Open.Document();
        const UndoHistory history = before.Open.History().History();
        const bool modified = before.Open.IsModified();
        Files.CloseAll();
        Window after(Files);
        after.Keeper.GoOnWith(TakeOrphan());
        EXPECT_EQ(after.Open.Document(), document);
        EXPECT_EQ(after.Open.History().History().Snapshots, history.Snapshots);
        EXPECT_EQ(after.Open.History().History().Current, history.Current);
        EXPECT_EQ(after.Open.IsModified(), modified);
    }

    MemoryFiles Files;
    RecoveryFolder Folder{Files, kFolder};
};

TEST_F(JournalTest, ADocumentThatIsOnlyLookedAtHasNone) {
    Window window(Files);
    window.Open.Edit({"column width", {}, EditKind::View},
                     [](const Editable& open) { open.Document.View.Col0Width = 3000; });
    window.Open.SetCurrentState(2);
    window.Open.WantProgram();
    EXPECT_THAT(Files.AllNames(), IsEmpty());
}

TEST_F(JournalTest, UndoGoesOnAcrossACrash) {
    Window window(Files, FsmDocument(), "/home/me/pump.zfsm");
    window.Name(1, "Idle");
    window.Name(2, "Run");
    window.Name(3, "Stop");
    window.Open.Undo();
    ExpectTheSameAfterACrash(window);
}

TEST_F(JournalTest, WhatBelongsToNoImageComesBackToo) {
    Window window(Files);
    window.Name(1, "Idle");
    window.Open.Edit({"Polytask", {}, EditKind::Multitasking},
                     [](const Editable& open) { open.Document.View.Polytask = true; });
    window.Open.Edit({"row", {}, EditKind::ToggledRows},
                     [](const Editable& open) { ToggleRow(open.Document.View, SpecialRow::Else, 300); });
    window.Open.Edit({"column width", {}, EditKind::View}, [](const Editable& open) {
        open.Document.State(7).ColWidth = 4321;
        open.Document.General.BuildFile = "/home/me/pump.b1d";
    });
    ExpectTheSameAfterACrash(window);
}

TEST_F(JournalTest, RowsThatAnEditForcesComeBack) {
    Window window(Files);
    window.Name(1, "Idle");
    window.Open.Edit({"state", {Touched::Extent::Column, StateNumber(1)}},
                     [](const Editable& open) { open.Document.State(1).TimingMode = 1; });
    EXPECT_EQ(Written().Document.View.RowVisible.TimingMode, 300);
}

TEST_F(JournalTest, ASavedDocumentIsNotOfferedAndOneChangedAfterwardsIs) {
    Window window(Files, FsmDocument(), "/home/me/pump.zfsm");
    window.Name(1, "Idle");
    window.Open.MarkSaved("/home/me/other.zfsm", JournalStamp{5, 6, {}});
    EXPECT_FALSE(Written().HasUnsavedWork());
    window.Name(2, "Run");
    EXPECT_TRUE(Written().HasUnsavedWork());
    EXPECT_EQ(Written().Head.Path, "/home/me/other.zfsm");
    EXPECT_EQ(Written().Head.Stamp, (JournalStamp{5, 6, {}}));
}

TEST_F(JournalTest, WhatTheUserDidNotWantIsDiscardedAndTheRestJustGoes) {
    Window window(Files);
    window.Name(1, "Idle");
    window.Open.Replace(FsmDocument(), {});
    window.Name(2, "Run");
    window.Open.Undo();
    window.Open.Leave();
    Files.CloseAll();
    const std::vector<OrphanedJournal> orphans = Folder.Orphans();
    ASSERT_THAT(orphans, SizeIs(1));
    EXPECT_TRUE(orphans[0].WasDiscarded);
    EXPECT_EQ(orphans[0].Changes, 1u);
}

TEST_F(JournalTest, WhatIsTypedInAnOpenEditorBecomesOneMoreStep) {
    FsmDocument document;
    document.State(2).ColWidth = 1500;
    document.State(2).Name = "Run";
    Window window(Files, document);
    {
        OpenEditor editor(window.Open);
        StateRecord typed = document.State(2);
        typed.EntryCode = ";half a li";
        editor.Held = Draft{{kHeadRow, 2}, typed};
        window.Open.TellDraft();
        ASSERT_TRUE(window.Keeper.DraftsDue());
        window.Keeper.WriteDrafts();
        EXPECT_FALSE(window.Keeper.DraftsDue());
        EXPECT_THAT(Written().Drafts, SizeIs(1));
        Files.CloseAll();
        Window after(Files);
        after.Keeper.GoOnWith(TakeOrphan());
        EXPECT_EQ(after.Open.Document().State(2), typed);
        EXPECT_TRUE(after.Open.IsModified());
        after.Open.Undo();
        EXPECT_EQ(after.Open.Document(), document);
        EXPECT_FALSE(after.Open.IsModified());
    }
}

TEST_F(JournalTest, ADraftGoesWithItsEditor) {
    Window window(Files);
    OpenEditor editor(window.Open);
    editor.Held = Draft{{6, 2}, ActionText{";act"}};
    window.Keeper.WriteDrafts();
    editor.Held.reset();
    window.Open.Edit({"transition action", {}},
                     [](const Editable& open) { open.Document.State(2).Actions[6] = ";act"; });
    EXPECT_THAT(Written().Drafts, IsEmpty());
    EXPECT_EQ(Written().Document.State(2).Actions[6], ";act");
}

TEST_F(JournalTest, TypedTargetsComeBackUnlessNoColumnHasThem) {
    for (const auto& [text, target] : {std::pair{"12", 12}, std::pair{"101", 5}}) {
        Files = MemoryFiles();
        FsmDocument document;
        document.State(1).Targets[6] = 5;
        Window window(Files, document);
        OpenEditor editor(window.Open);
        editor.Held = Draft{{6, 1}, TypedTarget{text}};
        window.Keeper.WriteDrafts();
        Files.CloseAll();
        Window after(Files);
        after.Keeper.GoOnWith(TakeOrphan());
        EXPECT_EQ(after.Open.Document().State(1).Targets[6], target);
    }
}

TEST_F(JournalTest, RecoveredWorkSurvivesTheNextCrash) {
    {
        Window window(Files);
        window.Name(1, "Idle");
        window.Name(2, "Run");
    }
    {
        Window second(Files);
        second.Keeper.GoOnWith(TakeOrphan());
        second.Name(3, "Stop");
    }
    Window third(Files);
    third.Keeper.GoOnWith(TakeOrphan());
    EXPECT_EQ(third.Open.Document().State(3).Name, "Stop");
    third.Open.Undo();
    third.Open.Undo();
    EXPECT_EQ(third.Open.Document().State(1).Name, "Idle");
    EXPECT_EQ(third.Open.Document().State(2).Name, "");
}

TEST_F(JournalTest, WhereCopiesAreForbiddenNothingIsWritten) {
    Window window(Files);
    window.Keeper.Keep(false);
    OpenEditor editor(window.Open);
    editor.Held = Draft{{6, 2}, ActionText{";act"}};
    window.Name(1, "Idle");
    window.Keeper.WriteDrafts();
    EXPECT_THAT(Files.AllNames(), IsEmpty());
}

// The names are of one length, so that nothing but the switch itself says that a step is missing.
TEST_F(JournalTest, WhatWasDrawnWhileNoneWasKeptIsThereWhenOneIsKeptAgain) {
    Window window(Files, FsmDocument(), "/home/me/pump.zfsm");
    window.Name(1, "Idle");
    window.Keeper.Keep(false);
    window.Name(2, "Wait");
    window.Keeper.Keep(true);
    window.Name(3, "Stop");
    window.Keeper.SyncNow();
    ExpectTheSameAfterACrash(window);
}

TEST_F(JournalTest, WhatWasWrittenBeforeTheSwitchGoesWithIt) {
    Window window(Files, FsmDocument(), "/home/me/pump.zfsm");
    window.Name(1, "Idle");
    ASSERT_THAT(Files.AllNames(), SizeIs(1));
    window.Keeper.Keep(false);
    EXPECT_THAT(Files.AllNames(), IsEmpty());
    EXPECT_EQ(Files.OpenHandles(), 0);
}

// The process ends at every call on the way from one window to the next, one after the other.
TEST_F(JournalTest, HoweverFarRecoveryComesNothingTypedIsLost) {
    for (int call = 1;; ++call) {
        Files = MemoryFiles();
        {
            Window window(Files, FsmDocument(), "/home/me/pump.zfsm");
            OpenEditor editor(window.Open);
            editor.Held = Draft{{6, 2}, ActionText{";act"}};
            window.Name(1, "Idle");
            window.Keeper.WriteDrafts();
            Files.CloseAll();
        }
        bool isThrough = false;
        {
            Window second(Files);
            AdoptedJournal adopted = TakeOrphan();
            Files.FailAt(call, std::make_error_code(std::errc::io_error), true);
            second.Keeper.GoOnWith(std::move(adopted));
            second.Keeper.SyncNow();
            isThrough = Files.Calls() < call;
            Files.FailAt(0, {});
        }
        Window third(Files);
        third.Keeper.GoOnWith(TakeOrphan());
        EXPECT_EQ(third.Open.Document().State(1).Name, "Idle") << call;
        EXPECT_EQ(third.Open.Document().State(2).Actions[6], ";act") << call;
        if (isThrough)
            break;
    }
}

TEST_F(JournalTest, TheScriptOfTheBuilderWaitsForWhoShowsIt) {
    {
        Window window(Files);
        OpenEditor editor(window.Open);
        editor.Held = Draft{{}, BuilderText{"CODESEG\n"}};
        window.Keeper.WriteDrafts();
        Files.CloseAll();
    }
    Window after(Files);
    after.Keeper.GoOnWith(TakeOrphan());
    EXPECT_FALSE(after.Open.IsModified());
    EXPECT_EQ(after.Open.TakeRestoredScript(), "CODESEG\n");
    EXPECT_FALSE(after.Open.HasRestoredScript());
}

TEST_F(JournalTest, AScriptThatNobodyTookGoesWithTheDocument) {
    Session open;
    RestoredWork work;
    work.History.Snapshots.push_back({Pack(work.Document), ""});
    work.Script = "CODESEG\n";
    open.Restore(std::move(work));
    open.Replace(FsmDocument(), {});
    EXPECT_FALSE(open.HasRestoredScript());
}

TEST_F(JournalTest, ADocumentThatUndoCannotCarryComesBackAsItWas) {
    FsmDocument document;
    document.State(1).EntryCode = "a \xA4 b";
    Window window(Files, document);
    window.Name(2, "Run");
    const FsmDocument expected = window.Open.Document();
    Files.CloseAll();
    Window after(Files);
    after.Keeper.GoOnWith(TakeOrphan());
    EXPECT_EQ(after.Open.Document(), expected);
}

// What a user does, at random.
void DoSomething(Window& window) {
    const int state = *rc::gen::inRange(1, 9);
    switch (*rc::gen::inRange(0, 8)) {
    case 0:
        window.Open.Undo();
        break;
    case 1:
        window.Open.Redo();
        break;
    case 2:
        window.Open.MarkSaved("/home/me/pump.zfsm", JournalStamp{3, 4, {}});
        break;
    case 3:
        window.Open.Edit({"column width", {}, EditKind::View}, [&](const Editable& open) {
            StateRecord& record = open.Document.State(state);
            record.ColWidth = record.ColWidth + 15;
        });
        break;
    case 4:
        window.Open.Edit({"insert state", {Touched::Extent::AllColumns, {}}}, [&](const Editable& open) {
            for (int k = 9; k > state; --k)
                open.Document.State(k) = open.Document.State(k - 1);
        });
        break;
    default:
        window.Name(state, std::string(static_cast<std::size_t>(*rc::gen::inRange(0, 4)), 'x'));
    }
}

TEST_F(JournalTest, AfterEveryStepOfRandomSessionsTheJournalHoldsTheSession) {
    ExpectProperty({.Cases = 60, .LargestSize = 30}, [this] {
        Files = MemoryFiles();
        Window window(Files, StoredPart(*AnyDocument()));
        window.Name(1, "begins the journal");
        for (int step = *rc::gen::inRange(1, 40); step > 0; --step) {
            DoSomething(window);
            const RecoveredJournal journal = Written();
            RC_ASSERT(journal.End == JournalEnd::Clean);
            RC_ASSERT(journal.Document == window.Open.Document());
            RC_ASSERT(journal.IsModified() == window.Open.IsModified());
            const UndoHistory history = window.Open.History().History();
            RC_ASSERT(journal.History.size() == history.Snapshots.size());
            RC_ASSERT(journal.Current == history.Current);
            for (std::size_t i = 0; i < history.Snapshots.size(); ++i)
                RC_ASSERT(journal.History[i].Image == history.Snapshots[i].Image);
        }
    });
}

} // namespace
} // namespace orvane::test
