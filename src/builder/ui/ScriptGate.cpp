// SPDX-License-Identifier: GPL-3.0-or-later
#include "builder/ui/ScriptGate.h"

#include "files/NativeFiles.h"
#include "kit/FilePath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace orvane {

namespace {

QString TrScript(const char* text) { return QCoreApplication::translate("ScriptGate", text); }

bool IsNamedAsScript(const QString& path) {
    return QFileInfo(path).suffix().compare(QStringLiteral("b1d"), Qt::CaseInsensitive) == 0;
}

// With all links followed, also when the file itself is not there.
QString TrueFolder(const QString& path) {
    const QFileInfo folder(QFileInfo(path).absolutePath());
    QString canonical = folder.canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(folder.absoluteFilePath()) : canonical;
}

} // namespace

QString ScriptTarget(const QString& path) {
    QString canonical = QFileInfo(path).canonicalFilePath();
    if (!canonical.isEmpty())
        return canonical;
    return TrueFolder(path) + QLatin1Char('/') + QFileInfo(path).fileName();
}

QString WhyNoScript(const QString& path) {
    if (!IsNamedAsScript(path))
        return TrScript("its name does not end in .b1d");
    NativeFiles files;
    const Result<FileFacts> facts = files.Look(NativePath(path));
    if (facts.Failure)
        return {};
    if (facts.Got.Kind != FileKind::Regular)
        return TrScript("it is no file but a folder, a pipe or a device");
    if (!IsNamedAsScript(ScriptTarget(path)))
        return TrScript("it is a link to %1, whose name does not end in .b1d")
            .arg(QDir::toNativeSeparators(ScriptTarget(path)));
    return {};
}

bool IsBesideDocument(const QString& path, const QString& documentPath) {
    if (documentPath.isEmpty())
        return false;
    const QString folder = TrueFolder(documentPath);
    const QString script = QFileInfo(ScriptTarget(path)).path();
    return script == folder ||
           script.startsWith(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

} // namespace orvane
