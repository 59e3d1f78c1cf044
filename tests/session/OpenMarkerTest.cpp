// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/OpenMarker.h"

#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

const FileSystem::Path kFolder = "/state/recovery";
const FileSystem::Path kPump = "/work/pump.zfsm";
const FileSystem::Path kFan = "/work/fan.zfsm";

TEST(OpenMarker, OnlyOneWindowHasADocument) {
    MemoryFiles files;
    OpenMarker first(files, kFolder);
    OpenMarker second(files, kFolder);
    EXPECT_TRUE(first.Take(kPump));
    EXPECT_TRUE(first.Take(kPump));
    EXPECT_FALSE(second.Take(kPump));
    EXPECT_TRUE(second.Take(kFan));
}

TEST(OpenMarker, TheDocumentIsFreeWhenItsWindowHasAnother) {
    MemoryFiles files;
    OpenMarker first(files, kFolder);
    OpenMarker second(files, kFolder);
    EXPECT_TRUE(first.Take(kPump));
    EXPECT_TRUE(first.Take(kFan));
    EXPECT_TRUE(second.Take(kPump));
}

TEST(OpenMarker, NothingIsLeftBehind) {
    MemoryFiles files;
    {
        OpenMarker marker(files, kFolder);
        EXPECT_TRUE(marker.Take(kPump));
        EXPECT_EQ(files.AllNames().size(), 1u);
    }
    EXPECT_TRUE(files.AllNames().empty());
    EXPECT_EQ(files.OpenHandles(), 0);
}

TEST(OpenMarker, OneOfAProcessThatWasKilledIsTakenOver) {
    MemoryFiles files;
    OpenMarker killed(files, kFolder);
    EXPECT_TRUE(killed.Take(kPump));
    files.CloseAll();
    OpenMarker next(files, kFolder);
    EXPECT_TRUE(next.Take(kPump));
}

TEST(OpenMarker, WithoutAFolderEveryDocumentIsFree) {
    MemoryFiles files;
    OpenMarker marker(files, std::nullopt);
    EXPECT_TRUE(marker.Take(kPump));
    EXPECT_TRUE(files.AllNames().empty());
}

} // namespace
} // namespace orvane
