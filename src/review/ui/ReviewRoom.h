// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Room.h"
#include "kit/VersionsToCompare.h"
#include "review/ui/ComparisonWorker.h"
#include "review/ui/VersionReader.h"

#include <memory>
#include <optional>

namespace orvane {

class frmCompare;

// Compares the open document with another version of it, and takes single changes over. The window follows
// every edit; while it is hidden nothing is read or compared.
class ReviewRoom : public Room {
    Q_OBJECT

  public:
    explicit ReviewRoom(const RoomPlace& place);
    ~ReviewRoom() override;

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    bool Listens() const override;
    void Told(const Change& change) override;
    void CompareVersions(const VersionsToCompare& versions) override;
    void Close() override;

  private:
    void MakeWindow();
    void Begin(const VersionsToCompare& versions);
    void ChooseSource(VersionSource source);
    void ReadAgain();
    void TakeRead(const ReadVersion& read);
    void TakeFailure(const QString& why);
    bool IsOlder(const ReadVersion& read) const;
    void ShowHeading();
    void Compare();
    void TakeShown(const Comparison& comparison);
    void TakeWish(const review::Wishes& wish);
    void TakeOver(std::size_t change);
    void ShowInTable(std::size_t change);
    NamedVersion Here() const;

    Session& session_;
    QMainWindow& main_;
    const Vocabulary& words_;
    VersionReader reader_;
    ComparisonWorker worker_;
    std::unique_ptr<frmCompare> frmCompare_; // made when it is first asked for
    VersionSource source_ = VersionSource::Disk;
    QString file_;                      // of VersionSource::File
    std::optional<NamedVersion> here_;  // given in the place of the open document
    bool isGiven_ = false;              // the other version was handed in, and is not read
    std::optional<NamedVersion> other_; // none while there is none
    bool otherIsOlder_ = true;
    KnownIdentities known_;
    std::shared_ptr<const review::ComparedVersions> shown_; // none while it is compared anew
};

} // namespace orvane
