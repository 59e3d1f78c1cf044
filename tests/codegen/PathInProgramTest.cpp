// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/PathInProgram.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(PathInProgram, CharactersOfTheCodePageStay) {
    EXPECT_EQ(PathInProgram("/w\xC3\xB6rk/p\xE2\x82\xAC"), "/w\xF6rk/p\x80");
}

TEST(PathInProgram, OtherCharactersBecomeQuestionMarks) {
    EXPECT_EQ(PathInProgram("/\xCE\xA9/\xFF.zfsm"), "/?/?.zfsm");
}

TEST(PathInProgram, ALineEndCannotBreakTheComment) {
    EXPECT_EQ(PathInProgram("/a\r\n\tReturn"), "/a???Return");
}

} // namespace
} // namespace orvane
