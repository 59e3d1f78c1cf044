// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/WindowTitle.h"

#include "core/ProgramVersion.h"

#include <QFileInfo>

namespace orvane {

QString WindowTitle(const QString& path, bool isModified) {
    const QString name = path.isEmpty() ? QStringLiteral("[Untitled]") : QFileInfo(path).fileName();
    return (isModified ? QStringLiteral("*") : QString()) + name + QStringLiteral(" - Orvane ") +
           QString::fromStdString(ProgramVersion());
}

} // namespace orvane
