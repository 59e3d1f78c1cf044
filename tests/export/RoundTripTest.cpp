// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DocumentWriter.h"
#include "core/TimingMode.h"
#include "export/Exports.h"
#include "export/Imports.h"
#include "support/EveryFieldDocument.h"
#include "support/MachineJson.h"

#include <gtest/gtest.h>

namespace orvane::exports {
namespace {

std::string Told(const ImportResult& result) {
    std::string told;
    for (const ReaderMessage& message : result.Messages)
        told += std::to_string(message.Line) + ": " + message.Text + "\n";
    return told;
}

FsmDocument Imported(const ImportResult& result) {
    EXPECT_TRUE(result.Document) << Told(result);
    EXPECT_EQ(Told(result), "");
    return result.Document.value_or(FsmDocument());
}

// Every byte that a document can hold, in names and in code, and what other forms take for their own.
FsmDocument HostileToReaders() {
    FsmDocument document;
    document.General.FsmName = "=cmd|' /C calc'!A0";
    for (int byte = 1; byte < 256; ++byte) {
        if (char(byte) == '\xA4' || byte == '\r' || byte == '\n')
            continue;
        const int state = byte % 40 + 1;
        document.State(state).Name += char(byte);
        document.State(state).EntryCode += std::string("\r\n") + char(byte);
        document.Event(6 + byte % 49).Name += char(byte);
        document.State(state).Targets[6 + byte % 49] = byte % 40 + 1;
        document.State(state).Actions[6 + byte % 49] += char(byte);
    }
    document.State(60).Name = "]]></title><script>alert('\"&amp;,;--')</script>";
    document.State(61).Name = "+@-\",\"";
    document.State(61).Targets[kElseRow] = 60;
    document.Event(54).Name = "--><!-- \" ' \\";
    document.State(60).Targets[54] = 61;
    return document;
}

FsmDocument Full() {
    FsmDocument document;
    for (const StateNumber state : StateNumbers()) {
        document.State(state).Name = "State " + std::to_string(state.Number());
        for (const RowNumber row : CellRows()) {
            document.State(state).Targets[row] = (state.Number() * 31 + row.Number() * 7) % 100 + 1;
            document.State(state).Actions[row] = "one\r\ntwo";
        }
    }
    for (const RowNumber row : EventRows())
        document.Event(row) = {"Event " + std::to_string(row.Number()), ";test", "", 0};
    return document;
}

std::vector<test::NamedDocument> Documents() {
    std::vector<test::NamedDocument> documents = test::ExampleDocuments();
    documents.push_back({"empty", FsmDocument()});
    documents.push_back({"hostile", HostileToReaders()});
    documents.push_back({"full", Full()});
    FsmDocument one;
    one.State(1).Name = "Only";
    documents.push_back({"one state", one});
    return documents;
}

TEST(ExportRoundTrip, JsonGivesTheSameDocument) {
    for (const test::NamedDocument& each : Documents()) {
        const FsmDocument again = Imported(ReadJson(JsonOf(each.Document)));
        EXPECT_TRUE(again == each.Document) << each.Name;
        EXPECT_EQ(JsonOf(again), JsonOf(each.Document)) << each.Name;
    }
}

TEST(ExportRoundTrip, JsonHasEveryField) {
    const FsmDocument document = test::EveryFieldDocument();
    EXPECT_TRUE(Imported(ReadJson(JsonOf(document))) == document);
}

// Names, targets and actions; a table has nothing else.
FsmDocument NamesAndWays(const FsmDocument& document, bool withActions) {
    FsmDocument kept;
    for (const StateNumber state : StateNumbers()) {
        kept.State(state).Name = document.State(state).Name;
        kept.State(state).Targets = document.State(state).Targets;
        if (withActions)
            kept.State(state).Actions = document.State(state).Actions;
    }
    for (const RowNumber row : EventRows())
        kept.Event(row).Name = document.Event(row).Name;
    return kept;
}

TEST(ExportRoundTrip, LongTablesKeepNamesTargetsAndActions) {
    for (const test::NamedDocument& each : Documents()) {
        const FsmDocument again = Imported(ReadCsv(CsvLongOf(each.Document)));
        EXPECT_EQ(WriteDocument(again), WriteDocument(NamesAndWays(each.Document, true))) << each.Name;
    }
}

TEST(ExportRoundTrip, GridsKeepWhatIsSeen) {
    for (const test::NamedDocument& each : test::ExampleDocuments()) {
        for (const Formulas formulas : {Formulas::Safe, Formulas::AsTheyAre}) {
            const FsmDocument again = Imported(ReadCsv(CsvGridOf(each.Document, formulas)));
            EXPECT_EQ(WriteDocument(NamesAndWays(again, false)),
                      WriteDocument(NamesAndWays(each.Document, false)))
                << each.Name;
            for (const StateNumber state : StateNumbers()) {
                EXPECT_EQ(again.State(state).EntryCode, each.Document.State(state).EntryCode) << each.Name;
                EXPECT_EQ(again.State(state).TimeConst,
                          HasConstantLimit(each.Document.State(state).TimingMode)
                              ? each.Document.State(state).TimeConst
                              : "")
                    << each.Name;
            }
            EXPECT_EQ(again.General.FsmName, each.Document.General.FsmName);
        }
    }
}

TEST(ExportRoundTrip, ChartsKeepTargetsAndCode) {
    for (const test::NamedDocument& each : Documents()) {
        const ImportResult result = ReadScxml(ScxmlOf(each.Document));
        ASSERT_TRUE(result.Document) << each.Name << ": " << Told(result);
        for (const StateNumber state : StateNumbers()) {
            const StateRecord& then = each.Document.State(state);
            const StateRecord& now = result.Document->State(state);
            EXPECT_EQ(now.EntryCode, then.EntryCode) << each.Name;
            EXPECT_EQ(now.ExitCode, then.ExitCode) << each.Name;
            for (const RowNumber row : CellRows()) {
                EXPECT_EQ(now.Targets[row], then.Targets[row]) << each.Name << " " << state << " " << row;
                EXPECT_EQ(now.Actions[row], then.Targets[row] == kNoState ? "" : then.Actions[row])
                    << each.Name;
            }
            if (then.TimingMode == kStartConstant && then.Targets[kTimeoutRow] != kNoState) {
                EXPECT_EQ(now.TimeConst, then.TimeConst) << each.Name;
            }
        }
    }
}

} // namespace
} // namespace orvane::exports
