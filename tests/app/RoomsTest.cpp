// SPDX-License-Identifier: GPL-3.0-or-later
// A made-up room in the real main window: what a new one costs and what it gets.
#include "support/ui/TableFixture.h"

#include "session/Commands.h"
#include "session/Session.h"

#include <QMainWindow>

namespace orvane {
namespace {

class MadeUpRoom : public Room {
  public:
    explicit MadeUpRoom(const RoomPlace& place) : Open(place.Open) {}

    ObserverRank Rank() const override { return ObserverRank::Rooms; }
    bool Listens() const override { return IsShown; }
    // What an open editor holds is told with every letter, where the user is with every step, and what there
    // is to be told of the document by itself: none of it is a change.
    void Told(const Change& change) override {
        if (change.Kind != ChangeKind::Drafted && change.Kind != ChangeKind::Judged &&
            change.Kind != ChangeKind::Moved)
            Heard.push_back(change.Kind);
    }
    void EditPlace(Cell place) override { Asked = place; }

    Session& Open;
    bool IsShown = true;
    std::vector<ChangeKind> Heard;
    Cell Asked;
};

class RoomsTest : public TableFixture {
  protected:
    MadeUpRoom& Add() {
        auto room = std::make_unique<MadeUpRoom>(Window().Place());
        MadeUpRoom& added = *room;
        Window().AddRoom(std::move(room));
        return added;
    }
};

TEST_F(RoomsTest, ANewRoomHearsEveryChangeOnceAndInOrder) {
    StartOn(PumpDocument());
    MadeUpRoom& room = Add();
    TypeTarget(6, 2, QStringLiteral("1"));
    Trigger("mnuUndo");
    Trigger("mnuRedo");
    Trigger("mnuPolytask");
    Trigger("mnuShowElse");
    Trigger("mnuCodeGenerate");
    Trigger("mnuFSave");
    Trigger("mnuFNew");
    EXPECT_EQ(room.Heard, (std::vector{ChangeKind::Edited, ChangeKind::Undone, ChangeKind::Redone,
                                       ChangeKind::Multitasking, ChangeKind::RowsToggled,
                                       ChangeKind::ProgramWanted, ChangeKind::Saved, ChangeKind::Replaced}));
}

TEST_F(RoomsTest, ARoomThatDoesNotListenIsNotTold) {
    StartOn(PumpDocument());
    MadeUpRoom& room = Add();
    room.IsShown = false;
    TypeTarget(6, 2, QStringLiteral("1"));
    Trigger("mnuUndo");
    EXPECT_TRUE(room.Heard.empty());
    room.IsShown = true;
    Trigger("mnuRedo");
    EXPECT_EQ(room.Heard, std::vector{ChangeKind::Redone});
}

TEST_F(RoomsTest, WhatARoomAsksForReachesTheOthers) {
    StartOn(PumpDocument());
    MadeUpRoom& room = Add();
    Q_EMIT room.PlaceChosen({6, 2});
    EXPECT_EQ(Grid()->currentIndex(), Grid()->model()->index(6, 2));
    Q_EMIT room.CommandWanted(Command::ShowElse);
    EXPECT_TRUE(Item("mnuShowElse")->isChecked());
    Q_EMIT room.Said(QStringLiteral("Something was done."));
    EXPECT_EQ(Panel("Panel3").substr(0, 19), "Something was done.");
    Answers.Do([](QWidget& dialog) { dialog.close(); });
    Click(6, 0);
    EXPECT_EQ(room.Asked, (Cell{6, kNoState}));
}

TEST_F(RoomsTest, EveryCommandIsRunBySomeRoom) {
    Start({QStringLiteral("/nosplash")});
    for (const CommandEntry& entry : kCommands) {
        const bool runs = entry.Kind == EntryKind::Item || entry.Kind == EntryKind::Toggle ||
                          entry.Kind == EntryKind::SubItem;
        EXPECT_EQ(Window().RoomsThatRun(entry.Id), runs ? 1 : 0) << entry.Name;
    }
}

TEST_F(RoomsTest, UndoAndRedoSayWhatTheyDid) {
    StartOn(PumpDocument());
    TypeTarget(6, 2, QStringLiteral("1"));
    Trigger("mnuUndo");
    EXPECT_TRUE(Panel("Panel3").starts_with("Undone: transition"));
    Trigger("mnuRedo");
    EXPECT_TRUE(Panel("Panel3").starts_with("Redone: transition"));
    TypeTarget(6, 2, QStringLiteral("2"));
    EXPECT_FALSE(Panel("Panel3").starts_with("Redone"));
}

} // namespace
} // namespace orvane
