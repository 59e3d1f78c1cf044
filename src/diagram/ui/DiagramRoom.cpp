// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/ui/DiagramRoom.h"

#include "diagram/Places.h"
#include "diagram/ui/PictureFile.h"
#include "diagram/ui/dckDiagram.h"
#include "diagram/ui/picDiagram.h"
#include "kit/AnsiString.h"
#include "session/Commands.h"
#include "session/Session.h"

#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QMenu>

#include <utility>

namespace orvane {

namespace {

constexpr int kPause = 700; // milliseconds without an edit, before a better picture is looked for
constexpr int kLimit = 300; // milliseconds that laying out all of a machine may take

PictureMarks MarksOf(const Session& session, const diagram::Scene& scene) {
    PictureMarks marks;
    if (session.CurrentState() != kNoState)
        marks.Running = session.CurrentState();
    if (session.Run() && session.Run()->Last)
        marks.Taken = ShownAt(scene, *session.Run()->Last).Edge;
    marks.Current = ShownAt(scene, session.CurrentCell());
    for (const DesignFinding& finding : session.Findings()) {
        if (finding.Place.State == kNoState)
            continue;
        const std::size_t state = IndexIn(TableColumns(), finding.Place.State);
        if (finding.Level == FindingLevel::Error)
            marks.Faulty.set(state);
        else if (finding.Level == FindingLevel::Warning)
            marks.Warned.set(state);
    }
    return marks;
}

QString WayText(const FsmDocument& document, Cell cell) {
    if (cell.Row == RowNumber(kTimeoutRow))
        return QObject::tr("Timeout");
    if (cell.Row == RowNumber(kElseRow))
        return QObject::tr("ELSE");
    const QString name = FromAnsi(document.Event(cell.Row).Name).simplified();
    return name.isEmpty() ? QStringLiteral("e%1").arg(cell.Row.Number()) : name;
}

} // namespace

DiagramRoom::DiagramRoom(const RoomPlace& place)
    : PaneRoom(place.Window, Command::ViewDiagram, Qt::RightDockWidgetArea),
      session_(place.Open),
      window_(place.Window) {
    tmrPause_.setObjectName(QStringLiteral("tmrPause"));
    tmrPause_.setSingleShot(true);
    tmrPause_.setInterval(kPause);
    tmrLimit_.setSingleShot(true);
    tmrLimit_.setInterval(kLimit);
    connect(&tmrPause_, &QTimer::timeout, this, &DiagramRoom::BeginJob);
    connect(&tmrLimit_, &QTimer::timeout, this, &DiagramRoom::GiveUp);
}

// The thread measures with fonts that go with the room.
DiagramRoom::~DiagramRoom() { work_.Drop(); }

std::span<const Command> DiagramRoom::Commands() const {
    static constexpr auto commands = std::to_array<Command>({Command::ViewDiagram});
    return commands;
}

ObserverRank DiagramRoom::Rank() const { return ObserverRank::Rooms; }

void DiagramRoom::Run(Command) { Toggle(); }

Pane* DiagramRoom::MakePane() {
    fonts_.emplace(QApplication::font());
    picture_.emplace(*fonts_);
    pane_ = new dckDiagram(*picture_, *fonts_, &window_);
    connect(pane_, &dckDiagram::WishChanged, this, &DiagramRoom::Follow);
    connect(pane_, &dckDiagram::TidyWanted, this, &DiagramRoom::Tidy);
    connect(pane_, &dckDiagram::TurnWanted, this, &DiagramRoom::Turn);
    connect(pane_, &dckDiagram::SaveWanted, this, &DiagramRoom::Save);
    picDiagram& view = pane_->View();
    connect(&view, &picDiagram::CellsChosen, this, [this](const auto& cells) { Do(Act::Choose, cells); });
    connect(&view, &picDiagram::CellsOpened, this, [this](const auto& cells) { Do(Act::Open, cells); });
    connect(&view, &picDiagram::JumpWanted, this, [this](const auto& cells) { Do(Act::Jump, cells); });
    return pane_;
}

int DiagramRoom::FirstSize() const { return window_.width() / 2; }

void DiagramRoom::Shown() { DrawAnew(); }

void DiagramRoom::Hiding() {
    tmrPause_.stop();
    tmrLimit_.stop();
    work_.Drop();
}

diagram::PictureWish DiagramRoom::Wish() const {
    diagram::PictureWish wish = pane_->Wish();
    wish.Chosen = session_.CurrentCell().State;
    const QSize room = pane_->View().viewport()->size();
    wish.Window = {0, 0, room.width(), room.height()};
    return wish;
}

void DiagramRoom::Told(const Change& change) {
    if (change.Kind == ChangeKind::Replaced)
        return DrawAnew();
    const StateNumber chosen = session_.CurrentCell().State;
    const bool isElsewhere = picture_->Around() && chosen != kNoState && chosen != *picture_->Around();
    if (ChangesTheTable(change.Kind) || (change.Kind == ChangeKind::Moved && isElsewhere))
        Follow();
    else if (change.Kind == ChangeKind::Moved || change.Kind == ChangeKind::Ran ||
             change.Kind == ChangeKind::Judged)
        ShowMarks();
}

void DiagramRoom::DrawAnew() {
    pane_->ShowEvents(session_.Document());
    picture_->Begin(session_.Document(), Wish());
    ShowPicture();
    pane_->View().FitReadable();
    LookForBetter();
}

void DiagramRoom::Follow() {
    if (!IsShown())
        return;
    const std::optional<StateNumber> before = picture_->Around();
    pane_->ShowEvents(session_.Document());
    picture_->Follow(session_.Document(), Wish());
    ShowPicture();
    if (before != picture_->Around())
        pane_->View().FitReadable();
    LookForBetter();
}

void DiagramRoom::ShowPicture() {
    pane_->ShowPicture();
    ShowMarks();
}

void DiagramRoom::ShowMarks() { pane_->View().ShowMarks(MarksOf(session_, picture_->Shown())); }

// What a thread does is for the picture as it was.
void DiagramRoom::LookForBetter() {
    work_.Drop();
    tmrPause_.stop();
    tmrLimit_.stop();
    job_ = picture_->Job();
    if (!job_)
        return;
    if (!job_->IsAwaited)
        return tmrPause_.start();
    tmrLimit_.start();
    BeginJob();
}

void DiagramRoom::BeginJob() {
    work_.Begin([job = *job_, fonts = *fonts_](
                    const std::stop_token& stop) { return ColdLayout(job.Drawn, fonts, job.Way, stop); },
                [this](diagram::Layout cold) { Take(std::move(cold)); });
}

void DiagramRoom::Take(diagram::Layout cold) {
    tmrLimit_.stop();
    const bool isAwaited = job_->IsAwaited;
    picture_->Take(*std::exchange(job_, std::nullopt), std::move(cold));
    ShowPicture();
    if (isAwaited)
        pane_->View().FitReadable();
}

void DiagramRoom::GiveUp() {
    work_.Drop();
    picture_->GiveUp();
    ShowPicture();
}

void DiagramRoom::Tidy() {
    picture_->Tidy();
    ShowPicture();
}

void DiagramRoom::Turn() {
    picture_->Turn();
    ShowPicture();
    pane_->View().FitReadable();
    LookForBetter();
}

void DiagramRoom::Save() {
    const QString path = SavePicture(window_, session_, *picture_, *fonts_);
    if (!path.isEmpty())
        Q_EMIT Said(tr("Saved the picture as %1").arg(QDir::toNativeSeparators(path)));
}

// Where several events share a line, a list asks which is meant.
void DiagramRoom::Do(Act act, const std::vector<Cell>& cells) {
    if (cells.size() == 1)
        return DoWith(act, cells.front());
    if (cells.empty())
        return;
    auto* list = new QMenu(pane_);
    list->setObjectName(QStringLiteral("mnuWays"));
    list->setAttribute(Qt::WA_DeleteOnClose);
    for (const Cell cell : cells) {
        const QString text =
            WayText(session_.Document(), cell).replace(QLatin1Char('&'), QLatin1String("&&"));
        connect(list->addAction(text), &QAction::triggered, this, [this, act, cell] { DoWith(act, cell); });
    }
    picDiagram& view = pane_->View();
    const QRect place = view.RectOf(view.Focused());
    list->popup(view.viewport()->mapToGlobal(QPoint(place.left(), place.bottom() + 2)));
}

// Whoever only chooses goes on in the picture.
void DiagramRoom::DoWith(Act act, Cell cell) {
    if (act == Act::Open)
        return void(Q_EMIT EditWanted(cell));
    Q_EMIT PlaceChosen(cell);
    if (act == Act::Choose && IsShown()) {
        pane_->activateWindow();
        pane_->View().setFocus();
    }
}

} // namespace orvane
