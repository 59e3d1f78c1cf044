// SPDX-License-Identifier: GPL-3.0-or-later
#include "builder/ui/frmBuilder.h"

#include "builder/BuilderScript.h"
#include "builder/ui/ScriptFile.h"
#include "builder/ui/ScriptGate.h"
#include "kit/AnsiString.h"
#include "kit/CloseKeys.h"
#include "kit/EditedLabel.h"
#include "kit/OpenInDesktop.h"
#include "kit/UserMessageBox.h"
#include "session/Session.h"
#include "text/SiblingPath.h"

#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int kBuilderHelpPage = 4947;
constexpr QSize kBuilderSize{720, 620};
constexpr int kPromptLines = 10; // the explanation at the first width, and some room for a narrower window

const QString kSaveFilter = QStringLiteral("All Files (*.*);;Config file (*.b1d)");
const QString kOpenFilter = QStringLiteral("All Files (*.*);;Builder script (*.b1d)");

} // namespace

frmBuilder::frmBuilder(Session& session, QWidget* parent) : TabStops(parent, Qt::Window), session_(session) {
    setObjectName(QStringLiteral("frmBuilder"));
    setWindowTitle(tr("Builder script"));
    BuildControls();
    LayOut();
    resize(kBuilderSize);
    AddHelpKey(*this, kBuilderHelpPage);
    AddCloseKeys(*this);
    connect(cmdRun, &QPushButton::clicked, this, &frmBuilder::BuildWanted);
    connect(cmdSave, &QPushButton::clicked, this, &frmBuilder::Save);
    connect(cmdSelectFile, &QPushButton::clicked, this, &frmBuilder::SelectFile);
    connect(txtFileName, &QLineEdit::textChanged, this, [this](const QString& path) { StoreFileName(path); });
    const auto tell = [this] { session_.TellDraft(); };
    connect(txtBuildScript->document(), &QTextDocument::modificationChanged, this, tell);
    connect(txtBuildScript->document(), &QTextDocument::contentsChanged, this, [this, tell] {
        if (txtBuildScript->document()->isModified())
            tell();
    });
    session_.AddDraftSource(*this);
}

frmBuilder::~frmBuilder() { session_.RemoveDraftSource(*this); }

std::optional<Draft> frmBuilder::CurrentDraft() const {
    if (!txtBuildScript->document()->isModified())
        return std::nullopt;
    return Draft{{}, BuilderText{ScriptText().toStdString()}};
}

bool frmBuilder::MayLeaveScript() {
    if (!txtBuildScript->document()->isModified())
        return true;
    const QString name = txtFileName->text().isEmpty() ? tr("It has no file yet.") : txtFileName->text();
    switch (AskYesNoCancel(this, QStringLiteral("Orvane"),
                           tr("Save changes to the builder script?\r\n%1").arg(name))) {
    case QMessageBox::Yes:
        return Save();
    case QMessageBox::No:
        txtBuildScript->document()->setModified(false); // answered: not asked again on the way out
        return true;
    default:
        return false;
    }
}

void frmBuilder::BuildControls() {
    lblEdited = new EditedLabel(this);
    txtBuildScript = new QPlainTextEdit(this);
    txtBuildScript->setObjectName(QStringLiteral("txtBuildScript"));
    txtBuildScript->setAccessibleName(tr("Builder script"));
    txtBuildScript->setLineWrapMode(QPlainTextEdit::NoWrap);
    QFont fixed(QStringLiteral("Courier New"));
    fixed.setStyleHint(QFont::Monospace);
    txtBuildScript->setFont(fixed);
    txtBuildScript->installEventFilter(this);

    txtPrompt = new QPlainTextEdit(FromAnsi(BuilderExplanation()), this);
    txtPrompt->setObjectName(QStringLiteral("txtPrompt"));
    txtPrompt->setAccessibleName(tr("Explanation"));
    txtPrompt->setReadOnly(true);
    txtPrompt->setFixedHeight(kPromptLines * txtPrompt->fontMetrics().lineSpacing());

    txtFileName = new QLineEdit(this);
    txtFileName->setObjectName(QStringLiteral("txtFileName"));
    txtFileName->setAccessibleName(tr("Builder script file"));

    const auto button = [this](const QString& name, const QString& caption) {
        auto* made = new QPushButton(caption, this);
        made->setObjectName(name);
        return made;
    };
    cmdSelectFile = button(QStringLiteral("cmdSelectFile"), tr("Select file..."));
    cmdSave = button(QStringLiteral("cmdSave"), tr("Save"));
    cmdRun = button(QStringLiteral("cmdRun"), tr("Build and Test"));
}

void frmBuilder::LayOut() {
    auto* file = new QHBoxLayout;
    file->addWidget(new QLabel(tr("File"), this));
    file->addWidget(txtFileName, 1);
    file->addWidget(cmdSelectFile);
    auto* actions = new QHBoxLayout;
    actions->addStretch(1);
    actions->addWidget(cmdSave);
    actions->addWidget(cmdRun);
    auto* all = new QVBoxLayout(this);
    all->addWidget(lblEdited);
    all->addWidget(txtBuildScript, 1);
    all->addWidget(txtPrompt);
    all->addLayout(file);
    all->addLayout(actions);
}

