// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editors/TimingOptions.h"

#include <QWidget>

class QGroupBox;
class QHBoxLayout;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace orvane {

class DocumentLineEdit;
class DocumentTextEdit;

// The tab of the state editor that says if and how a state times out. Only the fields that the chosen options
// ask for can be seen; all keep their texts.
class TimeoutPage : public QWidget {
    Q_OBJECT

  public:
    // Its two frames stand side by side, or one below the other where width is what lacks.
    explicit TimeoutPage(QWidget* parent, Qt::Orientation frames = Qt::Horizontal);

    // Switches options on; a group without an option stays as it was.
    void SetOptions(const TimingOptions& options);
    TimingOptions Options() const;

    DocumentLineEdit& TimerId() { return *txtTimerID; }
    DocumentLineEdit& TimeConst() { return *txtTimeCONST; }
    DocumentTextEdit& TimingVar() { return *txtTimeVAR; }

  Q_SIGNALS:
    void OptionChosen();

  private:
    QGroupBox* BuildStartTiming();
    QHBoxLayout* BuildTimerId();
    QGroupBox* BuildTimeLimit();
    QGroupBox* BuildConstantLimit();
    QGroupBox* BuildVariableLimit();
    void BuildTimingHelp();
    QGroupBox* AddFrame(const char* name, const QString& caption);
    QRadioButton* AddOption(const char* name, const QString& caption);
    void ConnectOption(QRadioButton* option, void (TimeoutPage::*choose)());

    void ShowTimeLimit();
    void HideTimeLimit();
    void ShowConstantLimit();
    void ShowVariableLimit();
    void ShowTimingHelp();

    QRadioButton* optNoTimeOut;
    QRadioButton* optStartTiming;
    QRadioButton* optContinueTiming;
    QRadioButton* optTimeCONST;
    QRadioButton* optTimeVAR;
    QGroupBox* fraTimeLimit;
    QGroupBox* fraTimeCONST;
    QGroupBox* fraTimeVAR;
    DocumentLineEdit* txtTimerID;
    DocumentLineEdit* txtTimeCONST;
    DocumentTextEdit* txtTimeVAR;
    QPushButton* cmdTimeHelp;
    QPlainTextEdit* txtTimingHelp;
};

} // namespace orvane
