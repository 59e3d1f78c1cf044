// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ReplaceGuard.h"

#include "core/DocumentReader.h"
#include "files/FileReader.h"
#include "files/NativeFiles.h"
#include "kit/FilePath.h"
#include "kit/UserMessageBox.h"
#include "session/Session.h"
#include "session/UserRecoveryFolder.h"
#include "text/Sha256.h"

#include <QCoreApplication>
#include <QDir>

namespace orvane {

namespace {

QString TrReplace(const char* text) { return QCoreApplication::translate("ReplaceGuard", text); }

FileContent ReadThere(const QString& path) {
    NativeFiles files;
    return ReadFile(files, NativePath(path), kLargestDocument);
}

// Every save looks at the bytes: time and size come back with a copied file. What cannot be read is not the
// file that was read here; what is no file is left to the writer, which refuses it.
bool WasReplaced(const Session& session, const QString& path, const FileContent& there) {
    if (!session.Stamp() || path.toStdString() != session.Path())
        return false;
    if (there.Failure)
        return there.Failure->Reason != std::errc::no_such_file_or_directory && !there.Failure->Refused;
    return Sha256(there.Bytes()) != session.Stamp()->Sha256;
}

QMessageBox::StandardButton Ask(QWidget* window, const QString& path) {
    const QString text =
        TrReplace("Another program has changed\r\n%1\r\nsince it was opened or saved here. Replace it?\r\n"
                  "\r\nYes: your document takes its place; what is there now is kept in the recovery folder."
                  "\r\nNo: you save under another name.\r\nCancel: nothing is saved.");
    return AskYesNoCancel(window, QStringLiteral("Orvane"), text.arg(path), QMessageBox::Cancel);
}

ReplaceDecision Keep(QWidget* window, const QString& path, const FileContent& there) {
    NativeFiles files;
    QString why = there.Failure ? Message(*there.Failure) : QString();
    if (there) {
        const Result<std::filesystem::path> copy = KeepForUser(files, NativePath(path), there.Bytes());
        if (!copy.Failure)
            return {ReplaceAnswer::Save,
                    QDir::toNativeSeparators(QString::fromStdU16String(copy.Got.u16string()))};
        why = QString::fromStdString(ReasonText(copy.Failure));
    }
    Tell(window,
         TrReplace("Nothing was saved: no copy of\r\n%1\r\ncould be kept (%2). Your document is still "
                   "open here, with all changes. You can save it under another name.")
             .arg(path, why));
    return {ReplaceAnswer::Nothing, {}};
}

} // namespace

ReplaceDecision MayReplaceFile(QWidget* window, const Session& session, const QString& path) {
    const FileContent there = ReadThere(path);
    if (!WasReplaced(session, path, there))
        return {};
    switch (Ask(window, path)) {
    case QMessageBox::Yes:
        return Keep(window, path, ReadThere(path)); // as it is after the question
    case QMessageBox::No:
        return {ReplaceAnswer::SaveElsewhere, {}};
    default:
        return {ReplaceAnswer::Nothing, {}};
    }
}

} // namespace orvane
