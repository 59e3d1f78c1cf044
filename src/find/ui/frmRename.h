// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/Rename.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTreeView;

namespace orvane {

class PlanModel;
class DocumentLineEdit;

// Asks for a new name, and shows with every letter what it would change.
class frmRename : public QDialog {
    Q_OBJECT

  public:
    // The document outlives the dialog and stays as it is meanwhile.
    frmRename(const FsmDocument& document, find::Subject subject, QWidget* parent);

    // Offers this name in place of the present one.
    void Suggest(const std::string& name);

    // What was chosen, once the dialog was accepted.
    std::vector<find::TextChange> Chosen() const;

  private:
    void Build();
    void Preview();

    const FsmDocument& document_;
    const find::Subject subject_;
    PlanModel* changes_;
    DocumentLineEdit* txtNew;
    QLabel* lblNotes;
    QTreeView* lstUses;
    QPushButton* cmdOK;
};

} // namespace orvane
