// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DesignFinding.h"
#include "core/FsmDocument.h"
#include "kit/Pane.h"

#include <vector>

class QCheckBox;
class QLabel;
class QTableView;
class QVBoxLayout;

namespace orvane {

class FindingsModel;

// The list of all that there is to be told of the design. It shows them and tells where the user wants to go.
class dckFindings : public Pane {
    Q_OBJECT

  public:
    // Both outlive the pane.
    dckFindings(const FsmDocument& document, const std::vector<DesignFinding>& findings, QWidget* parent);

    // The findings, or what they are about, are others. The chosen row stays as far as it can.
    void ShowFindings();
    void Choose(int row);
    // What the machine can do is wanted to be looked at, too.
    bool Explores() const;
    // What there is to say of that look; empty for nothing.
    void ShowExploring(const QString& text);

  Q_SIGNALS:
    void FindingChosen(int row);
    void ExploringWanted(bool wanted);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void MakeList(QVBoxLayout& column);
    void MakeBottom(QVBoxLayout& column);

    FindingsModel* model_;
    QTableView* lstFindings;
    QCheckBox* chkExplore;
    QLabel* lblExplore;
};

} // namespace orvane
