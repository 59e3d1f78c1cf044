// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/frmGoTo.h"

#include "core/FsmDocument.h"
#include "core/NameMatch.h"
#include "core/StateLabel.h"
#include "kit/AnsiString.h"
#include "kit/DocumentLineEdit.h"
#include "kit/OpenInDesktop.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int kGoToHelpPage = 4835;
constexpr int kAverageText = 40; // characters

QString NameOf(const FsmDocument& document, Cell place) {
    if (place.State == kNoState)
        return frmGoTo::tr("Event %1").arg(FromAnsi(document.Event(place.Row).Name));
    return frmGoTo::tr("State %1").arg(FromAnsi(StateLabel(place.State, document.State(place.State).Name)));
}

} // namespace

frmGoTo::frmGoTo(const FsmDocument& document, QWidget* parent)
    : QDialog(parent), document_(document), txtGoTo(new DocumentLineEdit(this)), lblGoTo(new QLabel(this)) {
    setObjectName(QStringLiteral("frmGoTo"));
    setWindowTitle(tr("Go to"));
    AddHelpKey(*this, kGoToHelpPage);
    txtGoTo->setObjectName(QStringLiteral("txtGoTo"));
    txtGoTo->setAccessibleName(tr("State or event, by name or number"));
    txtGoTo->setMinimumWidth(kAverageText * fontMetrics().averageCharWidth());
    lblGoTo->setObjectName(QStringLiteral("lblGoTo"));
    lblGoTo->setTextFormat(Qt::PlainText);
    lblGoTo->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // a long name makes no window wider
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    cmdOK = buttons->button(QDialogButtonBox::Ok);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("State or event, by a part of its name or by its number:"), this));
    layout->addWidget(txtGoTo);
    layout->addWidget(lblGoTo);
    layout->addWidget(buttons);
    connect(txtGoTo, &QLineEdit::textChanged, this, &frmGoTo::Look);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

std::optional<Cell> frmGoTo::Ask() {
    txtGoTo->clear();
    Look();
    return exec() == Accepted ? place_ : std::nullopt;
}

void frmGoTo::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    txtGoTo->setFocus();
}

void frmGoTo::Look() {
    place_ = PlaceMatching(document_, txtGoTo->Text());
    cmdOK->setEnabled(place_.has_value());
    if (place_)
        lblGoTo->setText(NameOf(document_, *place_));
    else
        lblGoTo->setText(txtGoTo->text().trimmed().isEmpty() ? QString()
                                                             : tr("No state or event has this in its name."));
}

} // namespace orvane
