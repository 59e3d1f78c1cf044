// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/PlaceFields.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

class PlaceFieldsTest : public testing::Test {
  protected:
    PlaceFieldsTest() {
        Document.State(3).Name = "Opening";
        Document.State(3).Targets[6] = 7;
        Document.State(3).Actions[6] = ";act";
        Document.State(7).Name = "Stopped";
        Document.Event(6).Name = "Button";
        Document.Event(6).Code = ";pressed?";
    }

    // Edits a field of the cell; returns what was refused.
    template <typename Value>
    std::optional<std::string> Give(Cell place, Value PlaceFields::*field, const Value& value) {
        const PlaceFields before = FieldsOf(Document, place);
        PlaceFields after = before;
        after.*field = value;
        return StoreFields(Document, place, before, after);
    }

    FsmDocument Document;
};

TEST_F(PlaceFieldsTest, ACellHasItsTransitionItsEventAndItsState) {
    EXPECT_EQ(PartsOf({6, 3}), (PlaceParts{true, true, true}));
    EXPECT_EQ(PartsOf({kTimeoutRow, 3}), (PlaceParts{true, false, true}));
    EXPECT_EQ(PartsOf({kEntryActionRow, 3}), (PlaceParts{false, false, true}));
    EXPECT_EQ(PartsOf({6, kNoState}), (PlaceParts{false, true, false}));
    EXPECT_EQ(PartsOf({kElseRow, kNoState}), PlaceParts());
    EXPECT_EQ(PartsOf({}), PlaceParts());
}

TEST_F(PlaceFieldsTest, FieldsAreThoseOfThePlace) {
    const PlaceFields fields = FieldsOf(Document, {6, 3});
    EXPECT_EQ(fields.Target, "7:Stopped");
    EXPECT_EQ(fields.Action, ";act");
    EXPECT_EQ(fields.EventName, "Button");
    EXPECT_EQ(fields.StateName, "Opening");
    EXPECT_EQ(FieldsOf(Document, {6, kNoState}).StateName, "");
    EXPECT_EQ(FieldsOf(Document, {kHeadRow, 3}).Target, "");
}

TEST_F(PlaceFieldsTest, WhatDiffersIsStoredAndNothingElse) {
    const FsmDocument before = Document;
    FsmDocument expected = Document;
    expected.Event(6).Code = ";new";
    Give<std::string>({6, 3}, &PlaceFields::Test, ";new");
    EXPECT_EQ(Document, expected);
    expected.State(3).TimerId = "T1";
    Give<std::string>({kHeadRow, 3}, &PlaceFields::TimerId, "T1");
    EXPECT_EQ(Document, expected);
    expected.State(3).TimingMode = 2;
    Give<std::int32_t>({6, 3}, &PlaceFields::TimingMode, 2);
    EXPECT_EQ(Document, expected);
    expected.State(3).Actions[6] = ";other";
    Give<std::string>({6, 3}, &PlaceFields::Action, ";other");
    EXPECT_EQ(Document, expected);
    Give<std::string>({6, 3}, &PlaceFields::EventName, "Button"); // as it is
    EXPECT_EQ(Document, expected);
}

TEST_F(PlaceFieldsTest, ATargetIsGivenByNumberOrName) {
    EXPECT_EQ(Give<std::string>({6, 7}, &PlaceFields::Target, "opening"), std::nullopt);
    EXPECT_EQ(Document.State(7).Targets[6], 3);
    EXPECT_EQ(Give<std::string>({6, 7}, &PlaceFields::Target, "12"), std::nullopt);
    EXPECT_EQ(Document.State(7).Targets[6], 12);
    EXPECT_EQ(Give<std::string>({6, 7}, &PlaceFields::Target, " nowhere "), "nowhere");
    EXPECT_EQ(Document.State(7).Targets[6], 12);
}

TEST_F(PlaceFieldsTest, ATargetThatIsTakenAwayTakesItsActionAlong) {
    Give<std::string>({6, 3}, &PlaceFields::Target, "");
    EXPECT_EQ(Document.State(3).Targets[6], 0);
    EXPECT_EQ(Document.State(3).Actions[6], "");
}

TEST_F(PlaceFieldsTest, TheEditIsNamedByWhatItChanges) {
    const PlaceFields before;
    PlaceFields after;
    after.EntryCode = ";in";
    EXPECT_EQ(NameOfEdit(before, after), "state");
    after.Test = ";test";
    EXPECT_EQ(NameOfEdit(before, after), "event");
    after.Action = ";act";
    EXPECT_EQ(NameOfEdit(before, after), "transition action");
    after.Target = "1";
    EXPECT_EQ(NameOfEdit(before, after), "transition");
}

TEST_F(PlaceFieldsTest, PlacesAreToldInWords) {
    EXPECT_EQ(WordsOf(Document, {6, 3}), "3:Opening, on Button, acts and goes to 7:Stopped");
    Document.State(3).Actions[6].clear();
    EXPECT_EQ(WordsOf(Document, {6, 3}), "3:Opening, on Button, goes to 7:Stopped");
    EXPECT_EQ(WordsOf(Document, {kTimeoutRow, 3}), "3:Opening, on timeout, nothing happens");
    Document.State(7).Actions[kElseRow] = ";act";
    EXPECT_EQ(WordsOf(Document, {kElseRow, 7}), "7:Stopped, else, acts but goes nowhere");
    EXPECT_EQ(WordsOf(Document, {9, 7}), "7:Stopped, on an event without a name, nothing happens");
    EXPECT_EQ(WordsOf(Document, {kEntryActionRow, 7}), "State 7:Stopped");
    EXPECT_EQ(WordsOf(Document, {6, kNoState}), "Event row 6: Button");
    EXPECT_EQ(WordsOf(Document, {9, kNoState}), "Event row 9: without a name yet");
    EXPECT_EQ(WordsOf(Document, {kElseRow, kNoState}), "A row that all states have");
    EXPECT_EQ(WordsOf(Document, {}), "The machine: its name and general code");
}

} // namespace
} // namespace orvane
