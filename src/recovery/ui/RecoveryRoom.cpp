// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/ui/RecoveryRoom.h"

#include "core/ProgramVersion.h"
#include "kit/AnsiString.h"
#include "kit/DocumentFile.h"
#include "kit/KeepsJournal.h"
#include "kit/UserMessageBox.h"
#include "kit/VersionsToCompare.h"
#include "recovery/ui/RecoveryTexts.h"
#include "recovery/ui/frmRecovery.h"
#include "session/Commands.h"
#include "session/OwnSave.h"
#include "session/Session.h"
#include "session/UserRecoveryFolder.h"

#include <QEvent>
#include <QFileInfo>
#include <QMainWindow>
#include <QWindow>

#include <array>
#include <utility>

namespace orvane {

namespace {

// What the work was begun from: its file as it is now, or an empty table where there is none.
NamedVersion BeganFrom(const QString& path) {
    DocumentFile file = path.isEmpty() ? DocumentFile() : ReadDocumentFile(path);
    if (!file.Content)
        return {RecoveryRoom::tr("an empty table"), std::make_shared<const FsmDocument>()};
    return {RecoveryRoom::tr("%1 on disk").arg(QFileInfo(path).fileName()),
            std::make_shared<const FsmDocument>(std::move(file.Content->Document))};
}

} // namespace

RecoveryRoom::RecoveryRoom(const RoomPlace& place) : session_(place.Open), main_(place.Window) {
    draftsDue_.setSingleShot(true);
    connect(&draftsDue_, &QTimer::timeout, this, &RecoveryRoom::WaitForDrafts);
    if (const std::optional<FileSystem::Path> path = UserRecoveryFolder()) {
        folder_.emplace(files_, *path);
        journal_.emplace(place.Open, JournalPlace{files_, *path, "Orvane " + ProgramVersion(), &TimeNow});
        journal_->Keep(KeepsJournal());
    }
}

RecoveryRoom::~RecoveryRoom() = default;

std::span<const Command> RecoveryRoom::Commands() const {
    static constexpr auto commands = std::to_array<Command>({Command::RecoverWork});
    return commands;
}

void RecoveryRoom::Run(Command) {
    Refresh();
    Window().show();
    Window().raise();
    Window().activateWindow();
}

ObserverRank RecoveryRoom::Rank() const { return ObserverRank::Rooms; }

// The journal has heard the change itself.
void RecoveryRoom::Told(const Change&) {
    if (!draftsDue_.isActive())
        WaitForDrafts();
    if (const std::optional<std::string> message = journal_->TakeMessage())
        Q_EMIT Said(QString::fromStdString(*message));
}

void RecoveryRoom::Preserve() {
    if (!journal_)
        return;
    journal_->WriteDrafts();
    journal_->SyncNow();
}

// The moment moves on while somebody types.
void RecoveryRoom::WaitForDrafts() {
    const std::optional<DraftPace::Clock::time_point> due = journal_->DraftsDue();
    if (!due)
        return;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*due - DraftPace::Clock::now());
    if (left.count() > 0)
        draftsDue_.start(left);
    else
        journal_->WriteDrafts();
}

// The user sees the table first; what the folder costs comes afterwards.
void RecoveryRoom::Start(const CommandLine&) {
    QWindow* window = main_.windowHandle();
    if (window == nullptr || window->isExposed())
        QTimer::singleShot(0, this, &RecoveryRoom::LookAround);
    else
        window->installEventFilter(this);
}

bool RecoveryRoom::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Expose) {
        watched->removeEventFilter(this);
        QTimer::singleShot(0, this, &RecoveryRoom::LookAround);
    }
    return Room::eventFilter(watched, event);
}

// Long journals take their time; meanwhile the user goes on.
void RecoveryRoom::LookAround() {
    if (!folder_)
        return;
    finder_.Begin(
        [this](const std::stop_token&) {
            folder_->Age(TimeNow());
            return ListWork(files_, *folder_);
        },
        [this](const WorkList& work) { Offer(work); });
}

// The window comes up by itself, so it does not take the keys that are meant for the table.
void RecoveryRoom::Offer(const WorkList& work) {
    if (work.Left.empty())
        return;
    Window().ShowWork(work);
    Window().setAttribute(Qt::WA_ShowWithoutActivating);
    Window().show();
    Window().setAttribute(Qt::WA_ShowWithoutActivating, false);
}

