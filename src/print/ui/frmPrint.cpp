// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/frmPrint.h"

#include "kit/AnsiString.h"
#include "kit/OpenInDesktop.h"
#include "print/ui/PagePane.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>

#include <array>

namespace orvane {

namespace {

constexpr int kPrintHelpPage = 5005;
constexpr QSize kPrintSize{900, 680};
constexpr int kPreviewPause = 250; // milliseconds, so that typing is not held up

constexpr std::array<QPageSize::PageSizeId, 4> kSizes{QPageSize::A4, QPageSize::A3, QPageSize::Letter,
                                                      QPageSize::Legal};

} // namespace

frmPrint::frmPrint(const FsmDocument& document, const print::CoverFacts& facts, QWidget* parent)
    : QDialog(parent), document_(document), facts_(facts) {
    setObjectName(QStringLiteral("frmPrint"));
    setWindowTitle(tr("Print"));
    AddHelpKey(*this, kPrintHelpPage);
    BuildNames();
    BuildPaper();
    BuildParts();
    BuildPreview();
    BuildButtons();
    LayOut();
    tmrPreview.setObjectName(QStringLiteral("tmrPreview"));
    tmrPreview.setSingleShot(true);
    tmrPreview.setInterval(kPreviewPause);
    connect(&tmrPreview, &QTimer::timeout, this, &frmPrint::ShowPages);
}

QLineEdit* frmPrint::AddName(const char* name, const QString& prompt) {
    auto* field = new QLineEdit(this);
    field->setObjectName(QLatin1String(name));
    field->setAccessibleName(prompt);
    connect(field, &QLineEdit::textChanged, this, &frmPrint::ShowSoon);
    return field;
}

void frmPrint::BuildNames() {
    txtRevision = AddName("txtRevision", tr("Revision"));
    txtPrepared = AddName("txtPrepared", tr("Prepared by"));
    txtChecked = AddName("txtChecked", tr("Checked by"));
    txtApproved = AddName("txtApproved", tr("Approved by"));
}

void frmPrint::BuildPaper() {
    const QPageLayout paper = RememberedPaper();
    cboPaper = new QComboBox(this);
    cboPaper->setObjectName(QStringLiteral("cboPaper"));
    cboPaper->setAccessibleName(tr("Paper"));
    for (const QPageSize::PageSizeId size : kSizes) {
        cboPaper->addItem(QPageSize::name(size), QPageSize::key(size));
        if (paper.pageSize().id() == size)
            cboPaper->setCurrentIndex(cboPaper->count() - 1);
    }
    cboOrientation = new QComboBox(this);
    cboOrientation->setObjectName(QStringLiteral("cboOrientation"));
    cboOrientation->setAccessibleName(tr("Orientation"));
    cboOrientation->addItems({tr("Portrait"), tr("Landscape")});
    cboOrientation->setCurrentIndex(paper.orientation() == QPageLayout::Landscape ? 1 : 0);
    for (QComboBox* box : {cboPaper, cboOrientation})
        connect(box, &QComboBox::currentIndexChanged, this, &frmPrint::ShowSoon);
}

QCheckBox* frmPrint::AddPart(const char* name, const QString& caption) {
    auto* part = new QCheckBox(caption, this);
    part->setObjectName(QLatin1String(name));
    part->setChecked(true);
    connect(part, &QCheckBox::toggled, this, &frmPrint::ShowSoon);
    return part;
}

void frmPrint::BuildParts() {
    chkCover = AddPart("chkCover", tr("Co&ver"));
    chkDiagram = AddPart("chkDiagram", tr("&Diagram"));
    chkTable = AddPart("chkTable", tr("&Table"));
    chkListing = AddPart("chkListing", tr("States, events and c&ode"));
    chkReport = AddPart("chkReport", tr("&Report"));
}

void frmPrint::BuildPreview() {
    picPage = new PagePane(this);
    spnPage = new QSpinBox(this);
    spnPage->setObjectName(QStringLiteral("spnPage"));
    spnPage->setAccessibleName(tr("Page"));
    spnPage->setMinimum(1);
    lblPages = new QLabel(this);
    lblPages->setObjectName(QStringLiteral("lblPages"));
    connect(spnPage, &QSpinBox::valueChanged, this, &frmPrint::ShowPage);
}

void frmPrint::BuildButtons() {
    const auto button = [this](const char* name, const QString& caption) {
        auto* made = new QPushButton(caption, this);
        made->setObjectName(QLatin1String(name));
        made->setAutoDefault(false);
        return made;
    };
    cmdPrint = button("cmdPrint", tr("&Print..."));
    cmdPdf = button("cmdPdf", tr("&Save as PDF..."));
    cmdClose = button("cmdClose", tr("Close"));
    cmdPrint->setDefault(true);
    prgPdf = new QProgressBar(this);
    prgPdf->setObjectName(QStringLiteral("prgPdf"));
    prgPdf->setRange(0, 0);
    prgPdf->hide();
    connect(cmdPrint, &QPushButton::clicked, this, &frmPrint::Print);
    connect(cmdPdf, &QPushButton::clicked, this, &frmPrint::MakePdf);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);
}

