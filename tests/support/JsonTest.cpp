// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Json.h"

#include <gtest/gtest.h>

namespace orvane::test {
namespace {

TEST(Json, ReadsTextsNumbersListsAndObjects) {
    const JsonValue value =
        JsonValue::Parse(R"( {"a": [1, -2, []], "b": {"c": "x\n\"\u00e4\/"}, "d": null} )");
    EXPECT_EQ(value["a"].List().size(), 3U);
    EXPECT_EQ(value["a"].List()[1].Number(), -2);
    EXPECT_EQ(value["b"]["c"].Text(), "x\n\"\xC3\xA4/");
    EXPECT_TRUE(value.Has("d"));
    EXPECT_FALSE(value.Has("e"));
}

TEST(Json, WhatIsWrongOrOfAnotherKindThrows) {
    for (const char* text :
         {"", "[1", "{\"a\" 1}", "[1 2]", "[1]]", "\"x", "\"\\q\"", "\"\\u12\"", "nil", "[,]"})
        EXPECT_THROW(JsonValue::Parse(text), JsonError) << text;
    const JsonValue value = JsonValue::Parse("{\"a\": 1.5}");
    EXPECT_THROW((void)value["a"].Number(), JsonError);
    EXPECT_THROW((void)value["a"].Text(), JsonError);
    EXPECT_THROW((void)value["b"], JsonError);
    EXPECT_THROW((void)value.List(), JsonError);
}

} // namespace
} // namespace orvane::test
