// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ui/frmCompare.h"

#include "kit/CloseKeys.h"
#include "kit/OpenInDesktop.h"
#include "review/ui/ChangesModel.h"
#include "review/ui/CodeSides.h"
#include "review/ui/UnionModel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace orvane {

namespace {

constexpr QSize kCompareSize{1100, 720};
constexpr int kCompareHelpPage = 4980;
constexpr int kColumnWidth = 130;      // pixels, of a state
constexpr int kIdentityLength = 20;    // characters
constexpr int kLineGap = 16;           // pixels
constexpr int kLongestPromptName = 30; // characters of a name in a prompt
constexpr int kSeen = 100;             // milliseconds after which a comparison is one that is waited for
constexpr auto kSources =
    std::to_array<VersionSource>({VersionSource::Disk, VersionSource::Head, VersionSource::File});

} // namespace

frmCompare::frmCompare(const Vocabulary& vocabulary, QWidget* parent)
    : QWidget(parent, Qt::Window),
      union_(new UnionModel(this)),
      changes_(new ChangesModel(this)),
      tmrCompare_(new QTimer(this)) {
    setObjectName(QStringLiteral("frmCompare"));
    setWindowTitle(tr("Compare versions"));
    BuildChoices();
    BuildViews();
    BuildIdentity();
    sides_->SetVocabulary(vocabulary);
    BuildButtons();
    LayOut();
    tmrCompare_->setObjectName(QStringLiteral("tmrCompare"));
    tmrCompare_->setSingleShot(true);
    tmrCompare_->setInterval(kSeen);
    connect(tmrCompare_, &QTimer::timeout, this,
            [this] { ShowNothing(tr("The versions are compared ...")); });
    resize(kCompareSize);
    AddHelpKey(*this, kCompareHelpPage);
    AddCloseKeys(*this);
}

void frmCompare::BuildChoices() {
    cboCompareWith = new QComboBox(this);
    cboCompareWith->setObjectName(QStringLiteral("cboCompareWith"));
    cboCompareWith->addItems(
        {tr("The version on disk"), tr("The last commit (git HEAD)"), tr("Another file...")});
    connect(cboCompareWith, &QComboBox::activated, this,
            [this](int chosen) { Q_EMIT SourceChosen(kSources[std::size_t(chosen)]); });
    cmdExchange = AddButton(QStringLiteral("cmdExchange"), tr("E&xchange sides"));
    connect(cmdExchange, &QPushButton::clicked, this, &frmCompare::ExchangeWanted);
    chkView = new QCheckBox(tr("&Widths, heights and shown rows too"), this);
    chkView->setObjectName(QStringLiteral("chkView"));
    connect(chkView, &QCheckBox::clicked, this, &frmCompare::ViewToggled);
    for (QLabel** label : {&lblSummary, &lblNotice}) {
        *label = new QLabel(this);
        (*label)->setTextFormat(Qt::PlainText);
        (*label)->setWordWrap(true);
    }
    lblSummary->setObjectName(QStringLiteral("lblSummary"));
    lblNotice->setObjectName(QStringLiteral("lblNotice"));
    lblNotice->hide();
}

void frmCompare::BuildViews() {
    tblCompare = new QTableView(this);
    tblCompare->setObjectName(QStringLiteral("tblCompare"));
    tblCompare->setAccessibleName(tr("The table of both versions"));
    tblCompare->setModel(union_);
    tblCompare->setSelectionMode(QAbstractItemView::SingleSelection);
    tblCompare->setWordWrap(false);
    tblCompare->horizontalHeader()->setDefaultSectionSize(kColumnWidth);
    tblCompare->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    connect(tblCompare, &QTableView::clicked, this, &frmCompare::SelectAt);
    lstChanges = new QTreeView(this);
    lstChanges->setObjectName(QStringLiteral("lstChanges"));
    lstChanges->setAccessibleName(tr("Changes"));
    lstChanges->setModel(changes_);
    lstChanges->setRootIsDecorated(false);
    lstChanges->setUniformRowHeights(true);
    lstChanges->setAllColumnsShowFocus(true);
    lstChanges->setHeaderHidden(true);
    lstChanges->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    connect(lstChanges->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &frmCompare::ShowChange);
    connect(lstChanges, &QTreeView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT ChangeChosen(std::size_t(index.row())); });
    sides_ = new CodeSides(this);
}

