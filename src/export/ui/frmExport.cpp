// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/ui/frmExport.h"

#include "kit/OpenInDesktop.h"
#include "kit/Settings.h"
#include "kit/Utf8String.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace orvane {

namespace {

constexpr int kExportHelpPage = 5005;
constexpr QSize kExportSize{860, 520};
constexpr std::size_t kMostPreview = 30'000; // bytes: what a user looks through

QString LastForm() { return QStringLiteral("export/form"); }

// The front of a text, up to the end of a line.
std::string_view Front(std::string_view text) {
    if (text.size() <= kMostPreview)
        return text;
    const std::size_t lineEnd = text.rfind('\n', kMostPreview);
    return text.substr(0, lineEnd == std::string_view::npos ? kMostPreview : lineEnd);
}

} // namespace

frmExport::frmExport(const FsmDocument& document, QWidget* parent) : QDialog(parent), document_(document) {
    setObjectName(QStringLiteral("frmExport"));
    setWindowTitle(tr("Export"));
    AddHelpKey(*this, kExportHelpPage);
    Build();
    LayOut();
    const exports::Form* last = exports::FormOf(Settings().value(LastForm()).toString().toStdString());
    lstForms->setCurrentRow(last == nullptr ? 0 : int(last - exports::Forms().data()));
    lstForms->setFocus();
}

void frmExport::Build() {
    lstForms = new QListWidget(this);
    lstForms->setObjectName(QStringLiteral("lstForms"));
    lstForms->setAccessibleName(tr("Form"));
    for (const exports::Form& form : exports::Forms())
        lstForms->addItem(FromUtf8(form.Title));
    chkSafe = new QCheckBox(tr("&Keep spreadsheets from taking cells for formulas"), this);
    chkSafe->setObjectName(QStringLiteral("chkSafe"));
    chkSafe->setToolTip(tr("An apostrophe before cells that begin with = + - @"));
    chkSafe->setChecked(true);
    lblPreview = new QLabel(this);
    lblPreview->setObjectName(QStringLiteral("lblPreview"));
    txtPreview = new QPlainTextEdit(this);
    txtPreview->setObjectName(QStringLiteral("txtPreview"));
    txtPreview->setAccessibleName(tr("Preview"));
    txtPreview->setReadOnly(true);
    txtPreview->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtPreview->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(lstForms, &QListWidget::currentRowChanged, this, &frmExport::ShowForm);
    connect(lstForms, &QListWidget::itemActivated, this, &frmExport::Accept);
    connect(chkSafe, &QCheckBox::toggled, this, &frmExport::ShowForm);
}

void frmExport::LayOut() {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton* cmdOK = buttons->addButton(tr("&Export..."), QDialogButtonBox::AcceptRole);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &frmExport::Accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* right = new QVBoxLayout;
    right->addWidget(lblPreview);
    right->addWidget(txtPreview, 1);
    right->addWidget(chkSafe);
    auto* panes = new QHBoxLayout;
    panes->addWidget(lstForms, 1);
    panes->addLayout(right, 2);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(panes, 1);
    layout->addWidget(buttons);
    resize(kExportSize);
}

const exports::Form& frmExport::Chosen() const {
    return exports::Forms()[std::size_t(std::max(lstForms->currentRow(), 0))];
}

exports::Formulas frmExport::HowFormulas() const {
    return chkSafe->isChecked() ? exports::Formulas::Safe : exports::Formulas::AsTheyAre;
}

void frmExport::ShowForm() {
    chkSafe->setVisible(Chosen().HasFormulas);
    const std::string text = Chosen().Write(document_, HowFormulas());
    const std::string_view front = Front(text);
    lblPreview->setText(front.size() == text.size()
                            ? tr("%L1 characters").arg(text.size())
                            : tr("The first part of %L1 characters").arg(text.size()));
    txtPreview->setPlainText(FromUtf8(front));
}

void frmExport::Accept() {
    Settings().setValue(LastForm(), FromUtf8(Chosen().Word));
    accept();
}

} // namespace orvane
