// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/Session.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using Extent = Touched::Extent;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr EditStep kNaming{"state", {Extent::AllColumns, {}}};

// What the document is shared as cannot be written to.
static_assert(std::is_same_v<decltype(std::declval<Session&>().Document()), const FsmDocument&>);
static_assert(std::is_same_v<decltype(std::declval<Session&>().Clipboard()), const TableClipboard&>);

class Ear final : public SessionObserver {
  public:
    explicit Ear(std::string name = {}, std::vector<std::string>* order = nullptr)
        : name_(std::move(name)), order_(order) {}

    void Told(const Change& change) override {
        Heard.push_back(change);
        if (order_ != nullptr)
            order_->push_back(name_);
    }

    std::vector<Change> Heard;

  private:
    std::string name_;
    std::vector<std::string>* order_;
};

class SessionTest : public testing::Test {
  protected:
    SessionTest() {
        session.SetStandardHeight(300);
        session.Replace(FsmDocument(), {});
        session.Observe(ObserverRank::Rooms, ear);
    }

    void Name(StateNumber state, const std::string& name) {
        session.Edit(kNaming, [&](const Editable& open) { open.Document.State(state.Number()).Name = name; });
    }

    Session session;
    Ear ear;
};

TEST_F(SessionTest, ObserversAreToldInTheOrderOfTheirRanks) {
    std::vector<std::string> order;
    Ear messages("messages", &order), rooms("rooms", &order), generator("generator", &order),
        title("title", &order), journal("journal", &order), table("table", &order),
        otherRoom("other room", &order);
    session.Observe(ObserverRank::Messages, messages);
    session.Observe(ObserverRank::Rooms, rooms);
    session.Observe(ObserverRank::Generator, generator);
    session.Observe(ObserverRank::Title, title);
    session.Observe(ObserverRank::Rooms, otherRoom);
    session.Observe(ObserverRank::Journal, journal);
    session.Observe(ObserverRank::Table, table);
    Name(1, "Idle");
    EXPECT_THAT(order,
                ElementsAre("table", "journal", "title", "generator", "rooms", "other room", "messages"));
}

TEST_F(SessionTest, AnEditIsOneStepWithItsPlaceAndName) {
    Name(3, "Idle");
    ASSERT_EQ(ear.Heard.size(), 1u);
    EXPECT_EQ(ear.Heard[0].Kind, ChangeKind::Edited);
    EXPECT_EQ(ear.Heard[0].Where, (Touched{Extent::AllColumns, {}}));
    EXPECT_EQ(ear.Heard[0].Name, "state");
    EXPECT_TRUE(ear.Heard[0].Committed);
    EXPECT_TRUE(session.IsModified());
    EXPECT_TRUE(session.CanUndo());
}

TEST_F(SessionTest, AnEditThatLeavesTheDesignAsItWasIsToldButIsNoStep) {
    Name(3, "");
    ASSERT_EQ(ear.Heard.size(), 1u);
    EXPECT_FALSE(ear.Heard[0].Committed);
    EXPECT_FALSE(session.IsModified());
    EXPECT_FALSE(session.CanUndo());
}

TEST_F(SessionTest, ARefusedEditTellsNobodyAndItsMessageComesBack) {
    const std::optional<UserMessage> refusal = session.Edit(
        kNaming, [](const Editable&) -> std::optional<UserMessage> { return UserMessage{"no room"}; });
    EXPECT_EQ(refusal, UserMessage{"no room"});
    EXPECT_THAT(ear.Heard, IsEmpty());
    EXPECT_FALSE(session.CanUndo());
}

TEST_F(SessionTest, StepsBackAndForwardAreToldByTheNamesOfTheirEdits) {
    Name(1, "Idle");
    session.Edit({"insert state", {Extent::AllColumns, {}}},
                 [](const Editable& open) { open.Document.State(2).Name = "Run"; });
    EXPECT_THAT(session.Undo(), IsEmpty());
    EXPECT_EQ(ear.Heard.back().Kind, ChangeKind::Undone);
    EXPECT_EQ(ear.Heard.back().Name, "insert state");
    EXPECT_EQ(session.Document().State(2).Name, "");
    session.Undo();
    EXPECT_EQ(ear.Heard.back().Name, "state");
    EXPECT_FALSE(session.CanUndo());
    EXPECT_FALSE(session.IsModified());
    session.Redo();
    EXPECT_EQ(ear.Heard.back().Kind, ChangeKind::Redone);
    EXPECT_EQ(ear.Heard.back().Name, "state");
    session.Redo();
    EXPECT_EQ(ear.Heard.back().Name, "insert state");
    EXPECT_EQ(session.Document().State(2).Name, "Run");
}

TEST_F(SessionTest, WhereThereIsNoStepTheDocumentStaysAndNothingIsDrawn) {
    session.Undo();
    EXPECT_EQ(ear.Heard.back().Where, Touched{});
    session.Redo();
    EXPECT_EQ(ear.Heard.back().Where, Touched{});
    EXPECT_EQ(session.Document(), FsmDocument());
}

TEST_F(SessionTest, LettersThatAreWrittenThroughAreOneStepWhenTheirEditorCloses) {
    for (const char* typed : {"P", "Pu", "Pump"})
        session.Edit({"general code", {Extent::RowHeads, {}}, EditKind::Typing},
                     [typed](const Editable& open) { open.Document.General.FsmName = typed; });
    EXPECT_EQ(session.Document().General.FsmName, "Pump");
    EXPECT_EQ(ear.Heard.back().Kind, ChangeKind::Typed);
    EXPECT_FALSE(session.CanUndo());
    session.Edit({"general code", {Extent::RowHeads, {}}}, [](const Editable&) {});
    EXPECT_TRUE(ear.Heard.back().Committed);
    session.Undo();
    EXPECT_EQ(session.Document().General.FsmName, "");
    EXPECT_FALSE(session.CanUndo());
}

