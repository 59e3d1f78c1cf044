// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestWriter.h"

#include "run/TestReader.h"
#include "support/Property.h"
#include "support/RandomTestFile.h"

#include <gmock/gmock.h>

namespace orvane::run {

void showValue(const TestFile& file, std::ostream& out) { out << WriteTestFile(file); }

namespace {

TEST(TestWriter, WhatIsWrittenIsReadAsItWas) {
    test::ExpectProperty({.Cases = 1000, .LargestSize = 40}, [] {
        const TestFile file = *test::AnyTestFile();
        const TestReadResult read = ReadTestFile(WriteTestFile(file));
        for (const TestMessage& slip : read.Slips)
            RC_FAIL(slip.Text);
        RC_ASSERT(read.File == file);
    });
}

TEST(TestWriter, WhatIsReadOfAnythingIsWrittenAndReadAgain) {
    test::ExpectProperty({.Cases = 2000, .LargestSize = 60}, [] {
        TestReadResult read = ReadTestFile(*test::TestWordSoup());
        std::erase_if(read.File.Lines, [](const TestLine& line) {
            return std::holds_alternative<std::monostate>(line.What) && !line.Comment;
        });
        RC_PRE(read.Slips.size() < kMostSlips);
        TestReadResult again = ReadTestFile(WriteTestFile(read.File));
        RC_ASSERT(again.File == read.File);
    });
}

TEST(TestWriter, ArrowsOfATestStandOneBelowTheOther) {
    const TestReadResult read = ReadTestFile("machine pump.zfsm ;the pump\n"
                                             "test stops\n"
                                             "=> Idle\n"
                                             "+5 pulse Start => Run via Start runs \"run entry\";note\n"
                                             "+99=>Run stays\n");
    EXPECT_EQ(WriteTestFile(read.File), "machine pump.zfsm  ;the pump\n"
                                        "test stops\n"
                                        "                      => Idle\n"
                                        "    +5    pulse Start => Run  via Start  runs \"run entry\"  ;note\n"
                                        "    +99               => Run  stays\n");
}

} // namespace
} // namespace orvane::run
