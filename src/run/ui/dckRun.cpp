// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/dckRun.h"

#include "run/RunWords.h"
#include "run/ui/InputsModel.h"
#include "run/ui/InputsView.h"
#include "run/ui/LogModel.h"
#include "run/ui/RunPlayer.h"
#include "run/ui/StateText.h"
#include "run/ui/TimersModel.h"
#include "run/ui/fraLimit.h"
#include "run/ui/fraRunButtons.h"
#include "run/ui/fraWay.h"
#include "run/ui/timRun.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QSplitter>

namespace orvane {

namespace {

constexpr int kRunHelpPage = 4975;

QLabel* MakeNote(QWidget* parent, const char* name) {
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

dckRun::dckRun(const FsmDocument& document, const run::LiveRun& run, QWidget* parent)
    : Pane("dckRun", tr("Run the machine"), kRunHelpPage, parent),
      document_(document),
      run_(run),
      body_(new QWidget(this)),
      inputs_(new InputsModel(document, run, this)),
      timers_(new TimersModel(document, run, this)),
      log_(new LogModel(document, run, this)) {
    auto* layout = new QVBoxLayout(body_);
    MakeTop(*layout);
    MakeLists(*layout);
    MakeBottom(*layout);
    setWidget(body_);
    AddKeys();
}

void dckRun::MakeTop(QVBoxLayout& layout) {
    buttons_ = new fraRunButtons(body_);
    way_ = new fraWay(document_, body_);
    player_ = new RunPlayer(body_);
    lblWhere = MakeNote(body_, "lblWhere");
    QFont large = lblWhere->font();
    large.setBold(true);
    lblWhere->setFont(large);
    lblNotice = MakeNote(body_, "lblNotice");
    fraLimit_ = new fraLimit(document_, body_);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{buttons_, way_, player_, lblWhere, lblNotice, fraLimit_})
        layout.addWidget(widget);
    connect(buttons_, &fraRunButtons::Wanted, this, &dckRun::Wanted);
    connect(way_, &fraWay::Wanted, this, &dckRun::WayWanted);
    connect(way_, &fraWay::StopWanted, this, &dckRun::SearchUnwanted);
    connect(player_, &RunPlayer::TimePassed, this, &dckRun::TimePassed);
    connect(player_, &RunPlayer::NextWanted, this, [this] { Q_EMIT Wanted(RunWish::ToChange); });
    connect(fraLimit_, &fraLimit::Given, this, &dckRun::LimitGiven);
}

void dckRun::MakeLists(QVBoxLayout& layout) {
    auto* splitter = new QSplitter(Qt::Vertical, body_);
    lstInputs = new InputsView(splitter);
    lstTimers = new QTableView(splitter);
    lstLog = new QTableView(splitter);
    lstInputs->setModel(inputs_);
    lstTimers->setModel(timers_);
    lstLog->setModel(log_);
    PrepareRunList(*lstInputs, "lstInputs");
    PrepareRunList(*lstTimers, "lstTimers");
    PrepareRunList(*lstLog, "lstLog");
    SetColumnWidths(*lstInputs, {24, 10});
    SetColumnWidths(*lstTimers, {16, 17, 7, 7}); // "never started" is read whole
    SetColumnWidths(*lstLog, {10});
    lstInputs->setAccessibleName(tr("Inputs"));
    lstTimers->setAccessibleName(tr("Timers"));
    lstLog->setAccessibleName(tr("What happened"));
    splitter->addWidget(MakeTimeline(splitter));
    splitter->setSizes({180, 80, 140, 170});
    layout.addWidget(splitter, 1);
    ConnectInputs();
    connect(lstLog, &QTableView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT TimeWanted(log_->EntryAt(index).When); });
}

// A run may use more inputs than there is room for.
QWidget* dckRun::MakeTimeline(QWidget* parent) {
    auto* area = new QScrollArea(parent);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    timRun_ = new timRun(document_, run_, area);
    area->setWidget(timRun_);
    area->setMinimumHeight(timRun_->fontMetrics().height() * 6);
    connect(timRun_, &timRun::TimeWanted, this, &dckRun::TimeWanted);
    return area;
}

void dckRun::AddButton(QBoxLayout& row, const char* name, const QString& caption, const QString& hint,
                       RunWish wish) {
    QPushButton* button = MakeRunButton(body_, name, caption, hint);
    connect(button, &QPushButton::clicked, this, [this, wish] { Q_EMIT Wanted(wish); });
    row.addWidget(button);
}

void dckRun::MakeBottom(QVBoxLayout& layout) {
    below_ = new QVBoxLayout;
    layout.addLayout(below_);
    chkCounts = new QCheckBox(tr("Counts in the table"), body_);
    chkCounts->setObjectName(QStringLiteral("chkCounts"));
    chkCounts->setToolTip(tr("How often each transition was taken and each state entered, in its cell"));
    connect(chkCounts, &QCheckBox::toggled, this, [this] { Q_EMIT Wanted(RunWish::ShowAgain); });
    auto* row = new QHBoxLayout;
    row->addWidget(chkCounts);
    row->addStretch();
    auto* exports = new QHBoxLayout;
    exports->addStretch();
    AddButton(*exports, "cmdSavePicture", tr("Picture..."), tr("Saves the timeline as a picture (PNG)"),
              RunWish::SavePicture);
    AddButton(*exports, "cmdSaveVcd", tr("VCD..."),
              tr("Saves the run up to this moment for viewers of signals, such as GTKWave"),
              RunWish::SaveVcd);
    layout.addLayout(exports);
    AddButton(*row, "cmdSaveAsTest", tr("Save as test"),
              tr("Writes the run into the file of tests beside the document"), RunWish::SaveAsTest);
    AddButton(*row, "cmdRunTests", tr("Run tests"), tr("Runs the tests beside the document"),
              RunWish::RunTests);
    layout.addLayout(row);
}

void dckRun::ConnectInputs() {
    connect(lstInputs, &InputsView::RowPressed, this, &dckRun::PressInput);
    for (const bool holds : {false, true}) {
        auto* key = new QShortcut(holds ? Qt::Key_H : Qt::Key_P, this);
        key->setContext(Qt::WidgetWithChildrenShortcut);
        connect(key, &QShortcut::activated, this, [this, holds] {
            if (lstInputs->currentIndex().isValid())
                PressInput(lstInputs->currentIndex(), holds);
        });
    }
}

// The event stays the chosen one, wherever it stands in the list then.
void dckRun::PressInput(const QModelIndex& index, bool holds) {
    const RowNumber event = inputs_->EventAt(index);
    if (holds)
        Q_EMIT HoldWanted(event);
    else
        Q_EMIT PulseWanted(event);
    lstInputs->setCurrentIndex(inputs_->PlaceOf(event));
}

void dckRun::AddKeys() {
    AddKey(Qt::Key_Space, RunWish::Step);
    AddKey(Qt::Key_T, RunWish::ToTimeout);
    AddKey(Qt::Key_N, RunWish::ToChange);
    AddKey(Qt::Key_Backspace, RunWish::StepBack);
    AddKey(QKeySequence(Qt::SHIFT | Qt::Key_Backspace), RunWish::StepForward);
    AddKey(Qt::Key_Home, RunWish::PowerOn);
    auto* runs = new QShortcut(Qt::Key_R, this);
    runs->setContext(Qt::WidgetWithChildrenShortcut);
    runs->setAutoRepeat(false);
    connect(runs, &QShortcut::activated, player_, &RunPlayer::Toggle);
}

void dckRun::AddKey(const QKeySequence& key, RunWish wish) {
    auto* shortcut = new QShortcut(key, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, wish] { Q_EMIT Wanted(wish); });
}

