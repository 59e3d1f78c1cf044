// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/JournalRecord.h"

#include "session/JournalBytes.h"
#include "text/Crc32c.h"

#include <bit>
#include <limits>
#include <utility>

namespace orvane {

namespace {

constexpr std::size_t kCheckSize = 4;
constexpr std::uint32_t kLongestBody = std::numeric_limits<std::uint32_t>::max();

struct RecordFrame {
    std::uint32_t Check = 0;
    std::uint8_t Type = 0;
    std::uint32_t Length = 0;
    std::uint32_t Sequence = 0;
    std::int64_t Time = 0;
};

std::optional<RecordFrame> ReadFrame(std::string_view bytes) {
    if (bytes.size() < kRecordHeadSize)
        return std::nullopt;
    JournalBytesReader reader(bytes.substr(0, kRecordHeadSize));
    RecordFrame frame;
    frame.Check = reader.Fixed<std::uint32_t>();
    frame.Type = reader.Byte();
    frame.Length = reader.Fixed<std::uint32_t>();
    frame.Sequence = reader.Fixed<std::uint32_t>();
    frame.Time = std::bit_cast<std::int64_t>(reader.Fixed<std::uint64_t>());
    if (frame.Length > bytes.size() - kRecordHeadSize)
        return std::nullopt;
    return frame;
}

std::uint32_t CheckOf(std::string_view salt, std::string_view record) {
    return Crc32c(record.substr(kCheckSize), Crc32c(salt));
}

bool Holds(const RecordFrame& frame, std::string_view bytes, std::string_view salt) {
    return CheckOf(salt, bytes.substr(0, kRecordHeadSize + frame.Length)) == frame.Check;
}

} // namespace

std::string EncodeJournalHead(std::string_view salt) { return std::string(kJournalMark).append(salt); }

bool AppendRecord(const JournalRecord& record, std::string_view salt, std::string& bytes) {
    const std::size_t start = bytes.size();
    bytes.append(kRecordHeadSize, '\0');
    JournalBytesWriter body(bytes);
    WriteContent(record.Content, body);
    const std::size_t length = bytes.size() - start - kRecordHeadSize;
    if (length > kLongestBody) {
        bytes.resize(start);
        return false;
    }
    std::string head;
    JournalBytesWriter fields(head);
    fields.Fixed(std::uint32_t{0}); // the check, which comes last
    fields.Byte(TypeOf(record.Content));
    fields.Fixed<std::uint32_t>(length & kLongestBody);
    fields.Fixed(record.Sequence);
    fields.Fixed(std::bit_cast<std::uint64_t>(std::int64_t{record.Time.time_since_epoch().count()}));
    bytes.replace(start, head.size(), head);
    std::string check;
    JournalBytesWriter(check).Fixed(CheckOf(salt, std::string_view(bytes).substr(start)));
    bytes.replace(start, check.size(), check);
    return true;
}

std::optional<DecodedRecord> DecodeRecord(std::string_view bytes, std::string_view salt) {
    const std::optional<RecordFrame> frame = ReadFrame(bytes);
    if (!frame || !Holds(*frame, bytes, salt))
        return std::nullopt;
    DecodedRecord decoded;
    decoded.Size = kRecordHeadSize + frame->Length;
    decoded.Record.Sequence = frame->Sequence;
    decoded.Record.Time = JournalTime(std::chrono::milliseconds(frame->Time));
    JournalBytesReader body(bytes.substr(kRecordHeadSize, frame->Length));
    std::optional<RecordContent> content = ReadContent(frame->Type, body);
    if (!content)
        return std::nullopt;
    decoded.Record.Content = std::move(*content);
    return decoded;
}

bool BeginsWithRecord(std::string_view bytes, std::string_view salt, std::uint32_t sequence) {
    const std::optional<RecordFrame> frame = ReadFrame(bytes);
    if (!frame || frame->Type == 0 || frame->Type > kRecordTypes)
        return false;
    // A file cannot hold more records than heads fit into it. An earlier number wraps around to a large one.
    const bool plausible = frame->Sequence - sequence <= bytes.size();
    return plausible && Holds(*frame, bytes, salt);
}

} // namespace orvane
