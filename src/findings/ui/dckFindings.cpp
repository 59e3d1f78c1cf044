// SPDX-License-Identifier: GPL-3.0-or-later
#include "findings/ui/dckFindings.h"

#include "findings/ui/FindingsModel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QTableView>

namespace orvane {

namespace {

constexpr int kFindingsHelpPage = 4995;
constexpr int kSeverityWidth = 12; // characters
constexpr int kPlaceWidth = 32;

} // namespace

dckFindings::dckFindings(const FsmDocument& document, const std::vector<DesignFinding>& findings,
                         QWidget* parent)
    : Pane("dckFindings", tr("Findings"), kFindingsHelpPage, parent),
      model_(new FindingsModel(document, findings, this)),
      lstFindings(new QTableView(this)),
      chkExplore(new QCheckBox(tr("Look at all that the machine can do, too"), this)),
      lblExplore(new QLabel(this)) {
    auto* body = new QWidget(this);
    auto* column = new QVBoxLayout(body);
    MakeList(*column);
    MakeBottom(*column);
    setWidget(body);
    setFocusProxy(lstFindings);
}

void dckFindings::MakeList(QVBoxLayout& column) {
    lstFindings->setObjectName(QStringLiteral("lstFindings"));
    lstFindings->setAccessibleName(tr("Findings"));
    lstFindings->setModel(model_);
    lstFindings->setSelectionBehavior(QAbstractItemView::SelectRows);
    lstFindings->setSelectionMode(QAbstractItemView::SingleSelection);
    lstFindings->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lstFindings->setShowGrid(false);
    lstFindings->setWordWrap(false);
    lstFindings->setTabKeyNavigation(false);
    lstFindings->verticalHeader()->hide();
    lstFindings->verticalHeader()->setDefaultSectionSize(lstFindings->fontMetrics().height() + 4);
    QHeaderView& heads = *lstFindings->horizontalHeader();
    heads.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    heads.setHighlightSections(false);
    heads.setStretchLastSection(true);
    const int character = lstFindings->fontMetrics().averageCharWidth();
    heads.resizeSection(0, character * kSeverityWidth);
    heads.resizeSection(1, character * kPlaceWidth);
    lstFindings->installEventFilter(this);
    connect(lstFindings, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT FindingChosen(index.row()); });
    column.addWidget(lstFindings);
}

void dckFindings::MakeBottom(QVBoxLayout& column) {
    chkExplore->setObjectName(QStringLiteral("chkExplore"));
    chkExplore->setToolTip(
        tr("Timeouts that are never due, states without a way back, traps, and so on. It is "
           "looked for after every edit, beside your work."));
    lblExplore->setObjectName(QStringLiteral("lblExplore"));
    lblExplore->setTextFormat(Qt::PlainText);
    lblExplore->setWordWrap(true);
    auto* row = new QHBoxLayout;
    row->addWidget(chkExplore);
    row->addWidget(lblExplore, 1);
    column.addLayout(row);
    connect(chkExplore, &QCheckBox::toggled, this, &dckFindings::ExploringWanted);
}

void dckFindings::ShowFindings() {
    const int row = lstFindings->currentIndex().row();
    model_->Refresh();
    Choose(std::min(row, model_->rowCount() - 1));
}

void dckFindings::Choose(int row) { lstFindings->setCurrentIndex(model_->index(row, 0)); }

bool dckFindings::Explores() const { return chkExplore->isChecked(); }

void dckFindings::ShowExploring(const QString& text) { lblExplore->setText(text); }

bool dckFindings::eventFilter(QObject* watched, QEvent* event) {
    const auto* key = event->type() == QEvent::KeyPress ? dynamic_cast<QKeyEvent*>(event) : nullptr;
    if (watched != lstFindings || key == nullptr ||
        (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter))
        return Pane::eventFilter(watched, event);
    if (lstFindings->currentIndex().isValid())
        Q_EMIT FindingChosen(lstFindings->currentIndex().row());
    return true;
}

} // namespace orvane
