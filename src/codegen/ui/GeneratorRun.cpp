// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ui/GeneratorRun.h"

#include "text/SiblingPath.h"

#include <utility>

namespace orvane {

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
    DatedProgram run = ProgramOf(document, documentPath);
    latest_ = std::move(run.Program);
    dateFault_ = run.Failure;
}

void GeneratorRun::WriteProgram(const QString& documentPath) {
    const QString path = QString::fromStdString(ProgramFilePath(documentPath.toStdString()));
    const ProgramFile::Outcome outcome =
        dateFault_.isEmpty() ? file_.Write(documentPath, latest_.Text) : ProgramFile::Outcome{dateFault_, {}};
    generatedOk_ = outcome.Failure.isEmpty();
    if (!outcome.Copy.isEmpty())
        Q_EMIT Kept(path, outcome.Copy);
    if (generatedOk_) {
        toldPath_.clear();
    } else if (toldPath_ != path) {
        toldPath_ = path;
        Q_EMIT WriteFailed(path, outcome.Failure);
    }
}

} // namespace orvane
