// SPDX-License-Identifier: GPL-3.0-or-later
// The log that code hosts and editors read, as SARIF 2.1.0 has it.
#include "cli/Orvanec.h"

#include "codegen/FindingKind.h"
#include "run/Advice.h"
#include "support/Json.h"

#include <cstdlib>

#include <gmock/gmock.h>

namespace orvane {
namespace {

using test::JsonValue;

class Sarif : public Orvanec {
  protected:
    Sarif() {
        WriteFile("pump.zfsm", PumpDocument());
        WriteFile("bad.zfsm", DocumentWithErrors());
    }
    static JsonValue RunOf(const std::string& log) { return JsonValue::Parse(log)["runs"].List().at(0); }
    static const JsonValue& Place(const JsonValue& result) {
        return result["locations"].List().at(0)["physicalLocation"];
    }
};

TEST_F(Sarif, AllDocumentsAreOneLogInTheOrderOfTheArguments) {
    WriteFile("more.zfsm", DocumentWithoutName());
    const RunResult run = Run("check --format=sarif pump.zfsm bad.zfsm more.zfsm");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(JsonValue::Parse(run.Output)["version"].Text(), "2.1.0");
    const auto results = RunOf(run.Output)["results"].List();
    ASSERT_EQ(results.size(), 4u);
    EXPECT_EQ(results[0]["ruleId"].Text(), "missing-event-code");
    EXPECT_EQ(results[0]["level"].Text(), "error");
    EXPECT_EQ(results[0]["message"]["text"].Text(), "Missing event test code in row 6");
    EXPECT_EQ(Place(results[0])["artifactLocation"]["uri"].Text(), "bad.zfsm");
    EXPECT_EQ(Place(results[0])["region"]["startLine"].Number(), 7);
    EXPECT_EQ(results[2]["level"].Text(), "warning");
    EXPECT_EQ(Place(results[3])["artifactLocation"]["uri"].Text(), "more.zfsm");
}

TEST_F(Sarif, EveryKindIsARuleAndResultsPointToTheirs) {
    const RunResult run = Run("check --format=sarif bad.zfsm");
    const auto rules = RunOf(run.Output)["tool"]["driver"]["rules"].List();
    std::vector<std::string> kinds;
    for (const FindingKind kind : kFindingKinds)
        kinds.emplace_back(KindName(kind));
    for (const run::AdviceKind kind : run::kAdviceKinds)
        kinds.emplace_back(AdviceKindName(kind));
    std::vector<std::string> ids;
    for (const JsonValue& rule : rules)
        ids.push_back(rule["id"].Text());
    EXPECT_THAT(ids, testing::IsSupersetOf(kinds));
    for (const FindingKind kind : kFindingKinds) {
        const auto& rule = rules.at(std::find(ids.begin(), ids.end(), KindName(kind)) - ids.begin());
        EXPECT_EQ(rule["defaultConfiguration"]["level"].Text(), SeverityName(SeverityOf(kind)));
    }
    const auto results = RunOf(run.Output)["results"].List();
    for (const JsonValue& result : results)
        EXPECT_EQ(ids.at(result["ruleIndex"].Number()), result["ruleId"].Text());
}

TEST_F(Sarif, WhatTheReaderSaysAndWhatFailedAreNotifications) {
    WriteFile("odd.zfsm", "\xA4<FSM_NAME>D\xA4/\r\n\xA4<ODD>x\xA4/\r\n\r\n");
    const RunResult run = Run("generate --format=sarif gone.zfsm odd.zfsm --output-dir nowhere");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Output, "");
    const JsonValue invocation = RunOf(run.Errors)["invocations"].List().at(0);
    const auto told = invocation["toolExecutionNotifications"].List();
    ASSERT_EQ(told.size(), 3u);
    EXPECT_EQ(told[0]["level"].Text(), "error");
    EXPECT_EQ(told[0]["message"]["text"].Text(), "The file cannot be read (No such file or directory)");
    EXPECT_EQ(told[1]["level"].Text(), "warning");
    EXPECT_EQ(told[1]["message"]["text"].Text(), "Unknown tag ODD");
    EXPECT_EQ(Place(told[1])["region"]["startLine"].Number(), 2);
    EXPECT_EQ(told[2]["level"].Text(), "error");
    EXPECT_THAT(run.Errors, testing::HasSubstr("\"executionSuccessful\":false"));
    EXPECT_THAT(Run("check --format=sarif pump.zfsm").Output,
                testing::HasSubstr("\"executionSuccessful\":true"));
}

TEST_F(Sarif, ANameIsAReferenceWhateverItHolds) {
    WriteFile("a b%#\xC3\xBC.zfsm", DocumentWithoutName());
    const RunResult run = Run("check --format=sarif a*.zfsm '" + PathText("bad.zfsm") + "'");
    const auto results = RunOf(run.Output)["results"].List();
    EXPECT_EQ(Place(results[0])["artifactLocation"]["uri"].Text(), "a%20b%25%23%C3%BC.zfsm");
    EXPECT_EQ(Place(results[1])["artifactLocation"]["uri"].Text(),
              (IsForWindows() ? "file:///Z:" : "file://") + Path("bad.zfsm").string());
}

TEST_F(Sarif, TheLogKeepsToTheSchema) {
    if (std::system("python3 -W ignore -c 'import jsonschema' 2>/dev/null") != 0)
        GTEST_SKIP() << "no python3 with jsonschema here";
    WriteFile("odd.zfsm", PumpDocument() + "\xA4<ODD>x\xA4/\r\n\r\n");
    WriteFile("log.json", Run("check --advice --format=sarif pump.zfsm bad.zfsm odd.zfsm gone.zfsm").Output);
    WriteFile("judge.py", "import json, sys, jsonschema\n"
                          "log = json.load(open('log.json', encoding='utf-8'))\n"
                          "jsonschema.validate(log, json.load(open(sys.argv[1])))\n"
                          "assert len(log['runs'][0]['results']) >= 3\n");
    EXPECT_EQ(
        std::system(("cd '" + Path("").string() + "' && python3 -W ignore judge.py '" ORVANE_SARIF_SCHEMA "'")
                        .c_str()),
        0);
}

} // namespace
} // namespace orvane
