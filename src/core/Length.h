// SPDX-License-Identifier: GPL-3.0-or-later
// Lengths that know their unit. Documents and the engine count in twips, screens in logical pixels; neither
// becomes the other but by the two functions below.
#pragma once

namespace orvane {

template <typename Unit>
class Length {
  public:
    constexpr Length() = default;
    constexpr Length(int count) : count_(count) {} // a plain number may be of either unit
    constexpr int Count() const { return count_; }

    friend constexpr Length operator+(Length a, Length b) { return a.count_ + b.count_; }
    friend constexpr Length operator-(Length a, Length b) { return a.count_ - b.count_; }
    friend constexpr bool operator==(const Length&, const Length&) = default;
    friend constexpr bool operator<(Length a, Length b) { return a.count_ < b.count_; }
    friend constexpr bool operator>(Length a, Length b) { return a.count_ > b.count_; }
    friend constexpr bool operator<=(Length a, Length b) { return a.count_ <= b.count_; }
    friend constexpr bool operator>=(Length a, Length b) { return a.count_ >= b.count_; }

    // For messages of tests.
    template <typename Stream>
    friend Stream& operator<<(Stream& stream, Length length) {
        stream << length.count_;
        return stream;
    }

  private:
    int count_ = 0;
};

using Twips = Length<struct TwipUnit>;
using Pixels = Length<struct PixelUnit>;

inline constexpr int kTwipsPerPixel = 15;

// To the nearest pixel; twips from 0 on.
constexpr Pixels PixelsFromTwips(Twips twips) {
    return (twips.Count() + kTwipsPerPixel / 2) / kTwipsPerPixel;
}

constexpr Twips TwipsFromPixels(Pixels pixels) { return pixels.Count() * kTwipsPerPixel; }

} // namespace orvane
