// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ui/GeneratorRun.h"

#include "kit/FilePath.h"
#include "text/SiblingPath.h"

#include <algorithm>
#include <utility>

namespace orvane {

GeneratorRun::GeneratorRun(FileSystem& files, QObject* parent) : QObject(parent), file_(files, *this) {}

GeneratorRun::~GeneratorRun() = default;

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
    generatedOk_ = isAwaited_ = false;
    DatedProgram run = ProgramOf(document, documentPath);
    latest_ = std::move(run.Program);
    dateFault_ = run.Failure;
}

void GeneratorRun::WriteProgram(const QString& documentPath) {
    const QString path = QString::fromStdString(ProgramFilePath(documentPath.toStdString()));
    if (path_ != path)
        toldNotes_.clear();
    path_ = path;
    isAwaited_ = true;
    const std::optional<WriteOutcome> outcome = dateFault_.isEmpty() ? file_.Write(documentPath, latest_.Text)
                                                                     : WriteOutcome{dateFault_.toStdString()};
    if (outcome)
        Take(*outcome);
}

// In the writing thread.
void GeneratorRun::OutcomeIsThere() {
    QMetaObject::invokeMethod(this, &GeneratorRun::TakeLateOutcome, Qt::QueuedConnection);
}

// There is none when somebody has waited for it meanwhile, or when a newer program is being written.
void GeneratorRun::TakeLateOutcome() {
    if (const std::optional<WriteOutcome> outcome = file_.TakeOutcome()) {
        Take(*outcome);
        Q_EMIT WrittenLate();
    }
}

void GeneratorRun::Finish() {
    if (const std::optional<WriteOutcome> outcome = file_.Finish())
        Take(*outcome);
}

// It may be that of an earlier run, when the last one had errors and wrote nothing.
void GeneratorRun::Take(const WriteOutcome& outcome) {
    const bool isWritten = outcome.Failure.empty();
    generatedOk_ = std::exchange(isAwaited_, false) && isWritten;
    TellCopyAndNotes(outcome);
    if (isWritten) {
        toldPath_.clear();
    } else if (toldPath_ != path_) {
        toldPath_ = path_;
        Q_EMIT WriteFailed(path_, QString::fromStdString(outcome.Failure));
    }
}

void GeneratorRun::TellCopyAndNotes(const WriteOutcome& outcome) {
    QStringList notes;
    for (const FileNote note : outcome.Notes) {
        if (std::find(toldNotes_.begin(), toldNotes_.end(), note) != toldNotes_.end())
            continue;
        toldNotes_.push_back(note);
        notes += Message(note);
    }
    if (!notes.isEmpty())
        Q_EMIT Noted(path_, notes);
    if (!outcome.Copy.empty() && std::exchange(toldCopy_, outcome.Copy) != outcome.Copy)
        Q_EMIT Kept(path_, QString::fromStdU16String(outcome.Copy.u16string()));
}

QString GeneratorRun::TakeSaved(const QString& documentPath) {
    Finish();
    return file_.TakeSaved(documentPath);
}

QString GeneratorRun::LeaveDocument() {
    Finish();
    return file_.BringBack();
}

} // namespace orvane
