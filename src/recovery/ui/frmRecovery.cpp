// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/ui/frmRecovery.h"

#include "kit/CloseKeys.h"
#include "kit/OpenInDesktop.h"
#include "kit/UserMessageBox.h"
#include "recovery/ui/WorkListModel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace orvane {

namespace {

constexpr QSize kRecoverySize{820, 420};
constexpr int kRecoveryHelpPage = 4970;
constexpr int kShownDiscarded = 4; // rows of that list, which is not what the window came up for

// The first row with the name; none when it is not there.
std::optional<int> RowNamed(const WorkListModel& model, const std::string& name) {
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.Item(row).Name == name)
            return row;
    }
    return std::nullopt;
}

} // namespace

frmRecovery::frmRecovery(QWidget* parent)
    : QDialog(parent), left_(new WorkListModel(this)), discarded_(new WorkListModel(this)) {
    setObjectName(QStringLiteral("frmRecovery"));
    setWindowTitle(tr("Recover earlier work"));
    BuildControls();
    LayOut();
    resize(kRecoverySize);
    AddHelpKey(*this, kRecoveryHelpPage);
    AddCloseKeys(*this);
    ShowWork({});
}

void frmRecovery::BuildControls() {
    lblRecovered = new QLabel(this);
    lblRecovered->setObjectName(QStringLiteral("lblRecovered"));
    lblRecovered->setWordWrap(true);
    lstRecovered = AddList(QStringLiteral("lstRecovered"), tr("Work that was not saved"), left_);
    lblDiscarded = new QLabel(tr("Recently discarded (kept for 7 days)"), this);
    lblDiscarded->setObjectName(QStringLiteral("lblDiscarded"));
    lstDiscarded = AddList(QStringLiteral("lstDiscarded"), tr("Work that was discarded lately"), discarded_);
    chkKeepJournal = new QCheckBox(tr("Keep unsaved changes for recovery"), this);
    chkKeepJournal->setObjectName(QStringLiteral("chkKeepJournal"));
    chkKeepJournal->setToolTip(
        tr("Without it, what is not saved is lost when Orvane or the computer fails."));

    cmdRecover = AddButton(QStringLiteral("cmdRecover"), tr("Recover"));
    cmdCompare = AddButton(QStringLiteral("cmdCompare"), tr("Compare..."));
    cmdDiscard = AddButton(QStringLiteral("cmdDiscard"), tr("Discard..."));
    cmdLater = AddButton(QStringLiteral("cmdLater"), tr("Later"));
    cmdDeleteAll = AddButton(QStringLiteral("cmdDeleteAll"), tr("Delete all..."));
    cmdRecover->setDefault(true);

    connect(cmdRecover, &QPushButton::clicked, this, &frmRecovery::Recover);
    connect(cmdCompare, &QPushButton::clicked, this, &frmRecovery::Compare);
    connect(cmdDiscard, &QPushButton::clicked, this, &frmRecovery::Discard);
    connect(cmdLater, &QPushButton::clicked, this, &frmRecovery::reject);
    connect(cmdDeleteAll, &QPushButton::clicked, this, &frmRecovery::DeleteAll);
    connect(chkKeepJournal, &QCheckBox::clicked, this, &frmRecovery::KeepJournalChosen);
    connect(lstRecovered->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { TakeSelection(lstRecovered, lstDiscarded); });
    connect(lstDiscarded->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { TakeSelection(lstDiscarded, lstRecovered); });
}

QTreeView* frmRecovery::AddList(const QString& name, const QString& accessibleName, WorkListModel* model) {
    auto* list = new QTreeView(this);
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAllColumnsShowFocus(true);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setModel(model);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->header()->setSectionResizeMode(WorkListModel::Folder, QHeaderView::Stretch);
    connect(list, &QTreeView::doubleClicked, this, &frmRecovery::Recover);
    return list;
}

