// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Room.h"
#include "session/Session.h"
#include "text/Vocabulary.h"

#include <QMainWindow>

#include <memory>
#include <vector>

namespace orvane {

class CommandMenus;
class DocumentLifecycle;
class TableStatusBar;
class WrittenProgram;

// The main window: the menus, the status bar, and the rooms, of which it knows nothing but that they are
// rooms. What is open belongs to its session.
class frmTable : public QMainWindow, private SessionObserver {
    Q_OBJECT

  public:
    explicit frmTable(QWidget* parent = nullptr);
    ~frmTable() override;

    // Opens what the program was started with, or the settings document.
    void Start(const CommandLine& commandLine);

    // Asks whether the program may end; the window stays open.
    bool MayClose();
    // Makes safe what is not saved, without a question.
    void Preserve();

    // What a room is made from, and where it goes then: behind those that are there.
    RoomPlace Place();
    void AddRoom(std::unique_ptr<Room> room);
    // How many of them run the command; one for each but the menus.
    std::ptrdiff_t RoomsThatRun(Command command) const;

  Q_SIGNALS:
    // The program ends with its main window.
    void Closed();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    // Passes on to a room what it listens for.
    class RoomEar final : public SessionObserver {
      public:
        explicit RoomEar(Room& room) : room_(room) {}
        void Told(const Change& change) override;

      private:
        Room& room_;
    };

    void LoadWords();
    void MakeRooms();
    void ConnectRecentFiles();
    void OpenDocument(const QString& path);
    void Run(Command command);
    void Prepare(Command next);
    void PopUp(Command menu, const QPoint& position);
    void Told(const Change& change) override;
    void ShowDocumentState();

    Session session_;
    Vocabulary words_;
    CommandMenus* menus_;
    TableStatusBar* status_;
    std::unique_ptr<WrittenProgram> writtenProgram_;
    DocumentLifecycle* lifecycle_ = nullptr;
    std::vector<std::unique_ptr<RoomEar>> ears_;
    std::vector<std::unique_ptr<Room>> rooms_; // they go before the session
};

} // namespace orvane
