// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/VocabularyFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace orvane {

namespace {

constexpr qint64 kLargestFile = 1024 * 1024; // bytes

QString Tr(const char* text) { return QCoreApplication::translate("VocabularyFile", text); }

// Reads the words and returns what went wrong, nothing when all went well.
QString Read(const QString& path, Vocabulary& words) {
    const QFileInfo info(path);
    if (!info.exists())
        return Tr("there is no such file");
    if (!info.isFile())
        return Tr("it is not a file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    const QByteArray bytes = file.read(kLargestFile + 1);
    if (file.error() != QFileDevice::NoError)
        return file.errorString();
    if (bytes.size() > kLargestFile)
        return Tr("it is larger than 1 MiB");
    words = ParseVocabulary({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    return {};
}

} // namespace

QString VocabularyPath() {
    QString folder = qEnvironmentVariable("APPDATA");
    if (folder.isEmpty())
        folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return QDir(folder).filePath(QStringLiteral("Zorlan32/vocab/vocab.txt"));
}

LoadedVocabulary LoadVocabulary() {
    LoadedVocabulary loaded;
    loaded.Path = VocabularyPath();
    const QString reason = Read(loaded.Path, loaded.Words);
    if (!reason.isEmpty())
        loaded.Problem = Tr("No keywords are coloured: the vocabulary %1 could not be read, %2.")
                             .arg(QDir::toNativeSeparators(loaded.Path), reason);
    return loaded;
}

} // namespace orvane
