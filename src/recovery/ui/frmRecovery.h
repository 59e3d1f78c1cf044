// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recovery/ui/WorkList.h"

#include <QDialog>

#include <string>

class QCheckBox;
class QLabel;
class QPushButton;
class QTreeView;

namespace orvane {

class WorkListModel;

// Offers the work that windows have left unsaved, and what was discarded lately. It decides nothing: what is
// chosen comes out as signals, and whoever acts on them shows the list anew.
class frmRecovery : public QDialog {
    Q_OBJECT

  public:
    explicit frmRecovery(QWidget* parent = nullptr);

    // What was chosen stays chosen, as far as it is still there.
    void ShowWork(WorkList work);
    void ShowKeepJournal(bool keep);

  Q_SIGNALS:
    // Names of journals.
    void RecoverWanted(const std::string& name);
    void CompareWanted(const std::string& name);
    void DiscardWanted(const std::string& name);
    void DeleteAllWanted();
    void KeepJournalChosen(bool keep);

  private:
    QTreeView* AddList(const QString& name, const QString& accessibleName, WorkListModel* model);
    QPushButton* AddButton(const QString& name, const QString& caption);
    void BuildControls();
    void LayOut();
    void TakeSelection(const QTreeView* list, QTreeView* other);
    void Select(const std::string& name);
    void ShowWhatIsPossible();
    void Recover();
    void Compare();
    void Discard();
    void DeleteAll();

    // The chosen one; none when nothing is.
    const WorkItem* Chosen() const;

    QLabel* lblRecovered = nullptr;
    QTreeView* lstRecovered = nullptr;
    QLabel* lblDiscarded = nullptr;
    QTreeView* lstDiscarded = nullptr;
    QCheckBox* chkKeepJournal = nullptr;
    QPushButton* cmdRecover = nullptr;
    QPushButton* cmdCompare = nullptr;
    QPushButton* cmdDiscard = nullptr;
    QPushButton* cmdLater = nullptr;
    QPushButton* cmdDeleteAll = nullptr;
    WorkListModel* left_;
    WorkListModel* discarded_;
};

} // namespace orvane
