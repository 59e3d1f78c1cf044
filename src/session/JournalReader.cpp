// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/JournalReader.h"

#include "core/DocumentReader.h"
#include "core/TightPacked.h"

#include <utility>

namespace orvane {

namespace {

// Where the sound part of a journal ends.
struct Extent {
    std::size_t GoodBytes = 0;
    std::uint32_t Records = 0;
    JournalEnd End = JournalEnd::Damaged;
};

// Looks for a whole record anywhere behind the end. What a crash leaves there is a part of one record, zeros,
// or bytes of another file, and the check tells all of them from a record of this one.
bool HoldsRecord(std::string_view rest, std::string_view salt, std::uint32_t sequence) {
    for (; rest.size() >= kRecordHeadSize; rest.remove_prefix(1)) {
        if (BeginsWithRecord(rest, salt, sequence))
            return true;
    }
    return false;
}

Extent ReadInto(JournalStory& story, std::string_view bytes) {
    if (bytes.size() < kJournalHeadSize)
        return {0, 0,
                kJournalMark.starts_with(bytes.substr(0, kJournalMark.size())) ? JournalEnd::Torn
                                                                               : JournalEnd::Damaged};
    if (!bytes.starts_with(kJournalMark))
        return {};
    const std::string_view salt = bytes.substr(kJournalMark.size(), kJournalSaltSize);
    std::string_view rest = bytes.substr(kJournalHeadSize);
    std::uint32_t records = 0;
    for (; !rest.empty(); ++records) {
        const std::optional<DecodedRecord> decoded = DecodeRecord(rest, salt);
        if (!decoded || decoded->Record.Sequence != records || !story.Take(decoded->Record))
            break;
        rest.remove_prefix(decoded->Size);
    }
    JournalEnd end = JournalEnd::Clean;
    if (!rest.empty())
        end = HoldsRecord(rest, salt, records) ? JournalEnd::Damaged : JournalEnd::Torn;
    return {bytes.size() - rest.size(), records, end};
}

// The image is laid over the document that was written beside it, so that what no image holds is there too.
void BringBackDocument(const JournalStory& story, RecoveredJournal& journal) {
    if (!story.DocumentText.empty())
        journal.Document = std::move(ReadDocument(story.DocumentText).Document);
    if (!story.InsteadOfImage && !journal.History.empty())
        journal.Messages = Unpack(journal.History[journal.Current].Image, journal.Document);
    if (story.View)
        ApplyView(*story.View, journal.Document);
}

} // namespace

RecoveredJournal Recover(std::string_view bytes) {
    JournalStory story;
    const Extent extent = ReadInto(story, bytes);
    RecoveredJournal journal;
    journal.End = extent.End;
    journal.GoodBytes = extent.GoodBytes;
    journal.Records = extent.Records;
    journal.History = story.History();
    journal.Current = story.Current();
    journal.SavedImage = story.SavedImage();
    journal.ImagesFallShort = story.InsteadOfImage;
    journal.Closed = story.Closed;
    journal.LastChange = story.LastChange;
    journal.Changes = story.Changes;
    BringBackDocument(story, journal);
    journal.Head = std::move(story.Head);
    journal.Drafts = std::move(story.Drafts);
    return journal;
}

} // namespace orvane
