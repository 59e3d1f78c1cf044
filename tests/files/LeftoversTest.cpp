// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/Leftovers.h"

#include "files/TemporaryName.h"
#include "support/MemoryFiles.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;

constexpr std::int64_t kHour = 3600LL * 1'000'000'000; // nanoseconds

TEST(TemporaryNames, AreKnownAgainAndHardlyAnyOtherIs) {
    EXPECT_NE(TemporaryName(), TemporaryName());
    EXPECT_TRUE(IsTemporaryName(TemporaryName()));
    EXPECT_TRUE(IsTemporaryName(".orvane-0123456789abcdef.tmp"));
    for (const char* name :
         {".orvane-0123456789abcde.tmp", ".orvane-0123456789abcdef0.tmp", "orvane-0123456789abcdef.tmp",
          ".orvane-0123456789ABCDEF.tmp", ".orvane-0123456789abcdeg.tmp", ".orvane-.tmp", "",
          ".orvane-0123456789abcdef.tmp2", ".orvane-0123456789abcdef.zfsm"})
        EXPECT_FALSE(IsTemporaryName(name)) << name;
}

class LeftoversTest : public testing::Test {
  protected:
    // A file of that name, and how many hours before the written file it was changed.
    void Put(const FileSystem::Path& name, int hours) {
        Files.Put("/work/" + name.string(), "");
        Files.Find("/work/" + name.string())->Facts.Changed = kNow - hours * kHour;
    }
    void Remove(const FileSystem::Path& written = "/work/pump.zfsm") {
        RemoveLeftovers(Files, written, {.Changed = kNow});
    }

    static constexpr std::int64_t kNow = 1'700'000'000 * 1'000'000'000LL;
    const std::string kTemporary = ".orvane-0123456789abcdef.tmp";
    MemoryFiles Files;
};

TEST_F(LeftoversTest, OfADayAgoAreRemovedAndYoungerOnesMayBeInUse) {
    Put(kTemporary, 25);
    Put(".orvane-fedcba9876543210.tmp", 23);
    Put("pump.zfsm", 0);
    Remove();
    EXPECT_THAT(Files.AllNames(), ElementsAre("/work/.orvane-fedcba9876543210.tmp", "/work/pump.zfsm"));
}

TEST_F(LeftoversTest, WhatHasAnotherNameStaysHoweverOldItIs) {
    Put(".orvane-notes.tmp", 9999);
    Put("0123456789abcdef.tmp", 9999);
    Put("pump.zfsm", 0);
    Remove();
    EXPECT_EQ(Files.AllNames().size(), 3u);
}

TEST_F(LeftoversTest, AFolderOrALinkWithSuchANameStays) {
    Put("pump.zfsm", 0);
    Put("precious", 99);
    Files.PutLink("/work/" + kTemporary, "precious");
    Files.PutSpecial("/work/.orvane-fedcba9876543210.tmp", FileKind::Folder);
    Remove();
    EXPECT_EQ(Files.AllNames().size(), 3u);
    EXPECT_TRUE(Files.Find("/work/" + kTemporary));
}

TEST_F(LeftoversTest, TheyLieBesideTheFileThatALinkLeadsTo) {
    Put(kTemporary, 25);
    Put("pump.zfsm", 0);
    Files.PutLink("/home/link", "/work/pump.zfsm");
    Remove("/home/link");
    EXPECT_THAT(Files.AllNames(), ElementsAre("/work/pump.zfsm"));
}

} // namespace
} // namespace orvane
