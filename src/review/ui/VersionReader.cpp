// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ui/VersionReader.h"

#include "kit/AnsiString.h"
#include "kit/DocumentFile.h"

#include <QFileInfo>

#include <utility>

namespace orvane {

namespace {

// The last message says where it broke off.
QString NoticeOf(const ReadResult& read) {
    if (!read.BrokeOff)
        return {};
    return VersionReader::tr("This version could be read only in part: %1")
        .arg(FromAnsi(read.Messages.back().Text));
}

ReadVersion VersionOf(const QString& name, ReadResult read, const Sha256Digest& digest) {
    const QString notice = NoticeOf(read);
    return {{name, std::make_shared<const FsmDocument>(std::move(read.Document))}, notice, digest};
}

} // namespace

VersionReader::VersionReader(QObject* parent) : QObject(parent), git_(this) {
    connect(&git_, &GitHead::Got, this, &VersionReader::TakeHead);
    connect(&git_, &GitHead::Failed, this, &VersionReader::Failed);
}

void VersionReader::Read(VersionSource source, const QString& path) {
    git_.Drop();
    path_ = path;
    const QString name = QFileInfo(path).fileName();
    switch (source) {
    case VersionSource::Disk:
        return ReadFile(tr("%1 on disk").arg(name), path);
    case VersionSource::Head:
        return git_.Ask(path);
    case VersionSource::File:
        return ReadFile(path, path);
    }
}

void VersionReader::ReadFile(const QString& name, const QString& path) {
    DocumentFile file = ReadDocumentFile(path);
    if (!file.Content)
        Q_EMIT Failed(tr("%1 cannot be compared with. %2.").arg(path, file.Error));
    else
        Q_EMIT Got(VersionOf(name, *std::move(file.Content), file.Digest));
}

void VersionReader::TakeHead(const QByteArray& bytes) {
    const std::string text = bytes.toStdString();
    ReadResult read = ReadDocument(text);
    if (read.Refused)
        Q_EMIT Failed(
            tr("What the last commit has is no document. %1.").arg(FromAnsi(read.Messages.front().Text)));
    else
        Q_EMIT Got(VersionOf(tr("%1 in the last commit").arg(QFileInfo(path_).fileName()), std::move(read),
                             Sha256(text)));
}

} // namespace orvane
