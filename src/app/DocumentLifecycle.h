// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DocumentReader.h"
#include "kit/Room.h"

namespace orvane {

struct JournalStamp;
struct Utf8Document;

// New, open, save and close, with the questions that guard unsaved work. Whatever is cancelled or fails
// leaves document, file and window as they were.
class DocumentLifecycle : public Room {
    Q_OBJECT

  public:
    explicit DocumentLifecycle(const RoomPlace& place);

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    bool Listens() const override { return false; }
    void Told(const Change&) override {}
    // Opens what the program was started with, or the settings document.
    void Start(const CommandLine& commandLine) override;
    bool MayClose() override;

    void OpenDocument(const QString& path) override;

    // An empty document, laid out anew.
    void NewGrid();
    // Whether another document may take the place of this one, after the question about unsaved work.
    bool GuardBeforeOpen();

  private:
    void New();
    void Open();
    // These return whether the document is saved now.
    bool Save();
    bool SaveAs();
    // Opens the file, telling what there is to tell about it.
    void Load(const QString& path);
    // The settings document: its contents without its name, and nothing told when there is none.
    void LoadSettings();
    void Take(FsmDocument document, const QString& fileName, const JournalStamp& stamp);
    void TellMessages(const QString& path, const ReadResult& result);
    // Asks how to read it.
    bool IsReadAsUtf8(const QString& path, const Utf8Document& document);
    void TellConflicts(const QString& path, const std::vector<std::size_t>& lines);
    void TellBreakOff(const QString& path, const ReaderMessage& message);
    // Whether the command that would lose unsaved work may go on.
    bool GuardUnsavedWork(const QString& title, const QString& question);
    // The same of what other rooms hold.
    bool OthersMayLeave();
    // Asks before another program's work is replaced.
    bool WriteTo(const QString& path);
    bool Write(const QString& fullPath);
    QString FileName() const;
    QString NameToOffer() const;
    QString StartFolder() const;

    Session& session_;
    QMainWindow* window_;
};

} // namespace orvane
