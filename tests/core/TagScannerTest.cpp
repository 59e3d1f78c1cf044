// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TagScanner.h"

#include "support/DocumentText.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(TagScanner, TakesTagsAndValuesInTurn) {
    const std::string bytes = Delimited("$<A>one$/\r\n  $<B>$/\r\nlast\r\n");
    TagScanner scanner(bytes);
    EXPECT_EQ(scanner.NextTag(), "A");
    EXPECT_EQ(scanner.NextValue(), "one");
    EXPECT_EQ(scanner.NextTag(), "B");
    EXPECT_EQ(scanner.NextValue(), "");
    EXPECT_FALSE(scanner.AtEnd());
    EXPECT_EQ(scanner.NextTag(), std::nullopt);
    EXPECT_TRUE(scanner.AtEnd());
}

TEST(TagScanner, SeveralFieldsMayStandInOneLine) {
    const std::string bytes = Delimited("$<A>1$/$<B>2$/ $<C>3$/\r\n\r\n");
    TagScanner scanner(bytes);
    EXPECT_EQ(scanner.NextTag(), "A");
    EXPECT_EQ(scanner.NextValue(), "1");
    EXPECT_EQ(scanner.NextTag(), "B");
    EXPECT_EQ(scanner.NextValue(), "2");
    EXPECT_EQ(scanner.NextTag(), "C");
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
    EXPECT_EQ(scanner.NextTag(), "B");
    EXPECT_TRUE(scanner.AtEnd());
    EXPECT_EQ(scanner.NextValue(), "");
}

TEST(TagScanner, AValueAtTheEndLeavesTheTextForTheNextTag) {
    const std::string bytes = Delimited("$<A>x$<B>2$/");
    TagScanner scanner(bytes);
    EXPECT_EQ(scanner.NextTag(), "A");
    EXPECT_EQ(scanner.NextValue(), "");
    EXPECT_EQ(scanner.NextTag(), "B");
}

TEST(TagScanner, ATagWhoseLineLacksTheCloseIsEmpty) {
    const std::string bytes = Delimited("$<A\r\n$<B>1$/\r\n\r\n");
    TagScanner scanner(bytes);
    EXPECT_EQ(scanner.NextTag(), "");
    EXPECT_EQ(scanner.NextTag(), "B");
    EXPECT_EQ(scanner.NextValue(), "1");
}

TEST(TagScanner, AnOpenFollowedByTheCloseIsAnEmptyTag) {
    const std::string bytes = Delimited("$<>1$/\r\n\r\n");
    TagScanner scanner(bytes);
    EXPECT_EQ(scanner.NextTag(), "");
    EXPECT_EQ(scanner.NextValue(), "1");
}

TEST(TagScanner, ATagCutOffByTheEndIsNone) {
    const std::string bytes = Delimited("\r\n$<A");
    TagScanner scanner(bytes);
    EXPECT_EQ(scanner.NextTag(), std::nullopt);
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
    EXPECT_EQ(scanner.NextTag(), "B");
    EXPECT_EQ(scanner.NextValue(), Delimited("a$ / $$b"));
}

} // namespace
} // namespace orvane
