// SPDX-License-Identifier: GPL-3.0-or-later
#include "welcome/UpdatePage.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(UpdatePage, TheVersionStandsBetweenThePhraseAndTheNextTag) {
    EXPECT_EQ(LatestVersion("<p>Download Orvane for Zorlan v1.0.010</p>"), "V1.0.010");
}

TEST(UpdatePage, AVersionIsOneLineAndNoLongerThanOneIs) {
    EXPECT_EQ(LatestVersion("Download Orvane for Zorlan v1.0.010\r\nSend your password to<"), "V1.0.010");
    EXPECT_EQ(LatestVersion("Download Orvane for Zorlan " + std::string(1000, '9') + "<")->size(), 40u);
}

TEST(UpdatePage, APageWithoutThePhraseIsIgnored) { EXPECT_EQ(LatestVersion("<p>Moved</p>"), std::nullopt); }

TEST(UpdatePage, APageThatEndsBehindThePhraseIsIgnored) {
    EXPECT_EQ(LatestVersion("Download Orvane for Zorlan v1.0.010"), std::nullopt);
}

TEST(UpdatePage, AnEmptyVersionIsNoNewerOne) {
    EXPECT_EQ(LatestVersion("Download Orvane for Zorlan <"), "");
    EXPECT_FALSE(IsNewerRevision("", 0));
}

TEST(UpdatePage, AHigherRevisionIsNewer) { EXPECT_TRUE(IsNewerRevision("V1.0.010", 9)); }

TEST(UpdatePage, TheSameRevisionIsNotNewer) { EXPECT_FALSE(IsNewerRevision("V1.0.010", 10)); }

TEST(UpdatePage, OnlyTheLastThreeCharactersCount) { EXPECT_FALSE(IsNewerRevision("V3.0.001", 2)); }

TEST(UpdatePage, TheQuestionNamesBothVersions) {
    EXPECT_EQ(
        UpdateQuestion("V1.0.009", "V1.0.010"),
        "There is a new version of this program available\r\n"
        "You have version V1.0.009. The latest one is V1.0.010\r\n"
        "\r\n"
        "\r\n"
        "\r\n"
        "Do you want to download the new version?\r\n"
        "If you click Yes you will be taken to the download page online where you can download the latest "
        "version\r\n"
        "\r\n");
}

} // namespace
} // namespace orvane
