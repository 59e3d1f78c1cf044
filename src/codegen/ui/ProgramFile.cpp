// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ui/ProgramFile.h"

#include "codegen/BannerDate.h"
#include "codegen/PathInProgram.h"
#include "codegen/ProgramBanner.h"
#include "files/FileReader.h"
#include "files/FileWriter.h"
#include "files/NativeFiles.h"
#include "kit/DocumentFile.h"
#include "kit/FilePath.h"
#include "session/UserRecoveryFolder.h"
#include "text/SiblingPath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cstdlib>
#include <ctime>
#include <utility>

namespace orvane {

namespace {

constexpr std::size_t kLargestProgram = 64u << 20; // bytes; far above any

QString Translated(const char* text) { return QCoreApplication::translate("ProgramFile", text); }

// Also through a link, and in whatever case where the system does not tell cases apart.
bool IsSameFile(const QString& one, const QString& other) {
    const QFileInfo file(one);
    return file.exists() && file == QFileInfo(other);
}

QString PathBeside(const QString& documentPath) {
    return QString::fromStdString(ProgramFilePath(documentPath.toStdString()));
}

// It can be made again at any time, so nobody waits for the disk, and it is written after every change in the
// table, so that nobody waits longer than he notices for another program that has it open.
WrittenFile WriteQuickly(const QString& path, std::initializer_list<std::string_view> pieces) {
    NativeFiles files;
    const WriteOptions options{Outlives::Process, SpecialFiles::Refused, std::chrono::milliseconds(100)};
    return WriteFile(files, NativePath(path), pieces, options);
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

FileContent ReadProgram(const QString& path) {
    NativeFiles files;
    return ReadFile(files, NativePath(path), kLargestProgram);
}

QString WhyNotKept(const QString& why) {
    return Translated("What is there was not made by Orvane, and no copy of it could be kept (%1). Move it "
                      "away or save the document under another name")
        .arg(why);
}

ProgramFile::Outcome KeepForeign(const QString& path, std::string_view bytes) {
    NativeFiles files;
    const Result<std::filesystem::path> copy = KeepForUser(files, NativePath(path), bytes);
    if (copy.Failure)
        return {WhyNotKept(QString::fromStdString(ReasonText(copy.Failure))), {}};
    return {{}, QString::fromStdU16String(copy.Got.u16string())};
}

} // namespace

DatedProgram ProgramOf(const FsmDocument& document, const QString& documentPath) {
    const BannerMoment moment = BannerDate(std::time(nullptr), std::getenv("SOURCE_DATE_EPOCH"));
    return {GenerateProgram(document, {PathInProgram(documentPath.toStdString()), moment.Date}),
            QString::fromLocal8Bit(moment.Fault.c_str())};
}

ProgramFile::Outcome ProgramFile::Write(const QString& documentPath, const std::string& program) {
    const QString path = PathBeside(documentPath);
    if (IsSameFile(path, documentPath))
        return {QStringLiteral("It would take the place of the document; save that under another name"), {}};
    Outcome outcome;
    if (!ahead_ || ahead_->DocumentPath != documentPath)
        outcome = Begin(documentPath, path);
    if (!outcome.Failure.isEmpty())
        return outcome;
    const WrittenFile written = WriteQuickly(path, {program, kProgramFileEnd});
    if (written)
        ahead_->Written = written.Stamp;
    outcome.Failure = WhyUnwritten(written);
    return outcome;
}

// The first write since the document was opened or saved. What cannot be read because it is no file is left
// to the writer, which refuses it too.
ProgramFile::Outcome ProgramFile::Begin(const QString& documentPath, const QString& path) {
    const FileContent there = ReadProgram(path);
    Outcome outcome;
    if (there.Failure && there.Failure->Reason != std::errc::no_such_file_or_directory &&
        !there.Failure->Refused)
        return {WhyNotKept(Message(*there.Failure)), {}};
    if (there && there.Length > 0 && !HasProgramBanner(there.Bytes()))
        outcome = KeepForeign(path, there.Bytes());
    if (!outcome.Failure.isEmpty())
        return outcome;
    ahead_ = {documentPath, there ? std::optional(std::string(there.Bytes())) : std::nullopt, {}};
    return outcome;
}

QString ProgramFile::TakeSaved(const QString& documentPath) {
    if (ahead_ && ahead_->DocumentPath != documentPath)
        return BringBack();
    ahead_.reset();
    return {};
}

QString ProgramFile::BringBack() {
    const std::optional<Ahead> ahead = std::exchange(ahead_, std::nullopt);
    if (!ahead)
        return {};
    const QString path = PathBeside(ahead->DocumentPath);
    const FileContent there = ReadProgram(path);
    const DocumentFile saved = ReadDocumentFile(ahead->DocumentPath);
    if (!there || there.Stamp != ahead->Written || !saved.Content)
        return {};
    QString failure;
    const DatedProgram again =
        saved.Content->BrokeOff ? DatedProgram{} : ProgramOf(saved.Content->Document, ahead->DocumentPath);
    if (saved.Content->BrokeOff || again.Program.Findings.HasErrors())
        failure = PutBack(*ahead, path);
    else if (WithoutBanner(again.Program.Text + std::string(kProgramFileEnd)) != WithoutBanner(there.Bytes()))
        failure = again.Failure.isEmpty()
                      ? WhyUnwritten(WriteQuickly(path, {again.Program.Text, kProgramFileEnd}))
                      : again.Failure;
    if (failure.isEmpty())
        return {};
    return Translated(
               "The program\r\n%1\r\nstill has changes that were not saved: %2.\r\n\r\nGenerate it again "
               "before you build: open the document and choose Code, Generate.")
        .arg(QDir::toNativeSeparators(path), failure);
}

QString ProgramFile::PutBack(const Ahead& ahead, const QString& path) {
    if (ahead.Former)
        return WhyUnwritten(WriteQuickly(path, {*ahead.Former}));
    NativeFiles files;
    const std::error_code failure = files.Remove(NativePath(path));
    return failure ? QString::fromStdString(ReasonText(failure)) : QString();
}

} // namespace orvane