void frmCompare::BuildIdentity() {
    lblIdentity = new QLabel(this);
    lblIdentity->setObjectName(QStringLiteral("lblIdentity"));
    lblIdentity->setTextFormat(Qt::PlainText);
    cboIdentity = new QComboBox(this);
    cboIdentity->setObjectName(QStringLiteral("cboIdentity"));
    cboIdentity->setAccessibleName(tr("What it is in the other version"));
    cboIdentity->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboIdentity->setMinimumContentsLength(kIdentityLength);
    connect(cboIdentity, &QComboBox::activated, this,
            [this](int chosen) { Q_EMIT IdentityChosen(wishes_[std::size_t(chosen)]); });
}

void frmCompare::BuildButtons() {
    cmdPrevious = AddButton(QStringLiteral("cmdPrevious"), tr("&Previous (F7)"));
    cmdNext = AddButton(QStringLiteral("cmdNext"), tr("&Next (F8)"));
    cmdTakeOver = AddButton(QStringLiteral("cmdTakeOver"), tr("&Take over"));
    cmdClose = AddButton(QStringLiteral("cmdClose"), tr("Close"));
    const auto previous = [this] { Go(Direction::Previous); };
    const auto next = [this] { Go(Direction::Next); };
    connect(cmdPrevious, &QPushButton::clicked, this, previous);
    connect(cmdNext, &QPushButton::clicked, this, next);
    connect(new QShortcut(Qt::Key_F7, this), &QShortcut::activated, this, previous);
    connect(new QShortcut(Qt::Key_F8, this), &QShortcut::activated, this, next);
    connect(cmdTakeOver, &QPushButton::clicked, this, &frmCompare::TakeOver);
    connect(cmdClose, &QPushButton::clicked, this, &QWidget::hide);
}

QPushButton* frmCompare::AddButton(const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    return button;
}

void frmCompare::LayOut() {
    auto* choices = new QHBoxLayout;
    auto* prompt = new QLabel(tr("&Compare with"), this);
    prompt->setBuddy(cboCompareWith);
    for (QWidget* widget : std::initializer_list<QWidget*>{prompt, cboCompareWith, cmdExchange, chkView})
        choices->addWidget(widget);
    choices->addStretch(1);
    auto* across = new QSplitter(Qt::Horizontal, this);
    across->addWidget(tblCompare);
    across->addWidget(lstChanges);
    across->setSizes({kCompareSize.width() * 3 / 5, kCompareSize.width() * 2 / 5});
    across->setChildrenCollapsible(false);
    auto* down = new QSplitter(Qt::Vertical, this);
    down->addWidget(across);
    down->addWidget(sides_);
    down->setSizes({kCompareSize.height() * 3 / 5, kCompareSize.height() * 2 / 5});
    down->setChildrenCollapsible(false);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdPrevious, cmdNext, cmdTakeOver})
        buttons->addWidget(button);
    buttons->addSpacing(kLineGap);
    buttons->addWidget(lblIdentity);
    buttons->addWidget(cboIdentity);
    buttons->addStretch(1);
    buttons->addWidget(cmdClose);
    auto* all = new QVBoxLayout(this);
    all->addLayout(choices);
    all->addWidget(lblSummary);
    all->addWidget(lblNotice);
    all->addWidget(down, 1);
    all->addLayout(buttons);
}

void frmCompare::ShowHeading(const Heading& heading) {
    heading_ = heading;
    sides_->ShowNames(heading.Old, heading.New);
    cmdTakeOver->setVisible(!heading.TakeOver.isEmpty());
    cmdTakeOver->setText(heading.TakeOver);
}

void frmCompare::ShowSource(VersionSource source) {
    const auto* found = std::find(kSources.begin(), kSources.end(), source);
    cboCompareWith->setCurrentIndex(int(found - kSources.begin()));
}

bool frmCompare::ComparesView() const { return chkView->isChecked(); }

void frmCompare::ShowBusy() {
    cmdTakeOver->setEnabled(false);
    if (versions_ != nullptr)
        tmrCompare_->start();
    else
        ShowNothing(tr("The versions are compared ..."));
}

void frmCompare::ShowVersions(std::shared_ptr<const review::ComparedVersions> versions) {
    Show(std::move(versions));
    ShowSummary();
    const int last = changes_->rowCount() - 1;
    if (last >= 0)
        SelectChange(std::min(lastRow_, last));
    else
        sides_->ShowSides({});
}

