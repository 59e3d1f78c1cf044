// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/WishReader.h"

#include "support/SmallTable.h"

#include <gtest/gtest.h>

namespace orvane::test {
namespace {

using review::AddDifferent;
using review::AddSame;
using review::Wishes;

SmallTable Table() {
    SmallTable table;
    table.Name(1, "Idle").Name(2, "a=b").Name(3, "K\xFChl").Name(4, "Twice").Name(5, "Twice").Name(6, "E6");
    return table;
}

const FsmDocument kTable = Table().Document();

Wishes Read(const char* text) {
    Wishes wishes;
    EXPECT_EQ(AddSame(wishes, text, {kTable, kTable}), std::nullopt) << text;
    return wishes;
}

void ExpectStates(const char* text, int oldState, int newState) {
    const Wishes wishes = Read(text);
    ASSERT_EQ(wishes.States.size(), 1u) << text;
    EXPECT_EQ(wishes.States.front().Old, StateNumber(oldState)) << text;
    EXPECT_EQ(wishes.States.front().New, StateNumber(newState)) << text;
}

std::string Fault(const char* text) {
    Wishes wishes;
    return AddSame(wishes, text, {kTable, kTable}).value_or("no fault");
}

TEST(WishReader, TakesNumbersNamesAndBoth) {
    ExpectStates("1=3", 1, 3);
    ExpectStates("Idle=K\xC3\xBChl", 1, 3);
    ExpectStates("4:Twice=5:Twice", 4, 5);
    ExpectStates("a=b=1", 2, 1);
    ExpectStates("1=a=b", 1, 2);
}

TEST(WishReader, TakesEventsByRowAndByName) {
    for (const char* text : {"e7=e9", "E7=E9", "E7=e9"}) {
        const Wishes wishes = Read(text);
        ASSERT_EQ(wishes.Rows.size(), 1u) << text;
        EXPECT_EQ(wishes.Rows.front().Old, RowNumber(7));
        EXPECT_EQ(wishes.Rows.front().New, RowNumber(9));
    }
    ExpectStates("E6=1", 6, 1); // a state of that name comes first
}

TEST(WishReader, SaysWhatIsWrong) {
    EXPECT_EQ(Fault("Idle"), "\"Idle\" is not OLD=NEW");
    EXPECT_EQ(Fault("Gone=1"), "the old document has no state or event \"Gone\"");
    EXPECT_EQ(Fault("1=Gone"), "the new document has no state or event \"Gone\"");
    EXPECT_EQ(Fault("101=1"), "the old document has no state \"101\"");
    EXPECT_EQ(Fault("99999999999999999999=1"), "the old document has no state \"99999999999999999999\"");
    EXPECT_EQ(Fault("50=1"), "the old document has no state \"50\"");
    EXPECT_EQ(Fault("2:Idle=1"), "the old document has no state \"2:Idle\"");
    EXPECT_EQ(Fault("e50=e6"), "the old document has no event \"e50\"");
    EXPECT_EQ(Fault("e4=e6"), "the old document has no event \"e4\"");
    EXPECT_EQ(Fault("Twice=1"), "several states of the old document are called \"Twice\"; give the number");
    EXPECT_EQ(Fault("1=e6"), "a state is no event: \"1=e6\"");
    EXPECT_EQ(Fault("="), "the old document has no state or event \"\"");
    EXPECT_EQ(Fault(""), "\"\" is not OLD=NEW");
    EXPECT_EQ(Fault(std::string(100000, '=').c_str()), "a text of 100000 bytes names no state or event");
}

TEST(WishReader, RefusesASecondWishForTheSame) {
    Wishes wishes;
    const FsmDocument document = Table().Document();
    EXPECT_EQ(AddSame(wishes, "1=3", {document, document}), std::nullopt);
    EXPECT_EQ(AddDifferent(wishes, "2", document), std::nullopt);
    EXPECT_EQ(AddDifferent(wishes, "e6", document), std::nullopt);
    EXPECT_EQ(AddSame(wishes, "1=4", {document, document}),
              "\"1=4\" says again what the same state or event is");
    EXPECT_EQ(AddSame(wishes, "5=3", {document, document}),
              "\"5=3\" says again what the same state or event is");
    EXPECT_EQ(AddDifferent(wishes, "2", document), "\"2\" says again what the same state or event is");
    EXPECT_EQ(wishes.States.size(), 2u);
}

} // namespace
} // namespace orvane::test
