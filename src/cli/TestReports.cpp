// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/TestReports.h"

#include "cli/DocumentPath.h"
#include "cli/MessageText.h"
#include "codegen/DesignChecks.h"
#include "run/StepCheck.h"
#include "text/AnsiText.h"
#include "text/JsonString.h"
#include "text/NumberText.h"
#include "text/XmlText.h"

#include <algorithm>

namespace orvane::cli {

namespace {

std::string OutOf(const run::CoverageCount& count, const char* what) {
    return NumberText(count.Taken) + " of " + NumberText(count.All) + " " + what;
}

std::string CountObject(const run::CoverageCount& count) {
    return "{\"taken\":" + NumberText(count.Taken) + ",\"all\":" + NumberText(count.All) + "}";
}

const char* VerdictName(run::Verdict verdict) {
    switch (verdict) {
    case run::Verdict::Passed:
        return "passed";
    case run::Verdict::Failed:
        return "failed";
    case run::Verdict::Error:
        break;
    }
    return "error";
}

std::string TestCase(const TestedFile& file, const TestedTest& test) {
    std::string xml = "    <testcase classname=\"" + XmlTextOfUtf8(file.Name) + "\" name=\"" +
                      XmlTextOfUtf8(test.Name.empty() ? "line " + NumberText(test.Line) : test.Name) + "\"";
    if (test.Is == run::Verdict::Passed && test.Notes.empty())
        return xml + "/>\n";
    xml += ">\n";
    const std::string where = file.Name + ":" + NumberText(test.Line) + ":" + NumberText(test.Column) + ": ";
    const char* element = test.Is == run::Verdict::Failed ? "failure" : "error";
    if (test.Is != run::Verdict::Passed)
        xml += std::string("      <") + element + " message=\"" + XmlTextOfUtf8(test.Message) + "\">" +
               XmlTextOfUtf8(where + test.Message) + "</" + element + ">\n";
    for (const run::TestMessage& note : test.Notes)
        xml += "      <system-out>" +
               XmlTextOfUtf8(file.Name + ":" + NumberText(note.At.Line) + ": note: " + note.Text) +
               "</system-out>\n";
    return xml + "    </testcase>\n";
}

// Within a cell of a table.
std::string Markdown(std::string_view utf8) {
    std::string text;
    for (const char byte : ShownName(utf8)) {
        if (std::string_view("\\|`*_<>[]").find(byte) != std::string_view::npos)
            text += '\\';
        text += byte;
    }
    return text;
}

std::string MissedText(const CoveredDocument& covered) {
    const FsmDocument& document = *covered.Machine;
    std::string text;
    const auto line = [&](const char* what) { text += ShownName(covered.Name) + ": " + what; };
    const auto title = [&](StateNumber state) {
        return ShownName(ToUtf8(StateTitle(document, state.Number())));
    };
    for (const StateNumber state : covered.Seen.MissedStates()) {
        line("not entered: ");
        text += title(state) + "\n";
    }
    for (const Cell& cell : covered.Seen.MissedTransitions()) {
        line("not taken: ");
        text += title(cell.State) + " by " + ShownName(run::RowText(document, cell.Row)) + "\n";
    }
    return text;
}

} // namespace

TestCounts CountTests(const std::vector<TestedFile>& files) {
    TestCounts counts;
    for (const TestedFile& file : files) {
        for (const TestedTest& test : file.Tests)
            ++(test.Is == run::Verdict::Passed   ? counts.Passed
               : test.Is == run::Verdict::Failed ? counts.Failed
                                                 : counts.Errors);
    }
    return counts;
}

std::vector<CoveredDocument> CoveredDocuments(const std::vector<TestedFile>& files) {
    std::vector<CoveredDocument> documents;
    for (const TestedFile& file : files) {
        if (!file.Seen)
            continue;
        const auto known =
            std::find_if(documents.begin(), documents.end(), [&](const CoveredDocument& document) {
                return FullPath(document.Name) == FullPath(file.Document);
            });
        if (known == documents.end())
            documents.push_back({file.Document, file.Machine, *file.Seen});
        else
            known->Seen.Merge(*file.Seen);
    }
    return documents;
}

std::string JsonOfTest(const TestedFile& file, const TestedTest& test) {
    std::string notes;
    for (const run::TestMessage& note : test.Notes)
        notes += (notes.empty() ? "{\"line\":" : ",{\"line\":") + NumberText(note.At.Line) +
                 ",\"text\":" + JsonString(note.Text) + "}";
    return "{\"file\":" + JsonString(file.Name) + ",\"line\":" + NumberText(test.Line) +
           ",\"test\":" + (test.Name.empty() ? "null" : JsonString(test.Name)) + ",\"verdict\":\"" +
           VerdictName(test.Is) +
           "\",\"message\":" + (test.Message.empty() ? "null" : JsonString(test.Message)) + ",\"notes\":[" +
           notes + "]}\n";
}

std::string JsonOfRun(const TestCounts& counts, const std::vector<CoveredDocument>& covered) {
    run::CoverageCount states;
    run::CoverageCount transitions;
    run::CoverageCount emptyCells;
    run::CoverageCount pairs;
    for (const CoveredDocument& document : covered) {
        states += document.Seen.States();
        transitions += document.Seen.Transitions();
        emptyCells += document.Seen.EmptyCells();
        pairs += document.Seen.Pairs();
    }
    return "{\"version\":1,\"passed\":" + NumberText(counts.Passed) +
           ",\"failed\":" + NumberText(counts.Failed) + ",\"errors\":" + NumberText(counts.Errors) +
           ",\"coverage\":{\"states\":" + CountObject(states) +
           ",\"transitions\":" + CountObject(transitions) + ",\"emptyCells\":" + CountObject(emptyCells) +
           ",\"pairs\":" + CountObject(pairs) + "}}\n";
}

std::string JUnitXml(const std::vector<TestedFile>& files) {
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites name=\"orvanec test\">\n";
    for (const TestedFile& file : files) {
        const TestCounts counts = CountTests({file});
        xml += "  <testsuite name=\"" + XmlTextOfUtf8(file.Name) + "\" tests=\"" +
               NumberText(file.Tests.size()) + "\" failures=\"" + NumberText(counts.Failed) + "\" errors=\"" +
               NumberText(counts.Errors) + "\">\n";
        for (const TestedTest& test : file.Tests)
            xml += TestCase(file, test);
        xml += "  </testsuite>\n";
    }
    return xml + "</testsuites>\n";
}

std::string MarkdownReport(const std::vector<TestedFile>& files,
                           const std::vector<CoveredDocument>& covered) {
    const TestCounts counts = CountTests(files);
    std::string text =
        "# Tests\n\n" + NumberText(counts.Passed) + " passed, " + NumberText(counts.Failed) + " failed";
    text += counts.Errors == 0 ? "\n" : ", " + NumberText(counts.Errors) + " could not be understood\n";
    if (counts.Failed + counts.Errors > 0)
        text += "\n| where | test | what |\n| --- | --- | --- |\n";
    for (const TestedFile& file : files) {
        for (const TestedTest& test : file.Tests) {
            if (test.Is != run::Verdict::Passed)
                text += "| " + Markdown(file.Name) + ":" + NumberText(test.Line) + " | " +
                        Markdown(test.Name) + " | " + Markdown(test.Message) + " |\n";
        }
    }
    if (!covered.empty())
        text += "\n| machine | states | transitions | % |\n| --- | ---: | ---: | ---: |\n";
    for (const CoveredDocument& document : covered)
        text += "| " + Markdown(document.Name) + " | " + OutOf(document.Seen.States(), "|") + " " +
                OutOf(document.Seen.Transitions(), "|") + " " +
                NumberText(Percent(document.Seen.Transitions())) + " |\n";
    return text;
}

std::string CoverageText(const std::vector<CoveredDocument>& covered, bool missed) {
    std::string text;
    for (const CoveredDocument& document : covered) {
        if (missed)
            text += MissedText(document) + ShownName(document.Name) + ": " +
                    OutOf(document.Seen.EmptyCells(), "empty cells tried, ") +
                    OutOf(document.Seen.Pairs(), "neighbouring events together\n");
        text += ShownName(document.Name) + ": " + OutOf(document.Seen.States(), "states, ") +
                OutOf(document.Seen.Transitions(), "transitions\n");
    }
    return text;
}

} // namespace orvane::cli
