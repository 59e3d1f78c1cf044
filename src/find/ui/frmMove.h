// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/MoveWish.h"

#include <QDialog>

#include <map>
#include <optional>

class QCheckBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTreeView;
class QVBoxLayout;

namespace orvane {

class PlanModel;
class DocumentLineEdit;

// Asks where a state or an event shall stand, and shows what that means and which labels in the user's code
// go along.
class frmMove : public QDialog {
    Q_OBJECT

  public:
    // The document outlives the dialog and stays as it is meanwhile. The cell is a state's or an event's.
    frmMove(const FsmDocument& document, Cell what, QWidget* parent);

    // What was chosen, once the dialog was accepted.
    find::MoveWish Wish() const;
    const find::MovePlan& Plan() const { return *plan_; }
    const std::vector<bool>& ChosenLabels() const;

  private:
    void Build();
    void AddOption(QVBoxLayout& layout, find::MoveKind kind, const char* name, const QString& caption);
    void Preview();

    const FsmDocument& document_;
    const Cell what_;
    PlanModel* changes_;
    std::map<find::MoveKind, QRadioButton*> options_;
    DocumentLineEdit* txtPlace;
    QCheckBox* chkStart;
    QLabel* lblNotes;
    QTreeView* lstUses;
    QPushButton* cmdOK;
    std::optional<find::MovePlan> plan_; // none while there is nothing to do
};

} // namespace orvane
