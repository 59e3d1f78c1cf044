// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TagScanner.h"

#include "support/DocumentText.h"

#include <gtest/gtest.h>

#include <optional>

namespace orvane {
namespace {

// None when there is no tag left.
std::optional<std::string_view> NextTag(TagScanner& scanner) {
    return scanner.NextTag() ? std::optional(scanner.Tag()) : std::nullopt;
}

TEST(TagScanner, TakesTagsAndValuesInTurn) {
    const std::string bytes = Delimited("$<A>one$/\r\n  $<B>$/\r\nlast\r\n");
    TagScanner scanner(bytes);
    EXPECT_EQ(NextTag(scanner), "A");
    EXPECT_EQ(scanner.NextValue(), "one");
    EXPECT_EQ(NextTag(scanner), "B");
    EXPECT_EQ(scanner.NextValue(), "");
    EXPECT_FALSE(scanner.AtEnd());
    EXPECT_EQ(NextTag(scanner), std::nullopt);
    EXPECT_TRUE(scanner.AtEnd());
}

TEST(TagScanner, SeveralFieldsMayStandInOneLine) {
    const std::string bytes = Delimited("$<A>1$/$<B>2$/ $<C>3$/\r\n\r\n");
    TagScanner scanner(bytes);
    EXPECT_EQ(NextTag(scanner), "A");
    EXPECT_EQ(scanner.NextValue(), "1");
    EXPECT_EQ(NextTag(scanner), "B");
    EXPECT_EQ(scanner.NextValue(), "2");
    EXPECT_EQ(NextTag(scanner), "C");
    EXPECT_EQ(scanner.NextValue(), "3");
}

TEST(TagScanner, AValueMaySpanLines) {
    const std::string bytes = Delimited("$<A>one\r\ntwo\r\n$/\r\n\r\n");
    TagScanner scanner(bytes);
    scanner.NextTag();
    EXPECT_EQ(scanner.NextValue(), "one\r\ntwo\r\n");
    EXPECT_FALSE(scanner.ValueWasCut());
}

TEST(TagScanner, LfAndCrAreLineEndsToo) {
    const std::string bytes = Delimited("$<A>one\ntwo\rthree\r\nfour\n\rfive$/\n\n");
    TagScanner scanner(bytes);
    scanner.NextTag();
    EXPECT_EQ(scanner.NextValue(), "one\r\ntwo\r\nthree\r\nfour\r\n\r\nfive");
}

TEST(TagScanner, TheEndIsReachedWithTheLastLineNotBehindIt) {
    const std::string bytes = Delimited("$<A>1$/\r\n$<B>2$/\r\n");
    TagScanner scanner(bytes);
    scanner.NextTag();
    EXPECT_EQ(scanner.NextValue(), "1");
    EXPECT_FALSE(scanner.AtEnd());
    EXPECT_EQ(NextTag(scanner), "B");
    EXPECT_TRUE(scanner.AtEnd());
    EXPECT_EQ(scanner.NextValue(), "");
}

TEST(TagScanner, AValueAtTheEndLeavesTheTextForTheNextTag) {
    const std::string bytes = Delimited("$<A>x$<B>2$/");
    TagScanner scanner(bytes);
    EXPECT_EQ(NextTag(scanner), "A");
    EXPECT_EQ(scanner.NextValue(), "");
    EXPECT_EQ(NextTag(scanner), "B");
}

TEST(TagScanner, ATagWhoseLineLacksTheCloseIsEmpty) {
    const std::string bytes = Delimited("$<A\r\n$<B>1$/\r\n\r\n");
    TagScanner scanner(bytes);
    EXPECT_EQ(NextTag(scanner), "");
    EXPECT_EQ(NextTag(scanner), "B");
    EXPECT_EQ(scanner.NextValue(), "1");
}

TEST(TagScanner, AnOpenFollowedByTheCloseIsAnEmptyTag) {
    const std::string bytes = Delimited("$<>1$/\r\n\r\n");
    TagScanner scanner(bytes);
    EXPECT_EQ(NextTag(scanner), "");
    EXPECT_EQ(scanner.NextValue(), "1");
}

TEST(TagScanner, ATagCutOffByTheEndIsNone) {
    const std::string bytes = Delimited("\r\n$<A");
    TagScanner scanner(bytes);
    EXPECT_EQ(NextTag(scanner), std::nullopt);
}

TEST(TagScanner, AValueWithoutTerminatorIsAllThatIsLeft) {
    const std::string bytes = Delimited("$<A>one\r\ntwo");
    TagScanner scanner(bytes);
    scanner.NextTag();
    EXPECT_EQ(scanner.NextValue(), "one\r\ntwo");
    EXPECT_TRUE(scanner.ValueWasCut());
    EXPECT_TRUE(scanner.AtEnd());
}

TEST(TagScanner, LinesAreCountedWhateverEndsThem) {
    const std::string bytes = Delimited("\n\r\r\n $<A>\n\n$/ $<B>1$/\n$<C>2$/\n");
    TagScanner scanner(bytes);
    EXPECT_EQ(scanner.TagLine(), 1u);
    scanner.NextTag();
    EXPECT_EQ(scanner.TagLine(), 4u);
    scanner.NextValue();
    EXPECT_EQ(scanner.TagLine(), 4u);
    scanner.NextTag();
    EXPECT_EQ(scanner.TagLine(), 6u);
    scanner.NextTag();
    EXPECT_EQ(scanner.TagLine(), 7u);
}

TEST(TagScanner, ADelimiterAloneIsNeitherTagNorTerminator) {
    const std::string bytes = Delimited("$ <A> $<B>a$ / $$b$/\r\n\r\n");
    TagScanner scanner(bytes);
    EXPECT_EQ(NextTag(scanner), "B");
    EXPECT_EQ(scanner.NextValue(), Delimited("a$ / $$b"));
}

TEST(TagScanner, ATagEndsInItsLineEvenWhenACloseStandsInTheNextOne) {
    const std::string bytes = Delimited("$<A\r\nB>1$/\r\n$<C>2$/\r\n\r\n");
    TagScanner scanner(bytes);
    EXPECT_EQ(NextTag(scanner), "");
    EXPECT_EQ(scanner.NextValue(), "A\r\nB>1");
    EXPECT_EQ(NextTag(scanner), "C");
}

TEST(TagScanner, AnOpenInAValueIsPartOfIt) {
    const std::string bytes = Delimited("$<A>x$<B>y$/\r\n\r\n");
    TagScanner scanner(bytes);
    EXPECT_EQ(NextTag(scanner), "A");
    EXPECT_EQ(scanner.NextValue(), Delimited("x$<B>y"));
}

TEST(TagScanner, ATerminatorBetweenFieldsIsPassedOver) {
    const std::string bytes = Delimited("$<A>1$/ $/ $ $<B>2$/\r\n\r\n");
    TagScanner scanner(bytes);
    EXPECT_EQ(NextTag(scanner), "A");
    EXPECT_EQ(scanner.NextValue(), "1");
    EXPECT_EQ(NextTag(scanner), "B");
    EXPECT_EQ(scanner.NextValue(), "2");
}

TEST(TagScanner, TellsWhetherADelimiterStandsInTheValue) {
    const std::string bytes = Delimited("$<A>1$/$<B>2$3$/$<C>4$/\r\n$<D>5$ 6\r\n7");
    TagScanner scanner(bytes);
    const auto holdsDelimiter = [&] {
        scanner.NextTag();
        scanner.NextValue();
        return scanner.ValueHoldsDelimiter();
    };
    EXPECT_FALSE(holdsDelimiter());
    EXPECT_TRUE(holdsDelimiter());
    EXPECT_FALSE(holdsDelimiter());
    EXPECT_TRUE(holdsDelimiter());
    EXPECT_TRUE(scanner.ValueWasCut());
}

TEST(TagScanner, TheLastLineIsTheSameWithAndWithoutItsEnd) {
    for (const std::string end : {"", "\r\n"}) {
        const std::string bytes = Delimited("$<A>1$/\r\n$<B>2$/\r\n$<C>3$/" + end);
        TagScanner scanner(bytes);
        scanner.NextTag();
        scanner.NextValue();
        scanner.NextTag();
        EXPECT_FALSE(scanner.AtEnd());
        EXPECT_EQ(scanner.NextValue(), "2");
        scanner.NextTag();
        EXPECT_TRUE(scanner.AtEnd());
        EXPECT_EQ(scanner.NextValue(), "");
    }
}

TEST(TagScanner, NothingHasNoTag) {
    TagScanner scanner("");
    EXPECT_TRUE(scanner.AtEnd());
    EXPECT_EQ(NextTag(scanner), std::nullopt);
    EXPECT_EQ(scanner.NextValue(), "");
}

TEST(TagScanner, ADelimiterAsTheLastByteIsACutTag) {
    const std::string bytes = Delimited("$<A>1$/\r\n$");
    TagScanner scanner(bytes);
    scanner.NextTag();
    EXPECT_EQ(scanner.NextValue(), "1");
    EXPECT_EQ(NextTag(scanner), std::nullopt);
    EXPECT_TRUE(scanner.TagWasCut());
}

} // namespace
} // namespace orvane
