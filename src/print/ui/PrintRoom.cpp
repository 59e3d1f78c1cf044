// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/PrintRoom.h"

#include "core/DocumentWriter.h"
#include "files/FileWriter.h"
#include "files/NativeFiles.h"
#include "kit/FilePath.h"
#include "kit/UserMessageBox.h"
#include "print/ui/frmPrint.h"
#include "session/Commands.h"
#include "session/Session.h"
#include "text/Sha256.h"

#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QPrintDialog>
#include <QPrinter>

#include <array>

namespace orvane {

namespace {

// SOURCE_DATE_EPOCH stands for the clock where it is set, so that the same print has the same words.
QString DateText() {
    bool isSet = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isSet);
    const QDateTime moment =
        isSet ? QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC) : QDateTime::currentDateTime();
    return moment.toString(QStringLiteral("yyyy-MM-dd HH:mm"));
}

} // namespace

std::span<const Command> PrintRoom::Commands() const {
    static constexpr auto commands = std::to_array<Command>({Command::FilePrint});
    return commands;
}

ObserverRank PrintRoom::Rank() const { return ObserverRank::Rooms; }

void PrintRoom::Run(Command) {
    frmPrint dialog(session_.Document(), Facts(), &window_);
    const QString path = QString::fromStdString(session_.Path());
    dialog.ShowNames(RememberedNames(path));
    connect(&dialog, &frmPrint::PrintWanted, this,
            [&](const std::shared_ptr<const Printout>& printout) { Print(dialog, *printout); });
    connect(&dialog, &frmPrint::FileAsked, this, [&](QString& file) {
        file = QFileDialog::getSaveFileName(&dialog, tr("Save as PDF"), FileBeside(), tr("PDF (*.pdf)"));
    });
    connect(&dialog, &frmPrint::PdfMade, this,
            [&](const QString& file, const QByteArray& bytes) { Write(dialog, file, bytes); });
    dialog.exec();
    RememberNames(path, dialog.Names());
    RememberPaper(dialog.Paper());
}

print::CoverFacts PrintRoom::Facts() const {
    print::CoverFacts facts;
    const QString path = QString::fromStdString(session_.Path());
    facts.File = QDir::toNativeSeparators(path).toStdString();
    facts.Date = DateText().toStdString();
    facts.DocumentDigest = DocumentDigest();
    facts.ProgramDigest = print::ProgramDigestOf(session_.Document(), facts.File);
    return facts;
}

// Of the file while it is what is printed, so that anybody can compare it; else of what a save would write.
std::string PrintRoom::DocumentDigest() const {
    if (session_.Stamp() && !session_.IsModified())
        return DigestText(session_.Stamp()->Sha256);
    return DigestText(Sha256(WriteDocument(session_.Document()))) + " (with changes that are not saved)";
}

QString PrintRoom::FileBeside() const {
    const QFileInfo document(QString::fromStdString(session_.Path()));
    const QString name = session_.Path().empty() ? QStringLiteral("machine") : document.completeBaseName();
    return document.path() + QLatin1Char('/') + name + QStringLiteral(".pdf");
}

void PrintRoom::Print(frmPrint& dialog, const Printout& printout) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(printout.Paper());
    printer.setDocName(QFileInfo(FileBeside()).completeBaseName());
    QPrintDialog asked(&printer, &dialog);
    asked.setMinMax(1, printout.Pages());
    if (asked.exec() != QDialog::Accepted)
        return;
    printer.setPageLayout(printout.Paper()); // the pages are made for it, whatever the printer prefers
    const int first = std::max(printer.fromPage(), 1);
    const int last = printer.toPage() == 0 ? printout.Pages() : std::min(printer.toPage(), printout.Pages());
    if (!printout.PaintOn(printer, printer.resolution(), first - 1, last - 1))
        return Tell(&dialog, tr("The printer %1 did not take the pages.").arg(printer.printerName()),
                    QMessageBox::Warning);
    dialog.accept();
    Q_EMIT Said(tr("Printed: %1").arg(printer.docName()));
}

void PrintRoom::Write(frmPrint& dialog, const QString& path, const QByteArray& bytes) {
    const QString shown = QDir::toNativeSeparators(path);
    if (bytes.isEmpty())
        return Tell(&dialog, tr("The pages could not be made."), QMessageBox::Warning);
    NativeFiles files;
    const WrittenFile written =
        WriteFile(files, NativePath(path), {{bytes.constData(), std::size_t(bytes.size())}});
    if (written.Failure)
        return Tell(&dialog,
                    tr("The file\r\n%1\r\nwas not written: %2.").arg(shown, Message(*written.Failure)),
                    QMessageBox::Warning);
    dialog.accept();
    Q_EMIT Said(tr("Printed: %1").arg(shown));
}

} // namespace orvane
