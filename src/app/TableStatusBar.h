// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStatusBar>

namespace orvane {

class ElidedLabel;

// The main window's status bar: the Shift mark, the machine's name, and what there is to say. Nothing in it
// makes the window wider; what is cut off ends in "…" and is whole under the pointer.
class TableStatusBar : public QStatusBar {
    Q_OBJECT

  public:
    explicit TableStatusBar(QWidget* parent);

    void ShowShift(bool held);
    // The machine's; an empty one shows as "[Un-named]".
    void ShowName(const QString& name);
    // How many findings there are, in words.
    void ShowFindings(const QString& counts);
    // What stays wrong while the program runs; empty when nothing is.
    void ShowProblem(const QString& problem);
    // Whether to say how to begin a machine.
    void ShowHowToBegin(bool show);
    // The program that was just written, by its file's name; empty when it was not.
    void ShowProgram(const QString& fileName);
    // What the last command has done; empty takes it away.
    void Say(const QString& text);

  Q_SIGNALS:
    // The count of findings was clicked.
    void FindingsWanted();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    ElidedLabel* AddPanel(const QString& name, int stretch = 0);
    void ShowMessages();

    ElidedLabel* Panel1;
    ElidedLabel* Panel2;
    ElidedLabel* Panel3;
    ElidedLabel* lblFindings;
    QString said_;
    QString written_;
    QString problem_;
    bool saysHowToBegin_ = false;
};

} // namespace orvane
