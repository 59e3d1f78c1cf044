// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "codegen/CodeGenerator.h"
#include "files/FileStamp.h"

#include <QString>

#include <optional>
#include <string>

namespace orvane {

// The program of the document at this path as of now. Without a failure only.
struct DatedProgram {
    GeneratedProgram Program;
    QString Failure; // why there is no date for it
};
DatedProgram ProgramOf(const FsmDocument& document, const QString& documentPath);

// The program's file beside the open document, and what this window has made of it.
//
// It is written at every change, also at those that are never saved. So it remembers whether the file may be
// ahead of the saved document, and brings it back when the document is left like that: whoever builds later
// gets the design that he sees when he opens the document.
class ProgramFile {
  public:
    struct Outcome {
        QString Failure; // why it was not written; empty when it was
        QString Copy;    // where the bytes are now that were there and not made by this program; else empty
    };

    // Writes the program unless it would take the place of the document itself.
    Outcome Write(const QString& documentPath, const std::string& program);

    // The document has been saved under this path. A file beside another path is brought back.
    QString TakeSaved(const QString& documentPath);

    // The document is left: makes the file that of the saved document again, if this window had written
    // another one and nobody else has since. Where the saved design has errors, the file is what it was
    // before. Returns what to tell when that failed.
    QString BringBack();

  private:
    struct Ahead {
        QString DocumentPath;
        std::optional<std::string> Former; // the file's bytes before; none without a file
        FileStamp Written = {};            // of the file as this window wrote it last
    };

    Outcome Begin(const QString& documentPath, const QString& path);
    static QString PutBack(const Ahead& ahead, const QString& path);

    std::optional<Ahead> ahead_;
};

} // namespace orvane
