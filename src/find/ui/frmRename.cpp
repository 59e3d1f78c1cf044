// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/frmRename.h"

#include "find/ui/FindLists.h"
#include "find/ui/PlanButtons.h"
#include "find/ui/PlanModel.h"
#include "kit/AnsiString.h"
#include "kit/DocumentLineEdit.h"
#include "kit/EditedLabel.h"
#include "kit/LeftOut.h"
#include "kit/OpenInDesktop.h"

#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr int kRenameHelpPage = 4985;

} // namespace

frmRename::frmRename(const FsmDocument& document, find::Subject subject, QWidget* parent)
    : QDialog(parent),
      document_(document),
      subject_(std::move(subject)),
      changes_(new PlanModel(document, this)) {
    setObjectName(QStringLiteral("frmRename"));
    setWindowTitle(tr("Rename"));
    AddHelpKey(*this, kRenameHelpPage);
    Build();
    txtNew->SetText(find::NameOf(document_, subject_));
    txtNew->selectAll();
    txtNew->setFocus();
    Preview();
}

void frmRename::Build() {
    auto* lblEdited = new EditedLabel(this, FromAnsi(find::TitleOf(document_, subject_)));
    txtNew = new DocumentLineEdit(this);
    txtNew->setObjectName(QStringLiteral("txtNew"));
    txtNew->setAccessibleName(tr("New name"));
    lblNotes = new QLabel(this);
    lblNotes->setObjectName(QStringLiteral("lblNotes"));
    lblNotes->setWordWrap(true);
    lblNotes->setTextFormat(Qt::PlainText);
    lstUses = MakeList(this, "lstUses", tr("What would be changed"), changes_, {32, 34});
    auto* layout = new QVBoxLayout(this);
    for (QWidget* widget : std::initializer_list<QWidget*>{lblEdited, txtNew, lblNotes})
        layout->addWidget(widget);
    layout->addWidget(lstUses, 1);
    const PlanButtons buttons = AddPlanButtons(*this, *layout);
    cmdOK = buttons.Ok;
    connect(buttons.All, &QPushButton::clicked, this, [this] { changes_->CheckAll(true); });
    connect(buttons.None, &QPushButton::clicked, this, [this] { changes_->CheckAll(false); });
    connect(txtNew, &QLineEdit::textChanged, this, &frmRename::Preview);
    connect(txtNew, &DocumentLineEdit::CharactersLeftOut, this,
            [this](const QString& characters) { lblNotes->setText(LeftOutMessage(characters)); });
    resize(kPlanSize);
}

void frmRename::Preview() {
    const find::RenamePlan plan = PlanRename(document_, subject_, txtNew->Text());
    cmdOK->setEnabled(plan.Refusal.empty());
    QStringList notes;
    if (!plan.Refusal.empty())
        notes += FromAnsi(plan.Refusal);
    for (const std::string& note : plan.Notes)
        notes += FromAnsi(note);
    lblNotes->setText(notes.join(QLatin1Char('\n')));
    const auto fixed = std::count_if(plan.Uses.begin(), plan.Uses.end(), [](const find::TextUse& use) {
        return use.Kind == find::UseKind::Name;
    });
    changes_->Show(AllChanges(plan.Uses), std::size_t(fixed));
}

void frmRename::Suggest(const std::string& name) {
    txtNew->SetText(name);
    txtNew->selectAll();
}

std::vector<find::TextChange> frmRename::Chosen() const { return changes_->ChosenChanges(); }

} // namespace orvane
