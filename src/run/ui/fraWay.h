// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <QWidget>

class QComboBox;
class QPushButton;

namespace orvane {

// Asks for a state that the run is to go to by the shortest way.
class fraWay : public QWidget {
    Q_OBJECT

  public:
    // The document outlives the frame.
    fraWay(const FsmDocument& document, QWidget* parent);

    // The states may be others; the chosen one stays.
    void Refresh();
    // A way is being looked for; the button stops that.
    void ShowSearch(bool on);

  Q_SIGNALS:
    void Wanted(orvane::StateNumber to);
    void StopWanted();

  private:
    void Go();

    const FsmDocument& document_;
    bool searches_ = false;
    QComboBox* cboState;
    QPushButton* cmdGoToState;
};

} // namespace orvane
