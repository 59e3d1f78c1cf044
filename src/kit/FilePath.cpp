// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/FilePath.h"

#include <QFileInfo>

namespace orvane {

std::filesystem::path NativePath(const QString& path) { return QFileInfo(path).filesystemFilePath(); }

// The system's own words, for what is rare, are in its own encoding.
QString Message(const FileError& error) { return QString::fromLocal8Bit(Sentence(error).c_str()); }

QString Message(FileNote note) { return QString::fromStdString(Sentence(note)); }

} // namespace orvane