WorkList RecoveryRoom::Work() {
    finder_.Drop();
    return folder_ ? ListWork(files_, *folder_) : WorkList();
}

frmRecovery& RecoveryRoom::Window() {
    if (frmRecovery_ == nullptr) {
        frmRecovery_ = new frmRecovery(&main_);
        frmRecovery_->ShowKeepJournal(KeepsJournal());
        connect(frmRecovery_, &frmRecovery::RecoverWanted, this, &RecoveryRoom::Recover);
        connect(frmRecovery_, &frmRecovery::CompareWanted, this, &RecoveryRoom::Compare);
        connect(frmRecovery_, &frmRecovery::DiscardWanted, this, &RecoveryRoom::Discard);
        connect(frmRecovery_, &frmRecovery::DeleteAllWanted, this, &RecoveryRoom::DeleteAll);
        connect(frmRecovery_, &frmRecovery::KeepJournalChosen, this, &RecoveryRoom::Keep);
    }
    return *frmRecovery_;
}

void RecoveryRoom::Refresh() { Window().ShowWork(Work()); }

void RecoveryRoom::Recover(const std::string& name) {
    bool mayLeave = false;
    Q_EMIT LeaveWanted(mayLeave);
    if (!mayLeave)
        return;
    Result<AdoptedJournal> adopted = folder_->Adopt(name, TimeNow());
    if (adopted.Failure)
        Tell(frmRecovery_, WhyNotTaken(adopted.Failure));
    else if (!adopted.Got.Journal.History.empty())
        return GoOnWith(std::move(adopted.Got));
    else {
        folder_->LetGo(adopted.Got);
        Tell(frmRecovery_, NothingReadable());
    }
    Refresh();
}

void RecoveryRoom::GoOnWith(AdoptedJournal recovered) {
    TakeOwnSave(files_, recovered.Journal);
    const RecoveredNews news = NewsOf(recovered.Journal);
    const std::vector<std::string> messages = recovered.Journal.Messages;
    const AdoptedJournal held{{}, recovered.Files};
    journal_->GoOnWith(std::move(recovered));
    if (!journal_->Keeps()) // nothing holds the work in its place
        folder_->LetGo(held);
    const WorkList work = Work();
    Window().ShowWork(work);
    if (work.Left.empty())
        Window().hide();
    main_.activateWindow();
    Q_EMIT Said(news.Line);
    if (!news.Loss.isEmpty())
        Tell(&main_, news.Loss);
    for (const std::string& message : messages)
        Tell(&main_, FromAnsi(message));
}

// Looked at only: the work stays where it is. When its document is open here, that is what it is compared
// with, so that single changes can be taken over.
void RecoveryRoom::Compare(const std::string& name) {
    Result<AdoptedJournal> adopted = folder_->Adopt(name, TimeNow());
    if (adopted.Failure)
        return Tell(frmRecovery_, WhyNotTaken(adopted.Failure));
    folder_->LetGo(adopted.Got);
    RecoveredJournal& journal = adopted.Got.Journal;
    if (journal.History.empty())
        return Tell(frmRecovery_, NothingReadable());
    const QString path = QString::fromStdString(journal.Head.Path);
    VersionsToCompare versions;
    if (path.isEmpty() || journal.Head.Path != session_.Path())
        versions.Here = BeganFrom(path);
    versions.Other = NamedVersion{tr("what was not saved"),
                                  std::make_shared<const FsmDocument>(std::move(journal.Document))};
    Q_EMIT CompareWanted(versions);
}

void RecoveryRoom::Discard(const std::string& name) {
    if (const std::error_code failure = folder_->Discard(name, TimeNow()))
        Tell(frmRecovery_, WhyNotTaken(failure));
    Refresh();
}

void RecoveryRoom::DeleteAll() {
    if (const std::size_t left = folder_->DeleteAll())
        Tell(frmRecovery_, NotAllDeleted(left, *UserRecoveryFolder()));
    Refresh();
}

void RecoveryRoom::Keep(bool keep) {
    if (!SetKeepsJournal(keep))
        Tell(frmRecovery_, NotRemembered());
    if (journal_)
        journal_->Keep(keep);
}

void RecoveryRoom::Close() {
    if (frmRecovery_ != nullptr)
        frmRecovery_->hide();
}

} // namespace orvane
