// SPDX-License-Identifier: GPL-3.0-or-later
#include "outside/ui/fraFileChanged.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace orvane {

fraFileChanged::fraFileChanged(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("fraFileChanged"));
    setFrameShape(QFrame::StyledPanel);
    auto* row = new QHBoxLayout(this);
    auto* icon = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
    row->addWidget(icon);
    lblFileChanged = new QLabel(this);
    lblFileChanged->setObjectName(QStringLiteral("lblFileChanged"));
    lblFileChanged->setTextFormat(Qt::PlainText);
    lblFileChanged->setWordWrap(true);
    row->addWidget(lblFileChanged, 1);
    cmdReload = AddButton(QStringLiteral("cmdReload"), tr("&Reload"));
    cmdCompareFile = AddButton(QStringLiteral("cmdCompareFile"), tr("&Compare..."));
    cmdKeep = AddButton(QStringLiteral("cmdKeep"), tr("&Keep"));
    connect(cmdReload, &QPushButton::clicked, this, &fraFileChanged::ReloadWanted);
    connect(cmdCompareFile, &QPushButton::clicked, this, &fraFileChanged::CompareWanted);
    connect(cmdKeep, &QPushButton::clicked, this, &fraFileChanged::KeepWanted);
}

QPushButton* fraFileChanged::AddButton(const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setAutoDefault(false); // Return belongs to the table
    layout()->addWidget(button);
    return button;
}

void fraFileChanged::Present(const QString& text, Offer offer) {
    lblFileChanged->setText(text);
    setAccessibleName(text);
    for (QPushButton* button : {cmdReload, cmdCompareFile})
        button->setVisible(offer == Offer::Reload);
    cmdKeep->setText(offer == Offer::Reload ? tr("&Keep") : tr("&OK"));
    show();
}

} // namespace orvane
