// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/frmMove.h"

#include "find/PlaceText.h"
#include "find/Rename.h"
#include "find/ui/FindLists.h"
#include "find/ui/PlanButtons.h"
#include "find/ui/PlanModel.h"
#include "kit/AnsiString.h"
#include "kit/DocumentLineEdit.h"
#include "kit/EditedLabel.h"
#include "kit/OpenInDesktop.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int kMoveHelpPage = 4985;

} // namespace

frmMove::frmMove(const FsmDocument& document, Cell what, QWidget* parent)
    : QDialog(parent), document_(document), what_(what), changes_(new PlanModel(document, this)) {
    setObjectName(QStringLiteral("frmMove"));
    setWindowTitle(tr("Move"));
    AddHelpKey(*this, kMoveHelpPage);
    Build();
    txtPlace->setFocus();
    Preview();
}

void frmMove::Build() {
    const bool ofState = what_.State != kNoState;
    auto* layout = new QVBoxLayout(this);
    auto* lblEdited = new EditedLabel(this, FromAnsi(find::CellTitle(document_, what_)));
    txtPlace = new DocumentLineEdit(this);
    txtPlace->setObjectName(QStringLiteral("txtPlace"));
    txtPlace->setAccessibleName(tr("Number of the place"));
    txtPlace->setPlaceholderText(ofState ? tr("1 to 100") : tr("row 6 to 54"));
    chkStart = new QCheckBox(tr("State 1, too (it is the start)"), this);
    chkStart->setObjectName(QStringLiteral("chkStart"));
    layout->addWidget(lblEdited);
    AddOption(*layout, find::MoveKind::ToPlace, "optTo", tr("Move to the place"));
    AddOption(*layout, find::MoveKind::Swap, "optSwap", tr("Swap with the one at the place"));
    layout->addWidget(txtPlace);
    if (ofState) {
        AddOption(*layout, find::MoveKind::SortByName, "optSortName", tr("Sort all states by name"));
        layout->addWidget(chkStart);
        AddOption(*layout, find::MoveKind::SortByWay, "optSortWay",
                  tr("Sort all states by the way from the start"));
    }
    AddOption(*layout, find::MoveKind::CloseGaps, "optCloseGaps", tr("Close the gaps between those in use"));
    chkStart->setVisible(ofState);
    lblNotes = new QLabel(this);
    lblNotes->setObjectName(QStringLiteral("lblNotes"));
    lblNotes->setWordWrap(true);
    lblNotes->setTextFormat(Qt::PlainText);
    lstUses = MakeList(this, "lstUses", tr("Labels in your code that have another number then"), changes_,
                       {32, 34});
    layout->addWidget(lblNotes);
    layout->addWidget(lstUses, 1);
    const PlanButtons buttons = AddPlanButtons(*this, *layout);
    cmdOK = buttons.Ok;
    options_[find::MoveKind::ToPlace]->setChecked(true);
    connect(buttons.All, &QPushButton::clicked, this, [this] { changes_->CheckAll(true); });
    connect(buttons.None, &QPushButton::clicked, this, [this] { changes_->CheckAll(false); });
    connect(txtPlace, &QLineEdit::textChanged, this, &frmMove::Preview);
    connect(chkStart, &QCheckBox::toggled, this, &frmMove::Preview);
    resize(kPlanSize);
}

void frmMove::AddOption(QVBoxLayout& layout, find::MoveKind kind, const char* name, const QString& caption) {
    auto* option = new QRadioButton(caption, this);
    option->setObjectName(QLatin1String(name));
    connect(option, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            Preview();
    });
    options_[kind] = option;
    layout.addWidget(option);
}

find::MoveWish frmMove::Wish() const {
    find::MoveWish wish{.What = what_, .Place = txtPlace->Text(), .StartToo = chkStart->isChecked()};
    for (const auto& [kind, option] : options_) {
        if (option->isChecked())
            wish.Kind = kind;
    }
    return wish;
}

void frmMove::Preview() {
    const find::MoveWish wish = Wish();
    txtPlace->setEnabled(wish.Kind == find::MoveKind::ToPlace || wish.Kind == find::MoveKind::Swap);
    chkStart->setEnabled(wish.Kind == find::MoveKind::SortByName);
    const find::WishedOrder wished = OrderOf(document_, wish);
    cmdOK->setEnabled(wished.Order.has_value());
    plan_.reset();
    QStringList notes;
    std::vector<find::TextChange> labels;
    if (wished.Order) {
        plan_ = find::PlanMove(document_, *wished.Order);
        labels = AllChanges(plan_->Labels);
        for (const std::string& note : plan_->Notes)
            notes += FromAnsi(note);
        if (!labels.empty())
            notes += tr("Labels in your code that have another number then:");
    } else {
        notes += FromAnsi(wished.Refusal);
    }
    lblNotes->setText(notes.join(QLatin1Char('\n')));
    changes_->Show(std::move(labels));
}

const std::vector<bool>& frmMove::ChosenLabels() const { return changes_->Chosen(); }

} // namespace orvane
