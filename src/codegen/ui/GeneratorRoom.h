// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "codegen/ui/GeneratorRun.h"
#include "files/FileSystem.h"
#include "kit/Room.h"
#include "session/Change.h"

#include <QStringList>

#include <memory>

namespace orvane {

class frmGenerator;

// The program of the document: made anew when the design has changed, and shown with its report.
class GeneratorRoom : public Room {
    Q_OBJECT

  public:
    explicit GeneratorRoom(const RoomPlace& place);
    // With the program on other files than those of the computer.
    GeneratorRoom(const RoomPlace& place, std::unique_ptr<FileSystem> files);
    ~GeneratorRoom() override;

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    void Prepare(const CommandEntry& next) override;
    ObserverRank Rank() const override;
    bool Listens() const override { return true; }
    void Told(const Change& change) override;
    void Close() override;
    void Preserve() override;

  private:
    // Tells what went wrong once everybody else has the change.
    class FailureBox final : public SessionObserver {
      public:
        explicit FailureBox(GeneratorRoom& room) : room_(room) {}
        void Told(const Change& change) override;

      private:
        GeneratorRoom& room_;
    };

    void MakeProgramsAgree(ChangeKind kind);
    void TellSession();
    void TakeLateFile();
    void TellTrouble();
    void TellTroubleOnceIdle();
    void ShowRun();
    QString FateOfProgram() const;
    frmGenerator& Window();

    Session& session_;
    const Vocabulary& words_;
    QMainWindow& window_;
    std::unique_ptr<FileSystem> files_;
    GeneratorRun generator_;
    QStringList toTell_; // about programs that could not be written
    bool isToldLater_ = false;
    FailureBox failureBox_{*this};
    std::unique_ptr<frmGenerator> frmGenerator_; // no window of the main window's: the table can be in front
};

} // namespace orvane
