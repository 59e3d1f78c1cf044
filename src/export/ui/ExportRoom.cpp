// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/ui/ExportRoom.h"

#include "core/TightPacked.h"
#include "export/ui/frmExport.h"
#include "export/ui/frmImport.h"
#include "files/FileWriter.h"
#include "files/NativeFiles.h"
#include "kit/FilePath.h"
#include "kit/UserMessageBox.h"
#include "kit/Utf8String.h"
#include "session/Commands.h"
#include "session/Session.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>

#include <array>

namespace orvane {

namespace {

EditStep ImportStep() { return {EntryOf(Command::FileImport).Step, {Touched::Extent::Everything, {}}}; }

} // namespace

std::span<const Command> ExportRoom::Commands() const {
    static constexpr auto commands = std::to_array<Command>({Command::FileExport, Command::FileImport});
    return commands;
}

ObserverRank ExportRoom::Rank() const { return ObserverRank::Rooms; }

void ExportRoom::Run(Command command) {
    if (command == Command::FileExport)
        Export();
    else
        Import();
}

void ExportRoom::Export() {
    frmExport dialog(session_.Document(), &window_);
    if (dialog.exec() == QDialog::Accepted)
        Write(dialog);
}

// The name of the document with the ending of the form, beside it, is what is offered.
void ExportRoom::Write(const frmExport& asked) {
    const exports::Form& form = asked.Chosen();
    const QFileInfo document(QString::fromStdString(session_.Path()));
    const QString name = session_.Path().empty() ? QStringLiteral("machine") : document.completeBaseName();
    const QString path = QFileDialog::getSaveFileName(
        &window_, tr("Export"), document.path() + QLatin1Char('/') + name + FromUtf8(form.Ending),
        FromUtf8(form.Title) + QStringLiteral(" (*%1);;").arg(FromUtf8(form.Ending)) + tr("All files (*)"));
    if (path.isEmpty())
        return;
    const std::string bytes = form.Write(session_.Document(), asked.HowFormulas());
    NativeFiles files;
    const WrittenFile written = WriteFile(files, NativePath(path), {bytes});
    const QString shown = QDir::toNativeSeparators(path);
    if (written.Failure)
        return Tell(&window_,
                    tr("The file\r\n%1\r\nwas not written: %2.").arg(shown, Message(*written.Failure)),
                    QMessageBox::Warning);
    Q_EMIT Said(tr("Exported: %1").arg(shown));
}

void ExportRoom::Import() {
    frmImport dialog(QFileInfo(QString::fromStdString(session_.Path())).path(), &window_);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (dialog.IsIntoOpen())
        TakeIntoOpen(dialog.Imported());
    else
        TakeAsNew(dialog.Imported());
}

// How the open document is looked at stays: undo does not bring it back.
void ExportRoom::TakeIntoOpen(const FsmDocument& imported) {
    const std::optional<UserMessage> refusal =
        session_.Edit(ImportStep(), [&](const Editable& open) -> std::optional<UserMessage> {
            FsmDocument changed = open.Document;
            const std::vector<std::string> faults = Unpack(Pack(imported), changed);
            if (!faults.empty())
                return UserMessage{faults.front()};
            open.Document = std::move(changed);
            return std::nullopt;
        });
    if (refusal)
        Show(&window_, *refusal);
    else
        Q_EMIT Said(tr("Imported into this document; Undo takes it back"));
}

// It counts as changed: there is no file of it yet.
void ExportRoom::TakeAsNew(const FsmDocument& imported) {
    bool mayLeave = false;
    Q_EMIT LeaveWanted(mayLeave);
    if (!mayLeave)
        return;
    session_.Replace(FsmDocument(), {});
    session_.Edit(ImportStep(), [&](const Editable& open) { open.Document = imported; });
    Q_EMIT Said(tr("Imported as a new document"));
}

} // namespace orvane