void frmPrint::LayOut() {
    auto* choices = new QVBoxLayout;
    const auto addGroup = [&](const QString& title, std::initializer_list<QWidget*> widgets) {
        auto* group = new QGroupBox(title, this);
        auto* rows = new QVBoxLayout(group);
        for (QWidget* widget : widgets) {
            if (qobject_cast<QLineEdit*>(widget) != nullptr) {
                auto* prompt = new QLabel(widget->accessibleName(), group);
                prompt->setBuddy(widget);
                rows->addWidget(prompt);
            }
            rows->addWidget(widget);
        }
        choices->addWidget(group);
    };
    addGroup(tr("On the cover"), {txtRevision, txtPrepared, txtChecked, txtApproved});
    addGroup(tr("Paper"), {cboPaper, cboOrientation});
    addGroup(tr("What is printed"), {chkCover, chkDiagram, chkTable, chkListing, chkReport});
    choices->addStretch(1);
    auto* bottom = new QHBoxLayout;
    for (QWidget* widget : std::initializer_list<QWidget*>{spnPage, lblPages, prgPdf})
        bottom->addWidget(widget);
    bottom->addStretch(1);
    for (QWidget* widget : {cmdPrint, cmdPdf, cmdClose})
        bottom->addWidget(widget);
    auto* layout = new QGridLayout(this);
    layout->addLayout(choices, 0, 0);
    layout->addWidget(picPage, 0, 1);
    layout->addLayout(bottom, 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    resize(kPrintSize);
}

void frmPrint::ShowNames(const PrintNames& names) {
    txtRevision->setText(names.Revision);
    txtPrepared->setText(names.Prepared);
    txtChecked->setText(names.Checked);
    txtApproved->setText(names.Approved);
    ShowPages();
}

PrintNames frmPrint::Names() const {
    return {txtRevision->text(), txtPrepared->text(), txtChecked->text(), txtApproved->text()};
}

QPageLayout frmPrint::Paper() const {
    QPageLayout paper = RememberedPaper();
    paper.setPageSize(QPageSize(kSizes[std::size_t(std::max(cboPaper->currentIndex(), 0))]));
    paper.setOrientation(cboOrientation->currentIndex() == 1 ? QPageLayout::Landscape
                                                             : QPageLayout::Portrait);
    return paper;
}

print::Parts frmPrint::ChosenParts() const {
    return {chkCover->isChecked(), chkDiagram->isChecked(), chkTable->isChecked(), chkListing->isChecked(),
            chkReport->isChecked()};
}

print::CoverFacts frmPrint::FactsWithNames() const {
    print::CoverFacts facts = facts_;
    facts.Revision = txtRevision->text().toStdString();
    facts.Prepared = txtPrepared->text().toStdString();
    facts.Checked = txtChecked->text().toStdString();
    facts.Approved = txtApproved->text().toStdString();
    return facts;
}

void frmPrint::ShowSoon() {
    printout_.reset();
    tmrPreview.start();
}

// As everything is chosen now, also when the preview is not there yet.
std::shared_ptr<const Printout> frmPrint::Laid() {
    if (printout_)
        return printout_;
    const QPageLayout paper = Paper();
    const QSize room = paper.paintRectPixels(kTwipsPerInch).size();
    if (!picture_ || (room != pictureRoom_ && ChosenParts().Diagram)) {
        picture_ = PictureFor(document_, paper);
        pictureRoom_ = room;
    }
    printout_ = std::make_shared<const Printout>(document_, FactsWithNames(), ChosenParts(), paper, picture_);
    return printout_;
}

void frmPrint::ShowPages() {
    tmrPreview.stop();
    const int pages = Laid()->Pages();
    spnPage->setMaximum(std::max(pages, 1));
    lblPages->setText(tr("of %1").arg(pages));
    for (QPushButton* button : {cmdPrint, cmdPdf})
        button->setEnabled(pages != 0 && !worker_.IsOn());
    ShowPage();
}

void frmPrint::ShowPage() { picPage->Show(Laid(), spnPage->value() - 1); }

void frmPrint::Print() { Q_EMIT PrintWanted(Laid()); }

void frmPrint::MakePdf() {
    QString path;
    Q_EMIT FileAsked(path);
    if (path.isEmpty())
        return;
    ShowBusy(true);
    const QString title = FromAnsi(document_.General.FsmName);
    worker_.Begin(
        [printout = Laid(), title](const std::stop_token& stop) { return printout->Pdf(title, stop); },
        [this, path](const QByteArray& bytes) {
            ShowBusy(false);
            Q_EMIT PdfMade(path, bytes);
        });
}

void frmPrint::ShowBusy(bool isBusy) {
    prgPdf->setVisible(isBusy);
    cmdPrint->setEnabled(!isBusy);
    cmdPdf->setEnabled(!isBusy);
    cmdClose->setText(isBusy ? tr("Cancel") : tr("Close"));
}

} // namespace orvane
