// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/TimeoutPage.h"

#include "editors/TimingHelp.h"
#include "kit/AnsiString.h"
#include "kit/DocumentLineEdit.h"
#include "kit/DocumentTextEdit.h"
#include "kit/PaneLook.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace orvane {

namespace {

QLabel* AddNote(const char* name, const QString& text, QWidget* parent) {
    auto* note = new QLabel(text, parent);
    note->setObjectName(QString::fromLatin1(name));
    note->setWordWrap(true);
    return note;
}

// A frame that is not shown keeps its place, so that the others do not move.
void KeepPlaceWhenHidden(QWidget* frame) {
    QSizePolicy policy = frame->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    frame->setSizePolicy(policy);
}

// Tab and F6 come to the chosen one of several options; Qt leads them to the first until one has had the
// focus.
void LeadKeysTo(const QRadioButton& chosen) {
    for (QRadioButton* option :
         chosen.parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly))
        option->setFocusPolicy(option == &chosen ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace

TimeoutPage::TimeoutPage(QWidget* parent, Qt::Orientation direction) : QWidget(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(
        AddNote("lblTimeLimPrompt", QStringLiteral("Determine if and how the state will time out"), this));
    auto* frames =
        new QBoxLayout(direction == Qt::Horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    frames->addWidget(BuildStartTiming());
    fraTimeLimit = BuildTimeLimit();
    if (direction == Qt::Horizontal)
        KeepPlaceWhenHidden(fraTimeLimit);
    frames->addWidget(fraTimeLimit, 1);
    layout->addLayout(frames, 1);
    BuildTimingHelp();
}

QGroupBox* TimeoutPage::AddFrame(const char* name, const QString& caption) {
    auto* frame = new QGroupBox(caption, this);
    frame->setObjectName(QString::fromLatin1(name));
    return frame;
}

QRadioButton* TimeoutPage::AddOption(const char* name, const QString& caption) {
    auto* option = new QRadioButton(caption, this);
    option->setObjectName(QString::fromLatin1(name));
    return option;
}

QGroupBox* TimeoutPage::BuildStartTiming() {
    QGroupBox* frame = AddFrame("fraStartTiming", QStringLiteral("Start timing"));
    optNoTimeOut = AddOption("optNoTimeOut", QStringLiteral("No timeout"));
    optNoTimeOut->setToolTip(QStringLiteral("This state does not have a timeout"));
    optStartTiming = AddOption("optStartTiming", QStringLiteral("Start on entry"));
    optStartTiming->setToolTip(QStringLiteral("Start timing on entering this state"));
    optContinueTiming = AddOption("optContinueTiming", QStringLiteral("Continue"));
    optContinueTiming->setToolTip(QStringLiteral("Timing was stared in another state (over-arching timer)"));
    ConnectOption(optNoTimeOut, &TimeoutPage::HideTimeLimit);
    ConnectOption(optStartTiming, &TimeoutPage::ShowTimeLimit);
    ConnectOption(optContinueTiming, &TimeoutPage::ShowTimeLimit);
    QHBoxLayout* timerId = BuildTimerId();
    cmdTimeHelp = new QPushButton(QStringLiteral("Help"), frame);
    cmdTimeHelp->setObjectName(QStringLiteral("cmdTimeHelp"));
    cmdTimeHelp->setToolTip(QStringLiteral("Hold down to read about timeouts"));
    cmdTimeHelp->setAutoDefault(false);
    auto* column = new QVBoxLayout(frame);
    for (QRadioButton* option : {optNoTimeOut, optStartTiming, optContinueTiming})
        column->addWidget(option);
    column->addLayout(timerId);
    column->addStretch();
    column->addWidget(cmdTimeHelp, 0, Qt::AlignLeft);
    return frame;
}

QHBoxLayout* TimeoutPage::BuildTimerId() {
    txtTimerID = new DocumentLineEdit(this, DocumentLineEdit::Typing::Capitals);
    txtTimerID->setObjectName(QStringLiteral("txtTimerID"));
    QLabel* prompt = AddNote("lblTimerID", QStringLiteral("Timer I.D."), this);
    prompt->setWordWrap(false);
    prompt->setBuddy(txtTimerID);
    auto* row = new QHBoxLayout;
    row->addWidget(prompt);
    row->addWidget(txtTimerID);
    return row;
}

QGroupBox* TimeoutPage::BuildTimeLimit() {
    QGroupBox* frame = AddFrame("fraTimeLimit", QStringLiteral("Time limit"));
    optTimeCONST = AddOption("optTimeCONST", QStringLiteral("Constant"));
    optTimeVAR = AddOption("optTimeVAR", QStringLiteral("Variable"));
    ConnectOption(optTimeCONST, &TimeoutPage::ShowConstantLimit);
    ConnectOption(optTimeVAR, &TimeoutPage::ShowVariableLimit);
    fraTimeCONST = BuildConstantLimit();
    fraTimeVAR = BuildVariableLimit();
    auto* options = new QHBoxLayout;
    options->addWidget(optTimeCONST);
    options->addWidget(optTimeVAR);
    options->addStretch();
    auto* column = new QVBoxLayout(frame);
    column->addLayout(options);
    column->addWidget(fraTimeCONST);
    column->addWidget(fraTimeVAR, 1);
    column->addStretch();
    fraTimeCONST->hide();
    fraTimeVAR->hide();
    return frame;
}

QGroupBox* TimeoutPage::BuildConstantLimit() {
    QGroupBox* frame = AddFrame("fraTimeCONST", QStringLiteral("Constant time limit"));
    txtTimeCONST = new DocumentLineEdit(frame);
    txtTimeCONST->setObjectName(QStringLiteral("txtTimeCONST"));
    auto* column = new QVBoxLayout(frame);
    column->addWidget(txtTimeCONST);
    column->addWidget(AddNote("lblTimeConstNote",
                              QStringLiteral("You can use a number or a symbolic constant. In the latter "
                                             "case you must define the constant somwhere else."),
                              frame));
    return frame;
}

QGroupBox* TimeoutPage::BuildVariableLimit() {
    QGroupBox* frame = AddFrame("fraTimeVAR", QStringLiteral("Variable time limit"));
    txtTimeVAR = new DocumentTextEdit(frame);
    txtTimeVAR->setObjectName(QStringLiteral("txtTimeVAR"));
    txtTimeVAR->setFont(FieldFont());
    auto* column = new QVBoxLayout(frame);
    column->addWidget(AddNote("lblGetTImePrompt",
                              QStringLiteral("Code to place the time limit in W as a floating point value"),
                              frame));
    column->addWidget(txtTimeVAR, 1);
    return frame;
}

void TimeoutPage::BuildTimingHelp() {
    txtTimingHelp = new QPlainTextEdit(FromAnsi(kTimingHelp), this);
    txtTimingHelp->setObjectName(QStringLiteral("txtTimingHelp"));
    txtTimingHelp->setReadOnly(true);
    txtTimingHelp->setFocusPolicy(Qt::NoFocus);
    txtTimingHelp->hide();
    connect(cmdTimeHelp, &QPushButton::pressed, this, &TimeoutPage::ShowTimingHelp);
    connect(cmdTimeHelp, &QPushButton::released, txtTimingHelp, &QWidget::hide);
}

void TimeoutPage::ConnectOption(QRadioButton* option, void (TimeoutPage::*choose)()) {
    connect(option, &QRadioButton::toggled, this, [this, option, choose](bool on) {
        if (!on)
            return;
        LeadKeysTo(*option);
        (this->*choose)();
        Q_EMIT OptionChosen();
    });
}

void TimeoutPage::SetOptions(const TimingOptions& options) {
    const auto switchOn = [](QRadioButton* option, bool on) {
        if (on)
            option->setChecked(true);
    };
    switchOn(optNoTimeOut, options.Timing == TimingOption::NoTimeOut);
    switchOn(optStartTiming, options.Timing == TimingOption::Start);
    switchOn(optContinueTiming, options.Timing == TimingOption::Continue);
    switchOn(optTimeCONST, options.Limit == LimitOption::Constant);
    switchOn(optTimeVAR, options.Limit == LimitOption::Variable);
}

TimingOptions TimeoutPage::Options() const {
    TimingOptions options;
    if (optNoTimeOut->isChecked())
        options.Timing = TimingOption::NoTimeOut;
    else if (optStartTiming->isChecked())
        options.Timing = TimingOption::Start;
    else if (optContinueTiming->isChecked())
        options.Timing = TimingOption::Continue;
    if (optTimeCONST->isChecked())
        options.Limit = LimitOption::Constant;
    else if (optTimeVAR->isChecked())
        options.Limit = LimitOption::Variable;
    return options;
}

void TimeoutPage::ShowTimeLimit() { fraTimeLimit->show(); }

void TimeoutPage::HideTimeLimit() { fraTimeLimit->hide(); }

void TimeoutPage::ShowConstantLimit() {
    fraTimeVAR->hide();
    fraTimeCONST->show();
}

void TimeoutPage::ShowVariableLimit() {
    fraTimeCONST->hide();
    fraTimeVAR->show();
}

// Over the whole page with equal margins, down to the button that is being held.
void TimeoutPage::ShowTimingHelp() {
    const QMargins margins = layout()->contentsMargins();
    const int bottom = cmdTimeHelp->mapTo(this, QPoint()).y() - layout()->spacing();
    txtTimingHelp->setGeometry(margins.left(), margins.top(), width() - 2 * margins.left(),
                               bottom - margins.top());
    txtTimingHelp->show();
    txtTimingHelp->raise();
}

} // namespace orvane
