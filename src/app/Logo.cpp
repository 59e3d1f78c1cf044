// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Logo.h"

#include <QtGlobal>

// The pictures are linked into a library, which registers them only when asked. Outside the namespace, as the
// generated function is.
static void RegisterPictures() { Q_INIT_RESOURCE(orvane); }

namespace orvane {

QIcon Logo() {
    RegisterPictures();
    QIcon logo;
    for (const int size : {16, 32, 48, 64, 128, 256})
        logo.addFile(QStringLiteral(":/icons/orvane-%1.png").arg(size));
    return logo;
}

} // namespace orvane
