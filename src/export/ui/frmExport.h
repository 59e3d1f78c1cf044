// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "export/Forms.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QListWidget;
class QPlainTextEdit;

namespace orvane {

// Asks for the form that a document is to be given, and shows what comes out.
class frmExport : public QDialog {
    Q_OBJECT

  public:
    // The document outlives the dialog and stays as it is meanwhile.
    frmExport(const FsmDocument& document, QWidget* parent);

    const exports::Form& Chosen() const;
    exports::Formulas HowFormulas() const;

  private:
    void Build();
    void LayOut();
    void ShowForm();
    void Accept();

    const FsmDocument& document_;
    QListWidget* lstForms;
    QCheckBox* chkSafe;
    QPlainTextEdit* txtPreview;
    QLabel* lblPreview;
};

} // namespace orvane