void frmCompare::ShowNothing(const QString& why) {
    Show(nullptr);
    lblSummary->setText(why);
    sides_->ShowSides({});
}

// The models let go of the former versions before these go.
void frmCompare::Show(std::shared_ptr<const review::ComparedVersions> versions) {
    tmrCompare_->stop();
    const int row = lastRow_;
    union_->Show(versions);
    changes_->Show(versions);
    versions_ = std::move(versions);
    lastRow_ = row;
    const bool hasChanges = changes_->rowCount() > 0;
    for (QPushButton* button : {cmdPrevious, cmdNext, cmdTakeOver})
        button->setEnabled(hasChanges);
    lblIdentity->hide();
    cboIdentity->hide();
}

void frmCompare::ShowSummary() {
    const std::size_t count = versions_->Told().size();
    QString text = count == 0 ? tr("No changes") : QString::fromStdString(review::CountText(count));
    text += tr(" from %1 to %2.").arg(heading_.Old, heading_.New);
    if (!ComparesView() && versions_->ViewChanges() > 0)
        text += tr(" Left out because they change only the view: %1.").arg(versions_->ViewChanges());
    const std::string renumbered = review::TellRenumbering(versions_->List().Same);
    if (!renumbered.empty())
        text += tr(" Renumbered: %1.").arg(QString::fromStdString(renumbered));
    lblSummary->setText(text);
}

void frmCompare::Say(const QString& notice) {
    lblNotice->setText(notice);
    lblNotice->setVisible(!notice.isEmpty());
}

int frmCompare::ChosenRow() const { return lstChanges->currentIndex().row(); }

void frmCompare::SelectChange(int row) {
    lstChanges->setCurrentIndex(changes_->index(row, 0));
    lstChanges->scrollTo(changes_->index(row, 0));
}

void frmCompare::SelectAt(const QModelIndex& cell) {
    const std::vector<std::size_t>& changes = versions_->Table().ChangesAt({cell.row(), cell.column()});
    if (!changes.empty() &&
        std::find(changes.begin(), changes.end(), std::size_t(ChosenRow())) == changes.end())
        SelectChange(int(changes.front()));
}

void frmCompare::ShowChange() {
    const int row = ChosenRow();
    if (row < 0 || versions_ == nullptr)
        return;
    lastRow_ = row;
    const auto change = std::size_t(row);
    sides_->ShowSides(review::SidesOf(*versions_, change));
    ShowIdentity(versions_->List().Changes[change]);
    const review::UnionPlace place = versions_->Table().PlaceOf(versions_->List().Changes[change]);
    const QModelIndex cell = union_->index(place.Row, place.Column);
    tblCompare->setCurrentIndex(cell);
    tblCompare->scrollTo(cell);
}

// Names and content can both mislead: whoever knows better says so here.
void frmCompare::ShowIdentity(const review::Change& change) {
    const std::optional<review::Identity> identity = review::IdentityOf(*versions_, change);
    lblIdentity->setVisible(identity.has_value());
    cboIdentity->setVisible(identity.has_value());
    if (!identity)
        return;
    QString what = QString::fromStdString(identity->What);
    if (what.size() > kLongestPromptName)
        what = what.left(kLongestPromptName) + QStringLiteral("...");
    what += identity->IsGuess ? tr(" (guessed)") : QString();
    lblIdentity->setText(identity->IsOfOld ? tr("Old %1 is in the new version").arg(what)
                                           : tr("New %1 is in the old version").arg(what));
    wishes_ = identity->AsWished;
    cboIdentity->clear();
    for (const std::string& other : identity->Others)
        cboIdentity->addItem(QString::fromStdString(other));
    cboIdentity->setCurrentIndex(int(identity->Present));
}

// Round the list: behind the last one comes the first.
void frmCompare::Go(Direction direction) {
    const int count = changes_->rowCount();
    if (count == 0)
        return;
    const int step = direction == Direction::Next ? 1 : count - 1;
    SelectChange((std::max(ChosenRow(), 0) + step) % count);
}

void frmCompare::TakeOver() {
    if (ChosenRow() >= 0)
        Q_EMIT TakeOverWanted(std::size_t(ChosenRow()));
}

void frmCompare::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Q_EMIT Entered();
}

} // namespace orvane
