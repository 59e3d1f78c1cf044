// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/JournalBytes.h"

namespace orvane {

namespace {

constexpr unsigned kBitsOfCount = 7;
constexpr std::uint64_t kMore = 0x80;

} // namespace

void JournalBytesWriter::Count(std::uint64_t count) {
    for (; count >= kMore; count >>= kBitsOfCount)
        Byte((count & (kMore - 1)) | kMore);
    Byte(count & 0xFF);
}

void JournalBytesWriter::Signed(std::int64_t number) {
    const std::uint64_t sign = number < 0 ? ~std::uint64_t{0} : 0;
    Count((std::bit_cast<std::uint64_t>(number) << 1) ^ sign);
}

void JournalBytesWriter::Text(std::string_view text) {
    Count(text.size());
    Raw(text);
}

std::uint8_t JournalBytesReader::Byte() {
    const std::string_view one = Raw(1);
    return one.empty() ? 0 : std::bit_cast<std::uint8_t>(one.front());
}

std::uint64_t JournalBytesReader::Count() {
    constexpr unsigned mostBits = 64;
    std::uint64_t count = 0;
    for (unsigned shift = 0; shift < mostBits; shift += kBitsOfCount) {
        const std::uint64_t byte = Byte();
        count |= (byte & (kMore - 1)) << shift;
        if (byte < kMore)
            return count;
    }
    Require(false);
    return 0;
}

std::int64_t JournalBytesReader::Signed() {
    const std::uint64_t count = Count();
    const std::uint64_t sign = (count & 1) != 0 ? ~std::uint64_t{0} : 0;
    return std::bit_cast<std::int64_t>((count >> 1) ^ sign);
}

int JournalBytesReader::Signed(int least, int most) {
    const std::int64_t number = Signed();
    Require(number >= least && number <= most);
    return failed_ ? least : static_cast<int>(number);
}

std::string_view JournalBytesReader::Raw(std::uint64_t size) {
    Require(size <= bytes_.size());
    if (failed_)
        return {};
    const std::string_view taken = bytes_.substr(0, size);
    bytes_.remove_prefix(size);
    return taken;
}

} // namespace orvane
