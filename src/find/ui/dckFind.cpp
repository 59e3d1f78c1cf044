// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/dckFind.h"

#include "find/ui/FindLists.h"
#include "find/ui/HitsModel.h"
#include "find/ui/UsesModel.h"
#include "kit/AnsiString.h"
#include "kit/DocumentLineEdit.h"
#include "kit/LeftOut.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace orvane {

namespace {

constexpr int kFindHelpPage = 4985;
constexpr int kPlacePercent = 35;

QLabel* MakeLabel(QWidget* parent, const char* name) {
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

dckFind::dckFind(const FsmDocument& document, QWidget* parent)
    : Pane("dckFind", tr("Find"), kFindHelpPage, parent),
      hits_(new HitsModel(document, this)),
      uses_(new UsesModel(document, this)) {
    tabFind = new QTabWidget(this);
    tabFind->setObjectName(QStringLiteral("tabFind"));
    tabFind->addTab(MakeFindPage(), tr("Find"));
    tabFind->addTab(MakeUsesPage(), tr("Where used"));
    setWidget(tabFind);
    ConnectLists();
}

QWidget* dckFind::MakeFindPage() {
    auto* page = new QWidget(this);
    txtFind = new DocumentLineEdit(page);
    txtFind->setObjectName(QStringLiteral("txtFind"));
    txtFind->setPlaceholderText(tr("Find in names, comments and code"));
    txtFind->setAccessibleName(tr("Find"));
    txtFind->setClearButtonEnabled(true);
    chkCase = MakeBox("chkCase", tr("Case"), tr("Capitals and small letters are not the same"));
    chkWord = MakeBox("chkWord", tr("Whole word"), tr("No word goes on at the ends of a match"));
    chkRegex = MakeBox("chkRegex", tr("Expression"),
                       tr("A regular expression: . [a-z] [^;] \\d \\w \\s \\t ^ $ \\b ( ) | * + ? {2,5}"));
    txtReplace = new DocumentLineEdit(page);
    txtReplace->setObjectName(QStringLiteral("txtReplace"));
    txtReplace->setPlaceholderText(tr("Replace by"));
    txtReplace->setAccessibleName(tr("Replace by"));
    txtReplace->setToolTip(tr("For an expression $1 to $9 are its groups, $0 is the match, \\t a tab"));
    cmdReplaceAll = new QPushButton(tr("Replace in all..."), page);
    cmdReplaceAll->setObjectName(QStringLiteral("cmdReplaceAll"));
    lblFound = MakeLabel(page, "lblFound");
    lstHits = MakeList(page, "lstHits", tr("What was found"), hits_, {kPlacePercent});
    auto* row = new QHBoxLayout;
    row->addWidget(txtFind, 3);
    for (QCheckBox* box : {chkCase, chkWord, chkRegex})
        row->addWidget(box);
    row->addWidget(txtReplace, 2);
    row->addWidget(cmdReplaceAll);
    auto* layout = new QVBoxLayout(page);
    layout->addLayout(row);
    layout->addWidget(lblFound);
    layout->addWidget(lstHits, 1);
    return page;
}

QWidget* dckFind::MakeUsesPage() {
    auto* page = new QWidget(this);
    lblUsed = MakeLabel(page, "lblUsed");
    lstUses = MakeList(page, "lstUses", tr("Where it is used"), uses_, {kPlacePercent});
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(lblUsed);
    layout->addWidget(lstUses, 1);
    return page;
}

QCheckBox* dckFind::MakeBox(const char* name, const QString& caption, const QString& hint) {
    auto* box = new QCheckBox(caption, this);
    box->setObjectName(QLatin1String(name));
    box->setToolTip(hint);
    connect(box, &QCheckBox::toggled, this, &dckFind::QueryChanged);
    return box;
}

// Return in the field goes to the list's row, as it does in the list.
void dckFind::ConnectLists() {
    connect(txtFind, &QLineEdit::textChanged, this, &dckFind::QueryChanged);
    connect(txtFind, &QLineEdit::returnPressed, this, [this] { ChooseHit(lstHits->currentIndex().row()); });
    for (DocumentLineEdit* field : {txtFind, txtReplace})
        connect(field, &DocumentLineEdit::CharactersLeftOut, this,
                [this](const QString& characters) { lblFound->setText(LeftOutMessage(characters)); });
    connect(cmdReplaceAll, &QPushButton::clicked, this, &dckFind::ReplaceWanted);
    connect(txtReplace, &QLineEdit::returnPressed, this, &dckFind::ReplaceWanted);
    connect(lstHits, &QTreeView::activated, this, [this](const QModelIndex& i) { ChooseHit(i.row()); });
    connect(lstUses, &QTreeView::activated, this, [this](const QModelIndex& i) { ChooseUse(i.row()); });
    // Arrows in the field go through the list below it.
    for (const auto& [key, by] : {std::pair{Qt::Key_Down, 1}, std::pair{Qt::Key_Up, -1}}) {
        auto* arrow = new QShortcut(key, txtFind);
        arrow->setContext(Qt::WidgetShortcut);
        connect(arrow, &QShortcut::activated, this, [this, by = by] {
            const int row =
                std::clamp(lstHits->currentIndex().row() + by, 0, std::max(hits_->rowCount() - 1, 0));
            lstHits->setCurrentIndex(hits_->index(row, 0));
        });
    }
}

void dckFind::TakeFocus() {
    tabFind->setCurrentIndex(0);
    txtFind->selectAll();
    txtFind->setFocus();
}

find::SearchQuery dckFind::Query() const {
    return {txtFind->Text(), chkCase->isChecked(), chkWord->isChecked(), chkRegex->isChecked()};
}

std::string dckFind::Replacement() const { return txtReplace->Text(); }

void dckFind::ShowHits(find::SearchResult found) {
    const int row = lstHits->currentIndex().row();
    const auto count = found.Hits.size();
    QString text = count == 0 ? tr("Nothing found") : tr("%n found", nullptr, int(count));
    if (count == 1)
        text = tr("1 found");
    else if (count > 1)
        text = tr("%1 found").arg(count);
    if (found.End != find::SearchEnd::Complete)
        text += QStringLiteral(". ") + FromAnsi(find::TextOf(found.End));
    lblFound->setText(text);
    hits_->Show(std::move(found.Hits));
    if (count > 0)
        lstHits->setCurrentIndex(hits_->index(std::clamp(row, 0, int(count) - 1), 0));
    cmdReplaceAll->setEnabled(count > 0);
}

void dckFind::ShowFault(const QString& fault) {
    hits_->Show({});
    lblFound->setText(fault);
    cmdReplaceAll->setEnabled(false);
}

void dckFind::Step(int by) {
    const int count = hits_->rowCount();
    if (count == 0)
        return;
    const int row = (lstHits->currentIndex().row() + by + count) % count;
    lstHits->setCurrentIndex(hits_->index(row, 0));
    ChooseHit(row);
}

void dckFind::ShowUses(const QString& title, std::vector<find::Use> uses) {
    const int row = lstUses->currentIndex().row();
    const auto count = int(uses.size());
    const QString number = count == 0   ? tr("is used nowhere")
                           : count == 1 ? tr("is used in 1 place")
                                        : tr("is used in %1 places").arg(count);
    lblUsed->setText(title + QLatin1Char(' ') + number);
    uses_->Show(std::move(uses));
    if (count > 0)
        lstUses->setCurrentIndex(uses_->index(std::clamp(row, 0, count - 1), 0));
    if (!ShowsUses()) {
        tabFind->setCurrentIndex(1);
        lstUses->setFocus();
    }
}

bool dckFind::ShowsUses() const { return tabFind->currentIndex() == 1; }

void dckFind::ChooseHit(int row) {
    if (row < 0 || row >= hits_->rowCount())
        return;
    const find::Hit& hit = hits_->HitAt(row);
    Q_EMIT PieceChosen(TextPiece{hit.Place, hit.Start, hit.Length});
}

void dckFind::ChooseUse(int row) {
    if (row < 0 || row >= uses_->rowCount())
        return;
    const find::Use use = uses_->UseAt(row);
    if (use.Text)
        Q_EMIT PieceChosen(TextPiece{use.Text->Place, use.Text->Start, use.Text->Length});
    else
        Q_EMIT PlaceChosen(use.At);
}

} // namespace orvane
