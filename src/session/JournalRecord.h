// SPDX-License-Identifier: GPL-3.0-or-later
// The journal's file, byte by byte (docs/format.md says the same to other people's tools):
//
//   "OrvJrn1\n"  salt, 8 bytes  records
//
// A record is a head of 21 bytes and a body:
//
//    0  4  check     CRC-32C of the salt, of the head from byte 4 on, and of the body
//    4  1  type
//    5  4  length    of the body, in bytes
//    9  4  sequence  0, 1, 2, ... through the file
//   13  8  time      milliseconds since 1970, UTC
//   21     body
//
// The check begins with the salt, for two reasons. Bytes of an older journal that the disk hands back behind
// a torn end fail it. And it is never that of no bytes, which is 0: where the system kept a file's length but
// not its bytes there are zeros, and zeros must not read as sound empty records; type 0 is none either.
//
// The salt makes records of two files differ, not those of one: after a failed write nothing is ever
// appended to that file again.
#pragma once

#include "session/JournalContent.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvane {

using JournalTime = std::chrono::sys_time<std::chrono::milliseconds>;

inline constexpr std::string_view kJournalMark = "OrvJrn1\n";
inline constexpr std::size_t kJournalSaltSize = 8;
inline constexpr std::size_t kJournalHeadSize = kJournalMark.size() + kJournalSaltSize;
inline constexpr std::size_t kRecordHeadSize = 21;

struct JournalRecord {
    std::uint32_t Sequence = 0;
    JournalTime Time;
    RecordContent Content;

    bool operator==(const JournalRecord&) const = default;
};

// What stands before the first record. The salt has kJournalSaltSize bytes.
std::string EncodeJournalHead(std::string_view salt);

// Appends the record to the bytes. Fails, and appends nothing, where the body is longer than 4 GiB.
[[nodiscard]] bool AppendRecord(const JournalRecord& record, std::string_view salt, std::string& bytes);

// The record at the front of the bytes and its size there; none when it is not whole and sound.
struct DecodedRecord {
    JournalRecord Record;
    std::size_t Size = 0;
};
std::optional<DecodedRecord> DecodeRecord(std::string_view bytes, std::string_view salt);

// Whether the bytes begin with a whole record of this sequence number or a later one.
bool BeginsWithRecord(std::string_view bytes, std::string_view salt, std::uint32_t sequence);

} // namespace orvane
