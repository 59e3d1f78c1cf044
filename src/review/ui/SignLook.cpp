// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ui/SignLook.h"

namespace orvane {

QColor GroundOf(char sign) {
    switch (sign) {
    case '+':
        return QColor(0xC8EFC8);
    case '-':
        return QColor(0xF8CCCC);
    case '>':
        return QColor(0xCCD9F8);
    case '~':
        return QColor(0xFFF0B0);
    default:
        return {};
    }
}

QString WithSign(char sign, const QString& text) {
    return sign == ' ' ? text : QLatin1Char(sign) + (text.isEmpty() ? QString() : QLatin1Char(' ') + text);
}

} // namespace orvane
