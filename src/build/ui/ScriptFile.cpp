// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/ui/ScriptFile.h"

#include "core/ui/AnsiString.h"
#include "core/ui/DocumentFile.h"

#include <QFile>
#include <QFileInfo>

namespace orvane {

namespace {

// Far above any script: what is larger is some other file.
constexpr qint64 kLargestScript = 1 << 20; // bytes

QString WithLineEnds(QString text, const QString& lineEnd) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text.replace(QStringLiteral("\n"), lineEnd);
}

} // namespace

std::optional<QString> ReadScript(const QString& path) {
    QFile file(path);
    if (path.isEmpty() || QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly) ||
        file.size() > kLargestScript)
        return std::nullopt;
    return AsReadBack(FromAnsi(file.readAll().toStdString()));
}

bool WriteScript(const QString& path, const QString& script) {
    return !WriteWholeFile(path, ToAnsi(WithLineEnds(script, QStringLiteral("\r\n"))).Text);
}

QString AsReadBack(const QString& script) {
    QString text = WithLineEnds(script, QStringLiteral("\r\n"));
    if (!text.isEmpty() && !text.endsWith(QLatin1Char('\n')))
        text += QStringLiteral("\r\n");
    return text;
}

} // namespace orvane
