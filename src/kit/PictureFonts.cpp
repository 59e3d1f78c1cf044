// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/PictureFonts.h"

#include "kit/AnsiString.h"
#include "text/ByteOf.h"

#include <QFontInfo>
#include <QFontMetricsF>

#include <cmath>
#include <cstddef>

namespace orvane {

namespace {

constexpr int kParts = 64; // of a pixel
constexpr double kTitleSize = 13.0 / 12;
constexpr double kLineSize = 11.0 / 12;

// Not hinted, so that the letters keep their widths when the picture is shown larger or smaller.
QFont Sized(QFont font, double factor) {
    font.setPixelSize(int(std::lround(QFontInfo(font).pixelSize() * factor)));
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

QFont Bold(QFont font) {
    font.setBold(true);
    return font;
}

PictureFonts::Face::Face(const QFont& font) : Font(font) {
    const QFontMetricsF metrics(font);
    for (std::size_t byte = 0; byte < Widths.size(); ++byte)
        Widths[byte] =
            int(std::ceil(metrics.horizontalAdvance(FromAnsi(std::string(1, char(byte)))) * kParts));
    Height = int(std::ceil(metrics.height())) + 1;
    Base = int(std::ceil(metrics.ascent()));
}

PictureFonts::PictureFonts(const QFont& base)
    : title_(Bold(Sized(base, kTitleSize))), line_(Sized(base, kLineSize)) {}

int PictureFonts::Width(std::string_view ansi, diagram::TextRole role) const {
    const Face& face = Of(role);
    int width = 0;
    for (const char character : ansi)
        width += face.Widths[ByteOf(character)];
    return (width + kParts - 1) / kParts;
}

} // namespace orvane
