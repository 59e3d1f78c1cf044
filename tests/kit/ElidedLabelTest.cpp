// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/ElidedLabel.h"

#include <QAccessible>
#include <QImage>

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr QSize kRoom{200, 24}; // pixels
const QString kLong = QStringLiteral("Program written: a-machine-with-a-name-of-its-own-that-goes-on.zls");

QImage PictureOf(QLabel& label, const QString& text) {
    label.setText(text);
    label.resize(kRoom);
    return label.grab().toImage();
}

TEST(ElidedLabel, WhatThereIsNoRoomForEndsInThreeDots) {
    ElidedLabel label(nullptr);
    const QString cut = label.fontMetrics().elidedText(kLong, Qt::ElideRight, kRoom.width());
    ASSERT_TRUE(cut.endsWith(QChar(0x2026)));
    QLabel plain;
    EXPECT_EQ(PictureOf(label, kLong), PictureOf(plain, cut));
    EXPECT_EQ(label.text(), kLong);
}

TEST(ElidedLabel, ATextThatFitsLooksAsInAnyLabel) {
    ElidedLabel label(nullptr);
    QLabel plain;
    for (const Qt::Alignment alignment :
         {Qt::AlignVCenter | Qt::AlignLeft, Qt::AlignVCenter | Qt::AlignHCenter}) {
        label.setAlignment(alignment);
        plain.setAlignment(alignment);
        EXPECT_EQ(PictureOf(label, QStringLiteral("Saved & closed")),
                  PictureOf(plain, QStringLiteral("Saved & closed")));
    }
}

TEST(ElidedLabel, ATextOfItsOwnWidthIsWhole) {
    ElidedLabel label(nullptr);
    label.ShowText(kLong);
    EXPECT_EQ(label.fontMetrics().elidedText(kLong, Qt::ElideRight, label.sizeHint().width()), kLong);
}

TEST(ElidedLabel, LinesAreOneLine) {
    ElidedLabel label(nullptr);
    const QImage oneLine = PictureOf(label, QStringLiteral("first second"));
    const QSize wanted = label.sizeHint();
    EXPECT_EQ(PictureOf(label, QStringLiteral("first\nsecond")), oneLine);
    EXPECT_EQ(label.sizeHint(), wanted);
}

TEST(ElidedLabel, TooltipAndScreenReaderHaveTheWholeText) {
    ElidedLabel label(nullptr);
    label.resize(kRoom);
    label.ShowText(kLong);
    EXPECT_EQ(label.toolTip(), kLong);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name), kLong);
}

TEST(ElidedLabel, MarkupInAPathIsShownInTheTooltipAsItStands) {
    EXPECT_TRUE(PlainToolTip(QStringLiteral("/home/<b>me</b>/x.zls")).contains(QStringLiteral("&lt;b&gt;")));
    EXPECT_EQ(PlainToolTip(QStringLiteral("/home/me/x.zls")), QStringLiteral("/home/me/x.zls"));
}

} // namespace
} // namespace orvane
