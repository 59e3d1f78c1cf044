// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/RunRoom.h"

#include "run/LiveRun.h"
#include "run/RanTests.h"
#include "run/ui/PictureOfRun.h"
#include "run/ui/RunExports.h"
#include "run/ui/TestFileAccess.h"
#include "run/ui/TestsPane.h"
#include "run/ui/dckRun.h"
#include "run/ui/frmTour.h"
#include "session/Commands.h"
#include "session/Session.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>

#include <utility>

namespace orvane {

namespace {

RunWish WishOf(Command command) {
    switch (command) {
    case Command::PowerOn:
        return RunWish::PowerOn;
    case Command::StepBack:
        return RunWish::StepBack;
    case Command::ToTimeout:
        return RunWish::ToTimeout;
    case Command::SaveAsTest:
        return RunWish::SaveAsTest;
    case Command::RunTests:
        return RunWish::RunTests;
    default:
        return RunWish::Step;
    }
}

} // namespace

RunRoom::RunRoom(const RoomPlace& place)
    : PaneRoom(place.Window, Command::ViewRun, Qt::RightDockWidgetArea),
      session_(place.Open),
      window_(place.Window) {
    tmrReplay_.setInterval(0);
    connect(&tmrReplay_, &QTimer::timeout, this, &RunRoom::ReplayOn);
}

RunRoom::~RunRoom() = default;

std::span<const Command> RunRoom::Commands() const {
    static constexpr auto commands =
        std::to_array<Command>({Command::ViewRun, Command::PowerOn, Command::StepTime, Command::StepBack,
                                Command::ToTimeout, Command::SaveAsTest, Command::RunTests, Command::Tour});
    return commands;
}

ObserverRank RunRoom::Rank() const { return ObserverRank::Rooms; }

void RunRoom::Run(Command command) {
    if (command == Command::ViewRun)
        return Toggle();
    if (command == Command::Tour)
        return MakeTour();
    if (!IsShown())
        Open();
    Do(WishOf(command));
}

Pane* RunRoom::MakePane() {
    run_ = std::make_unique<run::LiveRun>(session_.Document());
    pane_ = new dckRun(session_.Document(), *run_, &window_);
    pane_->setFocusPolicy(Qt::StrongFocus);
    tests_ = new TestsPane(pane_);
    pane_->AddBelow(tests_);
    ConnectPane();
    return pane_;
}

void RunRoom::ConnectPane() {
    connect(tests_, &TestsPane::TestChosen, this, [this](const run::RunToPlay& test) {
        run_->Play(test);
        Show(Log::IsAnother);
    });
    connect(pane_, &dckRun::Wanted, this, &RunRoom::Do);
    connect(pane_, &dckRun::PulseWanted, this, &RunRoom::FireEvent);
    connect(pane_, &dckRun::HoldWanted, this, [this](RowNumber event) {
        run_->Hold(event, !run_->IsTrue(event));
        Show(Log::GoesOn);
    });
    connect(pane_, &dckRun::TimePassed, this, [this](run::Units units) {
        run_->PassTime(units);
        Show(Log::GoesOn);
    });
    connect(pane_, &dckRun::TimeWanted, this, [this](run::Units time) {
        run_->GoToTime(time);
        Show(Log::GoesOn);
    });
    connect(pane_, &dckRun::WayWanted, this, &RunRoom::FindWay);
    connect(pane_, &dckRun::SearchUnwanted, this, [this] { Show(Log::GoesOn); });
    connect(pane_, &dckRun::LimitGiven, this, [this](run::Units units) {
        run_->GiveLimit(units);
        Show(Log::IsAnother);
    });
}

void RunRoom::Shown() {
    if (std::exchange(missedEdits_, false))
        run_->Recompile();
    Show(Log::IsAnother);
}

void RunRoom::Hiding() {
    pane_->StopTime();
    DropSearch();
    session_.ShowRun(std::nullopt);
}

void RunRoom::Told(const Change& change) {
    if (!ChangesTheMachine(change.Kind))
        return;
    if (frmTour_ != nullptr)
        frmTour_->TakeEdit();
    if (run_ != nullptr)
        TellRun(change);
}

void RunRoom::TellRun(const Change& change) {
    if (change.Kind == ChangeKind::Replaced) {
        pane_->StopTime();
        tests_->hide();
        run_->Restart();
        missedEdits_ = false;
    } else if (IsShown()) {
        run_->Recompile();
    } else {
        missedEdits_ = true;
    }
    if (IsShown())
        Show(Log::IsAnother);
}

void RunRoom::FireEvent(RowNumber row) {
    if (!IsShown())
        return;
    run_->Pulse(row);
    Show(Log::GoesOn);
}

void RunRoom::Do(RunWish wish) {
    run_->FinishReplay();
    switch (wish) {
    case RunWish::PowerOn:
        run_->PowerOn();
        return Show(Log::IsAnother);
    case RunWish::Step:
        run_->Wait(1);
        break;
    case RunWish::StepBack:
        run_->Back();
        break;
    case RunWish::StepForward:
        run_->Forward();
        break;
    case RunWish::ToTimeout:
        run_->ToTimeout();
        break;
    case RunWish::ToChange:
        run_->ToChange();
        if (!run_->Notice().empty())
            pane_->StopTime();
        break;
    case RunWish::BringBack:
        run_->BringBack();
        return Show(Log::IsAnother);
    case RunWish::SaveAsTest:
        return SaveAsTest();
    case RunWish::RunTests:
        return RunTests();
    case RunWish::SavePicture:
        pane_->StopTime();
        return SavePicture(window_, session_, pane_->TimelinePicture());
    case RunWish::SaveVcd:
        pane_->StopTime();
        return SaveVcd(window_, session_, *run_, pane_->Unit());
    case RunWish::ShowAgain:
        break;
    }
    Show(Log::GoesOn);
}

// Of a large machine it takes its time. Whatever is done meanwhile ends the search.
void RunRoom::FindWay(StateNumber to) {
    pane_->StopTime();
    const std::optional<run::WayAsked> asked = run_->AskWay(to);
    Show(Log::GoesOn);
    if (!asked)
        return;
    pane_->ShowSearch(true);
    way_.Begin([document = session_.Document(), asked = *asked](
                   const std::stop_token& stop) { return run::FindWayFromRun(document, asked, stop); },
               [this, to](const run::WayFromRun& way) {
                   pane_->ShowSearch(false);
                   run_->GoWay(to, way);
                   Show(Log::IsAnother);
               });
}

void RunRoom::DropSearch() {
    if (!way_.IsOn())
        return;
    way_.Drop();
    pane_->ShowSearch(false);
}

void RunRoom::MakeTour() {
    if (frmTour_ == nullptr) {
        frmTour_ = new frmTour(session_, &window_);
        connect(frmTour_, &frmTour::Saved, this, &Room::Said);
    }
    frmTour_->show();
    frmTour_->raise();
    frmTour_->activateWindow();
}

void RunRoom::SaveAsTest() {
    pane_->StopTime();
    const QString said = SaveRunAsTest(window_, session_, *run_, pane_->Unit());
    if (!said.isEmpty())
        Q_EMIT Said(said);
}

// The tests beside the document; where there are none the user says which.
void RunRoom::RunTests() {
    pane_->StopTime();
    QString path = TestFileBeside(session_);
    if (!QFileInfo::exists(path))
        path = QFileDialog::getOpenFileName(&window_, tr("Run tests"), QFileInfo(path).path(),
                                            tr("Tests (*.ztest)"));
    if (path.isEmpty())
        return;
    const std::optional<std::string> bytes = ReadTests(window_, path);
    if (!bytes)
        return;
    const QString name = QFileInfo(path).fileName();
    if (!run_->Obstacles().empty())
        tests_->ShowRefused(name, run_->Obstacles());
    else
        tests_->Show(run::RunTestsOf(*bytes, session_.Document(), DocumentFileName(session_)), name, *bytes);
}

void RunRoom::Show(Log log) {
    DropSearch();
    if (!run_->CanGoOn())
        pane_->StopTime();
    pane_->ShowRun(log == Log::IsAnother);
    session_.ShowRun(run_->IsReplaying() ? RunPicture() : PictureOfRun(*run_, pane_->ShowsCounts()));
    if (run_->IsReplaying())
        tmrReplay_.start();
    else
        tmrReplay_.stop();
}

// Between two keys; what is shown of the run meanwhile is only how far it is.
void RunRoom::ReplayOn() {
    run_->ReplayMore();
    if (run_->IsReplaying())
        pane_->ShowReplay();
    else if (IsShown())
        Show(Log::IsAnother);
    else
        tmrReplay_.stop();
}

} // namespace orvane
