// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TableStatusBar.h"

#include "kit/ElidedLabel.h"
#include "kit/StatusPlace.h"

#include <QEvent>

namespace orvane {

namespace {

constexpr int kWidestName = 400; // pixels

} // namespace

TableStatusBar::TableStatusBar(QWidget* parent)
    : QStatusBar(parent),
      Panel1(AddPanel(QStringLiteral("Panel1"))),
      Panel2(AddPanel(QStringLiteral("Panel2"))),
      Panel3(AddPanel(QStringLiteral("Panel3"), 1)),
      lblFindings(new ElidedLabel(this)) {
    setObjectName(QStringLiteral("StatusBar1"));
    setAccessibleName(tr("Status"));
    Panel1->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("***")));
    Panel1->setAlignment(Qt::AlignCenter);
    Panel2->setMaximumWidth(kWidestName);
    lblFindings->setObjectName(QStringLiteral("lblFindings"));
    lblFindings->setToolTip(tr("A click lists them; F8 goes to the next"));
    lblFindings->setCursor(Qt::PointingHandCursor);
    lblFindings->installEventFilter(this);
    addPermanentWidget(new StatusPlace(*lblFindings, this));
}

// One that stretches takes the room that is left, whatever it says.
ElidedLabel* TableStatusBar::AddPanel(const QString& name, int stretch) {
    auto* panel = new ElidedLabel(this);
    panel->setObjectName(name);
    auto* place = new StatusPlace(*panel, this);
    if (stretch > 0)
        place->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(place, stretch);
    return panel;
}

void TableStatusBar::ShowShift(bool held) { Panel1->setText(held ? QStringLiteral("*") : QString()); }

void TableStatusBar::ShowName(const QString& name) {
    Panel2->ShowText(name.isEmpty() ? QStringLiteral("[Un-named]") : name);
}

void TableStatusBar::ShowFindings(const QString& counts) { lblFindings->setText(counts); }

bool TableStatusBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lblFindings && event->type() == QEvent::MouseButtonRelease)
        Q_EMIT FindingsWanted();
    return QStatusBar::eventFilter(watched, event);
}

void TableStatusBar::ShowProblem(const QString& problem) {
    problem_ = problem;
    ShowMessages();
}

void TableStatusBar::ShowHowToBegin(bool show) {
    saysHowToBegin_ = show;
    ShowMessages();
}

void TableStatusBar::ShowProgram(const QString& fileName) {
    const QString written = fileName.isEmpty() ? QString() : tr("Program written: %1").arg(fileName);
    if (written == written_)
        return;
    written_ = written;
    ShowMessages();
}

void TableStatusBar::Say(const QString& text) {
    said_ = text;
    ShowMessages();
}

// Under the pointer each has a line of its own.
void TableStatusBar::ShowMessages() {
    QStringList messages;
    if (!said_.isEmpty())
        messages += said_;
    if (!written_.isEmpty() && written_ != said_) // a room may have said so itself
        messages += written_;
    if (saysHowToBegin_)
        messages += tr("To begin, click the white corner and name the machine; then a column's head for a "
                       "state, a pink cell for an event.");
    if (!problem_.isEmpty())
        messages += problem_;
    Panel3->setText(messages.join(QStringLiteral("  ")));
    Panel3->setToolTip(PlainToolTip(messages.join(QLatin1Char('\n'))));
}

} // namespace orvane
