// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/JournalRecord.h"

#include "session/JournalBytes.h"
#include "support/EveryFieldDocument.h"
#include "support/JournalText.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvane::test {
namespace {

JournalStamp SomeStamp() {
    JournalStamp stamp{5'000'000'000, -7, {}};
    for (std::uint8_t i = 0; i < stamp.Sha256.size(); ++i)
        stamp.Sha256[i] = 200 + i;
    return stamp;
}

JournalDraft SomeDraft() {
    return {JournalDraftKind::Action, {54, 100}, {{"Code", ";one\r\n\xA4"}, {"", ""}}};
}

// Every kind of record, with no field as it is by itself.
std::vector<RecordContent> EveryRecord() {
    return {HeadRecord{{"Orvane 1.2", "/work/pump.zfsm", SomeStamp(), {"one.orj", "two.orj"}}},
            HeadRecord{},
            DocumentRecord{{300, 1, std::string_view("middle\0of it", 12)}, true},
            ImageRecord{{128, 127, "x"}, true},
            CommitRecord{"insert state", {16384, 0, ""}},
            MoveRecord{-99},
            MoveRecord{1},
            ViewRecord{ViewOf(EveryFieldDocument())},
            ViewRecord{},
            DraftRecord{SomeDraft()},
            DraftGoneRecord{{JournalDraftKind::Script, {0, 0}, {}}},
            SavedRecord{"/work/other.zfsm", SomeStamp()},
            ClosedRecord{JournalClose::Discarded},
            StandRecord{300}};
}

std::string Encoded(const JournalRecord& record, std::string_view salt = kTestSalt) {
    std::string bytes;
    EXPECT_TRUE(AppendRecord(record, salt, bytes));
    return bytes;
}

JournalRecord SomeRecord() {
    return {3, SecondsAfterStart(9), CommitRecord{"insert state", {10, 20, "middle"}}};
}

TEST(JournalRecord, EveryRecordReadsAsItWasWritten) {
    for (const RecordContent& content : EveryRecord()) {
        const JournalRecord record{0xFFFFFFFF, SecondsAfterStart(5), content};
        const std::string bytes = Encoded(record) + "what follows";
        const std::optional<DecodedRecord> decoded = DecodeRecord(bytes, kTestSalt);
        ASSERT_TRUE(decoded) << content.index();
        EXPECT_EQ(decoded->Record, record) << content.index();
        EXPECT_EQ(decoded->Size, bytes.size() - 12) << content.index();
    }
}

TEST(JournalRecord, EveryTypeIsAmongThem) {
    std::vector<bool> seen(kRecordTypes);
    for (const RecordContent& content : EveryRecord())
        seen[TypeOf(content) - 1u] = true;
    EXPECT_EQ(seen, std::vector<bool>(kRecordTypes, true));
}

// What is in files of older versions has to stay readable.
TEST(JournalRecord, TheBytesAreThoseOfTheFormat) {
    const std::string bytes =
        Encoded({2, JournalTime(std::chrono::milliseconds(0x0102030405)), MoveRecord{-1}});
    EXPECT_EQ(bytes.substr(4),
              std::string_view("\x05\x01\0\0\0\x02\0\0\0\x05\x04\x03\x02\x01\0\0\0\x01", 18));
    EXPECT_EQ(bytes.size(), kRecordHeadSize + 1);
    EXPECT_EQ(EncodeJournalHead("saltsalt"), "OrvJrn1\nsaltsalt");
}

TEST(JournalRecord, NoFlippedBitPasses) {
    const std::string bytes = Encoded(SomeRecord());
    for (std::size_t bit = 0; bit < bytes.size() * 8; ++bit) {
        std::string flipped = bytes;
        flipped[bit / 8] ^= char(1 << bit % 8);
        EXPECT_FALSE(DecodeRecord(flipped, kTestSalt)) << bit;
        EXPECT_FALSE(BeginsWithRecord(flipped, kTestSalt, 0)) << bit;
    }
}

TEST(JournalRecord, NoPartOfARecordPasses) {
    const std::string bytes = Encoded(SomeRecord());
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_FALSE(DecodeRecord(std::string_view(bytes).substr(0, size), kTestSalt)) << size;
}

TEST(JournalRecord, ARecordOfAnotherFileDoesNotPass) {
    EXPECT_TRUE(DecodeRecord(Encoded(SomeRecord(), "salt one"), "salt one"));
    EXPECT_FALSE(DecodeRecord(Encoded(SomeRecord(), "salt one"), "salt two"));
    EXPECT_FALSE(BeginsWithRecord(Encoded(SomeRecord(), "salt one"), "salt two", 0));
}

TEST(JournalRecord, ZerosAreNoRecord) {
    const std::string zeros(1000, '\0');
    for (const std::string_view salt : {kTestSalt, std::string_view(zeros).substr(0, kJournalSaltSize)}) {
        EXPECT_FALSE(DecodeRecord(zeros, salt));
        EXPECT_FALSE(BeginsWithRecord(zeros, salt, 0));
    }
}

TEST(JournalRecord, ABodyThatIsLongerThanItsRecordDoesNotPass) {
    for (const RecordContent& content :
         {RecordContent(MoveRecord{1}), RecordContent(DraftRecord{SomeDraft()}),
          RecordContent(SavedRecord{"p", SomeStamp()})}) {
        std::string body;
        JournalBytesWriter writer(body);
        WriteContent(content, writer);
        body += 'x';
        JournalBytesReader reader(body);
        EXPECT_FALSE(ReadContent(TypeOf(content), reader)) << content.index();
    }
}

TEST(JournalRecord, AFlagIsZeroOrOne) {
    for (const std::string_view body : {std::string_view("\0\0\0", 3), std::string_view("\1\0\0", 3)}) {
        JournalBytesReader reader(body);
        EXPECT_TRUE(ReadContent(TypeOf(ImageRecord{}), reader));
    }
    JournalBytesReader reader(std::string_view("\2\0\0", 3));
    EXPECT_FALSE(ReadContent(TypeOf(ImageRecord{}), reader));
}

TEST(JournalRecord, APlaceOutsideTheTableDoesNotPass) {
    for (const auto& [row, state] :
         {std::pair(55, 1), std::pair(1, 101), std::pair(-1, 0), std::pair(0, -1)}) {
        const JournalRecord record{0, {}, DraftGoneRecord{{JournalDraftKind::State, {row, state}, {}}}};
        EXPECT_FALSE(DecodeRecord(Encoded(record), kTestSalt)) << row << ' ' << state;
    }
}

TEST(JournalRecord, AWholeRecordIsFoundByItsNumberOrALaterOne) {
    const std::string bytes = Encoded(SomeRecord());
    EXPECT_TRUE(BeginsWithRecord(bytes, kTestSalt, 3));
    EXPECT_TRUE(BeginsWithRecord(bytes, kTestSalt, 0));
    EXPECT_FALSE(BeginsWithRecord(bytes, kTestSalt, 4));
}

TEST(JournalBytes, NumbersOfEverySizeReadAsTheyWereWritten) {
    using Limits = std::numeric_limits<std::int64_t>;
    for (const std::int64_t number :
         {std::int64_t{0}, std::int64_t{-1}, std::int64_t{63}, std::int64_t{64}, std::int64_t{-65},
          std::int64_t{1} << 40, Limits::max(), Limits::min()}) {
        std::string bytes;
        JournalBytesWriter(bytes).Signed(number);
        JournalBytesReader reader(bytes);
        EXPECT_EQ(reader.Signed(), number);
        EXPECT_TRUE(reader.AtEnd() && !reader.Failed());
    }
}

TEST(JournalBytes, WhatIsNotThereFailsForGood) {
    JournalBytesReader reader("\x05"
                              "abc");
    EXPECT_EQ(reader.Text(), "");
    EXPECT_TRUE(reader.Failed());
    EXPECT_EQ(reader.Raw(1), "");
    JournalBytesReader endless(std::string_view("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"));
    endless.Count();
    EXPECT_TRUE(endless.Failed());
}

} // namespace
} // namespace orvane::test
