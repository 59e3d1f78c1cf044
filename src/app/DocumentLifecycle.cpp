// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/DocumentLifecycle.h"

#include "app/Remembered.h"
#include "app/ReplaceGuard.h"
#include "core/ForeignBytes.h"
#include "kit/AnsiString.h"
#include "kit/CommandLine.h"
#include "kit/DocumentFile.h"
#include "kit/Trace.h"
#include "kit/UserMessageBox.h"
#include "session/Commands.h"
#include "session/Session.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr std::size_t kMostBoxes = 5;  // messages about one file that get a box of their own
constexpr std::size_t kMostLines = 20; // of those that share the last box

QString SettingsFile() { return QStringLiteral("ORVANE_INI.zfsm"); }

bool IsSettingsFile(const QString& path) {
    return QFileInfo(path).fileName().compare(SettingsFile(), Qt::CaseInsensitive) == 0;
}

// Each as a caption and the patterns behind it, which the dialogs hide: the captions name them already.
QString ConfigFilter() { return QStringLiteral("Config file (*.zfsm) (*.zfsm)"); }

QString FileFilter() { return QStringLiteral("All Files (*.*) (*);;") + ConfigFilter(); }

// As the system writes paths, because the program's comments and the builder script name the document by it.
QString FullPath(const QString& path) { return QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath()); }

JournalStamp StampOf(const FileStamp& file, const Sha256Digest& digest) {
    return {file.Size, file.Changed, digest};
}

// An empty document. The labels mark its steps: cleared (CDB...), then general code (NGa), view (NGb), file
// name (NGc), history (NGd) and what stands beside the table (NGe) are those of a new one.
FsmDocument FreshDocument() {
    FsmDocument document;
    document.ClearDataBase(false, Trace);
    for (const char* label : {"In NewGrid", "NGa", "NGb", "NGc", "NGd", "NGe"})
        Trace(label);
    return document;
}

} // namespace

DocumentLifecycle::DocumentLifecycle(const RoomPlace& place) : session_(place.Open), window_(&place.Window) {}

std::span<const Command> DocumentLifecycle::Commands() const {
    static constexpr auto commands = std::to_array<Command>(
        {Command::FileNew, Command::FileOpen, Command::FileSave, Command::FileSaveAs, Command::FileQuit});
    return commands;
}

void DocumentLifecycle::Run(Command command) {
    switch (command) {
    case Command::FileNew:
        return New();
    case Command::FileOpen:
        return Open();
    case Command::FileSave:
        Save();
        return;
    case Command::FileQuit:
        window_->close();
        return;
    default:
        SaveAs();
    }
}

ObserverRank DocumentLifecycle::Rank() const { return ObserverRank::Title; }

void DocumentLifecycle::Start(const CommandLine& commandLine) {
    if (commandLine.DocumentPath.isEmpty())
        LoadSettings();
    else
        Load(commandLine.DocumentPath);
}

void DocumentLifecycle::NewGrid() {
    session_.Replace(FreshDocument(), {});
    Trace("NGf");
}

void DocumentLifecycle::New() {
    if (GuardUnsavedWork(QStringLiteral("Orvane"), QStringLiteral("Save changes?")) && OthersMayLeave())
        NewGrid();
}

void DocumentLifecycle::Open() {
    if (!GuardBeforeOpen())
        return;
    const QString path =
        QFileDialog::getOpenFileName(window_, QStringLiteral("Open"), StartFolder(), FileFilter(), nullptr,
                                     QFileDialog::HideNameFilterDetails);
    if (!path.isEmpty())
        Load(path);
}

void DocumentLifecycle::OpenDocument(const QString& path) {
    if (GuardBeforeOpen())
        Load(path);
}

bool DocumentLifecycle::GuardBeforeOpen() {
    return GuardUnsavedWork(QStringLiteral("Save?"), QStringLiteral("Save current file?")) &&
           OthersMayLeave();
}

bool DocumentLifecycle::OthersMayLeave() {
    bool mayLeave = true;
    Q_EMIT LeaveAsked(mayLeave);
    return mayLeave;
}

bool DocumentLifecycle::Save() { return session_.Path().empty() ? SaveAs() : WriteTo(FileName()); }

bool DocumentLifecycle::SaveAs() {
    QFileDialog dialog(window_, QStringLiteral("Save As"), StartFolder(), FileFilter());
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("zfsm"));
    dialog.selectNameFilter(ConfigFilter());
    dialog.selectFile(NameToOffer());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return false;
    return WriteTo(dialog.selectedFiles().constFirst());
}

bool DocumentLifecycle::MayClose() {
    return GuardUnsavedWork(QStringLiteral("Orvane"), QStringLiteral("Save changes?"));
}

bool DocumentLifecycle::GuardUnsavedWork(const QString& title, const QString& question) {
    if (!session_.IsModified())
        return true;
    switch (AskYesNoCancel(window_, title, question)) {
    case QMessageBox::Yes:
        return Save();
    case QMessageBox::No:
        return true;
    default:
        return false;
    }
}

bool DocumentLifecycle::WriteTo(const QString& path) {
    const QString fullPath = FullPath(path);
    const ReplaceDecision decision = MayReplaceFile(window_, session_, fullPath);
    switch (decision.Answer) {
    case ReplaceAnswer::Nothing:
        return false;
    case ReplaceAnswer::SaveElsewhere:
        return SaveAs();
    case ReplaceAnswer::Save:
        break;
    }
    const bool isSaved = Write(fullPath);
    if (!decision.Copy.isEmpty())
        Q_EMIT Said(tr("What another program had made of the file is kept as %1").arg(decision.Copy));
    return isSaved;
}

