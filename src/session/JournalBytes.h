// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers and texts as they stand in a journal's records.
//
//   fixed numbers    the lowest byte first
//   counts           seven bits a byte, the lowest first, the eighth bit set on all but the last
//   signed numbers   as the count 2n from 0 on, -2n-1 below 0
//   texts            their length as a count, then their bytes
#pragma once

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvane {

class JournalBytesWriter {
  public:
    explicit JournalBytesWriter(std::string& bytes) : bytes_(bytes) {}

    void Byte(std::uint8_t byte) { bytes_ += std::bit_cast<char>(byte); }
    template <std::unsigned_integral Number>
    void Fixed(Number number) {
        for (std::size_t i = 0; i < sizeof(Number); ++i)
            Byte(number >> (8 * i) & 0xFF);
    }
    template <typename Enum>
    void Enumerator(Enum value) {
        Byte(static_cast<std::uint8_t>(value));
    }
    void Count(std::uint64_t count);
    void Signed(std::int64_t number);
    void Text(std::string_view text);
    void Raw(std::string_view text) { bytes_ += text; }

  private:
    std::string& bytes_;
};

// Takes values off the front. What is not there reads as 0 or empty and makes Failed true for good, so that
// one look at the end is enough.
class JournalBytesReader {
  public:
    explicit JournalBytesReader(std::string_view bytes) : bytes_(bytes) {}

    std::uint8_t Byte();
    template <std::unsigned_integral Number>
    Number Fixed() {
        Number number = 0;
        for (std::size_t i = 0; i < sizeof(Number); ++i)
            number |= Number{Byte()} << (8 * i);
        return number;
    }
    std::uint64_t Count();
    std::int64_t Signed();
    int Signed(int least, int most); // both included
    std::string_view Text() { return Raw(Count()); }
    std::string_view Raw(std::uint64_t size);
    std::string_view Rest() { return Raw(bytes_.size()); }

    // A value that does not mean anything fails like one that is not there.
    void Require(bool sound) { failed_ = failed_ || !sound; }
    bool Failed() const { return failed_; }
    bool AtEnd() const { return bytes_.empty(); }

  private:
    std::string_view bytes_;
    bool failed_ = false;
};

} // namespace orvane
