// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ui/SignLook.h"

#include "kit/PaneLook.h"

#include <QGuiApplication>

namespace orvane {

namespace {

bool IsDesktopDark() { return IsDark(QGuiApplication::palette()); }

} // namespace

QColor InkOnGround() { return IsDesktopDark() ? QColor(0xEBEBEB) : QColor(Qt::black); }

QColor GroundOf(char sign) {
    const bool isDark = IsDesktopDark();
    switch (sign) {
    case '+':
        return isDark ? QColor(0x1F4D26) : QColor(0xC8EFC8);
    case '-':
        return isDark ? QColor(0x642A2A) : QColor(0xF8CCCC);
    case '>':
        return isDark ? QColor(0x2A3F70) : QColor(0xCCD9F8);
    case '~':
        return isDark ? QColor(0x574A10) : QColor(0xFFF0B0);
    default:
        return {};
    }
}

QString WithSign(char sign, const QString& text) {
    return sign == ' ' ? text : QLatin1Char(sign) + (text.isEmpty() ? QString() : QLatin1Char(' ') + text);
}

} // namespace orvane
