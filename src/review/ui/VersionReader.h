// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/VersionsToCompare.h"
#include "review/ui/GitHead.h"
#include "text/Sha256.h"

namespace orvane {

// What the open document can be compared with.
enum class VersionSource { Disk, Head, File };

// A version as it was read.
struct ReadVersion {
    NamedVersion Version;
    QString Notice;        // what is to be told of it; empty for nothing
    Sha256Digest Digest{}; // of its bytes
};

// Brings versions of documents from where they are: at once from a file, after a while from git.
class VersionReader : public QObject {
    Q_OBJECT

  public:
    explicit VersionReader(QObject* parent);

    // The file of the document for Disk and Head, another one for File.
    void Read(VersionSource source, const QString& path);
    void Drop() { git_.Drop(); }

  Q_SIGNALS:
    void Got(const orvane::ReadVersion& version);
    void Failed(const QString& why);

  private:
    void ReadFile(const QString& name, const QString& path);
    void TakeHead(const QByteArray& bytes);

    GitHead git_;
    QString path_;
};

} // namespace orvane
