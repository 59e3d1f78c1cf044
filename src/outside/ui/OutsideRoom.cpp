// SPDX-License-Identifier: GPL-3.0-or-later
#include "outside/ui/OutsideRoom.h"

#include "kit/FilePath.h"
#include "kit/VersionsToCompare.h"
#include "outside/ui/fraFileChanged.h"
#include "session/Session.h"
#include "session/UserRecoveryFolder.h"

#include <QEvent>
#include <QFileInfo>
#include <QMainWindow>
#include <QVBoxLayout>

#include <utility>

namespace orvane {

namespace {

constexpr int kSettleTime = 100; // milliseconds; a program that replaces a file takes several steps

} // namespace

OutsideRoom::OutsideRoom(const RoomPlace& place)
    : session_(place.Open),
      window_(place.Window),
      marker_(files_, UserRecoveryFolder()),
      lookDue_(&place.Window) {
    lookDue_.setObjectName(QStringLiteral("tmrFileLook"));
    lookDue_.setSingleShot(true);
    lookDue_.setInterval(kSettleTime);
    connect(&lookDue_, &QTimer::timeout, this, &OutsideRoom::Look);
    MakePlaceAboveTable();
    window_.installEventFilter(this);
}

OutsideRoom::~OutsideRoom() = default;

void OutsideRoom::MakePlaceAboveTable() {
    QWidget* focus = window_.focusWidget();
    QWidget* table = window_.takeCentralWidget();
    auto* both = new QWidget(&window_);
    above_ = new QVBoxLayout(both);
    above_->setContentsMargins(0, 0, 0, 0);
    above_->setSpacing(0);
    if (table != nullptr)
        above_->addWidget(table, 1);
    both->setFocusProxy(table);
    window_.setCentralWidget(both);
    if (focus != nullptr)
        focus->setFocus();
}

ObserverRank OutsideRoom::Rank() const { return ObserverRank::Rooms; }

void OutsideRoom::Told(const Change& change) {
    if (change.Kind == ChangeKind::Replaced || change.Kind == ChangeKind::Saved)
        BeginFile();
}

void OutsideRoom::BeginFile() {
    lookDue_.stop();
    answered_ = {};
    if (session_.Stamp()) {
        canonical_ = QFileInfo(FileName()).canonicalFilePath();
        TakeAsSeen(*session_.Stamp());
        Watch();
    } else {
        watcher_.reset();
        marker_.Release();
    }
    Look();
}

// So that the bytes that were read or written a moment ago are not read again.
void OutsideRoom::TakeAsSeen(const JournalStamp& file) {
    const Result<FileFacts> facts = files_.Look(NativePath(FileName()));
    const bool isTheSame =
        !facts.Failure && facts.Got.Size == file.Size && facts.Got.Changed == file.Modified;
    last_ = isTheSame ? KnownFile{StampOf(facts.Got), file.Sha256} : KnownFile{};
}

// Anew each time: a file that was replaced is not watched any more.
void OutsideRoom::Watch() {
    if (!watcher_) {
        watcher_ = std::make_unique<QFileSystemWatcher>();
        const auto settle = [this] {
            if (!lookDue_.isActive())
                lookDue_.start();
        };
        connect(watcher_.get(), &QFileSystemWatcher::directoryChanged, this, settle);
        connect(watcher_.get(), &QFileSystemWatcher::fileChanged, this, settle);
    }
    const QString folder = QFileInfo(FileName()).absolutePath();
    QStringList former = watcher_->directories() + watcher_->files();
    const QStringList wanted{folder, FileName()};
    for (const QString& path : wanted) {
        if (!former.removeOne(path))
            watcher_->addPath(path); // what cannot be watched is looked at when the window is activated
    }
    if (!former.isEmpty())
        watcher_->removePaths(former);
}

bool OutsideRoom::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &window_ && event->type() == QEvent::WindowActivate && !lookDue_.isActive())
        lookDue_.start(0); // after whatever activated it
    return Room::eventFilter(watched, event);
}

void OutsideRoom::Look() {
    lookDue_.setInterval(kSettleTime);
    Show(session_.Stamp() ? WhatHappened() : Notice{});
    if (watcher_ && !watcher_->files().contains(FileName()) && QFileInfo::exists(FileName()))
        watcher_->addPath(FileName());
}

// What cannot be read now may be readable soon; until then nothing is known of it.
OutsideRoom::Notice OutsideRoom::WhatHappened() {
    const bool isOnlyHere = canonical_.isEmpty() || marker_.Take(NativePath(canonical_));
    const Result<KnownFile> now = LookAgain(files_, NativePath(FileName()), last_);
    if (now.Failure == std::errc::no_such_file_or_directory)
        return {Happened::Gone, {}};
    if (now.Failure)
        return shown_;
    last_ = now.Got;
    if (now.Got.Digest != session_.Stamp()->Sha256)
        return {Happened::Changed, now.Got.Digest};
    return {isOnlyHere ? Happened::Nothing : Happened::OpenElsewhere, {}};
}

void OutsideRoom::Show(const Notice& notice) {
    shown_ = notice;
    if (notice.What == Happened::Nothing || notice == answered_) {
        if (fraFileChanged_)
            fraFileChanged_->hide();
        return;
    }
    Strip().Present(TextOf(notice.What), notice.What == Happened::Changed ? fraFileChanged::Offer::Reload
                                                                          : fraFileChanged::Offer::Nothing);
}

QString OutsideRoom::TextOf(Happened what) const {
    const QString name = QFileInfo(FileName()).fileName();
    switch (what) {
    case Happened::Changed:
        return tr("%1 was changed by another program. Reload it, or keep what this window shows: then the "
                  "next save asks before it replaces the file.")
            .arg(name);
    case Happened::Gone:
        return tr("%1 is gone: it was deleted, moved or renamed. Save writes it again, as this window shows "
                  "it.")
            .arg(name);
    default:
        return tr("%1 is open in another window too. Edit it in one of them: a save in the other asks before "
                  "it replaces the file.")
            .arg(name);
    }
}

fraFileChanged& OutsideRoom::Strip() {
    if (!fraFileChanged_) {
        fraFileChanged_ = new fraFileChanged(above_->parentWidget());
        above_->insertWidget(0, fraFileChanged_);
        connect(fraFileChanged_, &fraFileChanged::ReloadWanted, this,
                [this] { Q_EMIT DocumentWanted(FileName()); });
        connect(fraFileChanged_, &fraFileChanged::CompareWanted, this, [this] { Q_EMIT CompareWanted({}); });
        connect(fraFileChanged_, &fraFileChanged::KeepWanted, this, [this] {
            answered_ = shown_;
            Show(shown_);
        });
    }
    return *fraFileChanged_;
}

QString OutsideRoom::FileName() const { return QString::fromStdString(session_.Path()); }

void OutsideRoom::Close() { marker_.Release(); }

} // namespace orvane
