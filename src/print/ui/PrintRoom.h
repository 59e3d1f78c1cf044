// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Room.h"
#include "print/Booklet.h"

#include <memory>

namespace orvane {

class frmPrint;
class Printout;

// Puts the open document on paper, or into a file that looks the same.
class PrintRoom : public Room {
    Q_OBJECT

  public:
    explicit PrintRoom(const RoomPlace& place) : session_(place.Open), window_(place.Window) {}

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    bool Listens() const override { return false; }
    void Told(const Change&) override {}

  private:
    print::CoverFacts Facts() const;
    std::string DocumentDigest() const;
    QString FileBeside() const;
    void Print(frmPrint& dialog, const Printout& printout);
    void Write(frmPrint& dialog, const QString& path, const QByteArray& bytes);

    Session& session_;
    QMainWindow& window_;
};

} // namespace orvane
