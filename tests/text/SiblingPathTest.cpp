// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/SiblingPath.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(SiblingPath, TheExtensionEndsAtTheLastPointOfTheWholePath) {
    EXPECT_EQ(StripExtension("C:\\work\\pump.zfsm"), "C:\\work\\pump");
    EXPECT_EQ(StripExtension("C:\\my.dir\\fsm"), "C:\\my");
    EXPECT_EQ(StripExtension("a.b.c"), "a.b");
    EXPECT_EQ(StripExtension("a."), "a");
    EXPECT_EQ(StripExtension("pump"), "pump");
    EXPECT_EQ(StripExtension(".zfsm"), ".zfsm"); // not at its first character
    EXPECT_EQ(StripExtension(""), "");
}

TEST(SiblingPath, TheProgramLiesBesideTheDocument) {
    EXPECT_EQ(ProgramFilePath("C:\\work\\pump.zfsm"), "C:\\work\\pump.zls");
    EXPECT_EQ(ProgramFilePath("C:\\my.dir\\fsm"), "C:\\my.zls");
    EXPECT_EQ(ProgramFilePath("C:\\my.dir\\pump.v2.zfsm"), "C:\\my.dir\\pump.v2.zls");
    EXPECT_EQ(ProgramFilePath("../pump.v2.zfsm"), "../pump.v2.zls");
    EXPECT_EQ(ProgramFilePath("./pump.zfsm"), "./pump.zls");
    EXPECT_EQ(ProgramFilePath("pump"), "pump.zls");
}

TEST(SiblingPath, TheBuilderScriptLiesBesideTheDocument) {
    EXPECT_EQ(BuilderScriptPath("C:\\work\\pump.zfsm"), "C:\\work\\pump.b1d");
    EXPECT_EQ(BuilderScriptPath("C:\\my.dir\\pump.v2.zfsm"), "C:\\my.dir\\pump.v2.b1d");
    EXPECT_EQ(BuilderScriptPath("C:\\my.dir\\pump"), "C:\\my.b1d");
    EXPECT_EQ(BuilderScriptPath("../pump.zfsm"), "../pump.b1d");
}

TEST(SiblingPath, ADocumentWithoutAnExtensionHasNoBuilderScript) {
    EXPECT_EQ(BuilderScriptPath("pump"), "");
    EXPECT_EQ(BuilderScriptPath(""), "");
}

} // namespace
} // namespace orvane
