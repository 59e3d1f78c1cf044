// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/ElidedLabel.h"

#include <QAccessible>
#include <QImage>

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr QSize kRoom{200, 24}; // pixels
const QString kMessage = QStringLiteral("Program written: a-machine-with-a-name-of-its-own-that-goes-on.zls");

QImage PictureOf(QLabel& label, const QString& text) {
    label.setText(text);
    label.resize(kRoom);
    return label.grab().toImage();
}

TEST(ElidedLabel, WhatThereIsNoRoomForEndsInThreeDots) {
    ElidedLabel label(nullptr);
    const QString cut = label.fontMetrics().elidedText(kMessage, Qt::ElideRight, kRoom.width());
    ASSERT_TRUE(cut.endsWith(QChar(0x2026)));
    QLabel plain;
    EXPECT_EQ(PictureOf(label, kMessage), PictureOf(plain, cut));
    EXPECT_EQ(label.text(), kMessage);
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
    label.ShowText(kMessage);
    EXPECT_EQ(label.fontMetrics().elidedText(kMessage, Qt::ElideRight, label.sizeHint().width()), kMessage);
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
    label.ShowText(kMessage);
    EXPECT_EQ(label.toolTip(), kMessage);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name), kMessage);
}

TEST(ElidedLabel, MarkupInAPathIsShownInTheTooltipAsItStands) {
    EXPECT_TRUE(PlainToolTip(QStringLiteral("/home/<b>me</b>/x.zls")).contains(QStringLiteral("&lt;b&gt;")));
    EXPECT_EQ(PlainToolTip(QStringLiteral("/home/me/x.zls")), QStringLiteral("/home/me/x.zls"));
}

} // namespace
} // namespace orvane
