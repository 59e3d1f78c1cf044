// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ui/RenewableFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace orvane {

namespace {

bool WritePieces(QFile& file, std::initializer_list<std::string_view> pieces) {
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    for (const std::string_view piece : pieces) {
        const auto size = static_cast<qint64>(piece.size());
        if (file.write(piece.data(), size) != size)
            return false;
    }
    return true;
}

// Takes the place of the old file in one step. QFile::rename would refuse to.
std::optional<QString> Rename(const QString& from, const QString& to) {
    std::error_code failure;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(), QFileInfo(to).filesystemFilePath(),
                            failure);
    if (!failure)
        return std::nullopt;
    return QString::fromLocal8Bit(failure.message().c_str());
}

} // namespace

std::optional<QString> WriteRenewableFile(const QString& path,
                                          std::initializer_list<std::string_view> pieces) {
    const QFileInfo old(path);
    const bool replaces = old.exists();
    if (replaces && (!old.isFile() || !old.isWritable()))
        return QStringLiteral("What is there cannot be written to");
    const QString target = replaces ? old.canonicalFilePath() : path; // a link stays one
    QFile fresh(QStringLiteral("%1.%2.new").arg(target).arg(QCoreApplication::applicationPid()));
    std::optional<QString> failure;
    if (!WritePieces(fresh, pieces))
        failure = fresh.errorString();
    else if (replaces && fresh.permissions() != old.permissions())
        fresh.setPermissions(old.permissions());
    fresh.close();
    if (!failure)
        failure = Rename(fresh.fileName(), target);
    if (failure)
        fresh.remove();
    return failure;
}

} // namespace orvane
