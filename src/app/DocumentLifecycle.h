// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/DocumentSession.h"
#include "core/DocumentReader.h"

#include <QObject>

class QWidget;

namespace orvane {

// New, open, save and close, with the questions that guard unsaved work. Whatever is cancelled or fails
// leaves document, file and window as they were.
class DocumentLifecycle : public QObject {
    Q_OBJECT

  public:
    // The session outlives this; questions are asked over the window.
    DocumentLifecycle(DocumentSession& session, QWidget* window, TraceSink trace);

    // An empty document, laid out anew.
    void NewGrid();

    void New();
    void Open();
    // The same without a file dialog.
    void OpenFile(const QString& path);
    // These return whether the document is saved now.
    bool Save();
    bool SaveAs();
    // Asks about unsaved work; whether the window may close.
    bool MayClose();

    // Opens the file, telling what there is to tell about it.
    void Load(const QString& path);
    // The settings document: its contents without its name, and nothing told when there is none.
    void LoadSettings();

  Q_SIGNALS:
    // Another document has taken the place of the one before.
    void Replaced();
    // The document was written; its name may be another one now.
    void Saved();

  private:
    void LayOutFresh();
    void Take(FsmDocument document, const QString& fileName);
    void TellMessages(const QString& path, const ReadResult& result);
    void TellBreakOff(const QString& path, const ReaderMessage& message);
    // Whether the command that would lose unsaved work may go on.
    bool GuardUnsavedWork(const QString& title, const QString& question);
    bool GuardBeforeOpen();
    bool WriteTo(const QString& path);
    QString StartFolder() const;

    DocumentSession& session_;
    QWidget* window_;
    TraceSink trace_;
};

} // namespace orvane
