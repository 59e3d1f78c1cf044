// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "codegen/CodeGenerator.h"
#include "codegen/ui/ProgramFile.h"

#include <QObject>
#include <QString>

namespace orvane {

// Runs the generator and keeps what came out of the last run. A run without errors writes the program's file
// beside the document; a document without a file has no program file either. The document itself is never
// written over, whatever its name.
class GeneratorRun : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    void Run(const FsmDocument& document, const QString& documentPath);

    // The same without the file: for a document that was only opened, whose program need not be touched.
    void RunWithoutFile(const FsmDocument& document, const QString& documentPath);

    // The document has been saved under this path; the one whose program was written last is left. What goes
    // wrong comes back as a text for the user, empty otherwise.
    QString TakeSaved(const QString& documentPath) { return file_.TakeSaved(documentPath); }
    QString LeaveDocument() { return file_.BringBack(); }

    const GeneratedProgram& Latest() const { return latest_; }

    // The last run wrote its file.
    bool GeneratedOk() const { return generatedOk_; }

  Q_SIGNALS:
    void Finished();
    // Sent once for each file that cannot be written, until one can.
    void WriteFailed(const QString& path, const QString& why);
    // What another program had written to that file is in this copy now.
    void Kept(const QString& path, const QString& copy);

  private:
    void Generate(const FsmDocument& document, const QString& documentPath);
    void WriteProgram(const QString& documentPath);

    ProgramFile file_;
    GeneratedProgram latest_;
    QString dateFault_; // why there is no date for it
    bool generatedOk_ = false;
    QString toldPath_; // the file whose failure the user knows about
};

} // namespace orvane
