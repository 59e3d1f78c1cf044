// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/RenewableFile.h"

#include "files/Patience.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

#ifdef __linux__
#include <cstdio>
#include <fcntl.h>
#endif

namespace orvane {

namespace {

// It is written after every change in the table, so that nobody waits longer than he notices.
constexpr std::chrono::milliseconds kPatience{100};

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

// Swaps two files in one step, where the system can. Unlike a replacing rename it does not make the file
// system start writing the new bytes to the disk, which takes longer than all the rest.
bool Swap([[maybe_unused]] const std::filesystem::path& one,
          [[maybe_unused]] const std::filesystem::path& other) {
#ifdef __linux__
    return renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) == 0;
#else
    return false;
#endif
}

QString Reason(const std::error_code& failure) {
#ifdef _WIN32
    if (failure == std::errc::permission_denied)
        return QStringLiteral(
            "Another program has it open. Close it there; the next change is written again");
#endif
    return QString::fromLocal8Bit(failure.message().c_str());
}

// The fresh file takes the place of the old one, if there is one, in one step. QFile::rename would refuse to.
std::optional<QString> TakePlace(const QString& from, const QString& to, bool replaces) {
    const std::filesystem::path fresh = QFileInfo(from).filesystemFilePath();
    const std::filesystem::path target = QFileInfo(to).filesystemFilePath();
    std::error_code failure;
    if (replaces && Swap(fresh, target)) {
        std::filesystem::remove(fresh, failure); // by now it is the old one
    } else {
        failure = Patiently(kPatience, [&] {
            std::filesystem::rename(fresh, target, failure);
            return failure;
        });
    }
    if (!failure)
        return std::nullopt;
    return Reason(failure);
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
        failure = TakePlace(fresh.fileName(), target, replaces);
    if (failure)
        fresh.remove();
    return failure;
}

} // namespace orvane
