// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/ui/fraLimit.h"

#include "kit/AnsiString.h"
#include "run/ui/StateText.h"
#include "run/ui/fraRunButtons.h"

#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace orvane {

fraLimit::fraLimit(const FsmDocument& document, QWidget* parent)
    : QWidget(parent), document_(document), lblLimit(new QLabel(this)), txtLimit(new QLineEdit(this)) {
    setObjectName(QStringLiteral("fraLimit"));
    lblLimit->setObjectName(QStringLiteral("lblLimit"));
    lblLimit->setWordWrap(true);
    lblLimit->setTextFormat(Qt::PlainText);
    txtLimit->setObjectName(QStringLiteral("txtLimit"));
    txtLimit->setValidator(new QIntValidator(0, int(run::kLongestTime), txtLimit));
    txtLimit->setMaximumWidth(txtLimit->fontMetrics().averageCharWidth() * 14);
    QPushButton* cmdGiveLimit =
        MakeRunButton(this, "cmdGiveLimit", tr("Give"), tr("The run goes on with this limit (Return)"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(lblLimit, 1);
    row->addWidget(txtLimit);
    row->addWidget(cmdGiveLimit);
    connect(cmdGiveLimit, &QPushButton::clicked, this, &fraLimit::Give);
    connect(txtLimit, &QLineEdit::returnPressed, this, &fraLimit::Give);
    hide();
}

void fraLimit::Show(const std::optional<run::WantedLimit>& wanted) {
    setVisible(wanted.has_value());
    if (wanted == shown_)
        return;
    const bool asksAnew = wanted && wanted->Missing && !(shown_ && shown_->Missing);
    shown_ = wanted;
    if (!wanted)
        return;
    const QString state = StateText(document_, wanted->State);
    const QString text = FromAnsi(wanted->Text).simplified();
    lblLimit->setText(
        wanted->Constant
            ? tr("How many units is %1, the limit of %2?").arg(text, state)
            : tr("How many units is the limit of %1, which the code reads by %2?").arg(state, text));
    if (asksAnew) {
        txtLimit->clear();
        txtLimit->setFocus();
    }
}

void fraLimit::Give() {
    if (txtLimit->hasAcceptableInput())
        Q_EMIT Given(txtLimit->text().toLongLong());
}

} // namespace orvane
