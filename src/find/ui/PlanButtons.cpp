// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/PlanButtons.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvane {

PlanButtons AddPlanButtons(QDialog& dialog, QVBoxLayout& layout) {
    auto* row = new QHBoxLayout;
    const auto add = [&](const char* name, const QString& caption) {
        auto* button = new QPushButton(caption, &dialog);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        row->addWidget(button);
        return button;
    };
    QPushButton* all = add("cmdAll", QObject::tr("Check all"));
    QPushButton* none = add("cmdNone", QObject::tr("Check none"));
    row->addStretch();
    QPushButton* ok = add("cmdOK", QStringLiteral("OK"));
    QPushButton* cancel = add("cmdCancel", QStringLiteral("Cancel"));
    ok->setDefault(true);
    QObject::connect(ok, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    layout.addLayout(row);
    return {all, none, ok};
}

} // namespace orvane