bool DocumentLifecycle::Write(const QString& fullPath) {
    const SavedDocument saved = WriteDocumentFile(fullPath, session_.Document());
    if (!saved.Error.isEmpty()) {
        Tell(window_,
             QStringLiteral("The document could not be saved as\r\n%1\r\n%2.\r\n\r\nIt is still open here, "
                            "with all changes. You can save it under another name.")
                 .arg(fullPath, saved.Error));
        return false;
    }
    session_.MarkSaved(fullPath.toStdString(), StampOf(saved.Stamp, saved.Digest));
    RememberFile(fullPath);
    Q_EMIT Said(tr("Saved: %1").arg(fullPath));
    if (!saved.Notes.isEmpty())
        Tell(window_, QStringLiteral("The document is saved as\r\n%1\r\n%2.")
                          .arg(fullPath, saved.Notes.join(QStringLiteral(".\r\n"))));
    return true;
}

void DocumentLifecycle::Load(const QString& path) {
    const QString fullPath = FullPath(path);
    DocumentFile file = ReadDocumentFile(fullPath);
    if (!file.Content) {
        Tell(window_, QStringLiteral("The file\r\n%1\r\ncould not be opened: %2.").arg(fullPath, file.Error));
        return;
    }
    if (const std::optional<Utf8Document> utf8 = ReadAsUtf8(file.File.Bytes());
        utf8 && IsReadAsUtf8(fullPath, *utf8))
        file.Content = ReadDocument(utf8->Bytes);
    const bool hasName = !file.Content->BrokeOff && !IsSettingsFile(fullPath);
    const JournalStamp stamp = StampOf(file.File.Stamp, file.Digest);
    Take(std::move(file.Content->Document), hasName ? fullPath : QString(), stamp);
    TellMessages(fullPath, *file.Content);
    TellConflicts(fullPath, ConflictMarkers(file.File.Bytes()));
}

bool DocumentLifecycle::IsReadAsUtf8(const QString& path, const Utf8Document& document) {
    const QString lost =
        document.IsWhole ? QString() : tr(" Characters that a document cannot hold become \"?\".");
    QMessageBox box(
        QMessageBox::Warning, QStringLiteral("Orvane"),
        tr("The document\r\n%1\r\nwas saved as UTF-8 by another program. Read it as such?\r\n\r\nYes: "
           "its texts are as they were, and the next save writes them as Orvane does.%2\r\nNo: it is "
           "read as it stands, with letters that do not belong there.")
            .arg(path, lost),
        QMessageBox::Yes | QMessageBox::No, window_);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Yes);
    return box.exec() == QMessageBox::Yes;
}

void DocumentLifecycle::TellConflicts(const QString& path, const std::vector<std::size_t>& lines) {
    if (lines.empty())
        return;
    const QString where = lines.size() == 1 ? tr("line %1").arg(lines.front())
                                            : tr("lines %1 and %2").arg(lines.front()).arg(lines.back());
    Tell(window_,
         tr("The document\r\n%1\r\nhas the marks of a merge conflict (%2): two versions of the same "
            "design stand in it, and what is shown is neither. Resolve the conflict with your version "
            "control before you edit or build.")
             .arg(path, where));
}

void DocumentLifecycle::LoadSettings() {
    if (QFileInfo::exists(SettingsFile()))
        Load(SettingsFile());
}

// What broke off keeps no name: a save would put the part that was read in the place of the whole file.
void DocumentLifecycle::Take(FsmDocument document, const QString& fileName, const JournalStamp& stamp) {
    FsmDocument laidOut = FreshDocument(); // every document begins as an empty one
    Trace("NGf");
    laidOut = std::move(document);
    session_.Replace(std::move(laidOut), fileName.toStdString(),
                     fileName.isEmpty() ? std::nullopt : std::optional(stamp));
    if (!fileName.isEmpty())
        RememberFile(fileName);
}

void DocumentLifecycle::TellMessages(const QString& path, const ReadResult& result) {
    const std::size_t count = result.Messages.size() - (result.BrokeOff ? 1 : 0);
    const std::size_t boxes = count <= kMostBoxes ? count : kMostBoxes - 1;
    for (std::size_t i = 0; i < boxes; ++i)
        Tell(window_, FromAnsi(result.Messages[i].Text));
    QStringList rest;
    for (std::size_t i = boxes; i < std::min(count, boxes + kMostLines); ++i)
        rest += FromAnsi(result.Messages[i].Text);
    if (count > boxes + kMostLines)
        rest += QStringLiteral("... and %1 more").arg(count - boxes - kMostLines);
    if (!rest.isEmpty())
        Tell(window_, rest.join(QStringLiteral("\r\n")));
    if (result.BrokeOff)
        TellBreakOff(path, result.Messages.back());
}

void DocumentLifecycle::TellBreakOff(const QString& path, const ReaderMessage& message) {
    Tell(window_, QStringLiteral("%1\r\n(line %2)").arg(FromAnsi(message.Text)).arg(message.Line));
    Tell(window_,
         QStringLiteral("Only what stands before that in\r\n%1\r\nwas read. It has no file name here, "
                        "so that saving it does not replace the file.")
             .arg(path));
}

QString DocumentLifecycle::FileName() const { return QString::fromStdString(session_.Path()); }

// The file's own name, or one made of the machine's; letters that a file name may not have are none of it.
QString DocumentLifecycle::NameToOffer() const {
    if (!FileName().isEmpty())
        return QFileInfo(FileName()).fileName();
    QString name = FromAnsi(session_.Document().General.FsmName).trimmed();
    name.remove(QRegularExpression(QStringLiteral("[\\\\/:*?\"<>|\\x00-\\x1f]")));
    return name.isEmpty() ? QString() : name + QStringLiteral(".zfsm");
}

QString DocumentLifecycle::StartFolder() const { return QFileInfo(FileName()).path(); }

} // namespace orvane
