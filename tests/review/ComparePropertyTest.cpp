// SPDX-License-Identifier: GPL-3.0-or-later
// What holds of every list of changes, on random documents and on random work on machines.
#include "core/DocumentWriter.h"
#include "review/Apply.h"
#include "review/Compare.h"
#include "review/Match.h"
#include "support/EveryFieldDocument.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "support/Versions.h"

#include <algorithm>

namespace orvane::test {
namespace {

using review::Change;
using review::ChangeList;

bool LeadsThere(const FsmDocument& from, const FsmDocument& to) {
    return WriteDocument(Applied(review::Compare(from, to), from)) == WriteDocument(to);
}

bool SameBesideOrder(const std::vector<Change>& one, const std::vector<Change>& other) {
    return std::is_permutation(one.begin(), one.end(), other.begin(), other.end());
}

TEST(ChangeLists, AppliedToTheOldDocumentGiveTheNewOneByteForByte) {
    ExpectProperty({.Cases = 40, .LargestSize = 40}, [] {
        const FsmDocument oldOne = *AnyDocument();
        FsmDocument newOne = oldOne;
        for (const DocumentEdit& edit : *rc::gen::container<std::vector<DocumentEdit>>(AnyEdit()))
            edit.Apply(newOne);
        RC_ASSERT(LeadsThere(oldOne, newOne));
    });
    ExpectProperty({.Cases = 12, .LargestSize = 40},
                   [] { RC_ASSERT(LeadsThere(*AnyDocument(), *AnyDocument())); });
}

TEST(ChangeLists, LeadThroughAllWorkOnAMachine) {
    Dice dice(1);
    for (int machine = 0; machine < 100; ++machine) {
        const Version oldOne = RandomMachine(dice, {.BlankNames = machine % 3 == 0 ? 40 : 0});
        Version newOne = oldOne;
        for (int edit = 0; edit < 20; ++edit)
            EditAtRandom(newOne, dice);
        ASSERT_TRUE(LeadsThere(oldOne.Document, newOne.Document)) << machine;
        ASSERT_TRUE(LeadsThere(newOne.Document, oldOne.Document)) << machine;
    }
}

TEST(ChangeLists, OfADocumentAndItselfAreEmpty) {
    ExpectProperty({.Cases = 100, .LargestSize = 100}, [] {
        const FsmDocument document = *AnyDocument();
        RC_ASSERT(review::Compare(document, document).IsEmpty());
    });
}

TEST(ChangeLists, AreEmptyOnlyOfDocumentsWithTheSameFile) {
    ExpectProperty({.Cases = 80, .LargestSize = 30}, [] {
        const FsmDocument oldOne = *AnyDocument();
        FsmDocument newOne = oldOne;
        (*AnyEdit()).Apply(newOne);
        RC_ASSERT(review::Compare(oldOne, newOne).IsEmpty() ==
                  (WriteDocument(oldOne) == WriteDocument(newOne)));
    });
}

TEST(ChangeLists, ReadFromTheOtherSideAreTheirMirror) {
    Dice dice(2);
    for (int machine = 0; machine < 150; ++machine) {
        const Version oldOne = RandomMachine(dice, {.BlankNames = machine % 2 == 0 ? 40 : 0});
        Version newOne = oldOne;
        for (int edit = 0; edit < 1 + machine % 20; ++edit)
            EditAtRandom(newOne, dice);
        const ChangeList there = review::Compare(oldOne.Document, newOne.Document);
        const ChangeList back = review::Compare(newOne.Document, oldOne.Document);
        ASSERT_EQ(back.Same, there.Same.Mirrored()) << machine;
        ASSERT_TRUE(SameBesideOrder(back.Changes, there.Mirrored().Changes)) << machine;
    }
}

TEST(ChangeLists, HoldAChangeForEachStoredFieldOfEveryRecord) {
    const FsmDocument every = EveryFieldDocument();
    const ChangeList list = review::Compare(FsmDocument(), every);
    EXPECT_EQ(WriteDocument(Applied(list, FsmDocument())), WriteDocument(every));
    // General code, view and heights, each by itself: as many as the file has tags on top and in ROWVISIBLE.
    const auto ofTheMachine = [](const Change& change) {
        return change.Kind == review::ChangeKind::MachineField;
    };
    EXPECT_EQ(std::count_if(list.Changes.begin(), list.Changes.end(), ofTheMachine), 18);
}

} // namespace
} // namespace orvane::test
