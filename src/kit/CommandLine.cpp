// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/CommandLine.h"

namespace orvane {

CommandLine ParseCommandLine(const QStringList& arguments) {
    const QString noSplash = QStringLiteral("/nosplash");
    CommandLine result;
    QString line = arguments.join(QLatin1Char(' '));
    result.NoSplash = line.contains(noSplash);
    const bool isDrivePath = line.size() > 1 && line[1] == QLatin1Char(':');
    if (!isDrivePath && !line.startsWith(QStringLiteral("\\\\"))) {
        QStringList rest = arguments;
        rest.removeAll(noSplash);
        line = rest.join(QLatin1Char(' '));
    }
    result.DocumentPath = line;
    return result;
}

} // namespace orvane
