// SPDX-License-Identifier: GPL-3.0-or-later
// Opens examples in the real main window, opens every other window from there as a user would, and saves what
// they show: orvane_pictures EXAMPLES FOLDER. Runs on the offscreen platform, so that a picture does not
// depend on anybody's desktop.
#include "app/frmTable.h"
#include "kit/CommandLine.h"
#include "kit/Logo.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <functional>
#include <memory>

namespace {

using orvane::frmTable;

constexpr QSize kTableSize(860, 400);
constexpr QSize kDialogSize(600, 400);
constexpr QSize kSideSize(640, 480);
constexpr QSize kPaneSize(1200, 780);
constexpr QSize kFindingsSize(860, 560);
constexpr QSize kComparisonSize(860, 600);
constexpr QSize kCellPaneSize(1100, 760);
constexpr QSize kFindSize(1000, 640);
constexpr QSize kPlanSize(700, 480);
constexpr QSize kPrintSize(860, 640);
constexpr QSize kExportSize(860, 420);

class Photographer {
  public:
    Photographer(const QDir& examples, const QDir& pictures) : examples_(examples), pictures_(pictures) {}

    bool TakeAll();

  private:
    void Open(const char* example);
    void Grab(QWidget& window, const char* name);
    // Clicks a cell of the table and has `look` deal with the dialog that comes up.
    void InDialogOf(int row, int column, const std::function<void(QWidget&)>& look);
    void OnDialog(const std::function<void()>& command, const std::function<void(QWidget&)>& look);
    void Trigger(const char* item) { window_->findChild<QAction*>(QLatin1String(item))->trigger(); }
    void Press(int row, int column, Qt::MouseButton button);
    void Choose(int row, int column);

    void Table();
    void TypedTarget();
    void StateEditor();
    void EventEditor();
    void ActionEditor();
    void GeneralCode();
    void SideWindow(const char* item, const char* window, const char* picture, QSize size = kSideSize);
    void Backtrack();
    void RunPane();
    void FindingsPane();
    void CellPane();
    void FindPane();
    void Plans();
    void DiagramPane();
    void Comparison();
    void PrintAndExport();

    QDir examples_;
    QDir pictures_;
    std::unique_ptr<frmTable> window_;
    bool allSaved_ = true;
};

void Photographer::Open(const char* example) {
    window_ = std::make_unique<frmTable>();
    window_->resize(kTableSize);
    window_->show();
    window_->Start(orvane::ParseCommandLine({examples_.absoluteFilePath(QLatin1String(example))}));
    QTest::qWait(100);
}

void Photographer::Grab(QWidget& window, const char* name) {
    QTest::qWait(100); // what the last event asked to be painted
    const QString path = pictures_.absoluteFilePath(QLatin1String(name) + QStringLiteral(".png"));
    if (window.grab().save(path))
        return;
    std::fprintf(stderr, "%s could not be written\n", qPrintable(path));
    allSaved_ = false;
}

void Photographer::Press(int row, int column, Qt::MouseButton button) {
    auto* grid = window_->findChild<QTableView*>(QStringLiteral("MSFlexGrid1"));
    QRect cell;
    QMetaObject::invokeMethod(grid, "CellRect", Q_RETURN_ARG(QRect, cell), Q_ARG(int, row),
                              Q_ARG(int, column));
    QTest::mouseClick(grid->viewport(), button, Qt::NoModifier, cell.center());
}

void Photographer::Choose(int row, int column) {
    auto* grid = window_->findChild<QTableView*>(QStringLiteral("MSFlexGrid1"));
    grid->setCurrentIndex(grid->model()->index(row, column));
    grid->setFocus();
}

void Photographer::OnDialog(const std::function<void()>& command, const std::function<void(QWidget&)>& look) {
    bool seen = false;
    QTimer::singleShot(300, window_.get(), [&] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            seen = true;
            dialog->resize(kDialogSize);
            look(*dialog);
            dialog->close();
        }
    });
    command();
    if (!seen) {
        std::fprintf(stderr, "a dialog did not come up\n");
        allSaved_ = false;
    }
}

void Photographer::InDialogOf(int row, int column, const std::function<void(QWidget&)>& look) {
    OnDialog([&] { Press(row, column, Qt::LeftButton); }, look);
}

void Photographer::Table() {
    Open("garage.zfsm");
    Grab(*window_, "table");
}

void Photographer::TypedTarget() {
    Press(11, 7, Qt::LeftButton);
    Grab(*window_, "typing");
    QTest::keyClick(window_->findChild<QLineEdit*>(QStringLiteral("txtCellEdit")), Qt::Key_Escape);
}

void Photographer::StateEditor() {
    InDialogOf(0, 4, [this](QWidget& dialog) {
        Grab(dialog, "state-entry");
        dialog.findChild<QTabWidget*>(QStringLiteral("SSTab1"))->setCurrentIndex(2);
        Grab(dialog, "state-timeout");
    });
}

void Photographer::EventEditor() {
    InDialogOf(9, 0, [this](QWidget& dialog) { Grab(dialog, "event"); });
}

void Photographer::ActionEditor() {
    Press(6, 3, Qt::RightButton);
    while (QWidget* menu = QApplication::activePopupWidget())
        menu->close();
    OnDialog([this] { Trigger("mnuEditTransAct"); }, [this](QWidget& dialog) { Grab(dialog, "action"); });
}

void Photographer::GeneralCode() {
    Open("crossing.zfsm");
    OnDialog([this] { Trigger("mnuGeneralCode"); },
             [this](QWidget& dialog) { Grab(dialog, "general-code"); });
}

