// SPDX-License-Identifier: GPL-3.0-or-later
#include "builder/ui/ScriptFile.h"

#include "files/FileReader.h"
#include "files/FileWriter.h"
#include "files/NativeFiles.h"
#include "kit/AnsiString.h"
#include "kit/FilePath.h"

#include <algorithm>

namespace orvane {

namespace {

// Far above any script: what is larger is some other file.
constexpr std::size_t kLargestScript = 1u << 20; // bytes

QString WithLineEnds(QString text, const QString& lineEnd) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text.replace(QStringLiteral("\n"), lineEnd);
}

} // namespace

std::optional<QString> ReadScript(const QString& path) {
    NativeFiles files;
    const FileContent file = ReadFile(files, NativePath(path), kLargestScript);
    const bool isText = file && file.Bytes().find('\0') == std::string_view::npos; // no script has a NUL
    return isText ? std::optional(AsReadBack(FromAnsi(file.Bytes()))) : std::nullopt;
}

// Unlike a document, a script may hold the delimiter.
QString LineOutsideAnsi(const QString& script) {
    const QStringList lines = WithLineEnds(script, QStringLiteral("\n")).split(QLatin1Char('\n'));
    const auto found = std::find_if(lines.begin(), lines.end(), [](const QString& line) {
        return ToAnsi(line, Delimiter::Kept).LeftOut;
    });
    return found == lines.end() ? QString() : *found;
}

std::optional<QStringList> WriteScript(const QString& path, const QString& script) {
    const AnsiText bytes = ToAnsi(WithLineEnds(script, QStringLiteral("\r\n")), Delimiter::Kept);
    if (bytes.LeftOut)
        return std::nullopt;
    NativeFiles files;
    const WrittenFile written = WriteFile(files, NativePath(path), {bytes.Text});
    if (!written)
        return std::nullopt;
    QStringList notes;
    for (const FileNote note : written.Notes)
        notes += Message(note);
    return notes;
}

QString AsReadBack(const QString& script) {
    QString text = WithLineEnds(script, QStringLiteral("\r\n"));
    if (!text.isEmpty() && !text.endsWith(QLatin1Char('\n')))
        text += QStringLiteral("\r\n");
    return text;
}

} // namespace orvane