QString frmBuilder::DefaultName() const {
    return QString::fromStdString(BuilderScriptPath(documentPath_.toStdString()));
}

// The raw text, because the plain one turns no-break spaces into blanks.
QString frmBuilder::ScriptText() const {
    QString text = txtBuildScript->document()->toRawText();
    text.replace(QChar::LineSeparator, QLatin1Char('\n')); // Shift+Return
    return text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
}

void frmBuilder::ShowScript(const QString& script) {
    txtBuildScript->setPlainText(script);
    txtBuildScript->document()->setModified(false);
}

void frmBuilder::SetFileName(const QString& path) { txtFileName->setText(path); }

void frmBuilder::TakeDocumentPath() {
    documentPath_ = QString::fromStdString(session_.Path());
    lblEdited->ShowText(documentPath_.isEmpty()
                            ? tr("The builder script of a machine that has no file yet")
                            : tr("The builder script of %1").arg(QFileInfo(documentPath_).fileName()));
}

void frmBuilder::StartDocument() {
    TakeDocumentPath();
    settled_ = false;
    knownFile_.clear();
    lastSavedScript_.clear();
    ShowScript({});
    SetFileName(FromAnsi(session_.Document().General.BuildFile));
    if (isVisible())
        Settle();
}

void frmBuilder::TakeRestored(const std::string& script) {
    settled_ = true;
    txtBuildScript->setPlainText(QString::fromStdString(script));
    txtBuildScript->document()->setModified(true);
}

void frmBuilder::RenameDocument() {
    if (documentPath_ == QString::fromStdString(session_.Path()))
        return; // the document names its script as before
    const bool hadDefault = txtFileName->text().isEmpty() || txtFileName->text() == DefaultName();
    TakeDocumentPath();
    if (!settled_ || !hadDefault)
        return;
    if (txtBuildScript->document()->isModified()) {
        SetFileName(DefaultName());
        return;
    }
    StoreFileName({});
    StartDocument();
}

void frmBuilder::Settle() {
    if (settled_)
        return;
    settled_ = true;
    const QString named = txtFileName->text();
    if (!named.isEmpty() && MayUse(named) && (ReadScript(named) || !QFileInfo(DefaultName()).isFile()))
        Load(named);
    else
        SettleOnDefault();
}

// What stands beside the document, or the starter script where nothing does. A name that the builder does not
// touch leaves the starter script without a file.
void frmBuilder::SettleOnDefault() {
    const QString path = DefaultName();
    if (path.isEmpty() || !QFileInfo::exists(path))
        return MakeInitialScript();
    if (MayUse(path))
        return Load(path);
    FillStarterScript();
    SetFileName({});
}

void frmBuilder::Load(const QString& path) {
    const std::optional<QString> script = ReadScript(path);
    if (!script) {
        MakeInitialScript();
        Warn(tr(
            "Unable to open the previous Builder file. Perhaps you deleted it. A new one will be generated"));
        return;
    }
    SetFileName(path);
    ShowScript(*script);
    knownFile_ = path;
    lastSavedScript_ = *script;
}

void frmBuilder::FillStarterScript() {
    ShowScript({});
    // A folder whose name the script cannot hold is left out: the program is in the folder of the script.
    const QString document =
        LineOutsideAnsi(documentPath_).isEmpty() ? documentPath_ : QFileInfo(documentPath_).fileName();
    QStringList lines =
        QString::fromStdString(StarterScript(document.toStdString())).split(QStringLiteral("\r\n"));
    lines.removeLast(); // what stands behind the last line end
    for (const QString& line : lines)
        AddSource(line);
    txtBuildScript->document()->setModified(false);
}

void frmBuilder::MakeInitialScript() {
    FillStarterScript();
    SetFileName(DefaultName());
    if (!DefaultName().isEmpty())
        Save();
}

// A path that the document cannot hold is not kept in part: the script beside the document is found without.
void frmBuilder::StoreFileName(const QString& path) {
    const AnsiText stored = ToAnsi(path);
    const std::string kept = stored.LeftOut ? std::string() : stored.Text;
    if (kept == session_.Document().General.BuildFile)
        return;
    session_.Edit({"builder script", {}, EditKind::View},
                  [&kept](const Editable& open) { open.Document.General.BuildFile = kept; });
}

void frmBuilder::AddSource(const QString& text) {
    txtBuildScript->moveCursor(QTextCursor::End);
    txtBuildScript->insertPlainText(text + QStringLiteral("\n"));
}

