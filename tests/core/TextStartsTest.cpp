// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/TextStarts.h"

#include "core/DocumentReader.h"
#include "core/DocumentTags.h"
#include "core/DocumentWriter.h"
#include "support/EveryFieldDocument.h"
#include "text/AnsiText.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace orvane {
namespace {

// The line of a file, from 1.
std::string LineOf(std::string_view file, std::size_t number) {
    for (; number > 1; --number)
        file.remove_prefix(file.find('\n') + 1);
    return std::string(file.substr(0, file.find_first_of("\r\n")));
}

TEST(TextStarts, EveryTextBeginsInTheLineThatIsTold) {
    const std::string file = WriteDocument(test::EveryFieldDocument());
    TextStarts starts;
    const ReadResult read = ReadDocument(file, &starts);
    int texts = 0;
    ForEachText(read.Document, [&](const TextPlace& place, const std::string& text) {
        const std::string line = LineOf(file, starts.LineOf(place));
        EXPECT_NE(line.find("<" + std::string(KindOf(place).Tag) + ">"), std::string::npos) << line;
        EXPECT_NE(line.find(text.substr(0, text.find('\r'))), std::string::npos) << line;
        ++texts;
    });
    EXPECT_GT(texts, 20);
}

TEST(TextStarts, BlocksTransitionsAndTimingModesHaveLinesToo) {
    const std::string file = WriteDocument(test::EveryFieldDocument());
    TextStarts starts;
    const ReadResult read = ReadDocument(file, &starts);
    const auto expect = [&](Cell record, std::string_view tag, const std::string& number) {
        const std::string line = LineOf(file, starts.LineOf(record, tag));
        EXPECT_NE(line.find("<" + std::string(tag) + ">" + number), std::string::npos) << line;
    };
    for (const StateNumber state : StateNumbers()) {
        const StateRecord& record = read.Document.State(state);
        if (record.Name.empty())
            continue;
        expect({kNoRow, state}, tag::kState, std::to_string(state.Number()) + ":");
        if (record.TimingMode != 0)
            expect({kNoRow, state}, tag::kTimingMode, std::to_string(record.TimingMode));
        for (const RowNumber row : CellRows()) {
            if (record.Targets[row] != kNoState)
                expect({row, state}, tag::kTarget, std::to_string(row.Number()) + ":");
        }
    }
    for (const RowNumber row : EventRows()) {
        if (!read.Document.Event(row).Name.empty())
            expect({row, kNoState}, tag::kEvent, std::to_string(row.Number()) + ":");
    }
}

TEST(TextStarts, OfAFieldThatStandsTwiceTheLastOneCounts) {
    TextStarts starts;
    ReadDocument("\xA4<CODESEG>a\xA4/\n\n\xA4<CODESEG>b\xA4/\n", &starts);
    EXPECT_EQ(starts.LineOf(PlaceOfText(&GeneralCode::CodeSeg)), 3u);
    EXPECT_EQ(starts.LineOf(PlaceOfText(&GeneralCode::InitSeg)), 0u);
}

} // namespace
} // namespace orvane
