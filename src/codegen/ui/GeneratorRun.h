// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "codegen/BannerDate.h"
#include "codegen/CodeGenerator.h"

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

    const GeneratedProgram& Latest() const { return latest_; }

    // The last run wrote its file.
    bool GeneratedOk() const { return generatedOk_; }

  Q_SIGNALS:
    void Finished();
    // Sent once for each file that cannot be written, until one can.
    void WriteFailed(const QString& path, const QString& why);

  private:
    void Generate(const FsmDocument& document, const QString& documentPath);
    void WriteProgram(const QString& documentPath);
    // Returns why it was not written; empty when it was.
    QString WriteProgramTo(const QString& path, const QString& documentPath) const;

    GeneratedProgram latest_;
    BannerMoment date_; // of that
    bool generatedOk_ = false;
    QString toldPath_; // the file whose failure the user knows about
};

} // namespace orvane
