// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "codegen/CodeGenerator.h"
#include "text/Vocabulary.h"

#include <QTimer>
#include <QWidget>

#include <vector>

class QPlainTextEdit;
class QStatusBar;

namespace orvane {

class CodePane;
class ElidedLabel;

// Shows the latest generation run: the program above, its report below.
//
// A run is shown at once; a large program only when the windows have nothing more urgent to do, so that
// typing does not wait for it to be laid out. Only what differs from the program shown before is replaced,
// which also leaves the reader where he was.
class frmGenerator : public QWidget {
    Q_OBJECT

  public:
    explicit frmGenerator(QWidget* parent = nullptr);

    void SetVocabulary(const Vocabulary& vocabulary);

    // Takes over the run; the status says what became of its file.
    void TakeRun(const GeneratedProgram& program, const QString& status);

    // Shows the window with the latest run in it.
    void Present();

  Q_SIGNALS:
    // A line of the report that has a place in the table was double-clicked.
    void PlaceChosen(orvane::Cell cell);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void BuildCodePane();
    void BuildErrorPane();
    void BuildStatusBar();
    void LayOut();
    void ShowRun();
    void ShowReport();
    void ShowCaret();
    void ChoosePlace(int reportLine);

    CodePane* txtCode = nullptr;
    QPlainTextEdit* txtErrors = nullptr;
    QStatusBar* StatusBar1 = nullptr;
    ElidedLabel* Panel1 = nullptr;
    ElidedLabel* Panel2 = nullptr;

    GeneratedProgram run_;
    std::vector<ReportLine> reportLines_; // what the report pane shows
    QTimer runDue_;                       // started while a run waits to be shown
};

} // namespace orvane
