// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"

#include <QDialog>

#include <optional>

class QLabel;
class QPushButton;

namespace orvane {

class DocumentLineEdit;
class FsmDocument;

// Asks for a state or an event, by name or number.
class frmGoTo : public QDialog {
    Q_OBJECT

  public:
    // The document outlives this.
    frmGoTo(const FsmDocument& document, QWidget* parent);

    // The head that was asked for; none when the dialog was cancelled.
    std::optional<Cell> Ask();

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void Look();

    const FsmDocument& document_;
    DocumentLineEdit* txtGoTo;
    QLabel* lblGoTo; // where it leads, as far as that is known
    QPushButton* cmdOK;
    std::optional<Cell> place_;
};

} // namespace orvane
