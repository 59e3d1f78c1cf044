// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/TextSizes.h"

#include <QFont>

#include <array>

namespace orvane {

// The same font in bold.
QFont Bold(QFont font);

// What the texts of a machine's picture are set in. A value that a thread may take along: the letters are
// measured once, and a text is as wide as its letters, because it is painted without kerning.
class PictureFonts : public diagram::TextSizes {
  public:
    // Titles are bold and a little larger than this font, lines a little smaller.
    explicit PictureFonts(const QFont& base);

    int Width(std::string_view ansi, diagram::TextRole role) const override;
    int LineHeight(diagram::TextRole role) const override { return Of(role).Height; }

    const QFont& Font(diagram::TextRole role) const { return Of(role).Font; }
    // From the top of a line to the foot of its letters.
    int Base(diagram::TextRole role) const { return Of(role).Base; }

  private:
    struct Face {
        explicit Face(const QFont& font);

        QFont Font;
        std::array<int, 256> Widths{}; // by byte of document text, in parts of a pixel
        int Height = 0;
        int Base = 0;
    };

    const Face& Of(diagram::TextRole role) const { return role == diagram::TextRole::Title ? title_ : line_; }

    Face title_;
    Face line_;
};

} // namespace orvane