// Return in a list is Recover; none of the other buttons takes it.
QPushButton* frmRecovery::AddButton(const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

void frmRecovery::LayOut() {
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdDeleteAll);
    buttons->addStretch(1);
    for (QPushButton* button : {cmdRecover, cmdCompare, cmdDiscard, cmdLater})
        buttons->addWidget(button);
    auto* all = new QVBoxLayout(this);
    all->addWidget(lblRecovered);
    all->addWidget(lstRecovered, 1);
    all->addWidget(lblDiscarded);
    all->addWidget(lstDiscarded);
    all->addWidget(chkKeepJournal);
    all->addLayout(buttons);
    const int rowHeight = fontMetrics().height() * 3 / 2;
    lstDiscarded->setFixedHeight((kShownDiscarded + 1) * rowHeight);
}

void frmRecovery::ShowWork(WorkList work) {
    const WorkItem* chosen = Chosen();
    const std::string name = chosen != nullptr ? chosen->Name : std::string();
    left_->Show(std::move(work.Left));
    discarded_->Show(std::move(work.Discarded));
    const bool isEmpty = left_->rowCount() == 0;
    lblRecovered->setText(
        isEmpty ? tr("There is no unsaved work to recover.")
                : tr("Orvane ended before these changes were saved. Recover opens the document as it was, "
                     "with its undo steps; its file stays as it is until you save."));
    const bool hasDiscarded = discarded_->rowCount() > 0;
    lblDiscarded->setVisible(hasDiscarded);
    lstDiscarded->setVisible(hasDiscarded);
    Select(name);
    ShowWhatIsPossible();
}

// Something is chosen whenever there is something to recover, so that Return works at once.
void frmRecovery::Select(const std::string& name) {
    if (const std::optional<int> row = RowNamed(*discarded_, name))
        return lstDiscarded->setCurrentIndex(discarded_->index(*row, 0));
    if (left_->rowCount() > 0)
        lstRecovered->setCurrentIndex(left_->index(RowNamed(*left_, name).value_or(0), 0));
}

void frmRecovery::ShowKeepJournal(bool keep) { chkKeepJournal->setChecked(keep); }

// One thing is chosen in both lists together.
void frmRecovery::TakeSelection(const QTreeView* list, QTreeView* other) {
    if (list->selectionModel()->hasSelection()) {
        const QSignalBlocker quiet(other->selectionModel());
        other->clearSelection();
        other->viewport()->update();
    }
    ShowWhatIsPossible();
}

void frmRecovery::ShowWhatIsPossible() {
    for (QPushButton* button : {cmdRecover, cmdCompare})
        button->setEnabled(Chosen() != nullptr);
    cmdDiscard->setEnabled(lstRecovered->selectionModel()->hasSelection());
    cmdDeleteAll->setEnabled(left_->rowCount() + discarded_->rowCount() > 0);
}

const WorkItem* frmRecovery::Chosen() const {
    const std::pair<QTreeView*, WorkListModel*> lists[] = {{lstRecovered, left_}, {lstDiscarded, discarded_}};
    for (const auto& [list, model] : lists) {
        const QModelIndexList rows = list->selectionModel()->selectedRows();
        if (!rows.isEmpty())
            return &model->Item(rows.constFirst().row());
    }
    return nullptr;
}

void frmRecovery::Recover() {
    if (const WorkItem* chosen = Chosen())
        Q_EMIT RecoverWanted(std::string(chosen->Name));
}

void frmRecovery::Compare() {
    if (const WorkItem* chosen = Chosen())
        Q_EMIT CompareWanted(std::string(chosen->Name));
}

void frmRecovery::Discard() {
    const WorkItem* chosen = Chosen();
    if (chosen == nullptr)
        return;
    const std::string name = chosen->Name;
    const QString question = tr("Discard the unsaved changes of %1?\r\n\r\nFor 7 days they can still be "
                                "recovered from the list of what was recently discarded.")
                                 .arg(QString::fromStdString(chosen->Row.Document));
    if (AskYesNo(this, question))
        Q_EMIT DiscardWanted(name);
}

void frmRecovery::DeleteAll() {
    if (AskYesNo(this,
                 tr("Delete everything that is kept for recovery?\r\n\r\nAll unsaved and discarded work "
                    "listed here and the copies of replaced files are removed for good. What is open in "
                    "a window stays.")))
        Q_EMIT DeleteAllWanted();
}

} // namespace orvane
