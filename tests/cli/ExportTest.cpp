// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Orvanec.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class ExportVerb : public Orvanec {
  protected:
    ExportVerb() { WriteFile("pump.zfsm", PumpDocument()); }
};

TEST_F(ExportVerb, WritesEachForm) {
    const std::pair<const char*, const char*> forms[] = {
        {"html", "<!DOCTYPE html>"},
        {"markdown", "# PMP"},
        {"csv", "\xEF\xBB\xBFPMP,"},
        {"csv-long", "\xEF\xBB\xBFstate,event,target,action"},
        {"json", "{\n  \"version\": 1,"},
        {"dot", "digraph machine {"},
        {"mermaid", "stateDiagram-v2"},
        {"plantuml", "@startuml"},
        {"scxml", "<?xml "}};
    for (const auto& [form, begin] : forms) {
        const RunResult run = Run("export pump.zfsm --format=" + std::string(form));
        EXPECT_EQ(run.Status, 0) << form;
        EXPECT_EQ(run.Errors, "") << form;
        EXPECT_THAT(run.Output, StartsWith(begin)) << form;
        EXPECT_EQ(Run("export pump.zfsm -o out --format=" + std::string(form)).Output, "");
        EXPECT_EQ(ReadFile("out"), run.Output) << form;
    }
}

TEST_F(ExportVerb, NeedsAFormItKnows) {
    EXPECT_EQ(Run("export pump.zfsm").Status, 2);
    EXPECT_EQ(Run("export --format=word pump.zfsm").Status, 2);
    EXPECT_EQ(Run("export --format=json gone.zfsm").Status, 3);
    WriteFile("broken.zfsm", PumpDocument() + "\xA4<STATE>101\xA4/\r\n");
    const RunResult broken = Run("export --format=json broken.zfsm -o broken.json");
    EXPECT_EQ(broken.Status, 3);
    EXPECT_FALSE(Exists("broken.json"));
}

TEST_F(ExportVerb, CellsThatLookLikeFormulasAreSafeUnlessAskedOtherwise) {
    std::string document = PumpDocument();
    const std::string name = "<FSM_NAME>PMP";
    document.replace(document.find(name), name.size(), "<FSM_NAME>=1+1");
    WriteFile("sum.zfsm", document);
    EXPECT_THAT(Run("export --format=csv sum.zfsm").Output, StartsWith("\xEF\xBB\xBF'=1+1,"));
    EXPECT_THAT(Run("export --format=csv --no-safe sum.zfsm").Output, StartsWith("\xEF\xBB\xBF=1+1,"));
}

TEST_F(ExportVerb, JsonComesBackAsTheSameDocument) {
    EXPECT_EQ(Run("format pump.zfsm").Status, 0);
    EXPECT_EQ(Run("export --format=json pump.zfsm -o pump.json").Status, 0);
    const RunResult run = Run("import pump.json -o again.zfsm");
    EXPECT_EQ(run.Status, 0) << run.Errors;
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(ReadFile("again.zfsm"), ReadFile("pump.zfsm"));
    EXPECT_EQ(Run("import pump.json -o -").Output, ReadFile("pump.zfsm"));
}

TEST_F(ExportVerb, AnImportNeedsAnOutputAndAFormItKnows) {
    WriteFile("a.json", "{}");
    WriteFile("a.txt", "{}");
    EXPECT_EQ(Run("import a.json").Status, 2);
    EXPECT_EQ(Run("import a.txt -o a.zfsm").Status, 2);
    EXPECT_EQ(Run("import a.txt --format=json -o a.zfsm").Status, 0);
    EXPECT_EQ(Run("import gone.json -o b.zfsm").Status, 3);
}

TEST_F(ExportVerb, WhatCannotBeReadIsToldWithItsLineAndNothingIsWritten) {
    WriteFile("deep.scxml", "<scxml>\n <state id='a'>\n  <state id='b'/>\n </state>\n</scxml>\n");
    const RunResult run = Run("import deep.scxml -o deep.zfsm");
    EXPECT_EQ(run.Status, 3);
    EXPECT_EQ(run.Errors,
              "deep.scxml:3: The chart has the state \"b\", which stands within \"a\"; a table has "
              "no states within states\n");
    EXPECT_FALSE(Exists("deep.zfsm"));
}

} // namespace
} // namespace orvane
