// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/Pattern.h"
#include "find/TextSearch.h"
#include "support/Property.h"

#include <chrono>
#include <regex>

namespace orvane::find {
namespace {

constexpr std::uint64_t kPlenty = 1'000'000'000;

Pattern Read(const SearchQuery& query) {
    auto read = ReadPattern(query);
    EXPECT_TRUE(std::holds_alternative<Pattern>(read)) << query.Text << std::get<PatternFault>(read).Text;
    return std::get<Pattern>(read);
}

std::vector<std::string> Matches(const SearchQuery& query, std::string_view text) {
    const Pattern pattern = Read(query);
    TextSearch search(pattern, false, kPlenty);
    std::vector<std::string> matches;
    search.Each(text, [&](Span match) {
        matches.emplace_back(text.substr(match.Start, match.End - match.Start));
        return true;
    });
    return matches;
}

std::vector<std::string> Expression(const std::string& expression, std::string_view text) {
    return Matches({.Text = expression, .MatchCase = true, .IsExpression = true}, text);
}

std::string FaultOf(const std::string& expression) {
    const auto read = ReadPattern({.Text = expression, .IsExpression = true});
    const auto* fault = std::get_if<PatternFault>(&read);
    return fault == nullptr ? "" : fault->Text;
}

using Texts = std::vector<std::string>;

TEST(Expression, FindsWhatItsSyntaxSays) {
    EXPECT_EQ(Expression("b.d", "abcd bxd b d"), (Texts{"bcd", "bxd", "b d"}));
    EXPECT_EQ(Expression("[a-c]+", "xabcx-ca"), (Texts{"abc", "ca"}));
    EXPECT_EQ(Expression("[^a-c ]+", "xabcx -ca"), (Texts{"x", "x", "-"}));
    EXPECT_EQ(Expression("[]a]+", "x]ax"), (Texts{"]a"}));
    EXPECT_EQ(Expression("[a\\]-]+", "x]a-x"), (Texts{"]a-"}));
    EXPECT_EQ(Expression("\\d+|\\w+", "12 ab_3\xE4 %"), (Texts{"12", "ab_3\xE4"}));
    EXPECT_EQ(Expression("\\D+", "1ab2"), (Texts{"ab"}));
    EXPECT_EQ(Expression("a\\sb\\tc", "a b\tc a\tb\tc"), (Texts{"a b\tc", "a\tb\tc"}));
    EXPECT_EQ(Expression("^a", "ab\r\nab\r\nba"), (Texts{"a", "a"}));
    EXPECT_EQ(Expression("b$", "ab\r\nab\nba"), (Texts{"b", "b"}));
    EXPECT_EQ(Expression("\\bin\\b", "in inn bin in"), (Texts{"in", "in"}));
    EXPECT_EQ(Expression("\\Bin", "in bin"), (Texts{"in"}));
    EXPECT_EQ(Expression("(ab)+c?", "ababc ab"), (Texts{"ababc", "ab"}));
    EXPECT_EQ(Expression("(?:ab|a)b", "abb ab"), (Texts{"abb", "ab"}));
    EXPECT_EQ(Expression("a{2}", "aaaaa"), (Texts{"aa", "aa"}));
    EXPECT_EQ(Expression("a{2,3}", "aaaaa"), (Texts{"aaa", "aa"}));
    EXPECT_EQ(Expression("a{2,}", "a aaaa"), (Texts{"aaaa"}));
    EXPECT_EQ(Expression("a{0,2}b", "aaab b"), (Texts{"aab", "b"}));
    EXPECT_EQ(Expression("\\$\\.\\(", "x$.("), (Texts{"$.("}));
}

TEST(Expression, PrefersAsItSays) {
    EXPECT_EQ(Expression("a|ab", "ab"), (Texts{"a"}));
    EXPECT_EQ(Expression("<.+>", "<a><b>"), (Texts{"<a><b>"}));
    EXPECT_EQ(Expression("<.+?>", "<a><b>"), (Texts{"<a>", "<b>"}));
    EXPECT_EQ(Expression("a{1,3}?", "aaa"), (Texts{"a", "a", "a"}));
}

TEST(Expression, AMatchHasACharacterAndStaysInItsLine) {
    EXPECT_EQ(Expression("x*", "axxb"), (Texts{"xx"}));
    EXPECT_EQ(Expression("^$", "\r\n\r\n"), Texts());
    EXPECT_EQ(Expression("[^x]+", "a\r\nb\nc"), (Texts{"a", "b", "c"}));
    EXPECT_EQ(Expression("a\\W*b", "a\r\nb"), Texts());
}

TEST(Expression, TheCaseOfTheCodePagesLettersCountsOnlyWhenAskedFor) {
    EXPECT_EQ(Matches({.Text = "gr\xFC[a-d]E", .IsExpression = true}, "GR\xDC\x42\x65"),
              (Texts{"GR\xDC\x42\x65"}));
    EXPECT_EQ(Matches({.Text = "[^a]", .IsExpression = true}, "aA"), Texts());
    EXPECT_EQ(Expression("gr\xFC", "GR\xDC"), Texts());
}

TEST(Expression, AWholeWordEndsWhereNoWordGoesOn) {
    const auto words = [](const std::string& text, bool expression) {
        return Matches({.Text = text, .WholeWord = true, .IsExpression = expression},
                       "Run PMP_Run Runs ;Run;");
    };
    EXPECT_EQ(words("run", false).size(), 2u);
    EXPECT_EQ(words("r[u]n", true).size(), 2u);
    EXPECT_EQ(words(";run", false).size(), 1u);
    EXPECT_EQ(words("run|runs", true), (Texts{"Run", "Runs", "Run"}));
}

TEST(Expression, TellsWhatIsWrongAndWhere) {
    EXPECT_EQ(FaultOf("a(b"), "The ( at character 2 is not closed");
    EXPECT_EQ(FaultOf("a)b"), "The ) at character 2 closes no group");
    EXPECT_EQ(FaultOf("[ab"), "The [ at character 1 is not closed");
    EXPECT_EQ(FaultOf("a|*"), "Nothing stands before the * at character 3");
    EXPECT_EQ(FaultOf("ab\\"), "Nothing stands behind the \\ at character 3");
    EXPECT_EQ(FaultOf("(a)\\1"), "\\1 at character 5 would lead back into the match, which is not known");
    EXPECT_EQ(FaultOf("\\q"), "\\q at character 2 is not known");
    EXPECT_EQ(FaultOf("(?=a)"), "A group begins with ( or (?:, nothing else of (? is known at character 1");
    EXPECT_EQ(FaultOf("a{x}"), "Behind { stands how often, such as {2} or {2,5} at character 2");
    EXPECT_EQ(FaultOf("a{3,2}"), "In { } the smaller number comes first at character 6");
    EXPECT_EQ(FaultOf("a{1001}"), "Nothing is repeated more than 1000 times at character 6");
    EXPECT_EQ(FaultOf("[z-a]"),
              "A range such as a-z goes from a character to a later one in the [ at character 1");
    EXPECT_EQ(FaultOf("[\\q]"), "A \\ stands before something that is not known in the [ at character 1");
    EXPECT_EQ(FaultOf(""), "There is nothing to look for");
    EXPECT_EQ(FaultOf("a\nb"), "A line end cannot be looked for: texts are looked through line by line");
}

TEST(Expression, OneThatIsTooLargeOrTooDeepIsRefusedAtOnce) {
    EXPECT_EQ(FaultOf("((a{1000}){1000}){1000}"), "The expression is too large");
    EXPECT_EQ(FaultOf("(a{0,900}){0,900}"), "The expression is too large");
    EXPECT_EQ(FaultOf(std::string(5000, 'a') + "."), "The expression is too large");
    EXPECT_EQ(FaultOf(std::string(100000, '(')), "Groups stand in each other too deeply at character 101");
}

// What takes others an age: each more character of the text doubles the ways to try.
TEST(Expression, WorkOnOneThatGoesRoundInItselfIsBounded) {
    const std::string text(30'000, 'a');
    for (const char* expression : {"(a+)+b", "(a*)*b", "(a|a)*b", "(a|aa)+$b", "(.*)(.*)(.*)(.*)b"}) {
        const Pattern pattern = Read({.Text = expression, .MatchCase = true, .IsExpression = true});
        const std::size_t length = std::get<PatternProgram>(pattern).Steps.size();
        TextSearch search(pattern, false, 2 * length * (text.size() + 1));
        EXPECT_TRUE(search.Each(text, [](Span) { return true; })) << expression;
    }
}

TEST(Expression, EndsWhenTheWorkIsUsedUp) {
    const Pattern pattern = Read({.Text = "a.*b", .MatchCase = true, .IsExpression = true});
    TextSearch search(pattern, false, 1000);
    EXPECT_FALSE(search.Each(std::string(2000, 'a'), [](Span) { return true; }));
    EXPECT_TRUE(search.IsExhausted());
}

TEST(Expression, TellsItsGroups) {
    const Pattern pattern = Read({.Text = "(\\w+)=(\\d+)|(x)", .MatchCase = true, .IsExpression = true});
    TextSearch search(pattern, true, kPlenty);
    const std::string text = "\r\n  ab=12";
    search.Each(text, [&](Span match) {
        EXPECT_EQ(match.Start, 4u);
        const GroupSpans groups = search.Groups();
        EXPECT_EQ(groups.size(), 4u);
        EXPECT_EQ(groups[1]->Start, 4u);
        EXPECT_EQ(groups[1]->End, 6u);
        EXPECT_EQ(groups[2]->Start, 7u);
        EXPECT_FALSE(groups[3]);
        return true;
    });
}

// An expression in the part of the syntax that the standard library has too.
rc::Gen<std::string> AnyExpression() {
    return rc::gen::map(
        rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 16)), [](const std::vector<int>& choices) {
            static const char* const atoms[] = {"a",     "b",        "c",     ".",   "[ab]", "[^b]",
                                                "(a|b)", "(?:bc|b)", "(a*b)", "\\w", "\\b",  "^"};
            static const char* const times[] = {"*", "+", "?", "{2}", "{0,2}", "{1,}", "*?", "+?"};
            std::string expression;
            bool mayRepeat = false;
            for (const int choice : choices) {
                if (choice >= 12 && mayRepeat)
                    expression += times[(choice * 7 + int(expression.size())) % 8];
                else if (choice == 15)
                    expression += "|";
                else
                    expression += atoms[choice % 12];
                mayRepeat = choice < 10;
            }
            return expression;
        });
}

TEST(Expression, AgreesWithTheStandardLibraryOnWhatMatchesFirst) {
    test::ExpectProperty({.Cases = 10000, .LargestSize = 8}, [] {
        const std::string expression = *AnyExpression();
        const auto text = *rc::gen::container<std::string>(rc::gen::element('a', 'b', 'c', ' '));
        if (!FaultOf(expression).empty())
            return;
        const Texts ours = Expression(expression, text);
        std::smatch theirs;
        std::string expected;
        if (std::regex_search(text, theirs, std::regex(expression)))
            expected = theirs.str();
        if (expected.empty())
            return; // an empty match is none here
        RC_ASSERT(!ours.empty());
        RC_ASSERT(ours.front() == expected);
    });
}

} // namespace
} // namespace orvane::find
