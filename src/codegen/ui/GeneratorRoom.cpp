// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ui/GeneratorRoom.h"

#include "codegen/Reachability.h"
#include "codegen/ui/frmGenerator.h"
#include "files/NativeFiles.h"
#include "kit/UserMessageBox.h"
#include "kit/WhenIdle.h"
#include "session/Commands.h"
#include "session/Session.h"
#include "text/SiblingPath.h"

#include <QDir>
#include <QFileInfo>
#include <QMainWindow>

#include <utility>

namespace orvane {

namespace {

// Of every line end, of whatever kind, a blank.
std::string OnOneLine(std::string text) {
    for (const std::string_view end : {"\r\n", "\r", "\n"}) {
        for (std::size_t at = text.find(end); at != std::string::npos; at = text.find(end, at))
            text.replace(at, end.size(), " ");
    }
    return text;
}

constexpr FindingLevel LevelOf(Severity severity) {
    return severity == Severity::Error     ? FindingLevel::Error
           : severity == Severity::Warning ? FindingLevel::Warning
                                           : FindingLevel::Note;
}

std::vector<DesignFinding> ReportForAll(const Report& report) {
    std::vector<DesignFinding> findings;
    findings.reserve(report.Findings.size());
    for (const Finding& finding : report.Findings)
        findings.push_back({LevelOf(finding.Level()), finding.Place, OnOneLine(finding.Message)});
    return findings;
}

} // namespace

GeneratorRoom::GeneratorRoom(const RoomPlace& place)
    : GeneratorRoom(place, std::make_unique<NativeFiles>()) {}

GeneratorRoom::GeneratorRoom(const RoomPlace& place, std::unique_ptr<FileSystem> files)
    : session_(place.Open),
      words_(place.Words),
      window_(place.Window),
      files_(std::move(files)),
      generator_(*files_) {
    connect(&generator_, &GeneratorRun::Finished, this, &GeneratorRoom::ShowRun);
    connect(&generator_, &GeneratorRun::WriteFailed, this, [this](const QString& path, const QString& why) {
        toTell_ += tr("The generated program could not be written to\r\n%1\r\n%2.")
                       .arg(QDir::toNativeSeparators(path), why);
    });
    connect(&generator_, &GeneratorRun::Kept, this, [this](const QString& path, const QString& copy) {
        Q_EMIT Said(tr("%1 was not made by Orvane. What was in it is kept as %2")
                        .arg(QFileInfo(path).fileName(), QDir::toNativeSeparators(copy)));
    });
    connect(&generator_, &GeneratorRun::Noted, this, [this](const QString& path, const QStringList& notes) {
        Q_EMIT Said(QFileInfo(path).fileName() + QStringLiteral(": ") + notes.join(QStringLiteral(". ")));
    });
    connect(&generator_, &GeneratorRun::WrittenLate, this, &GeneratorRoom::TakeLateFile);
    session_.Observe(ObserverRank::Messages, failureBox_);
}

GeneratorRoom::~GeneratorRoom() = default;

std::span<const Command> GeneratorRoom::Commands() const {
    static constexpr auto commands = std::to_array<Command>({Command::Generate});
    return commands;
}

void GeneratorRoom::Run(Command) {
    session_.WantProgram();
    Window().Present();
}

// Which states can be deleted is asked when their menu comes up.
void GeneratorRoom::Prepare(const CommandEntry& next) {
    if (next.Id != Command::StateMenu)
        return;
    const Reachability reachability = ComputeReachability(session_.Document());
    ProgramState program = session_.Program();
    for (const StateNumber state : StateNumbers())
        program.Reached.set(IndexIn(TableColumns(), state), reachability.Reached(state));
    session_.SetProgram(program);
}

ObserverRank GeneratorRoom::Rank() const { return ObserverRank::Generator; }

// The program of a document that was only opened is not touched.
void GeneratorRoom::Told(const Change& change) {
    const QString path = QString::fromStdString(session_.Path());
    if (change.Kind == ChangeKind::Replaced || change.Kind == ChangeKind::Saved)
        MakeProgramsAgree(change.Kind);
    if (change.Kind == ChangeKind::Replaced)
        generator_.RunWithoutFile(session_.Document(), path);
    else if (RunsTheGenerator(change.Kind))
        generator_.Run(session_.Document(), path);
    else
        return;
    if (change.Kind == ChangeKind::ProgramWanted)
        generator_.Finish();
    TellSession();
}

void GeneratorRoom::TellSession() {
    ProgramState program = session_.Program();
    program.Written = generator_.GeneratedOk();
    session_.SetProgram(program);
    session_.SetReport(ReportForAll(generator_.Latest().Findings));
}

// Nobody waits for it, so what went wrong is told by itself.
void GeneratorRoom::TakeLateFile() {
    TellSession();
    ShowRun();
    if (generator_.GeneratedOk())
        Q_EMIT Said(tr("Program written: %1")
                        .arg(QFileInfo(QString::fromStdString(ProgramFilePath(session_.Path()))).fileName()));
    TellTroubleOnceIdle();
}

// What was not saved leaves no program behind.
void GeneratorRoom::MakeProgramsAgree(ChangeKind kind) {
    const QString trouble = kind == ChangeKind::Saved
                                ? generator_.TakeSaved(QString::fromStdString(session_.Path()))
                                : generator_.LeaveDocument();
    if (!trouble.isEmpty())
        toTell_ += trouble;
}

// Who asked for the program waits for it; who draws must not have the next key taken by a box.
void GeneratorRoom::FailureBox::Told(const Change& change) {
    const bool isAsked = change.Kind == ChangeKind::ProgramWanted || change.Kind == ChangeKind::Replaced ||
                         change.Kind == ChangeKind::Saved || change.Kind == ChangeKind::Left;
    if (isAsked)
        room_.TellTrouble();
    else
        room_.TellTroubleOnceIdle();
}

void GeneratorRoom::TellTroubleOnceIdle() {
    if (toTell_.isEmpty() || isToldLater_)
        return;
    isToldLater_ = true;
    OnceIdle(*this, [this] {
        isToldLater_ = false;
        TellTrouble();
    });
}

void GeneratorRoom::TellTrouble() {
    for (const QString& text : std::exchange(toTell_, {}))
        Tell(&window_, text);
}

void GeneratorRoom::ShowRun() {
    if (frmGenerator_)
        frmGenerator_->TakeRun(generator_.Latest(), FateOfProgram());
}

QString GeneratorRoom::FateOfProgram() const {
    if (generator_.Latest().Findings.HasErrors())
        return tr("Not written: the design has errors");
    if (session_.Path().empty())
        return tr("Not written: the document has no file yet");
    if (generator_.IsWriting())
        return tr("Being written: the drive is slow");
    const QString path = QString::fromStdString(ProgramFilePath(session_.Path()));
    return generator_.GeneratedOk() ? tr("Written to %1").arg(QDir::toNativeSeparators(path))
                                    : tr("Not written");
}

frmGenerator& GeneratorRoom::Window() {
    if (!frmGenerator_) {
        frmGenerator_ = std::make_unique<frmGenerator>();
        frmGenerator_->SetVocabulary(words_);
        connect(frmGenerator_.get(), &frmGenerator::PlaceChosen, this, &Room::PlaceChosen);
        ShowRun();
    }
    return *frmGenerator_;
}

// The next start generates again what the user takes back.
void GeneratorRoom::Preserve() { (void)generator_.LeaveDocument(); }

void GeneratorRoom::Close() {
    if (const QString trouble = generator_.LeaveDocument(); !trouble.isEmpty())
        toTell_ += trouble;
    TellTrouble();
    if (frmGenerator_)
        frmGenerator_->hide();
}

} // namespace orvane
