// SPDX-License-Identifier: GPL-3.0-or-later
#include "builder/ui/ScriptFile.h"

#include "kit/AnsiString.h"
#include "kit/DocumentFile.h"
#include "text/AnsiText.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace orvane {

namespace {

// Far above any script: what is larger is some other file.
constexpr qint64 kLargestScript = 1 << 20; // bytes

QString WithLineEnds(QString text, const QString& lineEnd) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text.replace(QStringLiteral("\n"), lineEnd);
}

// None when some character has no byte. Unlike a document, a script may hold the delimiter.
std::optional<std::string> Bytes(const QString& text) {
    std::string bytes;
    for (const QChar character : text) {
        const std::optional<char> byte = ToAnsi(char32_t{character.unicode()});
        if (!byte)
            return std::nullopt;
        bytes += *byte;
    }
    return bytes;
}

} // namespace

std::optional<QString> ReadScript(const QString& path) {
    QFile file(path);
    if (path.isEmpty() || QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly) ||
        file.size() > kLargestScript)
        return std::nullopt;
    return AsReadBack(FromAnsi(file.readAll().toStdString()));
}

QString LineOutsideAnsi(const QString& script) {
    const QStringList lines = WithLineEnds(script, QStringLiteral("\n")).split(QLatin1Char('\n'));
    const auto found =
        std::find_if_not(lines.begin(), lines.end(), [](const QString& l) { return Bytes(l); });
    return found == lines.end() ? QString() : *found;
}

bool WriteScript(const QString& path, const QString& script) {
    const std::optional<std::string> bytes = Bytes(WithLineEnds(script, QStringLiteral("\r\n")));
    return bytes && !WriteWholeFile(path, *bytes);
}

QString AsReadBack(const QString& script) {
    QString text = WithLineEnds(script, QStringLiteral("\r\n"));
    if (!text.isEmpty() && !text.endsWith(QLatin1Char('\n')))
        text += QStringLiteral("\r\n");
    return text;
}

} // namespace orvane
