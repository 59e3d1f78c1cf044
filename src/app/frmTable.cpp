// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/frmTable.h"

#include "app/CommandMenus.h"
#include "app/DocumentLifecycle.h"
#include "app/RecentFiles.h"
#include "app/Rooms.h"
#include "app/TableStatusBar.h"
#include "app/WindowTitle.h"
#include "app/WrittenProgram.h"
#include "kit/AnsiString.h"
#include "kit/OpenInDesktop.h"
#include "kit/Trace.h"
#include "kit/VocabularyFile.h"

#include <QCloseEvent>

#include <algorithm>

namespace orvane {

namespace {

constexpr int kTableHelpPage = 4835;
constexpr QSize kTableSize{1100, 700}; // pixels

bool Runs(const Room& room, Command command) {
    const std::span<const Command> own = room.Commands();
    return std::find(own.begin(), own.end(), command) != own.end();
}

} // namespace

frmTable::frmTable(QWidget* parent)
    : QMainWindow(parent), menus_(new CommandMenus(*this)), status_(new TableStatusBar(this)) {
    setObjectName(QStringLiteral("frmTable"));
    resize(kTableSize);
    setStatusBar(status_);
    session_.Observe(ObserverRank::Title, *this);
    connect(menus_, &CommandMenus::Chosen, this, &frmTable::Run);
    connect(status_, &TableStatusBar::FindingsWanted, this, [this] {
        if (!session_.IsPaneShown(Command::ViewFindings))
            Run(Command::ViewFindings);
    });
    AddHelpKey(*this, kTableHelpPage);
    TraceStart();
    LoadWords();
    MakeRooms();
    ConnectRecentFiles();
    status_->ShowFindings(FromAnsi(FindingCounts({})));
    writtenProgram_ = std::make_unique<WrittenProgram>(session_, *status_);
    lifecycle_->NewGrid();
}

frmTable::~frmTable() = default;

// Without the words of the language the code panes are plain, and the user can see why.
void frmTable::LoadWords() {
    LoadedVocabulary loaded = LoadVocabulary();
    words_ = std::move(loaded.Words);
    status_->ShowProblem(loaded.Problem);
}

void frmTable::MakeRooms() {
    auto lifecycle = std::make_unique<DocumentLifecycle>(Place());
    lifecycle_ = lifecycle.get();
    AddRoom(std::move(lifecycle));
    for (std::unique_ptr<Room>& room : orvane::MakeRooms(Place()))
        AddRoom(std::move(room));
}

void frmTable::ConnectRecentFiles() {
    for (const auto& [parent, menu] : {std::pair(Command::FileMenu, Command::FileRecentMenu),
                                       std::pair(Command::HelpMenu, Command::RecentMenu)}) {
        auto* recent = new RecentFiles(menus_->Menu(parent), menus_->Menu(menu), this);
        connect(recent, &RecentFiles::OpenWanted, this, &frmTable::OpenDocument);
    }
}

void frmTable::OpenDocument(const QString& path) {
    Prepare(Command::FileOpen);
    for (const auto& room : rooms_)
        room->OpenDocument(path);
}

RoomPlace frmTable::Place() { return {session_, words_, *this}; }

// Every room can ask for what another one has, and none knows which.
void frmTable::AddRoom(std::unique_ptr<Room> room) {
    const auto pass = [&](auto wanted, auto answered) {
        connect(room.get(), wanted, this, [this, answered](const auto& what) {
            for (const auto& other : rooms_)
                (*other.*answered)(what);
        });
    };
    pass(&Room::PlaceChosen, &Room::ShowPlace);
    pass(&Room::EditWanted, &Room::EditPlace);
    pass(&Room::PieceWanted, &Room::EditPiece);
    pass(&Room::EventFired, &Room::FireEvent);
    pass(&Room::CompareWanted, &Room::CompareVersions);
    connect(room.get(), &Room::DocumentWanted, this, &frmTable::OpenDocument);
    connect(room.get(), &Room::CommandWanted, this, &frmTable::Run);
    connect(room.get(), &Room::PaneTurned, this,
            [this](Command toggle, bool shown) { session_.SetPaneShown(toggle, shown); });
    connect(room.get(), &Room::LeaveAsked, this, [this](bool& mayLeave) {
        mayLeave = std::all_of(rooms_.begin(), rooms_.end(), [](const auto& r) { return r->MayLeave(); });
    });
    connect(room.get(), &Room::MenuWanted, this, &frmTable::PopUp);
    connect(room.get(), &Room::LeaveWanted, this, [this](bool& mayLeave) {
        Prepare(Command::FileOpen);
        mayLeave = lifecycle_->GuardBeforeOpen();
    });
    connect(room.get(), &Room::Said, status_, &TableStatusBar::Say);
    ears_.push_back(std::make_unique<RoomEar>(*room));
    session_.Observe(room->Rank(), *ears_.back());
    rooms_.push_back(std::move(room));
}

void frmTable::RoomEar::Told(const Change& change) {
    if (room_.Listens())
        room_.Told(change);
}

void frmTable::Start(const CommandLine& commandLine) {
    for (const auto& room : rooms_)
        room->Start(commandLine);
}

void frmTable::Run(Command command) {
    Prepare(command);
    for (const auto& room : rooms_) {
        if (Runs(*room, command))
            room->Run(command);
    }
    menus_->ShowState(session_);
}

std::ptrdiff_t frmTable::RoomsThatRun(Command command) const {
    return std::count_if(rooms_.begin(), rooms_.end(),
                         [command](const auto& room) { return Runs(*room, command); });
}

void frmTable::Prepare(Command next) {
    for (const auto& room : rooms_)
        room->Prepare(EntryOf(next));
}

void frmTable::PopUp(Command menu, const QPoint& position) {
    Prepare(menu);
    menus_->ShowState(session_);
    menus_->PopUp(menu, position);
}

void frmTable::Told(const Change& change) {
    status_->ShowShift(session_.ShiftHeld());
    if (change.Kind == ChangeKind::Judged)
        status_->ShowFindings(FromAnsi(FindingCounts(session_.Findings())));
    if (change.Kind == ChangeKind::Moved || change.Kind == ChangeKind::Ran ||
        change.Kind == ChangeKind::Judged)
        return menus_->ShowState(session_);
    ShowDocumentState();
    if (change.Kind == ChangeKind::Undone)
        status_->Say(tr("Undone: %1").arg(FromAnsi(change.Name)));
    else if (change.Kind == ChangeKind::Redone)
        status_->Say(tr("Redone: %1").arg(FromAnsi(change.Name)));
    else if (change.Committed || change.Kind == ChangeKind::Replaced)
        status_->Say({});
}

void frmTable::ShowDocumentState() {
    setWindowTitle(WindowTitle(QString::fromStdString(session_.Path()), session_.IsModified()));
    menus_->ShowState(session_);
    status_->ShowHowToBegin(session_.Path().empty() && !session_.IsModified());
    status_->ShowName(FromAnsi(session_.Document().General.FsmName));
}

bool frmTable::MayClose() {
    Prepare(Command::FileSave); // what is being typed is worth a question
    return std::all_of(rooms_.begin(), rooms_.end(), [](const auto& r) { return r->MayClose(); });
}

void frmTable::Preserve() {
    for (const auto& room : rooms_)
        room->Preserve();
}

void frmTable::closeEvent(QCloseEvent* event) {
    const bool mayClose = MayClose();
    event->setAccepted(mayClose);
    if (!mayClose)
        return;
    session_.Leave();
    for (const auto& room : rooms_)
        room->Close();
    Q_EMIT Closed();
}

} // namespace orvane