TEST_F(SessionTest, HowTheDocumentIsLookedAtIsNoStep) {
    for (const EditKind kind : {EditKind::View, EditKind::ToggledRows, EditKind::Multitasking}) {
        session.Edit({"view", {}, kind}, [](const Editable& open) {
            open.Document.View.Polytask = !open.Document.View.Polytask;
            Twips& width = open.Document.State(1).ColWidth;
            width = width + 15;
        });
        EXPECT_FALSE(ear.Heard.back().Committed);
    }
    EXPECT_FALSE(session.CanUndo());
    EXPECT_FALSE(session.IsModified());
    EXPECT_EQ(session.Document().State(1).ColWidth, kDefaultColumnWidth + 45);
}

TEST_F(SessionTest, WhatIsDrawnAnewForcesItsRowsIntoSight) {
    const auto timeOut = [](const Editable& open) { open.Document.State(4).TimingMode = 1; };
    session.Edit({"state", {Extent::Column, StateNumber(5)}}, timeOut);
    EXPECT_FALSE(ear.Heard.back().RowsForced) << "column 4 is not drawn";
    session.Edit({"state", {Extent::Column, StateNumber(4)}}, timeOut);
    EXPECT_TRUE(ear.Heard.back().RowsForced);
    EXPECT_EQ(session.Document().View.RowVisible.TimingMode, 300);
    session.Edit({"state", {Extent::Everything, {}}}, timeOut);
    EXPECT_FALSE(ear.Heard.back().RowsForced) << "they are in sight already";
}

TEST_F(SessionTest, AnotherDocumentBeginsItsHistoryAndForgetsWhereTheUserWas) {
    Name(1, "Idle");
    session.SetCurrentState(1);
    FsmDocument other;
    other.State(1).Targets[kElseRow] = 2;
    session.Replace(other, "/tmp/other.zfsm");
    EXPECT_EQ(ear.Heard.back().Kind, ChangeKind::Replaced);
    EXPECT_TRUE(ear.Heard.back().RowsForced);
    EXPECT_EQ(session.Path(), "/tmp/other.zfsm");
    EXPECT_EQ(session.CurrentState(), StateNumber(kNoState));
    EXPECT_FALSE(session.CanUndo());
    EXPECT_FALSE(session.IsModified());
}

TEST_F(SessionTest, ASavedDocumentIsUnmodifiedUnderItsNewName) {
    Name(1, "Idle");
    session.MarkSaved("/tmp/a.zfsm");
    EXPECT_EQ(ear.Heard.back().Kind, ChangeKind::Saved);
    EXPECT_EQ(session.Path(), "/tmp/a.zfsm");
    EXPECT_FALSE(session.IsModified());
    session.Undo();
    EXPECT_TRUE(session.IsModified());
}

TEST_F(SessionTest, ACutFillsTheClipboardAndIsUndoneWithoutEmptyingIt) {
    Name(2, "Run");
    session.Edit({"cut entry action", {}}, [](const Editable& open) {
        open.Document.State(2).EntryCode = ";x";
        CutEntryAction(open.Document, open.Clipboard, 2);
    });
    session.EnablePasteItems();
    EXPECT_TRUE(session.Pasteable().EntryAction);
    session.Undo();
    EXPECT_EQ(session.Clipboard().ClipState.EntryCode, ";x");
    EXPECT_TRUE(session.Pasteable().EntryAction);
}

TEST_F(SessionTest, TheDraftsOfOpenEditorsAreAskedForWhenTheyAreWanted) {
    struct Editor final : DraftSource {
        std::optional<Draft> CurrentDraft() const override { return Held; }
        std::optional<Draft> Held;
    } editor;
    session.AddDraftSource(editor);
    EXPECT_THAT(session.Drafts(), IsEmpty());
    editor.Held = Draft{{6, 2}, TypedTarget{"12"}};
    session.TellDraft();
    EXPECT_EQ(ear.Heard.back().Kind, ChangeKind::Drafted);
    ASSERT_EQ(session.Drafts().size(), 1u);
    EXPECT_EQ(session.Drafts()[0].Place, (Cell{6, 2}));
    EXPECT_EQ(std::get<TypedTarget>(session.Drafts()[0].Content).Text, "12");
    session.RemoveDraftSource(editor);
    EXPECT_THAT(session.Drafts(), IsEmpty());
}

TEST_F(SessionTest, AnEditMadeByAnObserverIsToldToAll) {
    struct Namer final : SessionObserver {
        explicit Namer(Session& session) : Open(session) {}
        void Told(const Change& change) override {
            if (change.Kind == ChangeKind::Replaced)
                Open.Edit({"builder script", {}, EditKind::View},
                          [](const Editable& open) { open.Document.General.BuildFile = "a.b1d"; });
        }
        Session& Open;
    } namer(session);
    session.Observe(ObserverRank::Rooms, namer);
    session.Replace(FsmDocument(), {});
    ASSERT_EQ(ear.Heard.size(), 2u);
    EXPECT_EQ(ear.Heard[1].Kind, ChangeKind::Viewed);
    EXPECT_EQ(session.Document().General.BuildFile, "a.b1d");
}

} // namespace
} // namespace orvane
