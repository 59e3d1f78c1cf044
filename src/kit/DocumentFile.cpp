// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/DocumentFile.h"

#include "core/DocumentWriter.h"
#include "files/Patience.h"
#include "kit/AnsiString.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

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
    const auto size = static_cast<qint64>(bytes.size());
    QString why;
    const std::error_code failure = Patiently(kSavingPatience, [&] {
        QSaveFile file(path);
        if (file.open(QIODevice::WriteOnly) && file.write(bytes.data(), size) == size && file.commit())
            return std::error_code();
        why = file.errorString();
        const bool isHeld = file.error() == QFileDevice::RenameError;
        return make_error_code(isHeld ? std::errc::permission_denied : std::errc::io_error);
    });
    return failure ? std::optional(why) : std::nullopt;
}

std::optional<QString> WriteDocumentFile(const QString& path, const FsmDocument& document) {
    return WriteWholeFile(path, WriteDocument(document));
}

} // namespace orvane
