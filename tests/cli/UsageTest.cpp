// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Orvanec.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class Usage : public Orvanec {
  protected:
    void ExpectWrong(const std::string& arguments, const std::string& what) const {
        const RunResult run = Run(arguments);
        EXPECT_EQ(run.Status, 2) << arguments;
        EXPECT_EQ(run.Output, "") << arguments;
        EXPECT_EQ(run.Errors, "orvanec: " + what + "\nRun \"orvanec --help\" for how it is used.\n")
            << arguments;
        EXPECT_EQ(Listing(), "") << arguments;
    }
};

TEST_F(Usage, TheVersionHasItsRevisionInThreeDigits) {
    const RunResult run = Run("--version");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Output, "orvanec V1.0.001\n");
    EXPECT_EQ(run.Errors, "");
}

TEST_F(Usage, HelpOfTheProgramAndOfEachVerbHasAnExample) {
    const std::pair<const char*, const char*> examples[] = {
        {"--help", "Example: orvanec generate pump.zfsm\n"},
        {"generate --help", "Example: SOURCE_DATE_EPOCH=0 orvanec generate -o - pump.zfsm\n"},
        {"check --help", "Example: orvanec check --format=json *.zfsm\n"},
        {"format --help", "Example: orvanec format pump.zfsm -o tidy.zfsm\n"},
        {"find --help", "Example: orvanec find --word PST_Horn *.zfsm\n"},
        {"test --help", "Example: orvanec test --coverage=100 pump.zfsm\n"},
        {"simulate --help", "Example: orvanec simulate pump.zfsm pump.ztest"},
        {"explore --help", "Example: orvanec explore pump.zfsm\n"},
        {"tour --help", "Example: orvanec tour pump.zfsm --empty-cells -o pump.ztest\n"}};
    for (const auto& [arguments, example] : examples) {
        const RunResult run = Run(arguments);
        EXPECT_EQ(run.Status, 0) << arguments;
        EXPECT_THAT(run.Output, HasSubstr(example));
        EXPECT_EQ(run.Errors, "") << arguments;
    }
}

TEST_F(Usage, HelpOfTheProgramListsTheVerbs) {
    const std::string help = Run("--help").Output;
    EXPECT_THAT(help, HasSubstr("Usage: orvanec [OPTIONS] VERB\n"));
    EXPECT_THAT(help,
                testing::ContainsRegex(
                    "Verbs:\n  generate .*\n  check .*\n  format .*\n  find .*\n  test .*\n  simulate "));
}

TEST_F(Usage, WrongUsageIsSaidOnStandardError) {
    const std::string verbs = "the verbs are generate, check, format, find, test, simulate, explore, tour, "
                              "diagram, export, import, diff, "
                              "show, merge, conflicts and git";
    ExpectWrong("", "No verb is given; " + verbs);
    ExpectWrong("frobnicate a", "There is no verb frobnicate; " + verbs);
    ExpectWrong("generate", "No document is given");
    ExpectWrong("check", "No document is given");
    ExpectWrong("format", "No document is given");
    ExpectWrong("generate -o out a b", "-o takes the program of one document, not of 2");
    ExpectWrong("generate -o '' a", "-o needs the name of a file");
    ExpectWrong("format a b", "The following argument was not expected: b");
    ExpectWrong("check -o out a", "The following argument was not expected: -o");
    ExpectWrong("check --format=xml a", "--format: xml not in {text,json}");
    ExpectWrong("check a --format", "--format: 1 required FORMAT:{text,json} missing");
    ExpectWrong("generate a -o", "--output: 1 required FILE missing");
    ExpectWrong("generate --frob a", "The following argument was not expected: --frob");
}

TEST_F(Usage, ANameMayLookLikeAVerbAnOptionOrAList) {
    for (const std::string name : {"check", "--", "[a,b]", "-o"}) {
        WriteFile(name, PumpDocument());
        const RunResult run = Run("check -- '" + name + "'");
        EXPECT_EQ(run.Status, 0) << name << run.Errors;
        EXPECT_EQ(run.Output, kCleanReport) << name;
    }
    EXPECT_EQ(Run("format check -o '[x]'").Status, 0);
    EXPECT_EQ(ReadFile("[x]"), PumpDocument());
}

} // namespace
} // namespace orvane
