// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/Logo.h"

#include <QtGlobal>

// The pictures are linked into a library, which registers them only when asked. Outside the namespace, as the
// generated function is.
static void RegisterPictures() { Q_INIT_RESOURCE(orvane); }

namespace orvane {

namespace {

void AddPictures(QIcon& icon, std::initializer_list<int> sizes) {
    RegisterPictures();
    for (const int size : sizes)
        icon.addFile(QStringLiteral(":/icons/orvane-%1.png").arg(size));
}

} // namespace

QIcon WindowIcon() {
    QIcon icon;
    AddPictures(icon, {16, 32, 48, 64});
    return icon;
}

QIcon Logo() {
    QIcon logo = WindowIcon();
    AddPictures(logo, {128, 256});
    return logo;
}

} // namespace orvane
