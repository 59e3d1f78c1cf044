// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/ui/frmGenerator.h"

#include "codegen/ui/TextReplacement.h"
#include "kit/AnsiString.h"
#include "kit/CloseKeys.h"
#include "kit/CodePane.h"
#include "kit/ElidedLabel.h"
#include "kit/OpenInDesktop.h"
#include "kit/StatusPlace.h"

#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QStatusBar>

#include <iterator>

namespace orvane {

namespace {

constexpr int kGeneratorHelpPage = 4947;
constexpr double kErrorShare = 0.3;    // of the window's height
constexpr int kPaneGap = 50 / 15;      // pixels: 50 twips between the panes
constexpr int kQuietWhileHidden = 200; // milliseconds; a hidden window can wait for a pause in the typing
constexpr std::size_t kLargeProgram = 64 * 1024; // bytes; some 3000 lines, two milliseconds to show
constexpr QSize kGeneratorSize{760, 640};

} // namespace

frmGenerator::frmGenerator(QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName(QStringLiteral("frmGenerator"));
    setWindowTitle(tr("Generated code"));
    BuildCodePane();
    BuildErrorPane();
    BuildStatusBar();
    AddHelpKey(*this, kGeneratorHelpPage);
    AddCloseKeys(*this);
    runDue_.setSingleShot(true);
    connect(&runDue_, &QTimer::timeout, this, &frmGenerator::ShowRun);
    resize(kGeneratorSize);
}

void frmGenerator::BuildCodePane() {
    txtCode = new CodePane({}, this);
    txtCode->setObjectName(QStringLiteral("txtCode"));
    txtCode->setAccessibleName(tr("Generated program"));
    txtCode->setReadOnly(true);
    txtCode->SendScintilla(QsciScintilla::SCI_SETUNDOCOLLECTION, 0L);
    connect(txtCode, &QsciScintilla::cursorPositionChanged, this, &frmGenerator::ShowCaret);
    connect(txtCode, &QsciScintilla::selectionChanged, this, &frmGenerator::ShowCaret);
}

void frmGenerator::BuildErrorPane() {
    txtErrors = new QPlainTextEdit(this);
    txtErrors->setObjectName(QStringLiteral("txtErrors"));
    txtErrors->setAccessibleName(tr("Report"));
    txtErrors->setReadOnly(true);
    txtErrors->setToolTip(tr("Double-click a line to see the place in the table"));
    txtErrors->viewport()->installEventFilter(this);
}

void frmGenerator::BuildStatusBar() {
    StatusBar1 = new QStatusBar(this);
    StatusBar1->setObjectName(QStringLiteral("StatusBar1"));
    Panel1 = new ElidedLabel(StatusBar1);
    Panel1->setObjectName(QStringLiteral("Panel1"));
    auto* place = new StatusPlace(*Panel1, StatusBar1);
    place->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    Panel2 = new ElidedLabel(StatusBar1);
    Panel2->setObjectName(QStringLiteral("Panel2"));
    Panel2->setText(txtCode->CaretReadOut());
    StatusBar1->addWidget(place, 1);
    StatusBar1->addPermanentWidget(new StatusPlace(*Panel2, StatusBar1));
}

void frmGenerator::SetVocabulary(const Vocabulary& vocabulary) { txtCode->SetVocabulary(vocabulary); }

void frmGenerator::TakeRun(const GeneratedProgram& program, const QString& status) {
    run_ = program;
    Panel1->ShowText(status);
    if (run_.Text.size() < kLargeProgram)
        ShowRun();
    else
        runDue_.start(isVisible() ? 0 : kQuietWhileHidden);
}

void frmGenerator::Present() {
    if (runDue_.isActive())
        ShowRun();
    show();
    raise();
    activateWindow();
}

void frmGenerator::ShowRun() {
    runDue_.stop();
    ReplaceText(*txtCode, run_.Text);
    ShowReport();
    ShowCaret();
}

// One line of the pane for each line of the report, so that the one's number is the other's.
void frmGenerator::ShowReport() {
    reportLines_ = ReportLines(run_.Findings);
    QString text;
    for (const ReportLine& line : reportLines_)
        text += FromAnsi(line.Text) + QLatin1Char('\n');
    txtErrors->setPlainText(text);
}

void frmGenerator::ShowCaret() { Panel2->setText(txtCode->CaretReadOut()); }

void frmGenerator::ChoosePlace(int reportLine) {
    if (reportLine >= std::ssize(reportLines_)) // below the last one
        return;
    const Cell place = reportLines_[reportLine].Place;
    if (place.State != kNoState)
        Q_EMIT PlaceChosen(place);
}

void frmGenerator::resizeEvent(QResizeEvent* event) {
    LayOut();
    QWidget::resizeEvent(event);
}

void frmGenerator::LayOut() {
    const int status = StatusBar1->sizeHint().height();
    const int errors = static_cast<int>(height() * kErrorShare);
    const int code = qMax(0, height() - errors - status - kPaneGap);
    txtCode->setGeometry(0, 0, width(), code);
    txtErrors->setGeometry(0, code + kPaneGap, width(), errors);
    StatusBar1->setGeometry(0, height() - status, width(), status);
}

bool frmGenerator::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtErrors->viewport() && event->type() == QEvent::MouseButtonDblClick) {
        const QPoint place = static_cast<QMouseEvent*>(event)->position().toPoint();
        ChoosePlace(txtErrors->cursorForPosition(place).blockNumber());
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace orvane
