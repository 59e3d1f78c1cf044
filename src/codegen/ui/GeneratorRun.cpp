// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ui/GeneratorRun.h"

#include "codegen/BannerDate.h"
#include "codegen/PathInProgram.h"
#include "core/ui/RenewableFile.h"

#include <cstdlib>
#include <ctime>

namespace orvane {

void GeneratorRun::Run(const FsmDocument& document, const QString& documentPath) {
    Generate(document, documentPath);
    if (!documentPath.isEmpty() && !latest_.Findings.HasErrors())
        WriteProgram(QString::fromStdString(ProgramFilePath(documentPath.toStdString())));
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

void GeneratorRun::WriteProgram(const QString& path) {
    const std::optional<QString> failure = WriteRenewableFile(path, {latest_.Text, kProgramFileEnd});
    generatedOk_ = !failure;
    if (!failure) {
        toldPath_.clear();
    } else if (toldPath_ != path) {
        toldPath_ = path;
        Q_EMIT WriteFailed(path, *failure);
    }
}

} // namespace orvane
