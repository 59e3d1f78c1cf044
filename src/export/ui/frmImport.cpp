// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/ui/frmImport.h"

#include "export/CsvText.h"
#include "files/FileReader.h"
#include "files/NativeFiles.h"
#include "kit/AnsiString.h"
#include "kit/FilePath.h"
#include "kit/OpenInDesktop.h"
#include "kit/Utf8String.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int kImportHelpPage = 5005;
constexpr QSize kImportSize{860, 560};
constexpr std::size_t kMostBytes = std::size_t{64} << 20; // as of a document
constexpr int kNotesHeight = 110;

} // namespace

frmImport::frmImport(const QString& folder, QWidget* parent)
    : QDialog(parent), folder_(folder), table_(new QStandardItemModel(this)) {
    setObjectName(QStringLiteral("frmImport"));
    setWindowTitle(tr("Import"));
    AddHelpKey(*this, kImportHelpPage);
    BuildSource();
    BuildPreview();
    LayOut();
}

void frmImport::BuildSource() {
    cmdFile = new QPushButton(tr("From a &file..."), this);
    cmdFile->setObjectName(QStringLiteral("cmdFile"));
    cmdClipboard = new QPushButton(tr("From the &clipboard"), this);
    cmdClipboard->setObjectName(QStringLiteral("cmdClipboard"));
    lblSource = new QLabel(
        tr("JSON, a table (CSV, or copied from a spreadsheet) or a flat state chart (SCXML)"), this);
    lblSource->setObjectName(QStringLiteral("lblSource"));
    lblSource->setTextFormat(Qt::PlainText);
    lblSource->setWordWrap(true);
    connect(cmdFile, &QPushButton::clicked, this, &frmImport::ChooseFile);
    connect(cmdClipboard, &QPushButton::clicked, this, &frmImport::TakeClipboard);
}

void frmImport::BuildPreview() {
    tblImport = new QTableView(this);
    tblImport->setObjectName(QStringLiteral("tblImport"));
    tblImport->setAccessibleName(tr("The machine as it comes in"));
    tblImport->setModel(table_);
    tblImport->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tblImport->horizontalHeader()->hide();
    tblImport->verticalHeader()->hide();
    lstNotes = new QListWidget(this);
    lstNotes->setObjectName(QStringLiteral("lstNotes"));
    lstNotes->setAccessibleName(tr("What there is to tell"));
    lstNotes->setMaximumHeight(kNotesHeight);
    lstNotes->setWordWrap(true);
    optNew = new QRadioButton(tr("As a &new document"), this);
    optNew->setObjectName(QStringLiteral("optNew"));
    optNew->setChecked(true);
    optOpen = new QRadioButton(tr("In the place of what is in the &open document, as one step"), this);
    optOpen->setObjectName(QStringLiteral("optOpen"));
}

void frmImport::LayOut() {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    cmdOK = buttons->addButton(tr("&Import"), QDialogButtonBox::AcceptRole);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setEnabled(false);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* source = new QHBoxLayout;
    source->addWidget(cmdFile);
    source->addWidget(cmdClipboard);
    source->addWidget(lblSource, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(source);
    layout->addWidget(tblImport, 1);
    for (QWidget* widget : std::initializer_list<QWidget*>{lstNotes, optNew, optOpen, buttons})
        layout->addWidget(widget);
    resize(kImportSize);
}

bool frmImport::IsIntoOpen() const { return optOpen->isChecked(); }

void frmImport::ChooseFile() {
    const QString path = QFileDialog::getOpenFileName(this, tr("Import"), folder_,
                                                      tr("Machines (*.json *.csv *.scxml);;All files (*)"));
    if (path.isEmpty())
        return;
    NativeFiles files;
    const FileContent file = ReadFile(files, NativePath(path), kMostBytes);
    const QFileInfo info(path);
    folder_ = info.path();
    lblSource->setText(info.fileName());
    if (!file)
        return ShowFailure(tr("%1 could not be read: %2.").arg(info.fileName(), Message(*file.Failure)));
    const std::optional<exports::ImportForm> named =
        exports::ImportFormOf(info.suffix().toLower().toStdString());
    Take(named.value_or(exports::GuessedForm(file.Bytes())), file.Bytes(), info.fileName());
}

void frmImport::TakeClipboard() {
    const std::string text = QGuiApplication::clipboard()->text().toStdString();
    lblSource->setText(tr("The clipboard"));
    if (text.empty())
        return ShowFailure(tr("There is no text in the clipboard."));
    Take(exports::GuessedForm(text), text, tr("The clipboard"));
}

void frmImport::Take(exports::ImportForm form, std::string_view bytes, const QString& source) {
    exports::ImportResult read = exports::Read(form, bytes);
    imported_ = std::move(read.Document);
    lblSource->setText(imported_ ? source : tr("%1 cannot be imported").arg(source));
    cmdOK->setEnabled(imported_.has_value());
    ShowPreview();
    ShowNotes(read.Messages);
}

// As a spreadsheet would show it.
void frmImport::ShowPreview() {
    table_->clear();
    if (!imported_)
        return;
    const auto lines = exports::CsvLines(exports::CsvGridOf(*imported_, exports::Formulas::AsTheyAre));
    for (const exports::CsvLine& line : *lines) {
        QList<QStandardItem*> items;
        for (const std::string& cell : line.Cells)
            items += new QStandardItem(FromUtf8(cell));
        table_->appendRow(items);
    }
}

void frmImport::ShowNotes(const std::vector<ReaderMessage>& messages) {
    lstNotes->clear();
    for (const ReaderMessage& message : messages)
        lstNotes->addItem(tr("Line %1: %2").arg(message.Line).arg(FromAnsi(message.Text)));
}

void frmImport::ShowFailure(const QString& why) {
    imported_.reset();
    cmdOK->setEnabled(false);
    table_->clear();
    lstNotes->clear();
    lstNotes->addItem(why);
}

} // namespace orvane
