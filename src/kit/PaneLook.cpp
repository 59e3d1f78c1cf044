// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/PaneLook.h"

#include <QFontDatabase>

namespace orvane {

namespace {

constexpr int kPointSize = 10;
constexpr int kHalfLight = 128; // of 255

QFont FirstInstalled(const QStringList& families) {
    for (const QString& family : families)
        if (QFontDatabase::hasFamily(family))
            return QFont(family, kPointSize);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setStyleHint(QFont::Monospace);
    font.setPointSize(kPointSize);
    return font;
}

} // namespace

QFont PaneFont() { return FirstInstalled({QStringLiteral("Courier New")}); }

QFont FieldFont() { return FirstInstalled({QStringLiteral("Fixedsys"), QStringLiteral("Courier New")}); }

bool IsDark(const QPalette& palette) { return palette.color(QPalette::Base).lightness() < kHalfLight; }

} // namespace orvane
