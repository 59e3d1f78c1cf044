// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/ui/dckDiagram.h"

#include "diagram/ui/picDiagram.h"
#include "kit/AnsiString.h"
#include "text/AnsiText.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int kDiagramHelpPage = 4987;
constexpr int kEventCharacters = 10; // shown of an event's name at least

QString EventTitle(const FsmDocument& document, RowNumber row) {
    const std::string_view name = Trim(document.Event(row).Name);
    return name.empty() ? QStringLiteral("e%1").arg(row.Number()) : FromAnsi(name).simplified();
}

bool HasTransition(const FsmDocument& document, RowNumber row) {
    for (const StateNumber state : StateNumbers()) {
        if (document.State(state).Targets[row] != kNoState)
            return true;
    }
    return false;
}

} // namespace

dckDiagram::dckDiagram(const diagram::LivePicture& picture, const PictureFonts& fonts, QWidget* parent)
    : Pane("dckDiagram", tr("Diagram"), kDiagramHelpPage, parent),
      picture_(picture),
      view_(new picDiagram(picture, fonts, this)),
      cboEvent(new QComboBox(this)),
      cmdTidy(new QPushButton(this)),
      cmdPicture(new QToolButton(this)),
      lblDiagram(new QLabel(this)) {
    cboEvent->setObjectName(QStringLiteral("cboEvent"));
    cboEvent->setAccessibleName(tr("Transitions shown"));
    cboEvent->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboEvent->setMinimumContentsLength(kEventCharacters);
    cmdTidy->setObjectName(QStringLiteral("cmdTidy"));
    cmdTidy->hide();
    lblDiagram->setObjectName(QStringLiteral("lblDiagram"));
    lblDiagram->setTextFormat(Qt::PlainText);
    lblDiagram->setWordWrap(true);
    MakeMenu();
    auto* body = new QWidget(this);
    auto* column = new QVBoxLayout(body);
    auto* row = new QHBoxLayout;
    row->addWidget(cboEvent, 1);
    row->addWidget(cmdTidy);
    row->addWidget(cmdPicture);
    column->addLayout(row);
    column->addWidget(view_, 1);
    column->addWidget(lblDiagram);
    setWidget(body);
    setFocusProxy(view_);
    connect(cboEvent, &QComboBox::currentIndexChanged, this, &dckDiagram::WishChanged);
    connect(cmdTidy, &QPushButton::clicked, this, &dckDiagram::TidyWanted);
    connect(view_, &picDiagram::AllWanted, all_, &QAction::toggle);
}

void dckDiagram::MakeMenu() {
    cmdPicture->setObjectName(QStringLiteral("cmdPicture"));
    cmdPicture->setText(tr("Picture"));
    cmdPicture->setPopupMode(QToolButton::InstantPopup);
    cmdPicture->setMenu(new QMenu(cmdPicture));
    hideElse_ = AddToggle("mnuPictureElse", tr("Leave out ELSE"));
    stubs_ = AddToggle("mnuPictureStubs", tr("Short arrows to states that many lead to"));
    all_ = AddToggle("mnuPictureAll", tr("All states of a large machine\tA"));
    cmdPicture->menu()->addSeparator();
    auto* fit = cmdPicture->menu()->addAction(tr("Fit into the pane\tCtrl+0"));
    fit->setObjectName(QStringLiteral("mnuPictureFit"));
    connect(fit, &QAction::triggered, view_, &picDiagram::Fit);
    AddItem("mnuPictureTurn", tr("Turn: from left to right, or from the top down"), &dckDiagram::TurnWanted);
    AddItem("mnuPictureSave", tr("Save the picture..."), &dckDiagram::SaveWanted);
}

QAction* dckDiagram::AddToggle(const char* name, const QString& caption) {
    QAction* action = cmdPicture->menu()->addAction(caption);
    action->setObjectName(QLatin1String(name));
    action->setCheckable(true);
    connect(action, &QAction::toggled, this, &dckDiagram::WishChanged);
    return action;
}

void dckDiagram::AddItem(const char* name, const QString& caption, void (dckDiagram::*wanted)()) {
    QAction* action = cmdPicture->menu()->addAction(caption);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, wanted);
}

diagram::PictureWish dckDiagram::Wish() const {
    diagram::PictureWish wish;
    wish.Options.HideElse = hideElse_->isChecked();
    wish.Options.Stubs = stubs_->isChecked();
    wish.All = all_->isChecked();
    if (const int row = cboEvent->currentData().toInt(); row != 0)
        wish.Options.OnlyRow = row;
    return wish;
}

void dckDiagram::ShowEvents(const FsmDocument& document) {
    const QSignalBlocker quiet(cboEvent);
    const QVariant chosen = cboEvent->currentData();
    cboEvent->clear();
    cboEvent->addItem(tr("All events"), 0);
    if (HasTransition(document, kTimeoutRow))
        cboEvent->addItem(tr("Timeouts"), kTimeoutRow);
    if (HasTransition(document, kElseRow))
        cboEvent->addItem(tr("ELSE"), kElseRow);
    for (const RowNumber row : EventRows()) {
        if (HasTransition(document, row))
            cboEvent->addItem(EventTitle(document, row), row.Number());
    }
    cboEvent->setCurrentIndex(std::max(0, cboEvent->findData(chosen)));
}

void dckDiagram::ShowPicture() {
    view_->Refresh();
    cmdTidy->setText(tr("Tidy (saves %1 crossings)").arg(picture_.Saved()));
    cmdTidy->setVisible(picture_.Saved() > 0);
    lblDiagram->setText(PartText());
    lblDiagram->setVisible(!lblDiagram->text().isEmpty());
}

QString dckDiagram::PartText() const {
    if (picture_.Shown().States.empty())
        return tr("Nothing to draw yet: name a state in the table, or lead a transition to it.");
    if (picture_.ShownPart() == diagram::Part::Whole)
        return {};
    const auto around = picture_.Shown().IndexOf(picture_.Around().value_or(kNoState));
    if (!around)
        return {};
    const QString part = tr("%1 of %2 states: %3, what leads there and where it leads. ")
                             .arg(picture_.Shown().States.size())
                             .arg(picture_.StatesInAll())
                             .arg(FromAnsi(picture_.Shown().States[*around].Title));
    switch (picture_.ShownPart()) {
    case diagram::Part::InTheMaking:
        return part + tr("All of them are being laid out...");
    case diagram::Part::TooMany:
        return part + tr("The machine has more lines than a picture can show.");
    case diagram::Part::TooSlow:
        return part + tr("To lay out all of them takes too long.");
    default:
        return part + tr("Press A in the picture to see all.");
    }
}

} // namespace orvane
