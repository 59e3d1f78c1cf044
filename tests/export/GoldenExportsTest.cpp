// SPDX-License-Identifier: GPL-3.0-or-later
// What each form looks like, byte by byte, and what programs of others say of it.
#include "export/Exports.h"
#include "support/EveryFieldDocument.h"
#include "support/Folders.h"
#include "support/GoldenFile.h"
#include "support/MachineJson.h"

#include <algorithm>

namespace orvane::exports {
namespace {

std::string SafeGridOf(const FsmDocument& document) { return CsvGridOf(document, Formulas::Safe); }

struct Form {
    const char* Extension;
    std::string (*Write)(const FsmDocument&);
};

constexpr Form kForms[] = {{".html", HtmlOf},        {".md", MarkdownOf}, {".csv", SafeGridOf},
                           {".long.csv", CsvLongOf}, {".json", JsonOf},   {".mmd", MermaidOf},
                           {".puml", PlantUmlOf},    {".scxml", ScxmlOf}};

const FsmDocument& Example(const std::vector<test::NamedDocument>& examples, const std::string& name) {
    return std::find_if(examples.begin(), examples.end(),
                        [&](const auto& each) { return each.Name == name + ".zfsm"; })
        ->Document;
}

TEST(GoldenExports, OfTwoExamplesAreAsTheyWere) {
    const std::vector<test::NamedDocument> examples = test::ExampleDocuments();
    for (const std::string name : {"garage", "faulty"}) {
        for (const Form& form : kForms)
            test::ExpectGolden(std::filesystem::path(test::kExportsFolder) / (name + form.Extension),
                               form.Write(Example(examples, name)));
    }
}

// Every byte that there is, in names and code.
FsmDocument Hostile() {
    FsmDocument document;
    document.General.FsmName = "<!-- ]]> -->";
    for (int byte = 1; byte < 256; ++byte) {
        document.State(byte % 50 + 1).Name += char(byte);
        document.State(byte % 50 + 1).EntryCode += char(byte);
        document.Event(6 + byte % 49).Name += char(byte);
        document.State(byte % 50 + 1).Targets[6 + byte % 49] = byte % 17 + 1;
        document.State(byte % 50 + 1).Actions[6 + byte % 49] += char(byte);
    }
    document.State(51).Name = "]]></title><script>alert('\"&amp;--')</script>";
    document.State(51).TimingMode = 3;
    document.State(51).TimerId = "-->--";
    document.State(51).Targets[kTimeoutRow] = 1;
    return document;
}

// True where the program is missing: then there is nobody to ask.
bool Accepts(const std::string& program, const std::string& arguments, const std::string& bytes) {
    if (std::system(("command -v " + program + " >/dev/null").c_str()) != 0)
        return true;
    const auto file = std::filesystem::temp_directory_path() / "orvane-export-to-be-read";
    WriteFileBytes(file, bytes);
    const int status =
        std::system((program + " " + arguments + " '" + file.string() + "' >/dev/null 2>&1").c_str());
    std::filesystem::remove(file);
    return status == 0;
}

TEST(ExportedText, IsReadByProgramsOfOthers) {
    for (const FsmDocument& document : {Hostile(), FsmDocument(), test::EveryFieldDocument()}) {
        EXPECT_TRUE(Accepts("xmllint", "--noout", ScxmlOf(document)));
        EXPECT_TRUE(Accepts("python3", "-m json.tool", JsonOf(document)));
    }
}

TEST(ExportedText, HasNoMarkupOfANameInIt) {
    const FsmDocument document = Hostile();
    EXPECT_EQ(HtmlOf(document).find("<script"), std::string::npos);
    EXPECT_EQ(MarkdownOf(document).find("# 51:]]></title><script>"), std::string::npos);
    EXPECT_EQ(ScxmlOf(document).find("-->--"), std::string::npos);
    const std::string mermaid = MermaidOf(document);
    EXPECT_EQ(mermaid.find("::"), std::string::npos);
    EXPECT_EQ(mermaid.find('<'), std::string::npos);
    EXPECT_NE(mermaid.find("s51 : 51#58;#93;#93;#62;"), std::string::npos);
    EXPECT_EQ(PlantUmlOf(document).find("<script"), std::string::npos);
}

TEST(ExportedText, MermaidHasNoSemicolonButThatOfAnEntity) {
    FsmDocument document;
    document.State(1).Name = "a;b::c<d";
    EXPECT_EQ(MermaidOf(document), "stateDiagram-v2\n    s1 : 1#58;a#59;b#58;#58;c#60;d\n    [*] --> s1\n");
}

TEST(ExportedText, AChartSaysWhatATimerLosesInIt) {
    FsmDocument document;
    document.State(1).Targets[kTimeoutRow] = 1;
    document.State(1).TimingMode = 3;
    document.State(1).TimerId = "T1";
    EXPECT_NE(
        ScxmlOf(document).find("<!-- nothing sends this event: the state goes on with the timer T1 that "
                               "another state started -->\n    <transition event=\"timeout.s1\""),
        std::string::npos);
}

TEST(ExportedText, MarkdownOfManyStatesHasNoTable) {
    FsmDocument document;
    for (int state = 1; state <= 12; ++state)
        document.State(state).Name = "S";
    EXPECT_NE(MarkdownOf(document).find("|---|"), std::string::npos);
    document.State(13).Name = "S";
    EXPECT_EQ(MarkdownOf(document).find("|---|"), std::string::npos);
}

TEST(ExportedText, TheSchemaTellsEveryMember) {
    const std::string schema = FileBytes(test::kSchemaFile);
    const std::string json = JsonOf(test::EveryFieldDocument());
    for (std::size_t at = json.find("\": "); at != std::string::npos; at = json.find("\": ", at + 1)) {
        const std::string key = json.substr(json.rfind('"', at - 1), at - json.rfind('"', at - 1) + 1);
        EXPECT_NE(schema.find(key + ": {"), std::string::npos) << key;
    }
}

} // namespace
} // namespace orvane::exports
