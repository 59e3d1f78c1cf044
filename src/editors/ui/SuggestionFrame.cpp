// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/SuggestionFrame.h"

#include "kit/AnsiString.h"
#include "kit/PaneLook.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace orvane {

SuggestionFrame::SuggestionFrame(const Names& names, QWidget* parent)
    : QGroupBox(QStringLiteral("Suggestion"), parent), suggestion_(new QLabel(this)) {
    setObjectName(QString::fromLatin1(names.Frame));
    suggestion_->setObjectName(QString::fromLatin1(names.Label));
    suggestion_->setFont(FieldFont());
    suggestion_->setTextFormat(Qt::PlainText);
    // A long name must not widen the window.
    suggestion_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* accept = new QPushButton(QStringLiteral("Accept"), this);
    accept->setObjectName(QString::fromLatin1(names.Button));
    accept->setAutoDefault(false);
    connect(accept, &QPushButton::clicked, this, &SuggestionFrame::Accepted);
    auto* row = new QHBoxLayout(this);
    row->addWidget(suggestion_, 1);
    row->addWidget(accept);
    hide();
}

void SuggestionFrame::Offer(bool wanted, std::string_view suggestion) {
    if (wanted)
        suggestion_->setText(FromAnsi(suggestion));
    setVisible(wanted);
}

} // namespace orvane
