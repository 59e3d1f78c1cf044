// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/WorkRow.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvane {
namespace {

using namespace std::chrono_literals;

constexpr LocalMinute kNow{2026y / 3 / 1, 9, 30};

WorkRow RowOfPath(std::string path) { return RowOf({.Path = std::move(path), .LastChange = kNow}, kNow); }

std::string ChangedAt(const LocalMinute& time) { return RowOf({.LastChange = time}, kNow).LastChange; }

TEST(WorkRow, SaysWhichDocumentInWhichFolder) {
    EXPECT_EQ(RowOfPath("/home/ada/machines/pump.zfsm").Document, "pump.zfsm");
    EXPECT_EQ(RowOfPath("/home/ada/machines/pump.zfsm").Folder, "/home/ada/machines");
    EXPECT_EQ(RowOfPath("C:\\machines\\pump.zfsm").Document, "pump.zfsm");
    EXPECT_EQ(RowOfPath("C:\\machines\\pump.zfsm").Folder, "C:\\machines");
}

TEST(WorkRow, ADocumentInTheRootKeepsItsSeparator) {
    EXPECT_EQ(RowOfPath("/pump.zfsm").Folder, "/");
    EXPECT_EQ(RowOfPath("C:\\pump.zfsm").Folder, "C:\\");
}

TEST(WorkRow, ADocumentWithoutAFileIsUntitled) {
    const WorkRow row = RowOf({.LastChange = kNow, .Changes = 3}, kNow);
    EXPECT_EQ(row, (WorkRow{"[Untitled]", "", "today 09:30", "3", "never saved"}));
}

TEST(WorkRow, TheLastChangeIsTodayYesterdayOrADate) {
    EXPECT_EQ(ChangedAt({2026y / 3 / 1, 0, 0}), "today 00:00");
    EXPECT_EQ(ChangedAt({2026y / 2 / 28, 23, 59}), "yesterday 23:59");
    EXPECT_EQ(ChangedAt({2026y / 2 / 27, 8, 5}), "2026-02-27 08:05");
    EXPECT_EQ(ChangedAt({2025y / 12 / 31, 12, 0}), "2025-12-31 12:00");
}

TEST(WorkRow, AClockThatWasSetBackGivesADate) {
    EXPECT_EQ(ChangedAt({2026y / 3 / 2, 9, 0}), "2026-03-02 09:00");
}

TEST(WorkRow, OpenEditorsAndWhatIsLostAreTold) {
    LeftWork work{.LastChange = kNow, .Changes = 12};
    EXPECT_EQ(RowOf(work, kNow).Changes, "12");
    work.OpenEditors = 1;
    EXPECT_EQ(RowOf(work, kNow).Changes, "12 and an open editor");
    work.OpenEditors = 2;
    EXPECT_EQ(RowOf(work, kNow).Changes, "12 and 2 open editors");
    work.IsPartlyLost = true;
    EXPECT_EQ(RowOf(work, kNow).Changes, "12 and 2 open editors, not all readable");
}

TEST(WorkRow, SaysWhatBecameOfTheFile) {
    std::vector<std::string> words;
    for (const FileFate fate : {FileFate::AsItWas, FileFate::ChangedSince, FileFate::Gone,
                                FileFate::Unreadable, FileFate::NeverSaved})
        words.push_back(RowOf({.LastChange = kNow, .File = fate}, kNow).File);
    EXPECT_EQ(words, (std::vector<std::string>{"as it was", "changed since", "gone", "cannot be read",
                                               "never saved"}));
}

} // namespace
} // namespace orvane
