// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/ui/RecoveryTexts.h"

#include "kit/Settings.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace orvane {

namespace {

QString TrRecovery(const char* text) { return QCoreApplication::translate("frmRecovery", text); }

QString DocumentName(const RecoveredJournal& journal) {
    return journal.Head.Path.empty() ? QStringLiteral("[Untitled]")
                                     : QFileInfo(QString::fromStdString(journal.Head.Path)).fileName();
}

QString TimeText(JournalTime time) {
    return QDateTime::fromMSecsSinceEpoch(time.time_since_epoch().count())
        .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

} // namespace

QString WhyNotTaken(const std::error_code& failure) {
    if (failure == std::errc::device_or_resource_busy)
        return TrRecovery("Another window of Orvane has this work now. Look for it there.");
    if (failure == std::errc::no_such_file_or_directory)
        return TrRecovery("This work is not there any more: another window has recovered or discarded it.");
    return TrRecovery(
               "This work could not be read: %1.\r\n\r\nIt stays in the list. Try again, or make sure that "
               "you may read and write the folder for recovery.")
        .arg(QString::fromStdString(failure.message()));
}

QString NothingReadable() {
    return TrRecovery("Nothing of this work can be read any more: its file is damaged from the beginning. "
                      "Discard it when you do not want to look at the file yourself.");
}

QString NotAllDeleted(std::size_t left, const FileSystem::Path& folder) {
    const std::u8string path = folder.u8string();
    return TrRecovery("%1 files could not be removed from\r\n%2\r\nRemove them there by hand.")
        .arg(left)
        .arg(QDir::toNativeSeparators(QString::fromUtf8(path.data(), path.size())));
}

QString NotRemembered() {
    return TrRecovery("This holds for this window, but could not be written to the settings file: the next "
                      "start does as before. Make sure that there is room on the disk and that you may write "
                      "the file\r\n%1")
        .arg(QDir::toNativeSeparators(Settings().fileName()));
}

RecoveredNews NewsOf(const RecoveredJournal& journal) {
    const QString document = DocumentName(journal);
    RecoveredNews news;
    news.Line = TrRecovery("Recovered: %1. Save it when you have looked it over.").arg(document);
    if (journal.End == JournalEnd::Damaged)
        news.Loss =
            TrRecovery("A part of the unsaved work on %1 could not be read. The document is now as it was on "
                       "%2; what was changed later is lost. Look it over before you save it.\r\n\r\nThe "
                       "damaged file is kept for 7 days among what was recently discarded.")
                .arg(document, TimeText(journal.LastChange));
    return news;
}

} // namespace orvane
