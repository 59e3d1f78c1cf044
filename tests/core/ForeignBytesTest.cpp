// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ForeignBytes.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ForeignBytes, ADocumentInUtf8IsReadAsItWas) {
    const std::optional<Utf8Document> read = ReadAsUtf8("\xC2\xA4<NAME>T\xC3\xBCr\xC2\xA4/\r\n");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->Bytes, "\xA4<NAME>T\xFCr\xA4/\r\n");
    EXPECT_TRUE(read->IsWhole);
}

TEST(ForeignBytes, AByteOrderMarkIsNoPartOfIt) {
    EXPECT_EQ(ReadAsUtf8("\xEF\xBB\xBF\xC2\xA4<A>\xC2\xA4/")->Bytes, "\xA4<A>\xA4/");
}

TEST(ForeignBytes, WhatADocumentCannotHoldIsSaid) {
    EXPECT_FALSE(ReadAsUtf8("\xC2\xA4<A>\xCE\xA9\xC2\xA4/")->IsWhole);
}

TEST(ForeignBytes, AnOrdinaryDocumentIsNotInUtf8) {
    EXPECT_FALSE(ReadAsUtf8("\xA4<NAME>x\xA4/\r\n"));
    EXPECT_FALSE(ReadAsUtf8(""));
}

// Its delimiters would be lost.
TEST(ForeignBytes, OneThatIsMixedIsNotTakenForUtf8) {
    EXPECT_FALSE(ReadAsUtf8("\xC2\xA4<A>x\xA4/\r\n"));
    EXPECT_FALSE(ReadAsUtf8("\xC2\xA4<A>x\xC2"));
}

TEST(ForeignBytes, ConflictMarkersAreFoundAtTheBeginningOfLines) {
    EXPECT_THAT(ConflictMarkers("a\r\n<<<<<<< HEAD\r\nb\r\n=======\r\nc\r\n>>>>>>> theirs\r\n"),
                ElementsAre(2, 6));
    EXPECT_THAT(ConflictMarkers("a <<<<<<< HEAD\n; =======\n<<<<<<<\n"), IsEmpty());
}

} // namespace
} // namespace orvane
