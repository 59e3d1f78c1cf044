// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "codegen/CodeGenerator.h"
#include "codegen/ui/ProgramFile.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <vector>

namespace orvane {

// Runs the generator and keeps what came out of the last run. A run without errors writes the program's file
// beside the document; a document without a file has no program file either. The document itself is never
// written over, whatever its name.
//
// Behind a slow drive the file comes after the run: who needs it calls Finish.
class GeneratorRun : public QObject, private LatestWriter::Listener {
    Q_OBJECT

  public:
    // The files outlive this.
    explicit GeneratorRun(FileSystem& files, QObject* parent = nullptr);
    ~GeneratorRun() override;

    void Run(const FsmDocument& document, const QString& documentPath);

    // The same without the file: for a document that was only opened, whose program need not be touched.
    void RunWithoutFile(const FsmDocument& document, const QString& documentPath);

    // Waits until the file is written.
    void Finish();

    // The document has been saved under this path; the one whose program was written last is left. What goes
    // wrong comes back as a text for the user, empty otherwise. Both wait for the file.
    QString TakeSaved(const QString& documentPath);
    QString LeaveDocument();

    const GeneratedProgram& Latest() const { return latest_; }

    // The last run wrote its file. While it still does so, this is not known yet.
    bool GeneratedOk() const { return generatedOk_; }
    bool IsWriting() const { return isAwaited_; }

  Q_SIGNALS:
    void Finished();
    // The file of the last run has come after it.
    void WrittenLate();
    // Sent once for each file that cannot be written, until one can.
    void WriteFailed(const QString& path, const QString& why);
    // What another program had written to that file is in this copy now.
    void Kept(const QString& path, const QString& copy);
    // What the file has lost beside its old bytes, a sentence each, without the stop; each once.
    void Noted(const QString& path, const QStringList& notes);

  private:
    void OutcomeIsThere() override;
    void TakeLateOutcome();
    void Generate(const FsmDocument& document, const QString& documentPath);
    void WriteProgram(const QString& documentPath);
    void Take(const WriteOutcome& outcome);
    void TellCopyAndNotes(const WriteOutcome& outcome);

    GeneratedProgram latest_;
    QString dateFault_; // why there is no date for it
    bool generatedOk_ = false;
    bool isAwaited_ = false;    // what became of the file of the last run
    QString path_;              // of the file that was written last
    QString toldPath_;          // the file whose failure the user knows about
    FileSystem::Path toldCopy_; // likewise, of what was there
    std::vector<FileNote> toldNotes_;
    ProgramFile file_; // goes first: its thread tells this
};

} // namespace orvane
