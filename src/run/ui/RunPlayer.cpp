// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/RunPlayer.h"

#include "run/ui/fraRunButtons.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QRegularExpressionValidator>

#include <cmath>

namespace orvane {

namespace {

constexpr int kTick = 50; // milliseconds
constexpr double kAsThingsHappen = 0;
constexpr double kMillisecondsWithoutUnit = 1000; // a unit a second, where nobody says how long it is

const QRegularExpression& UnitForm() {
    static const QRegularExpression form(QStringLiteral("^\\s*(\\d+(?:\\.\\d+)?)\\s*(ms|s|min|h)\\s*$"));
    return form;
}

double Milliseconds(const QRegularExpressionMatch& unit) {
    const QString suffix = unit.captured(2);
    const double each = suffix == QLatin1String("ms")    ? 1
                        : suffix == QLatin1String("s")   ? 1000
                        : suffix == QLatin1String("min") ? 60'000
                                                         : 3'600'000;
    return unit.captured(1).toDouble() * each;
}

} // namespace

RunPlayer::RunPlayer(QWidget* parent)
    : QWidget(parent),
      tmrRun(this),
      cmdRun(MakeRunButton(this, "cmdRun", tr("Run"), tr("Time passes by itself, until pressed again (R)"))),
      cboSpeed(new QComboBox(this)),
      txtUnit(new QLineEdit(this)) {
    tmrRun.setObjectName(QStringLiteral("tmrRun"));
    tmrRun.setInterval(kTick);
    cmdRun->setCheckable(true);
    cboSpeed->setObjectName(QStringLiteral("cboSpeed"));
    for (const double speed : {0.1, 1.0, 10.0, 100.0, 1000.0})
        cboSpeed->addItem(QStringLiteral("x%1").arg(speed), speed);
    cboSpeed->addItem(tr("as things happen"), kAsThingsHappen);
    cboSpeed->setCurrentIndex(1);
    cboSpeed->setToolTip(tr("How fast, measured against the machine's own time"));
    txtUnit->setObjectName(QStringLiteral("txtUnit"));
    txtUnit->setPlaceholderText(tr("0.1 s"));
    txtUnit->setToolTip(
        tr("A number and ms, s, min or h. Without it a unit is taken as a second here, and a test "
           "counts in units."));
    txtUnit->setMaximumWidth(txtUnit->fontMetrics().averageCharWidth() * 12);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(cmdRun);
    row->addWidget(cboSpeed);
    row->addSpacing(8);
    row->addWidget(new QLabel(tr("One unit is"), this));
    row->addWidget(txtUnit);
    row->addStretch();
    connect(cmdRun, &QPushButton::toggled, this, [this](bool on) { on ? Start() : tmrRun.stop(); });
    connect(&tmrRun, &QTimer::timeout, this, &RunPlayer::Tick);
    connect(txtUnit, &QLineEdit::editingFinished, this, &RunPlayer::UnitChanged);
}

QString RunPlayer::Unit() const {
    const QRegularExpressionMatch match = UnitForm().match(txtUnit->text());
    return match.hasMatch() && Milliseconds(match) > 0
               ? match.captured(1) + QLatin1Char(' ') + match.captured(2)
               : QString();
}

void RunPlayer::Toggle() { cmdRun->toggle(); }

void RunPlayer::Stop() { cmdRun->setChecked(false); }

void RunPlayer::Start() {
    owed_ = 0;
    clock_.start();
    tmrRun.start();
}

double RunPlayer::UnitsPerMillisecond() const {
    const QRegularExpressionMatch match = UnitForm().match(txtUnit->text());
    const double unit = match.hasMatch() ? Milliseconds(match) : 0;
    return cboSpeed->currentData().toDouble() / (unit > 0 ? unit : kMillisecondsWithoutUnit);
}

void RunPlayer::Tick() {
    if (cboSpeed->currentData().toDouble() == kAsThingsHappen) {
        Q_EMIT NextWanted();
        return;
    }
    owed_ += double(clock_.restart()) * UnitsPerMillisecond();
    const double whole = std::floor(owed_);
    owed_ -= whole;
    if (whole >= 1)
        Q_EMIT TimePassed(run::Units(whole));
}

} // namespace orvane
