// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/CellPictures.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <functional>

namespace orvane {
namespace {

constexpr QRect kCell{8, 4, 92, 20};
constexpr QRgb kBackground = qRgb(204, 255, 204);

QFont FontOfSize(int pixels) {
    QFont font;
    font.setPixelSize(pixels);
    return font;
}

QImage Painted(const QFont& font, qreal scale, const std::function<void(QPainter&)>& draw) {
    QImage image((QSizeF(120, 40) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(font);
    draw(painter);
    return image;
}

// As the painter itself draws it, laying it out each time.
QImage Plain(const QString& text, const QFont& font, qreal scale = 1) {
    return Painted(font, scale, [&](QPainter& painter) {
        painter.fillRect(kCell, QColor(kBackground));
        painter.drawText(kCell.adjusted(3, 0, -1, -1), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         text);
    });
}

QImage Drawn(CellPictures& pictures, const QString& text, const QFont& font, qreal scale = 1) {
    return Painted(font, scale, [&](QPainter& painter) { pictures.Draw(painter, kCell, text, kBackground); });
}

class CellPicturesTest : public testing::TestWithParam<const char*> {};

TEST_P(CellPicturesTest, LookAsThePainterDrawsThem) {
    const QString text = QString::fromUtf8(GetParam());
    CellPictures pictures;
    for (const int pixels : {12, 13, 15, 18, 30, 12}) {
        EXPECT_EQ(Drawn(pictures, text, FontOfSize(pixels)), Plain(text, FontOfSize(pixels))) << pixels;
        EXPECT_EQ(Drawn(pictures, text, FontOfSize(pixels)), Plain(text, FontOfSize(pixels))) << "again";
    }
}

// The cell begins and ends with whole pixels at each of these.
TEST_P(CellPicturesTest, AreAsSharpOnAScaledScreen) {
    const QString text = QString::fromUtf8(GetParam());
    CellPictures pictures;
    for (const qreal scale : {1.0, 1.25, 1.5, 2.0, 1.0})
        EXPECT_EQ(Drawn(pictures, text, FontOfSize(13), scale), Plain(text, FontOfSize(13), scale)) << scale;
}

INSTANTIATE_TEST_SUITE_P(Texts, CellPicturesTest,
                         testing::Values("17:Filling*", " Load step  Store",
                                         "\xC3\x84rger & <b>\xE2\x82\xAC</b>", "a\ttab",
                                         "much longer than its cell is wide, so it is cut off"));

// Whether the columns of the picture that the cell covers are those of the one that begins with a whole
// pixel.
TEST(CellPicturesPlace, ACellBetweenPixelsIsDrawnOnWholeOnes) {
    CellPictures pictures;
    const QString text = QStringLiteral("17:Filling*");
    const auto drawnAt = [&](int left) {
        return Painted(FontOfSize(13), 1.5, [&](QPainter& painter) {
            pictures.Draw(painter, kCell.translated(left, 0), text, kBackground);
        });
    };
    const QImage whole = drawnAt(0);
    const QImage between = drawnAt(1); // 1.5 pixels further on the screen, which becomes 2
    EXPECT_EQ(between.copy(14, 6, 138, 30), whole.copy(12, 6, 138, 30));
}

TEST(CellPicturesCount, ColoursAndSizesAreNotConfused) {
    CellPictures pictures;
    const QString text = QStringLiteral("7");
    const QFont font = FontOfSize(12);
    const auto drawn = [&](const QRect& area, QRgb background, QRgb pen) {
        return Painted(font, 1, [&](QPainter& painter) {
            painter.setPen(QColor(pen));
            pictures.Draw(painter, area, text, background);
        });
    };
    const QRect larger = kCell.adjusted(0, 0, 5, 5);
    const QImage first = drawn(kCell, kBackground, qRgb(0, 0, 0));
    EXPECT_NE(drawn(kCell, qRgb(255, 255, 0), qRgb(0, 0, 0)), first);
    EXPECT_NE(drawn(kCell, kBackground, qRgb(255, 0, 0)), first);
    EXPECT_NE(drawn(larger, kBackground, qRgb(0, 0, 0)), first);
    EXPECT_EQ(drawn(kCell, kBackground, qRgb(0, 0, 0)), first);
}

// A picture of this one would take 160 GB.
TEST(CellPicturesCount, ACellLargerThanTheScreenIsDrawnWithoutAPicture) {
    CellPictures pictures;
    const QRect cell(8, 14 - 100000, 200000, 200000); // its middle is in sight
    const QString text = QStringLiteral("7:Run");
    const auto drawn = Painted(FontOfSize(12), 1,
                               [&](QPainter& painter) { pictures.Draw(painter, cell, text, kBackground); });
    EXPECT_EQ(drawn, Painted(FontOfSize(12), 1, [&](QPainter& painter) {
                  painter.fillRect(cell, QColor(kBackground));
                  painter.drawText(cell.adjusted(3, 0, -1, -1), Qt::AlignLeft | Qt::AlignVCenter, text);
              }));
    EXPECT_NE(drawn, Painted(FontOfSize(12), 1,
                             [&](QPainter& painter) { painter.fillRect(cell, QColor(kBackground)); }));
}

TEST(CellPicturesCount, ManyTextsAreDrawnAsWellAsFew) {
    CellPictures pictures;
    for (int number = 0; number < 9000; ++number)
        Drawn(pictures, QString::number(number), FontOfSize(12));
    EXPECT_EQ(Drawn(pictures, QStringLiteral("7"), FontOfSize(12)),
              Plain(QStringLiteral("7"), FontOfSize(12)));
}

} // namespace
} // namespace orvane