bool frmBuilder::Save() {
    if (txtFileName->text().isEmpty() && !ChooseNameToSave())
        return false;
    const QString path = txtFileName->text();
    if (!MayUse(path))
        return false;
    if (IsOnDisk(path)) {
        TakeAsSaved(path);
        return true;
    }
    const QString unwritable = LineOutsideAnsi(ScriptText());
    if (!unwritable.isEmpty()) {
        Warn(tr("The script was not saved: its file cannot hold every character of the line\r\n%1\r\n"
                "A program in the folder of the script can be named without its path.")
                 .arg(unwritable));
        return false;
    }
    if (!MayReplace(path))
        return false;
    const std::optional<QStringList> notes = WriteScript(path, ScriptText());
    if (!notes) {
        Warn(tr("Save failed. Check the path/filename is valid"));
        return false;
    }
    TakeAsSaved(path);
    if (!notes->isEmpty())
        Q_EMIT Noted(QFileInfo(path).fileName() + QStringLiteral(": ") + notes->join(QStringLiteral(". ")));
    return true;
}

void frmBuilder::TakeAsSaved(const QString& path) {
    knownFile_ = path;
    lastSavedScript_ = AsReadBack(ScriptText());
    txtBuildScript->document()->setModified(false);
}

// A file that says the same already is not written, whatever its line ends are.
bool frmBuilder::IsOnDisk(const QString& path) const {
    return ReadScript(path) == std::optional(AsReadBack(ScriptText()));
}

bool frmBuilder::MayUse(const QString& path) {
    const QString shown = QDir::toNativeSeparators(path);
    if (const QString why = WhyNoScript(path); !why.isEmpty()) {
        Warn(tr("%1\r\nis not used as the builder script: %2.\r\n\r\nChoose a *.b1d file with \"Select "
                "file...\", or type the name of one.")
                 .arg(shown, why));
        return false;
    }
    const QString target = ScriptTarget(path);
    if (IsBesideDocument(path, documentPath_) || allowed_.contains(target))
        return true;
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Orvane"),
                    tr("The builder script\r\n%1\r\nis not in the folder of the document. Use it? It will be "
                       "read here, written by Save and handed to the build tool.")
                        .arg(QDir::toNativeSeparators(target)),
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    if (box.exec() != QMessageBox::Yes)
        return false;
    allowed_.insert(target);
    return true;
}

bool frmBuilder::ChooseNameToSave() {
    const QString path = QDir::toNativeSeparators(
        QFileDialog::getSaveFileName(this, tr("Save builder script"), DefaultName(), kSaveFilter));
    if (path.isEmpty())
        return false;
    SetFileName(path);
    knownFile_ = path; // the dialog has asked
    allowed_.insert(ScriptTarget(path));
    return true;
}

// A script that was never read or written here is somebody's work.
bool frmBuilder::MayReplace(const QString& path) {
    if (path == knownFile_ || !QFileInfo::exists(path))
        return true;
    return Ask(this, {QStringLiteral("Orvane"), tr("%1 exists already. Do you want to replace it?").arg(path),
                      QMessageBox::Question, QMessageBox::No});
}

void frmBuilder::SelectFile() {
    const QString path = QDir::toNativeSeparators(
        QFileDialog::getOpenFileName(this, tr("Choose builder script"), txtFileName->text(), kOpenFilter));
    if (path.isEmpty())
        return;
    allowed_.insert(ScriptTarget(path)); // the dialog has asked
    if (!MayUse(path))
        return;
    settled_ = true;
    Load(path);
}

void frmBuilder::GoGoGo() {
    Settle();
    session_.WantProgram();
    const bool generated = session_.Program().Written;
    CheckForChangeOnDisk(); // started from the table, the window has not become active
    if (!Save()) {
        Warn(tr("Sorry, the Build file failed to save. Check the file name / path."));
        return;
    }
    if (!generated) {
        Warn(tr("Sorry, unable to do that right now. The generated *.zls file contains errors.\r\n\r\n"
                "Hint: Check the error listing in the code generation window"));
        return;
    }
    const QUrl script = QUrl::fromLocalFile(QFileInfo(txtFileName->text()).absoluteFilePath());
    if (!OpenInDesktop(script))
        Warn(tr("No program is registered to open the builder script %1. Install the build tool, or open "
                "the script with it by hand.")
                 .arg(ShownAddress(script)));
}

bool frmBuilder::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate)
        CheckForChangeOnDisk();
    return QWidget::event(event);
}

bool frmBuilder::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        SuspendTabStops();
    return QWidget::eventFilter(watched, event);
}

void frmBuilder::CheckForChangeOnDisk() {
    if (knownFile_.isEmpty() || knownFile_ != txtFileName->text() || !WhyNoScript(knownFile_).isEmpty())
        return;
    const std::optional<QString> script = ReadScript(knownFile_);
    if (!script || *script == lastSavedScript_)
        return;
    lastSavedScript_ = *script; // seen: asked once, whatever the answer
    const auto answer =
        Show(this, {"The Builder script has been changed on disk. Do you want to load the new "
                    "version from disk?",
                    "Changed script", MessageIcon::Warning, MessageButtons::YesNo});
    if (answer == QMessageBox::Yes)
        ShowScript(*script);
}

void frmBuilder::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    Settle();
}

void frmBuilder::Warn(const QString& text) { Tell(this, text, QMessageBox::Warning); }

} // namespace orvane
