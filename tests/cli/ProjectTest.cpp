// SPDX-License-Identifier: GPL-3.0-or-later
// All machines of one controller.
#include "cli/Orvanec.h"

#include "builder/ProjectAdvice.h"
#include "support/Json.h"

#include <algorithm>
#include <chrono>

#include <gmock/gmock.h>

namespace orvane {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class Project : public Orvanec {
  protected:
    Project() {
        fs::create_directories(Path("plant"));
        WriteFile("plant/pump.zfsm", PumpDocument());
        WriteFile("plant/fan.zfsm", Named("FAN"));
        Script("pump.zls\r\nfan.zls\r\n");
        EXPECT_EQ(Run("generate plant/pump.zfsm plant/fan.zfsm").Status, 0);
    }

    void Script(const std::string& files) const {
        WriteFile("plant/plant.b1d", "CODESEG\r\n#---\r\n" + files);
    }
    static std::string Named(const std::string& name) {
        std::string document = PumpDocument();
        return document.replace(document.find("PMP"), 3, name);
    }
};

TEST_F(Project, ItsDocumentsAreCheckedAndAProjectInOrderHasNoAdvice) {
    const RunResult run = Run("check --project plant/plant.b1d");
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Output,
              NativeText("plant/pump.zfsm:\nErrors and warnings\nplant/fan.zfsm:\nErrors and warnings\n"));
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(Run("check --quiet --project plant.b1d", "cd plant;").Output, "");
}

TEST_F(Project, AdviceStandsAtTheLineOfTheScriptInEveryFormatAndChangesNoStatus) {
    WriteFile("plant/fan.zfsm", Named("PMP"));
    Script("pump.zls\r\nfan.zls\r\n..\\gone.zls ;from elsewhere\r\n");
    ASSERT_EQ(Run("generate plant/fan.zfsm").Status, 0);
    const std::string check = "check --quiet --project plant/plant.b1d --format=";
    const RunResult gcc = Run(check + "gcc");
    EXPECT_EQ(gcc.Status, 0);
    EXPECT_EQ(gcc.Output,
              "plant/plant.b1d:5: note: ..\\gone.zls is not there, and no document to generate it from "
              "[file-missing]\n"
              "plant/plant.b1d:4: note: fan.zls and pump.zls have the same prefix, PMP: give one of the "
              "machines another name [prefix-twice]\n");
    EXPECT_EQ(Run(check + "text").Output,
              "plant/plant.b1d:\n"
              "Advice: ..\\gone.zls is not there, and no document to generate it from [file-missing]\n"
              "Advice: fan.zls and pump.zls have the same prefix, PMP: give one of the machines another name "
              "[prefix-twice]\n");
    EXPECT_THAT(Run(check + "json").Output,
                HasSubstr("{\"version\":1,\"path\":\"plant/plant.b1d\",\"complete\":true,"));
    EXPECT_THAT(Run(check + "json").Output,
                HasSubstr("{\"kind\":\"prefix-twice\",\"line\":4,\"state\":null,\"row\":null,\"text\":"));
    const auto log = test::JsonValue::Parse(Run(check + "sarif").Output)["runs"].List().at(0);
    ASSERT_EQ(log["results"].List().size(), 2u);
    EXPECT_EQ(log["results"].List()[1]["ruleId"].Text(), "prefix-twice");
    std::vector<std::string> rules;
    for (const test::JsonValue& rule : log["tool"]["driver"]["rules"].List())
        rules.push_back(rule["id"].Text());
    for (const ProjectAdviceKind kind : kProjectAdviceKinds)
        EXPECT_THAT(rules, testing::Contains(std::string(ProjectAdviceKindName(kind))));
}

TEST_F(Project, AProgramThatDiffersFromItsDocumentIsToldWithItsAge) {
    for (const std::string name : {"plant/fan.zls", "plant/pump.zls"})
        WriteFile(name, ReadFile(name) + "x:\r\n");
    fs::last_write_time(Path("plant/fan.zls"),
                        fs::last_write_time(Path("plant/fan.zfsm")) - std::chrono::minutes(1));
    EXPECT_EQ(
        Run("check --quiet --format=gcc --project plant/plant.b1d").Output,
        "plant/plant.b1d:4: note: fan.zls is older than its document: generate it again [program-older]\n"
        "plant/plant.b1d:3: note: pump.zls is not what its document gives: generate it again "
        "[program-differs]\n");
}

TEST_F(Project, AnOlderProgramOfTheSameCodeIsInOrder) {
    fs::last_write_time(Path("plant/fan.zls"),
                        fs::last_write_time(Path("plant/fan.zfsm")) - std::chrono::minutes(1));
    EXPECT_EQ(Run("check --quiet --format=gcc --project plant/plant.b1d").Output, "");
}

TEST_F(Project, AnErrorInOneOfItsDocumentsIsTheStatus) {
    WriteFile("plant/fan.zfsm", DocumentWithErrors());
    const RunResult run = Run("check --quiet --format=gcc --project plant/plant.b1d");
    EXPECT_EQ(run.Status, 1);
    EXPECT_THAT(run.Output, HasSubstr(NativeText("plant/fan.zfsm:7: error: ")));
}

TEST_F(Project, AScriptThatCannotBeReadIsTold) {
    const RunResult run = Run("check --project gone.b1d");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, "orvanec: gone.b1d: cannot be read (No such file or directory)\n");
}

TEST_F(Project, AScriptWithoutProgramsIsInOrder) {
    Script("");
    const RunResult run = Run("check --format=sarif --project plant/plant.b1d");
    EXPECT_EQ(run.Status, 0);
    EXPECT_THAT(run.Output, HasSubstr("\"results\":[]"));
}

} // namespace
} // namespace orvane
