// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/DocumentFile.h"

#include "core/DocumentWriter.h"
#include "files/FileWriter.h"
#include "files/NativeFiles.h"
#include "kit/AnsiString.h"

#include <QFile>
#include <QFileInfo>

namespace orvane {

namespace {

DocumentFile Failed(const QString& why) { return {std::nullopt, why}; }

} // namespace

DocumentFile ReadDocumentFile(const QString& path) {
    if (QFileInfo(path).isDir())
        return Failed(QStringLiteral("It is a folder"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Failed(file.errorString());
    // One byte more than any document has is enough for the reader to refuse it.
    const QByteArray bytes = file.read(qint64{kLargestDocument} + 1);
    if (file.error() != QFileDevice::NoError)
        return Failed(file.errorString());
    ReadResult result = ReadDocument({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    if (result.Refused)
        return Failed(FromAnsi(result.Messages.front().Text));
    return {std::move(result), {}};
}

std::optional<QString> WriteWholeFile(const QString& path, std::string_view bytes) {
    NativeFiles files;
    const WrittenFile written = WriteFile(files, QFileInfo(path).filesystemFilePath(), {bytes});
    if (!written.Failure)
        return std::nullopt;
    return QString::fromLocal8Bit(Sentence(*written.Failure).c_str());
}

std::optional<QString> WriteDocumentFile(const QString& path, const FsmDocument& document) {
    return WriteWholeFile(path, WriteDocument(document));
}

} // namespace orvane
