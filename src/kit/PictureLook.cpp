// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/PictureLook.h"

namespace orvane {

PictureColours LightPicture() {
    return {QColor(0xFFFFFFu), QColor(0xEEF3FAu), QColor(0x24476Bu), QColor(0x000000u),
            QColor(0x666666u), QColor(0x333333u), QColor(0xCC0000u), QColor(0xF0B400u),
            QColor(0xFFFFFFu), QColor(0xDC0000u), QColor(0x0067C0u)};
}

PictureColours DarkPicture() {
    return {QColor(0x1E1E1Eu), QColor(0x24364Au), QColor(0x8DB4DCu), QColor(0xF2F2F2u),
            QColor(0xA6A6A6u), QColor(0xC8C8C8u), QColor(0xFF5C5Cu), QColor(0xF0B400u),
            QColor(0x101010u), QColor(0xFF5050u), QColor(0x4CB2FFu)};
}

} // namespace orvane
