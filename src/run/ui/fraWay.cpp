// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/fraWay.h"

#include "run/ui/StateText.h"
#include "run/ui/fraRunButtons.h"

#include <QComboBox>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace orvane {

fraWay::fraWay(const FsmDocument& document, QWidget* parent)
    : QWidget(parent),
      document_(document),
      cboState(new QComboBox(this)),
      cmdGoToState(MakeRunButton(this, "cmdGoToState", {}, {})) {
    cboState->setObjectName(QStringLiteral("cboState"));
    cboState->setEditable(true);
    cboState->setInsertPolicy(QComboBox::NoInsert);
    cboState->completer()->setFilterMode(Qt::MatchContains);
    cboState->completer()->setCompletionMode(QCompleter::PopupCompletion);
    cboState->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboState->setMinimumContentsLength(14);
    auto* label = new QLabel(tr("Shortest way to"), this);
    label->setBuddy(cboState);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(label);
    row->addWidget(cboState, 1);
    row->addWidget(cmdGoToState);
    connect(cmdGoToState, &QPushButton::clicked, this, &fraWay::Go);
    connect(cboState->lineEdit(), &QLineEdit::returnPressed, this, &fraWay::Go);
    // Of a name longer than the field its number and beginning are seen.
    connect(cboState, &QComboBox::currentIndexChanged, this, [this] { cboState->lineEdit()->home(false); });
    ShowSearch(false);
}

void fraWay::Refresh() {
    const QVariant chosen = cboState->currentData();
    cboState->clear();
    for (const StateNumber state : StateNumbers()) {
        if (!document_.State(state).Name.empty())
            cboState->addItem(StateText(document_, state), state.Number());
    }
    cboState->setCurrentIndex(std::max(cboState->findData(chosen), 0));
}

void fraWay::ShowSearch(bool on) {
    searches_ = on;
    cmdGoToState->setText(on ? tr("Stop") : tr("Go"));
    cmdGoToState->setToolTip(on ? tr("Looks for the way no longer")
                                : tr("Plays the fewest steps from this moment to the state (Return)"));
}

// What is typed may be a piece of one name only.
void fraWay::Go() {
    if (searches_)
        return Q_EMIT StopWanted();
    int chosen = cboState->findText(cboState->currentText(), Qt::MatchFixedString);
    if (chosen < 0)
        chosen = cboState->findText(cboState->currentText(), Qt::MatchContains);
    if (chosen < 0 || cboState->currentText().isEmpty())
        return;
    cboState->setCurrentIndex(chosen);
    Q_EMIT Wanted(cboState->itemData(chosen).toInt());
}

} // namespace orvane
