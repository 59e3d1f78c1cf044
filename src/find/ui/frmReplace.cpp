// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/frmReplace.h"

#include "find/ui/FindLists.h"
#include "find/ui/PlanButtons.h"
#include "find/ui/PlanModel.h"
#include "kit/AnsiString.h"
#include "kit/EditedLabel.h"
#include "kit/OpenInDesktop.h"

#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace orvane {

namespace {

constexpr int kReplaceHelpPage = 4985;

} // namespace

frmReplace::frmReplace(const FsmDocument& document, find::ReplacementPlan plan, QWidget* parent)
    : QDialog(parent), changes_(new PlanModel(document, this)) {
    setObjectName(QStringLiteral("frmReplace"));
    setWindowTitle(tr("Replace in all"));
    AddHelpKey(*this, kReplaceHelpPage);
    auto* lblEdited = new EditedLabel(this, tr("All texts of the machine"));
    auto* lblNotes = new QLabel(NoteOf(plan), this);
    lblNotes->setObjectName(QStringLiteral("lblNotes"));
    lblNotes->setWordWrap(true);
    lblNotes->setTextFormat(Qt::PlainText);
    lstChanges = MakeList(this, "lstChanges", tr("What would be replaced"), changes_, {32, 34});
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblEdited);
    layout->addWidget(lblNotes);
    layout->addWidget(lstChanges, 1);
    const PlanButtons buttons = AddPlanButtons(*this, *layout);
    connect(buttons.All, &QPushButton::clicked, this, [this] { changes_->CheckAll(true); });
    connect(buttons.None, &QPushButton::clicked, this, [this] { changes_->CheckAll(false); });
    resize(kPlanSize);
    changes_->Show(std::move(plan.Changes));
    lstChanges->setFocus();
}

QString frmReplace::NoteOf(const find::ReplacementPlan& plan) {
    QString note = plan.Changes.size() == 1
                       ? tr("1 place would be changed; it is one undo step.")
                       : tr("%1 places would be changed; they are one undo step.").arg(plan.Changes.size());
    if (plan.LeftAlone > 0)
        note += QLatin1Char('\n') + tr("The path of the builder script stays as it is.");
    if (plan.End != find::SearchEnd::Complete)
        note += QLatin1Char('\n') + FromAnsi(find::TextOf(plan.End));
    return note;
}

std::vector<find::TextChange> frmReplace::Chosen() const { return changes_->ChosenChanges(); }

} // namespace orvane
