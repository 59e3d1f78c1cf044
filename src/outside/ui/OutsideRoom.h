// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/NativeFiles.h"
#include "kit/Room.h"
#include "session/KnownFile.h"
#include "session/OpenMarker.h"

#include <QFileSystemWatcher>
#include <QPointer>
#include <QTimer>

#include <memory>

class QVBoxLayout;
class QWidget;

namespace orvane {

class fraFileChanged;
struct JournalStamp;

// Looks after the document's file while others can change it, and says so in a strip above the table: the
// file was changed, it is gone, or the document is open in another window too. Nobody is locked out, and a
// notice that was answered does not come back for the same bytes.
//
// The folder is watched, because a watcher of the file is blind once the file was replaced; and the file is
// looked at when the window becomes the active one, because a drive of another machine tells no watcher.
class OutsideRoom : public Room {
    Q_OBJECT

  public:
    // The window has its table already.
    explicit OutsideRoom(const RoomPlace& place);
    ~OutsideRoom() override;

    ObserverRank Rank() const override;
    bool Listens() const override { return true; }
    void Told(const Change& change) override;
    void Close() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    enum class Happened { Nothing, Changed, Gone, OpenElsewhere };
    struct Notice {
        Happened What = Happened::Nothing;
        Sha256Digest Digest{}; // of the file that was changed

        bool operator==(const Notice&) const = default;
    };

    void MakePlaceAboveTable();
    void BeginFile();
    void TakeAsSeen(const JournalStamp& file);
    void Watch();
    void Look();
    Notice WhatHappened();
    void Show(const Notice& notice);
    QString TextOf(Happened what) const;
    fraFileChanged& Strip();
    QString FileName() const;

    Session& session_;
    QMainWindow& window_;
    NativeFiles files_;
    OpenMarker marker_;
    std::unique_ptr<QFileSystemWatcher> watcher_; // made for the first document that has a file
    QTimer lookDue_;                              // a child of the window, where it is found by its name
    QVBoxLayout* above_ = nullptr;
    QPointer<fraFileChanged> fraFileChanged_; // made when there is something to tell
    // The file with all links followed, as of when it was opened or saved: the folder of a slow drive is told
    // of at every change of the program beside it, and each look should ask no more than it must.
    QString canonical_;
    KnownFile last_; // the file as it was seen last
    Notice shown_;
    Notice answered_;
};

} // namespace orvane