void Photographer::SideWindow(const char* item, const char* window, const char* picture, QSize size) {
    Trigger(item);
    for (QWidget* side : QApplication::topLevelWidgets())
        if (side->objectName() == QLatin1String(window) && side->isVisible()) {
            side->resize(size);
            Grab(*side, picture);
            side->close();
            return;
        }
    std::fprintf(stderr, "%s did not come up\n", window);
    allSaved_ = false;
}

void Photographer::Backtrack() {
    Open("garage.zfsm");
    Press(0, 8, Qt::RightButton);
    while (QWidget* menu = QApplication::activePopupWidget())
        menu->close();
    SideWindow("mnuBacktrack", "frmBackTrack", "backtrack");
}

// The door closes, and somebody has stood in the beam.
void Photographer::RunPane() {
    Open("garage.zfsm");
    window_->resize(kPaneSize);
    Trigger("mnuViewRun");
    window_->findChild<QComboBox*>(QStringLiteral("cboState"))->setCurrentText(QStringLiteral("6:Reverse"));
    auto* go = window_->findChild<QPushButton*>(QStringLiteral("cmdGoToState"));
    go->click();
    if (!QTest::qWaitFor([go] { return go->text() == QStringLiteral("Go"); })) {
        std::fprintf(stderr, "the way was not found\n");
        allSaved_ = false;
    }
    for (int i = 0; i < 3; ++i)
        Trigger("mnuStep");
    Grab(*window_, "run");
}

void Photographer::FindingsPane() {
    Open("faulty.zfsm");
    window_->resize(kFindingsSize);
    Trigger("mnuViewFindings");
    Grab(*window_, "findings");
}

void Photographer::DiagramPane() {
    Open("garage.zfsm");
    window_->resize(kPaneSize);
    Trigger("mnuViewDiagram");
    Press(8, 3, Qt::LeftButton);
    Grab(*window_, "diagram");
}

void Photographer::CellPane() {
    Open("garage.zfsm");
    window_->resize(kCellPaneSize);
    Trigger("mnuViewCell");
    Choose(6, 3);
    Grab(*window_, "cell");
}

void Photographer::FindPane() {
    Open("garage.zfsm");
    window_->resize(kFindSize);
    Trigger("mnuFind");
    QTest::keyClicks(window_->findChild<QLineEdit*>(QStringLiteral("txtFind")), QStringLiteral("motor"));
    Grab(*window_, "find");
}

void Photographer::Plans() {
    Choose(0, 0); // the machine
    OnDialog([this] { Trigger("mnuRename"); },
             [this](QWidget& dialog) {
                 dialog.resize(kPlanSize);
                 dialog.findChild<QLineEdit*>(QStringLiteral("txtNew"))->setText(QStringLiteral("DOOR"));
                 Grab(dialog, "rename");
             });
    Choose(0, 3);
    OnDialog([this] { Trigger("mnuMove"); },
             [this](QWidget& dialog) {
                 dialog.resize(kPlanSize);
                 dialog.findChild<QLineEdit*>(QStringLiteral("txtPlace"))->setText(QStringLiteral("5"));
                 Grab(dialog, "move");
             });
}

// With what was typed since the document was opened.
void Photographer::Comparison() {
    Open("garage.zfsm");
    for (const int row : {7, 10}) {
        Press(row, 2, Qt::LeftButton);
        auto* target = window_->findChild<QLineEdit*>(QStringLiteral("txtCellEdit"));
        QTest::keyClicks(target, QStringLiteral("4"));
        QTest::keyClick(target, Qt::Key_Return);
    }
    InDialogOf(0, 6, [](QWidget& dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit*>(QStringLiteral("txtName")), QStringLiteral("Wait"));
        dialog.findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
    });
    SideWindow("mnuCompareWith", "frmCompare", "compare", kComparisonSize);
}

void Photographer::PrintAndExport() {
    Open("garage.zfsm");
    OnDialog([this] { Trigger("mnuFPrint"); },
             [this](QWidget& dialog) {
                 dialog.resize(kPrintSize);
                 dialog.findChild<QLineEdit*>(QStringLiteral("txtRevision"))->setText(QStringLiteral("C"));
                 dialog.findChild<QSpinBox*>(QStringLiteral("spnPage"))->setValue(3);
                 Grab(dialog, "print");
             });
    OnDialog([this] { Trigger("mnuFExport"); },
             [this](QWidget& dialog) {
                 dialog.resize(kExportSize);
                 Grab(dialog, "export");
             });
}

bool Photographer::TakeAll() {
    Table();
    TypedTarget();
    StateEditor();
    EventEditor();
    ActionEditor();
    SideWindow("mnuCodeGenerate", "frmGenerator", "generator");
    Backtrack();
    GeneralCode();
    Open("faulty.zfsm");
    SideWindow("mnuCodeGenerate", "frmGenerator", "report");
    RunPane();
    FindingsPane();
    CellPane();
    FindPane();
    Plans();
    DiagramPane();
    PrintAndExport();
    Open("pump.zfsm");
    SideWindow("mnuBuilder", "frmBuilder", "builder");
    Comparison(); // leaves something unsaved behind, which the next start would offer
    window_.reset();
    return allSaved_;
}

} // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir state; // nothing of it is anybody's work to recover
    qputenv("XDG_STATE_HOME", state.path().toLocal8Bit());
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Orvane"));
    QApplication::setWindowIcon(orvane::Logo());
    if (argc != 3) {
        std::fprintf(stderr, "usage: orvane_pictures EXAMPLES FOLDER\n");
        return 2;
    }
    Photographer photographer(QDir(QString::fromLocal8Bit(argv[1])), QDir(QString::fromLocal8Bit(argv[2])));
    return photographer.TakeAll() ? 0 : 1;
}
