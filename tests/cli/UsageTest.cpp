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

TEST_F(Usage, TheVersionIsThatOfThePackage) {
    const RunResult run = Run("--version");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Output, "orvanec " ORVANE_VERSION "\n");
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
    ExpectWrong("genrate a", "There is no verb genrate; did you mean \"generate\"?; " + verbs);
    ExpectWrong("-x", "-x is an option, not a verb, and a verb comes first; " + verbs);
    ExpectWrong("-o out generate a", "-o is an option, not a verb, and a verb comes first; " + verbs);
    ExpectWrong("generate", "No document is given");
    ExpectWrong("check", "No document is given");
    ExpectWrong("format", "No document is given");
    ExpectWrong("export", "No document is given");
    ExpectWrong("export a -o out",
                "export needs --format: html, markdown, csv, csv-long, json, dot, mermaid, "
                "plantuml or scxml");
    ExpectWrong("import", "No file is given");
    ExpectWrong("find", "No pattern is given");
    ExpectWrong("find Horn", "No document is given");
    ExpectWrong("git", "git takes the word enable");
    ExpectWrong("generate -o out a b", "-o takes the program of one document, not of 2");
    ExpectWrong("generate -o '' a", "-o needs the name of a file");
    ExpectWrong("diagram a b", "b is one argument more than diagram takes");
    ExpectWrong("show -o out a", "show has no option -o; its options are --help and --textconv");
    ExpectWrong("check --fromat=gcc a", "check has no option --fromat=gcc; did you mean \"--format\"?");
    ExpectWrong("conflicts a --frob", "conflicts has no option --frob; its options are --help");
    ExpectWrong("check --format=xml a", "--format: xml not in {text,gcc,json,sarif}");
    ExpectWrong("check a --format", "--format: 1 required FORMAT:{text,gcc,json,sarif} missing");
    ExpectWrong("generate a -o", "--output: 1 required FILE missing");
}

TEST_F(Usage, WhatDoesNotGoTogetherIsSaid) {
    const std::string input =
        "- is standard input, and what is made of it needs a name: -o FILE, or -o - for "
        "standard output. A file of that name is ./-";
    ExpectWrong("generate -", input);
    ExpectWrong("format -", input);
    ExpectWrong("check - -", "- is standard input, which can be read only once");
    ExpectWrong("generate -o out --output-dir dir a",
                "-o names the one program, --output-dir a folder for all: give one of them");
    ExpectWrong("generate --output-dir '' a", "--output-dir needs the name of a folder");
    ExpectWrong("generate --depfile '' a", "--depfile needs the name of a file");
    ExpectWrong("generate --depfile d -o - a",
                "--depfile says which file is made of which document; with -o - no file is made");
    ExpectWrong("format --check -o out a", "--check writes nothing, so that there is nothing for -o to name");
    ExpectWrong("check --project p.b1d a",
                "--project looks over the documents of a builder script; name none beside it");
    ExpectWrong("check -j 0 a", "--jobs: Value 0 not in range 1 to 1000");
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
