// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ui/ProgramFile.h"

#include "codegen/BannerDate.h"
#include "codegen/PathInProgram.h"
#include "codegen/ProgramBanner.h"
#include "core/DocumentReader.h"
#include "kit/FilePath.h"
#include "session/UserRecoveryFolder.h"
#include "text/SiblingPath.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <utility>

namespace orvane {

namespace {

constexpr std::size_t kLargestProgram = 64u << 20; // bytes; far above any

QString TrProgram(const char* text) { return QCoreApplication::translate("ProgramFile", text); }

// Also through a link, and in whatever case where the system does not tell cases apart.
bool IsSameFile(FileSystem& files, const FileSystem::Path& one, const FileSystem::Path& other) {
    const Result<FileFacts> first = files.Look(one);
    const Result<FileFacts> second = first.Failure ? first : files.Look(other);
    return !second.Failure && first.Got.Device == second.Got.Device && first.Got.Number == second.Got.Number;
}

FileSystem::Path PathBeside(const QString& documentPath) {
    return NativePath(QString::fromStdString(ProgramFilePath(documentPath.toStdString())));
}

// Empty when it was written.
QString WhyUnwritten(const WrittenFile& written) {
    if (!written.Failure)
        return {};
    const bool isHeld =
        written.Failure->Step == FileStep::Replace && written.Failure->Reason == std::errc::permission_denied;
    return Message(*written.Failure) +
           (isHeld ? QStringLiteral("; the next change is written again") : QString());
}

QString WhyNotKept(const QString& why) {
    return TrProgram("What is there was not made by Orvane, and no copy of it could be kept (%1). Move it "
                     "away or save the document under another name")
        .arg(why);
}

} // namespace

DatedProgram ProgramOf(const FsmDocument& document, const QString& documentPath) {
    const BannerMoment moment = BannerDate(std::time(nullptr), std::getenv("SOURCE_DATE_EPOCH"));
    return {GenerateProgram(document, {PathInProgram(documentPath.toStdString()), moment.Date}),
            QString::fromLocal8Bit(moment.Fault.c_str())};
}

std::optional<WriteOutcome> ProgramFile::Write(const QString& documentPath, const std::string& program) {
    return writer_.Write(NativePath(documentPath), program);
}

// It can be made again at any time, so nobody waits for the disk, and it is written after every change in the
// table, so that nobody waits longer than he notices for another program that has it open.
WrittenFile ProgramFile::WriteQuickly(const FileSystem::Path& path,
                                      std::initializer_list<std::string_view> pieces) {
    const WriteOptions options{Outlives::Process, SpecialFiles::Refused, std::chrono::milliseconds(100)};
    return WriteFile(files_, path, pieces, options);
}

FileContent ProgramFile::ReadProgram(const FileSystem::Path& path) {
    return ReadFile(files_, path, kLargestProgram);
}

WriteOutcome ProgramFile::WriteTo(const FileSystem::Path& document, std::string_view program) {
    const QString documentPath = QDir::toNativeSeparators(QString::fromStdU16String(document.u16string()));
    const FileSystem::Path path = PathBeside(documentPath);
    if (IsSameFile(files_, path, document))
        return {"It would take the place of the document; save that under another name"};
    if (!ahead_ || ahead_->DocumentPath != documentPath) {
        if (const QString why = Begin(documentPath, path); !why.isEmpty())
            return {why.toStdString()};
    }
    const WrittenFile written = WriteQuickly(path, {program, kProgramFileEnd});
    if (written)
        ahead_->Written = written.Stamp;
    for (const FileNote note : written.Notes) {
        if (std::find(ahead_->Notes.begin(), ahead_->Notes.end(), note) == ahead_->Notes.end())
            ahead_->Notes.push_back(note);
    }
    return {WhyUnwritten(written).toStdString(), ahead_->Copy, ahead_->Notes};
}

// The first write since the document was opened or saved. What cannot be read because it is no file is left
// to the writer, which refuses it too.
QString ProgramFile::Begin(const QString& documentPath, const FileSystem::Path& path) {
    const FileContent there = ReadProgram(path);
    if (there.Failure && there.Failure->Reason != std::errc::no_such_file_or_directory &&
        !there.Failure->Refused)
        return WhyNotKept(Message(*there.Failure));
    Result<FileSystem::Path> copy;
    if (there && there.Length > 0 && !HasProgramBanner(there.Bytes()))
        copy = KeepForUser(files_, path, there.Bytes());
    if (copy.Failure)
        return WhyNotKept(QString::fromStdString(ReasonText(copy.Failure)));
    ahead_ = {.DocumentPath = documentPath,
              .Former = there ? std::optional(std::string(there.Bytes())) : std::nullopt,
              .Copy = std::move(copy.Got)};
    return {};
}

QString ProgramFile::TakeSaved(const QString& documentPath) {
    if (ahead_ && NativePath(ahead_->DocumentPath) != NativePath(documentPath))
        return BringBack();
    ahead_.reset();
    return {};
}

QString ProgramFile::BringBack() {
    const std::optional<Ahead> ahead = std::exchange(ahead_, std::nullopt);
    if (!ahead)
        return {};
    const FileSystem::Path path = PathBeside(ahead->DocumentPath);
    const FileContent there = ReadProgram(path);
    const FileContent document = ReadFile(files_, NativePath(ahead->DocumentPath), kLargestDocument);
    if (!there || there.Stamp != ahead->Written || !document)
        return {};
    const ReadResult saved = ReadDocument(document.Bytes());
    if (saved.Refused)
        return {};
    QString failure;
    const DatedProgram again =
        saved.BrokeOff ? DatedProgram{} : ProgramOf(saved.Document, ahead->DocumentPath);
    if (saved.BrokeOff || again.Program.Findings.HasErrors())
        failure = PutBack(*ahead, path);
    else if (WithoutBanner(again.Program.Text + std::string(kProgramFileEnd)) != WithoutBanner(there.Bytes()))
        failure = again.Failure.isEmpty()
                      ? WhyUnwritten(WriteQuickly(path, {again.Program.Text, kProgramFileEnd}))
                      : again.Failure;
    if (failure.isEmpty())
        return {};
    return TrProgram(
               "The program\r\n%1\r\nstill has changes that were not saved: %2.\r\n\r\nGenerate it again "
               "before you build: open the document and choose Code, Generate.")
        .arg(QDir::toNativeSeparators(QString::fromStdU16String(path.u16string())), failure);
}

QString ProgramFile::PutBack(const Ahead& ahead, const FileSystem::Path& path) {
    if (ahead.Former)
        return WhyUnwritten(WriteQuickly(path, {*ahead.Former}));
    const std::error_code failure = files_.Remove(path);
    return failure ? QString::fromStdString(ReasonText(failure)) : QString();
}

} // namespace orvane
