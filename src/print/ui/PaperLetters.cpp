// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/PaperLetters.h"

#include <QFontDatabase>
#include <QFontMetricsF>

#include <cmath>

namespace orvane {

namespace {

constexpr int kPoint = 20; // twips

int Points(print::Face face) {
    switch (face) {
    case print::Face::Title:
        return 24;
    case print::Face::Heading:
        return 12;
    case print::Face::Small:
    case print::Face::Code:
        return 8;
    default:
        return 9;
    }
}

QFont FontOf(print::Face face) {
    QFont font = QFontDatabase::systemFont(face == print::Face::Code ? QFontDatabase::FixedFont
                                                                     : QFontDatabase::GeneralFont);
    font.setPixelSize(Points(face) * kPoint);
    font.setBold(face == print::Face::Title || face == print::Face::Heading || face == print::Face::Bold);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

int Advance(const QFontMetricsF& metrics, char32_t letter) {
    return int(std::ceil(metrics.horizontalAdvance(QString::fromUcs4(&letter, 1))));
}

} // namespace

PaperLetters::PaperLetters() {
    for (std::size_t face = 0; face < faces_.size(); ++face)
        faces_[face] = Measured(static_cast<print::Face>(face));
}

PaperLetters::Measures PaperLetters::Measured(print::Face face) {
    Measures measures;
    measures.Font = FontOf(face);
    const QFontMetricsF metrics(measures.Font);
    measures.Height = int(std::ceil(metrics.height()));
    measures.Base = int(std::ceil(metrics.ascent()));
    for (char32_t letter = 0x20; letter < measures.Plain.size(); ++letter)
        measures.Plain[letter] = Advance(metrics, letter);
    return measures;
}

int PaperLetters::Width(char32_t letter, print::Face face) const {
    const Measures& measures = Of(face);
    if (letter < measures.Plain.size())
        return measures.Plain[letter];
    const auto known = measures.Others.find(letter);
    if (known != measures.Others.end())
        return known->second;
    return measures.Others[letter] = Advance(QFontMetricsF(measures.Font), letter);
}

} // namespace orvane
