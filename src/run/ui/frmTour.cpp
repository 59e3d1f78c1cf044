// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/frmTour.h"

#include "kit/OpenInDesktop.h"
#include "run/Obstacles.h"
#include "run/ui/TestFileAccess.h"
#include "session/Session.h"
#include "text/AnsiText.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

#include <utility>

namespace orvane {

namespace {

constexpr int kTourHelpPage = 4975;
constexpr int kMostSteps = 1'000'000; // more is read by nobody
constexpr int kLookEvery = 50;        // milliseconds

} // namespace

frmTour::frmTour(const Session& session, QWidget* parent)
    : QDialog(parent),
      session_(session),
      tmrTour(this),
      chkEmptyCells(new QCheckBox(tr("Try the empty cells, too"), this)),
      chkTogether(new QCheckBox(tr("Try neighbouring events together, too"), this)),
      txtMostSteps(new QLineEdit(this)),
      lblTour(new QLabel(this)),
      barTour(new QProgressBar(this)) {
    setObjectName(QStringLiteral("frmTour"));
    setWindowTitle(tr("Tour of the machine"));
    AddHelpKey(*this, kTourHelpPage);
    auto* column = new QVBoxLayout(this);
    MakeOptions(*column);
    MakeButtons(*column);
    tmrTour.setInterval(kLookEvery);
    connect(&tmrTour, &QTimer::timeout, this, &frmTour::ShowProgress);
    ShowWork(false);
}

void frmTour::MakeOptions(QVBoxLayout& column) {
    auto* what =
        new QLabel(tr("Writes tests that take every transition once, with what the machine does now as "
                      "what they expect. They show what a later edit changes."),
                   this);
    what->setWordWrap(true);
    chkEmptyCells->setObjectName(QStringLiteral("chkEmptyCells"));
    chkEmptyCells->setToolTip(
        tr("Events in states that have nothing for them: notices a transition too many"));
    chkTogether->setObjectName(QStringLiteral("chkTogether"));
    chkTogether->setToolTip(tr("Two events at the same time: notices that their priority is another one"));
    txtMostSteps->setObjectName(QStringLiteral("txtMostSteps"));
    txtMostSteps->setValidator(new QIntValidator(1, kMostSteps, txtMostSteps));
    txtMostSteps->setText(QString::number(options_.MostSteps));
    txtMostSteps->setMaximumWidth(txtMostSteps->fontMetrics().averageCharWidth() * 14);
    lblTour->setObjectName(QStringLiteral("lblTour"));
    lblTour->setWordWrap(true);
    lblTour->setTextFormat(Qt::PlainText);
    barTour->setObjectName(QStringLiteral("barTour"));
    auto* limit = new QFormLayout;
    limit->addRow(tr("At most so many steps"), txtMostSteps);
    column.addWidget(what);
    column.addWidget(chkEmptyCells);
    column.addWidget(chkTogether);
    column.addLayout(limit);
    column.addWidget(barTour);
    column.addWidget(lblTour);
}

void frmTour::MakeButtons(QVBoxLayout& column) {
    cmdOK = new QPushButton(tr("Make and save..."), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    cmdCancel = new QPushButton(this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(cmdOK);
    row->addWidget(cmdCancel);
    column.addLayout(row);
    connect(cmdOK, &QPushButton::clicked, this, &frmTour::Begin);
    connect(cmdCancel, &QPushButton::clicked, this, &frmTour::reject);
}

void frmTour::Begin() {
    const std::vector<std::string> obstacles = run::Obstacles(session_.Document());
    if (!obstacles.empty()) {
        QStringList lines{tr("This table cannot be run yet.")};
        for (const std::string& obstacle : obstacles)
            lines += QString::fromStdString(ToUtf8(obstacle));
        return Stop(lines.join(QLatin1Char('\n')));
    }
    options_ = {chkEmptyCells->isChecked(), chkTogether->isChecked(), txtMostSteps->text().toULong()};
    percent_ = 0;
    ShowWork(true);
    work_.Begin(
        [document = session_.Document(), options = options_, this](const std::stop_token& stop) {
            return run::MakeTour(document, options, {stop, &percent_});
        },
        [this](const run::Tour& tour) { Offer(tour); });
}

void frmTour::Stop(const QString& why) {
    work_.Drop();
    ShowWork(false);
    lblTour->setText(why);
    lblTour->setVisible(!why.isEmpty());
    adjustSize();
}

// While it is made only Cancel is possible.
void frmTour::ShowWork(bool on) {
    for (QWidget* option : std::initializer_list<QWidget*>{chkEmptyCells, chkTogether, txtMostSteps, cmdOK})
        option->setEnabled(!on);
    cmdCancel->setText(on ? tr("Cancel") : tr("Close"));
    barTour->setVisible(on);
    barTour->setValue(0);
    lblTour->hide();
    if (on)
        tmrTour.start();
    else
        tmrTour.stop();
}

void frmTour::ShowProgress() { barTour->setValue(percent_); }

void frmTour::TakeEdit() {
    ++edits_;
    if (work_.IsOn())
        Begin();
}

// The question for the file runs the event loop.
void frmTour::Offer(const run::Tour& tour) {
    Stop({});
    const unsigned edits = edits_;
    const QString path = ChooseTourFile(*this, session_);
    if (path.isEmpty())
        return;
    if (edits != edits_)
        return Stop(tr("The table was changed meanwhile; nothing was saved. Make the tests again."));
    const QString said = SaveTour(*this, session_, tour, path);
    if (said.isEmpty())
        return;
    hide();
    Q_EMIT Saved(said);
}

void frmTour::reject() {
    if (work_.IsOn())
        Stop(tr("Nothing was saved."));
    else
        QDialog::reject();
}

} // namespace orvane
