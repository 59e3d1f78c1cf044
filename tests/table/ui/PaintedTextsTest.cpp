// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/PaintedTexts.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <functional>

namespace orvane {
namespace {

constexpr QRect kCell{7, 5, 90, 19};

QFont FontOfSize(int pixels) {
    QFont font;
    font.setPixelSize(pixels);
    return font;
}

QImage Painted(const QFont& font, const std::function<void(QPainter&)>& draw) {
    QImage image(120, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(font);
    draw(painter);
    return image;
}

// As the painter itself draws it, laying it out each time.
QImage Plain(const QString& text, const QFont& font) {
    return Painted(font, [&](QPainter& painter) {
        painter.drawText(kCell, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    });
}

QImage Drawn(PaintedTexts& texts, const QString& text, const QFont& font) {
    return Painted(font, [&](QPainter& painter) { texts.Draw(painter, kCell, text); });
}

class PaintedTextsTest : public testing::TestWithParam<const char*> {};

TEST_P(PaintedTextsTest, LookAsThePainterDrawsThem) {
    const QString text = QString::fromUtf8(GetParam());
    PaintedTexts texts;
    for (const int pixels : {12, 13, 15, 18, 30, 12}) {
        EXPECT_EQ(Drawn(texts, text, FontOfSize(pixels)), Plain(text, FontOfSize(pixels))) << pixels;
        EXPECT_EQ(Drawn(texts, text, FontOfSize(pixels)), Plain(text, FontOfSize(pixels))) << "again";
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, PaintedTextsTest,
                         testing::Values("17:Filling*", " Load step  Store",
                                         "\xC3\x84rger & <b>\xE2\x82\xAC</b>", "a\ttab",
                                         "much longer than its cell is wide, so it is cut off"));

TEST(PaintedTextsCount, ManyTextsAreDrawnAsWellAsFew) {
    PaintedTexts texts;
    for (int number = 0; number < 9000; ++number)
        Drawn(texts, QString::number(number), FontOfSize(12));
    EXPECT_EQ(Drawn(texts, QStringLiteral("7"), FontOfSize(12)), Plain(QStringLiteral("7"), FontOfSize(12)));
}

} // namespace
} // namespace orvane
