// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/Letters.h"

#include <QFont>

#include <array>
#include <unordered_map>

namespace orvane {

// The fonts of printed pages. Their pixel is a twip of paper, so that one measure holds for every printer,
// and a text is as wide as its letters, because it is painted without kerning. Letters are measured once.
class PaperLetters : public print::Letters {
  public:
    PaperLetters();

    int Width(char32_t letter, print::Face face) const override;
    int LineHeight(print::Face face) const override { return Of(face).Height; }

    const QFont& Font(print::Face face) const { return Of(face).Font; }
    // From the top of a line to the foot of its letters.
    int Base(print::Face face) const { return Of(face).Base; }

  private:
    struct Measures {
        QFont Font;
        int Height = 0;
        int Base = 0;
        std::array<int, 256> Plain{};                     // by letter
        mutable std::unordered_map<char32_t, int> Others; // as they come
    };

    const Measures& Of(print::Face face) const { return faces_[std::size_t(face)]; }
    static Measures Measured(print::Face face);

    std::array<Measures, print::kFaces> faces_;
};

} // namespace orvane
