// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "codegen/CodeGenerator.h"
#include "files/FileReader.h"
#include "files/FileWriter.h"
#include "files/LatestWriter.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

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
//
// Behind a slow drive a thread does all of that, and whoever needs the file waits for it with Finish.
class ProgramFile final : private LatestWriter::Target {
  public:
    // Both outlive this.
    ProgramFile(FileSystem& files, LatestWriter::Listener& listener)
        : files_(files), writer_(*this, listener) {}

    // Writes the program unless it would take the place of the document itself. The outcome has the copy and
    // the notes of all writes since the document was opened or saved.
    std::optional<WriteOutcome> Write(const QString& documentPath, const std::string& program);
    // As LatestWriter.
    std::optional<WriteOutcome> TakeOutcome() { return writer_.TakeOutcome(); }
    std::optional<WriteOutcome> Finish() { return writer_.Finish(); }
    bool IsWriting() const { return writer_.IsWriting(); }

    // The two below come after a Finish.
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
        FileSystem::Path Copy = {};        // of what was there and not made by this program
        std::vector<FileNote> Notes = {};
    };

    WriteOutcome WriteTo(const FileSystem::Path& document, std::string_view program) override;
    // Why nothing may be written; empty when ahead_ is there.
    QString Begin(const QString& documentPath, const FileSystem::Path& path);
    QString PutBack(const Ahead& ahead, const FileSystem::Path& path);
    WrittenFile WriteQuickly(const FileSystem::Path& path, std::initializer_list<std::string_view> pieces);
    FileContent ReadProgram(const FileSystem::Path& path);

    FileSystem& files_;
    std::optional<Ahead> ahead_;
    LatestWriter writer_; // goes first: its thread works on the others
};

} // namespace orvane
