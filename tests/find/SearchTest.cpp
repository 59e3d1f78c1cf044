// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/Search.h"
#include "core/RecordFields.h"
#include "find/PlaceText.h"
#include "support/EveryFieldDocument.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "text/AnsiText.h"

#include <gmock/gmock.h>

namespace orvane::find {
namespace {

SearchResult Find(const FsmDocument& document, const SearchQuery& query, const SearchLimits& limits = {}) {
    return Search(document, std::get<Pattern>(ReadPattern(query)), limits);
}

std::vector<std::string> Places(const FsmDocument& document, const std::string& text) {
    std::vector<std::string> places;
    for (const Hit& hit : Find(document, {.Text = text}).Hits)
        places.push_back(PlaceTitle(document, hit.Place));
    return places;
}

// The document with a word put in front of each of its texts, and how many there are, found without the walk.
int MarkEveryText(FsmDocument& document, const std::string& word) {
    int count = 0;
    const auto mark = [&](auto& record, const auto& fields) {
        ForEachField(fields, [&](const auto& field) {
            if constexpr (requires { (record.*field.Member).insert(0, word); }) {
                (record.*field.Member).insert(0, word);
                ++count;
            }
        });
    };
    mark(document.General, kGeneralFields);
    for (const RowNumber row : EventRows())
        mark(document.Event(row), kEventFields);
    for (const StateNumber state : StateNumbers()) {
        mark(document.State(state), kStateFields);
        for (std::string& action : document.State(state).Actions) {
            action.insert(0, word);
            ++count;
        }
    }
    return count;
}

TEST(Search, ForgetsNoTextOfAnyRecord) {
    FsmDocument document = test::EveryFieldDocument();
    const int count = MarkEveryText(document, "Needle ");
    const SearchResult found = Find(document, {.Text = "needle"});
    EXPECT_EQ(std::ssize(found.Hits), count);
    EXPECT_EQ(found.End, SearchEnd::Complete);
}

TEST(Search, NamesEveryPlaceInTheOrderOfTheFile) {
    FsmDocument document;
    document.General.FsmName = "Pump x";
    document.General.CodeSeg = "x";
    document.Event(8).Name = "Button x";
    document.Event(8).Code = "x";
    document.State(3).Name = "x";
    document.State(3).EntryCode = "x";
    document.State(3).ExitCode = "x";
    document.State(3).TimerId = "x";
    document.State(3).Actions[8] = "x";
    document.State(3).Actions[4] = "x";
    document.State(3).Actions[9] = "x";
    EXPECT_THAT(Places(document, "x"),
                testing::ElementsAre("Machine, name", "Machine, CODESEG", "Event row 8: Button x, name",
                                     "Event row 8: Button x, code", "State 3:x, name",
                                     "State 3:x, entry action", "State 3:x, exit action",
                                     "State 3:x, timer I.D.", "3:x, timeout, action",
                                     "3:x, on Button x, action", "3:x, on row 9, action"));
}

TEST(Search, CountsLinesAndColumnsInTheText) {
    FsmDocument document;
    document.State(1).EntryCode = "ab\r\n\r\n  ab ab\rab\nab";
    const std::vector<Hit> hits = Find(document, {.Text = "ab"}).Hits;
    std::vector<std::pair<std::size_t, std::size_t>> places;
    for (const Hit& hit : hits)
        places.emplace_back(hit.Line, hit.Column);
    EXPECT_THAT(places, testing::ElementsAre(std::pair(1, 1), std::pair(3, 3), std::pair(3, 6),
                                             std::pair(4, 1), std::pair(5, 1)));
    EXPECT_EQ(LineAt(document.State(1).EntryCode, hits[2].Start), "  ab ab");
}

TEST(Search, EndsBehindTheMostHitsAndSaysSo) {
    FsmDocument document;
    document.General.CodeSeg = std::string(20'000, 'x');
    const SearchResult found = Find(document, {.Text = "x"});
    EXPECT_EQ(found.Hits.size(), 10'000u);
    EXPECT_EQ(found.End, SearchEnd::TooManyHits);
    EXPECT_EQ(TextOf(found.End), "There are more matches than are shown; look for more of the text");
    document.General.CodeSeg = std::string(10'000, 'x');
    EXPECT_EQ(Find(document, {.Text = "x"}).End, SearchEnd::Complete);
}

TEST(Search, EndsWhenTheWorkIsUsedUpAndSaysSo) {
    FsmDocument document;
    document.General.CodeSeg = std::string(20'000, 'x');
    document.State(1).Name = "y";
    const SearchResult found = Find(document, {.Text = "(x+)+y", .IsExpression = true}, {.Steps = 1000});
    EXPECT_EQ(found.End, SearchEnd::TooMuchWork);
    EXPECT_NE(TextOf(found.End), "");
}

// The way of looking that nobody could get wrong.
std::size_t CountIn(const std::string& text, const std::string& word) {
    std::size_t count = 0;
    for (std::size_t at = 0; at + word.size() <= text.size();) {
        const bool hit = text.compare(at, word.size(), word) == 0;
        count += hit ? 1 : 0;
        at += hit ? word.size() : 1;
    }
    return count;
}

TEST(Search, FindsWhatASlowSearchFinds) {
    test::ExpectProperty({.Cases = 60, .LargestSize = 30}, [] {
        const FsmDocument document = *test::AnyDocument();
        const auto letters = rc::gen::elementOf(std::string("aAeE \xE4\xC4;\t1"));
        const auto word = *rc::gen::nonEmpty(rc::gen::resize(2, rc::gen::container<std::string>(letters)));
        std::size_t expected = 0;
        std::size_t folded = 0;
        ForEachText(document, [&](const TextPlace&, const std::string& text) {
            expected += CountIn(text, word);
            folded += CountIn(ToUpper(text), ToUpper(word));
        });
        RC_ASSERT(Find(document, {.Text = word, .MatchCase = true}, {.Hits = 1u << 30}).Hits.size() ==
                  expected);
        RC_ASSERT(Find(document, {.Text = word}, {.Hits = 1u << 30}).Hits.size() == folded);
    });
}

} // namespace
} // namespace orvane::find
