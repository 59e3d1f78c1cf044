// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/WindowTitle.h"

#include "core/ProgramVersion.h"

#include <QFileInfo>

namespace orvane {

QString WindowTitle(const QString& path, bool isModified) {
    // A drive path is one on every system, also where the backslash is no separator.
    const QString name = path.isEmpty() ? QStringLiteral("[Untitled]")
                                        : QFileInfo(path).fileName().section(QLatin1Char('\\'), -1);
    return (isModified ? QStringLiteral("*") : QString()) + name + QStringLiteral(" - Orvane ") +
           QString::fromStdString(ProgramVersion());
}

} // namespace orvane
