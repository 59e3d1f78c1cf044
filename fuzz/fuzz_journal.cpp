// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a journal, and any records with sound checks, which random bytes never have: what is recovered
// hangs together, and the part that was read is a whole journal with the same content.
#include "Require.h"
#include "core/TightPacked.h"
#include "session/JournalBytes.h"
#include "session/JournalReader.h"

#include <cstdint>
#include <string>

using namespace orvane;

namespace {

constexpr std::string_view kSalt = "any salt";

// Input that is no journal: a type, a length in one byte (in two above 127) and a body for each record.
std::string JournalOf(std::string_view input) {
    std::string bytes = EncodeJournalHead(kSalt);
    std::uint32_t next = 0;
    for (JournalBytesReader reader(input); !reader.AtEnd() && !reader.Failed();) {
        const std::uint8_t type = reader.Byte();
        JournalBytesReader body(reader.Text());
        const std::optional<RecordContent> content = ReadContent(type, body);
        if (!content)
            continue;
        const std::size_t start = bytes.size();
        const JournalRecord record{next++, JournalTime(std::chrono::milliseconds(type)), *content};
        Require(AppendRecord(record, kSalt, bytes), "a record can be written");
        const auto decoded = DecodeRecord(std::string_view(bytes).substr(start), kSalt);
        Require(decoded && decoded->Record == record, "a record reads as it was written");
    }
    return bytes;
}

void RequireWhole(const RecoveredJournal& journal) {
    Require(journal.History.size() <= kMostImages, "no more images than undo can reach");
    if (journal.History.empty())
        return;
    Require(journal.Current < journal.History.size(), "the present image is one of them");
    for (const JournalStep& step : journal.History)
        Require(!step.Image.empty(), "no image is empty");
    FsmDocument again = journal.Document;
    if (!journal.ImagesFallShort && journal.Messages.empty())
        Require(Unpack(Pack(journal.Document), again).empty() && again == journal.Document,
                "a document of the images is one that undo can carry");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::string bytes = input.starts_with(kJournalMark) ? std::string(input) : JournalOf(input);
    const RecoveredJournal journal = Recover(bytes);
    Require(journal.GoodBytes <= bytes.size(), "what was read is a part of it");
    RequireWhole(journal);

    const RecoveredJournal again = Recover(bytes.substr(0, journal.GoodBytes));
    if (journal.GoodBytes > 0)
        Require(again.End == JournalEnd::Clean, "what was read is whole");
    Require(again.Records == journal.Records && again.GoodBytes == journal.GoodBytes, "all of it is read");
    Require(again.History == journal.History && again.Current == journal.Current, "the history is the same");
    Require(again.SavedImage == journal.SavedImage && again.Head == journal.Head, "the rest is the same");
    Require(again.Document == journal.Document && again.Drafts == journal.Drafts, "the document is the same");
    return 0;
}
