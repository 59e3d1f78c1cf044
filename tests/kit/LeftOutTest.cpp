// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/LeftOut.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(LeftOut, FortyCharactersAreNamedAndOfMoreTheFirstForty) {
    const QString forty(40, QChar(0x03A9));
    const QString told = LeftOutMessage(forty);
    EXPECT_TRUE(told.endsWith(QStringLiteral(": ") + forty)) << told.toStdString();
    EXPECT_EQ(LeftOutMessage(forty + QChar(0x03A8)), told + QChar(0x2026));
}

TEST(LeftOut, WhatADocumentHoldsIsNotNamed) {
    EXPECT_EQ(CharactersOutsideDocuments(QStringLiteral("a\u20AC\u03A9b\u00A4\u0416")),
              QStringLiteral("\u03A9\u00A4\u0416"));
}

} // namespace
} // namespace orvane
