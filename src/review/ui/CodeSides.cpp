// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ui/CodeSides.h"

#include "review/LineDiff.h"
#include "review/ui/SidePane.h"

#include <QLabel>
#include <QVBoxLayout>

namespace orvane {

CodeSides::CodeSides(QWidget* parent) : QSplitter(Qt::Horizontal, parent) {
    lblOld = new QLabel(this);
    lblOld->setObjectName(QStringLiteral("lblOld"));
    lblNew = new QLabel(this);
    lblNew->setObjectName(QStringLiteral("lblNew"));
    txtOld = new SidePane(SidePane::Side::Old, this);
    txtOld->setObjectName(QStringLiteral("txtOld"));
    txtOld->setAccessibleName(tr("Code of the old version"));
    txtNew = new SidePane(SidePane::Side::New, this);
    txtNew->setObjectName(QStringLiteral("txtNew"));
    txtNew->setAccessibleName(tr("Code of the new version"));
    addWidget(AddSide(lblOld, txtOld));
    addWidget(AddSide(lblNew, txtNew));
    setChildrenCollapsible(false);
}

QWidget* CodeSides::AddSide(QLabel* label, SidePane* pane) {
    auto* side = new QWidget(this);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    label->setTextFormat(Qt::PlainText);
    label->setSizePolicy(QSizePolicy::Ignored,
                         QSizePolicy::Preferred); // a long name is cut off, not the pane
    layout->addWidget(label);
    layout->addWidget(pane, 1);
    return side;
}

void CodeSides::SetVocabulary(const Vocabulary& vocabulary) {
    txtOld->SetVocabulary(vocabulary);
    txtNew->SetVocabulary(vocabulary);
}

void CodeSides::ShowNames(const QString& oldName, const QString& newName) {
    lblOld->setText(tr("Old: %1").arg(oldName));
    lblNew->setText(tr("New: %1").arg(newName));
}

void CodeSides::ShowSides(const review::ChangeSides& sides) {
    const std::vector<review::LineChange> changes =
        review::DiffLines(review::LinesOf(sides.Old), review::LinesOf(sides.New));
    txtOld->ShowSide(sides.Old, changes);
    txtNew->ShowSide(sides.New, changes);
}

} // namespace orvane
