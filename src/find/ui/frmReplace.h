// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/Replacement.h"

#include <QDialog>

class QTreeView;

namespace orvane {

class PlanModel;

// Shows what a replacement would change and lets the user choose.
class frmReplace : public QDialog {
    Q_OBJECT

  public:
    // The document outlives the dialog and stays as it is meanwhile.
    frmReplace(const FsmDocument& document, find::ReplacementPlan plan, QWidget* parent);

    std::vector<find::TextChange> Chosen() const;

  private:
    static QString NoteOf(const find::ReplacementPlan& plan);

    PlanModel* changes_;
    QTreeView* lstChanges;
};

} // namespace orvane
