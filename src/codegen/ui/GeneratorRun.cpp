// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ui/GeneratorRun.h"

#include "codegen/PathInProgram.h"
#include "files/FileWriter.h"
#include "files/NativeFiles.h"
#include "kit/FilePath.h"
#include "text/SiblingPath.h"

#include <QFileInfo>

#include <cstdlib>
#include <ctime>

namespace orvane {

namespace {

// Also through a link, and in whatever case where the system does not tell cases apart.
bool IsSameFile(const QString& one, const QString& other) {
    const QFileInfo file(one);
    return file.exists() && file == QFileInfo(other);
}

// Why the program could not be written; empty when it was. It can be made again at any time, so nobody waits
// for the disk, and it is written after every change in the table, so that nobody waits longer than he
// notices for another program that has it open.
QString Written(const QString& path, std::initializer_list<std::string_view> pieces) {
    NativeFiles files;
    const WriteOptions options{Outlives::Process, SpecialFiles::Refused, std::chrono::milliseconds(100)};
    const WrittenFile written = WriteFile(files, NativePath(path), pieces, options);
    if (!written.Failure)
        return {};
    const bool isHeld =
        written.Failure->Step == FileStep::Replace && written.Failure->Reason == std::errc::permission_denied;
    return Message(*written.Failure) +
           (isHeld ? QStringLiteral("; the next change is written again") : QString());
}

} // namespace

void GeneratorRun::Run(const FsmDocument& document, const QString& documentPath) {
    Generate(document, documentPath);
    if (!documentPath.isEmpty() && !latest_.Findings.HasErrors())
        WriteProgram(documentPath);
    Q_EMIT Finished();
}

void GeneratorRun::RunWithoutFile(const FsmDocument& document, const QString& documentPath) {
    Generate(document, documentPath);
    Q_EMIT Finished();
}

void GeneratorRun::Generate(const FsmDocument& document, const QString& documentPath) {
    generatedOk_ = false;
    date_ = BannerDate(std::time(nullptr), std::getenv("SOURCE_DATE_EPOCH"));
    latest_ = GenerateProgram(document, {PathInProgram(documentPath.toStdString()), date_.Date});
}

void GeneratorRun::WriteProgram(const QString& documentPath) {
    const QString path = QString::fromStdString(ProgramFilePath(documentPath.toStdString()));
    const QString failure = WriteProgramTo(path, documentPath);
    generatedOk_ = failure.isEmpty();
    if (generatedOk_) {
        toldPath_.clear();
    } else if (toldPath_ != path) {
        toldPath_ = path;
        Q_EMIT WriteFailed(path, failure);
    }
}

QString GeneratorRun::WriteProgramTo(const QString& path, const QString& documentPath) const {
    if (IsSameFile(path, documentPath))
        return QStringLiteral("It would take the place of the document; save that under another name");
    if (!date_.Fault.empty())
        return QString::fromLocal8Bit(date_.Fault.c_str());
    return Written(path, {latest_.Text, kProgramFileEnd});
}

} // namespace orvane
