// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/VocabularyFile.h"

#include "files/FileReader.h"
#include "files/NativeFiles.h"
#include "kit/FilePath.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace orvane {

namespace {

constexpr std::size_t kLargestFile = 1u << 20; // bytes

QString Tr(const char* text) { return QCoreApplication::translate("VocabularyFile", text); }

QString WhyNoVocabulary(const FileError& error) {
    if (error.Refused)
        return Tr("it is not a file");
    if (error.Reason == std::errc::no_such_file_or_directory)
        return Tr("there is no such file");
    if (error.Reason == std::errc::file_too_large)
        return Tr("it is larger than 1 MiB");
    return Message(error);
}

// Reads the words and returns what went wrong, nothing when all went well.
QString Read(const QString& path, Vocabulary& words) {
    NativeFiles files;
    const FileContent file = ReadFile(files, NativePath(path), kLargestFile);
    if (file.Failure)
        return WhyNoVocabulary(*file.Failure);
    words = ParseVocabulary(file.Bytes());
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
