// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "run/LiveRun.h"

#include <QWidget>

class QLabel;
class QLineEdit;

namespace orvane {

// Asks for a limit that is no number in the table: hidden while there is none to ask for.
class fraLimit : public QWidget {
    Q_OBJECT

  public:
    // The document outlives the frame.
    fraLimit(const FsmDocument& document, QWidget* parent);

    void Show(const std::optional<run::WantedLimit>& wanted);

  Q_SIGNALS:
    void Given(orvane::run::Units units);

  private:
    void Give();

    const FsmDocument& document_;
    std::optional<run::WantedLimit> shown_;
    QLabel* lblLimit;
    QLineEdit* txtLimit;
};

} // namespace orvane
