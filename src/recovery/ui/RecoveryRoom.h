// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/NativeFiles.h"
#include "kit/Background.h"
#include "kit/Room.h"
#include "recovery/ui/WorkList.h"
#include "session/Journal.h"

#include <QTimer>

#include <memory>
#include <optional>

namespace orvane {

class frmRecovery;

// Keeps the journal of what is drawn in this window, and gives back what other windows have left behind.
class RecoveryRoom : public Room {
    Q_OBJECT

  public:
    explicit RecoveryRoom(const RoomPlace& place);
    ~RecoveryRoom() override;

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    bool Listens() const override { return journal_.has_value(); }
    void Told(const Change& change) override;
    void Preserve() override;
    void Start(const CommandLine& commandLine) override;
    void Close() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void WaitForDrafts();
    // Looks for work that was left behind, and offers it when there is any.
    void LookAround();
    void Offer(const WorkList& work);
    WorkList Work();
    frmRecovery& Window();
    void Refresh();
    void Recover(const std::string& name);
    void GoOnWith(AdoptedJournal recovered);
    void Compare(const std::string& name);
    void Discard(const std::string& name);
    void DeleteAll();
    void Keep(bool keep);

    Session& session_;
    QMainWindow& main_;
    NativeFiles files_;
    std::optional<RecoveryFolder> folder_; // none where there is no place for it, and then no journal
    std::optional<Journal> journal_;
    QTimer draftsDue_;
    Background<WorkList> finder_{*this}; // goes before the folder
    frmRecovery* frmRecovery_ = nullptr; // belongs to the main window, which it stands in front of
};

} // namespace orvane
