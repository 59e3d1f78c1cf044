// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ui/GeneratorRun.h"

#include "codegen/BannerDate.h"
#include "codegen/PathInProgram.h"
#include "kit/RenewableFile.h"
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
    latest_ = GenerateProgram(document, {PathInProgram(documentPath.toStdString()),
                                         BannerDate(std::time(nullptr), std::getenv("SOURCE_DATE_EPOCH"))});
}

void GeneratorRun::WriteProgram(const QString& documentPath) {
    const QString path = QString::fromStdString(ProgramFilePath(documentPath.toStdString()));
    const std::optional<QString> failure = IsSameFile(path, documentPath)
                                               ? QStringLiteral("It would take the place of the document; "
                                                                "save that under another name")
                                               : WriteRenewableFile(path, {latest_.Text, kProgramFileEnd});
    generatedOk_ = !failure;
    if (!failure) {
        toldPath_.clear();
    } else if (toldPath_ != path) {
        toldPath_ = path;
        Q_EMIT WriteFailed(path, *failure);
    }
}

} // namespace orvane