void dckRun::ShowRun(bool anew) {
    const RowNumber chosen =
        lstInputs->currentIndex().isValid() ? inputs_->EventAt(lstInputs->currentIndex()) : RowNumber();
    inputs_->Refresh();
    const QModelIndex still = inputs_->PlaceOf(chosen);
    lstInputs->setCurrentIndex(still.isValid() ? still : inputs_->index(0, 0)); // the first has an effect
    timers_->Refresh();
    if (anew) {
        way_->Refresh();
        log_->RefreshAll();
    } else {
        log_->Refresh();
    }
    lstLog->scrollToBottom();
    timRun_->Refresh(anew);
    lblWhere->setText(WhereText());
    lblNotice->setText(NoticeText());
    lblNotice->setVisible(!lblNotice->text().isEmpty());
    fraLimit_->Show(run_.Wanted());
    buttons_->SetBringBackPossible(run_.CanBringBack());
}

void dckRun::ShowReplay() { lblWhere->setText(WhereText()); }

QString dckRun::WhereText() const {
    if (run_.Past() == nullptr)
        return tr("This table cannot be run yet.");
    if (run_.IsReplaying())
        return tr("Played again on the edited table: %1 %").arg(run_.PercentReplayed());
    if (run_.State() == kNoState)
        return tr("The power is off.");
    return tr("%1 at %2").arg(StateText(document_, run_.State())).arg(run_.Past()->Now().Where().Now);
}

QString dckRun::NoticeText() const {
    QStringList lines;
    for (const std::string& obstacle : run_.Obstacles())
        lines += QString::fromStdString(obstacle);
    if (run_.Past() != nullptr)
        lines += QString::fromStdString(run::OutcomeText(document_, *run_.Past()));
    const QString notice = QString::fromStdString(run_.Notice());
    if (!notice.isEmpty() && !lines.contains(notice))
        lines.prepend(notice);
    lines.removeAll(QString());
    for (QString& line : lines)
        line[0] = line[0].toUpper();
    return lines.join(QLatin1Char('\n'));
}

bool dckRun::ShowsCounts() const { return chkCounts->isChecked(); }

QString dckRun::Unit() const { return player_->Unit(); }

void dckRun::StopTime() { player_->Stop(); }

void dckRun::ShowSearch(bool on) { way_->ShowSearch(on); }

// All lanes, also where they have not got their place yet.
QPixmap dckRun::TimelinePicture() const {
    timRun_->resize(timRun_->size().expandedTo(timRun_->sizeHint()));
    return timRun_->grab();
}

void dckRun::AddBelow(QWidget* widget) { below_->addWidget(widget); }

} // namespace orvane
