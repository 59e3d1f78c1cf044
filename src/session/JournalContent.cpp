// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/JournalContent.h"

#include "session/JournalBytes.h"

#include <utility>

namespace orvane {

namespace {

void WriteDelta(const TextDelta& delta, JournalBytesWriter& bytes) {
    bytes.Count(delta.Prefix);
    bytes.Count(delta.Suffix);
    bytes.Raw(delta.Middle); // up to the end of the record
}

TextDelta ReadDelta(JournalBytesReader& bytes) {
    TextDelta delta;
    delta.Prefix = bytes.Count();
    delta.Suffix = bytes.Count();
    delta.Middle = bytes.Rest();
    return delta;
}

bool ReadFlag(JournalBytesReader& bytes) {
    const std::uint8_t flag = bytes.Byte();
    bytes.Require(flag <= 1);
    return flag == 1;
}

void WriteStamp(const JournalStamp& stamp, JournalBytesWriter& bytes) {
    bytes.Count(stamp.Size);
    bytes.Signed(stamp.Modified);
    for (const std::uint8_t byte : stamp.Sha256)
        bytes.Byte(byte);
}

JournalStamp ReadStamp(JournalBytesReader& bytes) {
    JournalStamp stamp;
    stamp.Size = bytes.Count();
    stamp.Modified = bytes.Signed();
    for (std::uint8_t& byte : stamp.Sha256)
        byte = bytes.Byte();
    return stamp;
}

void Write(const HeadRecord& record, JournalBytesWriter& bytes) {
    const JournalHead& head = record.Head;
    bytes.Text(head.Program);
    bytes.Text(head.Path);
    bytes.Byte(head.Stamp ? 1 : 0);
    if (head.Stamp)
        WriteStamp(*head.Stamp, bytes);
    bytes.Count(head.Replaces.size());
    for (const std::string& name : head.Replaces)
        bytes.Text(name);
}

void Read(HeadRecord& record, JournalBytesReader& bytes) {
    JournalHead& head = record.Head;
    head.Program = bytes.Text();
    head.Path = bytes.Text();
    if (ReadFlag(bytes))
        head.Stamp = ReadStamp(bytes);
    for (std::uint64_t left = bytes.Count(); left > 0 && !bytes.Failed(); --left)
        head.Replaces.emplace_back(bytes.Text());
}

void Write(const DocumentRecord& record, JournalBytesWriter& bytes) {
    bytes.Byte(record.InsteadOfImage ? 1 : 0);
    WriteDelta(record.Change, bytes);
}

void Read(DocumentRecord& record, JournalBytesReader& bytes) {
    record.InsteadOfImage = ReadFlag(bytes);
    record.Change = ReadDelta(bytes);
}

void Write(const ImageRecord& record, JournalBytesWriter& bytes) {
    bytes.Byte(record.CountsAsSaved ? 1 : 0);
    WriteDelta(record.Change, bytes);
}

void Read(ImageRecord& record, JournalBytesReader& bytes) {
    record.CountsAsSaved = ReadFlag(bytes);
    record.Change = ReadDelta(bytes);
}

void Write(const CommitRecord& record, JournalBytesWriter& bytes) {
    bytes.Text(record.Name);
    WriteDelta(record.Change, bytes);
}

void Read(CommitRecord& record, JournalBytesReader& bytes) {
    record.Name = bytes.Text();
    record.Change = ReadDelta(bytes);
}

void Write(const MoveRecord& record, JournalBytesWriter& bytes) { bytes.Signed(record.Steps); }

void Read(MoveRecord& record, JournalBytesReader& bytes) { record.Steps = bytes.Signed(); }

void Write(const ViewRecord& record, JournalBytesWriter& bytes) { WriteView(record.View, bytes); }

void Read(ViewRecord& record, JournalBytesReader& bytes) { record.View = ReadView(bytes); }

void WriteEditor(const JournalDraft& draft, JournalBytesWriter& bytes) {
    bytes.Enumerator(draft.Kind);
    bytes.Signed(draft.Place.Row.Number());
    bytes.Signed(draft.Place.State.Number());
}

void ReadEditor(JournalDraft& draft, JournalBytesReader& bytes) {
    draft.Kind = JournalDraftKind{bytes.Byte()};
    bytes.Require(draft.Kind >= JournalDraftKind::State && draft.Kind <= JournalDraftKind::Script);
    const int row = bytes.Signed(kHeadRow, kLastRow);
    const int state = bytes.Signed(kNoState, kStateCount);
    draft.Place = {row, state};
}

void Write(const DraftRecord& record, JournalBytesWriter& bytes) {
    WriteEditor(record.Draft, bytes);
    bytes.Count(record.Draft.Fields.size());
    for (const JournalField& field : record.Draft.Fields) {
        bytes.Text(field.Name);
        bytes.Text(field.Text);
    }
}

void Read(DraftRecord& record, JournalBytesReader& bytes) {
    ReadEditor(record.Draft, bytes);
    for (std::uint64_t left = bytes.Count(); left > 0 && !bytes.Failed(); --left) {
        JournalField field;
        field.Name = bytes.Text();
        field.Text = bytes.Text();
        record.Draft.Fields.push_back(std::move(field));
    }
}

void Write(const DraftGoneRecord& record, JournalBytesWriter& bytes) { WriteEditor(record.Editor, bytes); }

void Read(DraftGoneRecord& record, JournalBytesReader& bytes) { ReadEditor(record.Editor, bytes); }

void Write(const SavedRecord& record, JournalBytesWriter& bytes) {
    bytes.Text(record.Path);
    WriteStamp(record.Stamp, bytes);
}

void Read(SavedRecord& record, JournalBytesReader& bytes) {
    record.Path = bytes.Text();
    record.Stamp = ReadStamp(bytes);
}

void Write(const ClosedRecord& record, JournalBytesWriter& bytes) { bytes.Enumerator(record.Reason); }

void Read(ClosedRecord& record, JournalBytesReader& bytes) {
    record.Reason = JournalClose{bytes.Byte()};
    bytes.Require(record.Reason == JournalClose::NothingUnsaved || record.Reason == JournalClose::Discarded);
}

void Write(const StandRecord& record, JournalBytesWriter& bytes) { bytes.Count(record.Changes); }

void Read(StandRecord& record, JournalBytesReader& bytes) { record.Changes = bytes.Count(); }

// Walks the list of records up to the one of that type.
template <std::size_t Index = 0>
void ReadAs(std::uint8_t type, JournalBytesReader& bytes, RecordContent& content) {
    if constexpr (Index == kRecordTypes)
        bytes.Require(false);
    else if (type == Index + 1)
        Read(content.emplace<Index>(), bytes);
    else
        ReadAs<Index + 1>(type, bytes, content);
}

} // namespace

std::uint8_t TypeOf(const RecordContent& content) { return (content.index() + 1) & 0xFF; }

void WriteContent(const RecordContent& content, JournalBytesWriter& bytes) {
    std::visit([&bytes](const auto& record) { Write(record, bytes); }, content);
}

std::optional<RecordContent> ReadContent(std::uint8_t type, JournalBytesReader& bytes) {
    RecordContent content;
    ReadAs(type, bytes, content);
    if (bytes.Failed() || !bytes.AtEnd())
        return std::nullopt;
    return content;
}

} // namespace orvane
