// SPDX-License-Identifier: GPL-3.0-or-later
// What has to be on the disk before it takes the place of what was there.
#include "cli/Orvanec.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <vector>

namespace orvane {
namespace {

class Durability : public Orvanec {
  protected:
    void SetUp() override {
        if (std::getenv("ORVANEC_PROGRAM") != nullptr)
            GTEST_SKIP() << "what another system's program asks of the disk cannot be watched";
        WriteFile("pump.zfsm", " " + PumpDocument());
    }

    RunResult RunWatched(const std::string& arguments, const std::string& more = {}) const {
        return Run(arguments, "ORVANE_FILE_STEPS=../steps LD_PRELOAD=" ORVANE_FILE_STEPS_LIBRARY
                              " ASAN_OPTIONS=$ASAN_OPTIONS:verify_asan_link_order=0 " +
                                  more);
    }

    // What the program did up to when a file took this name, and under which name that file was written.
    struct Steps {
        std::vector<std::string> Before;
        std::string Temporary;
    };
    Steps StepsUpTo(const std::string& name) const {
        Steps steps;
        std::istringstream lines(ReadFile("../steps"));
        const std::string end = " " + name;
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with("rename ") && line.ends_with(end)) {
                steps.Temporary = line.substr(7, line.size() - 7 - end.size());
                break;
            }
            steps.Before.push_back(line);
        }
        return steps;
    }
    // The file was on the disk when it took its name.
    bool WasSyncedFirst(const std::string& name) const {
        const Steps steps = StepsUpTo(name);
        EXPECT_NE(steps.Temporary, "") << "nothing was renamed to " << name;
        return std::count(steps.Before.begin(), steps.Before.end(), "sync " + steps.Temporary) > 0;
    }
};

TEST_F(Durability, ADocumentIsOnTheDiskBeforeItTakesThePlaceOfTheOlderOne) {
    EXPECT_EQ(RunWatched("format pump.zfsm").Status, 0);
    EXPECT_EQ(ReadFile("pump.zfsm"), PumpDocument());
    EXPECT_TRUE(WasSyncedFirst("pump.zfsm")) << ReadFile("../steps");
}

TEST_F(Durability, ADocumentUnderAnotherNameIsOnTheDiskToo) {
    EXPECT_EQ(RunWatched("format pump.zfsm -o tidy.zfsm").Status, 0);
    EXPECT_TRUE(WasSyncedFirst("tidy.zfsm")) << ReadFile("../steps");
}

TEST_F(Durability, AProgramDoesNotWaitForTheDiskBecauseItCanBeMadeAgain) {
    EXPECT_EQ(RunWatched("generate pump.zfsm").Status, 0);
    EXPECT_EQ(ReadFile("pump.zls"), PumpProgram(PathText("pump.zfsm")));
    EXPECT_EQ(ReadFile("../steps").find("sync "), std::string::npos) << ReadFile("../steps");
}

TEST_F(Durability, WhereTheDiskRefusesTheOlderDocumentStays) {
    const std::string before = ReadFile("pump.zfsm");
    const RunResult run = RunWatched("format pump.zfsm", "ORVANE_FAIL_SYNC=1");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Errors, "orvanec: pump.zfsm: pump.zfsm cannot be written (Input/output error)\n");
    EXPECT_EQ(ReadFile("pump.zfsm"), before);
    EXPECT_EQ(Listing(), "pump.zfsm ");
}

} // namespace
} // namespace orvane
