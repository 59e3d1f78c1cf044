// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "review/Identity.h"
#include "review/ui/VersionReader.h"

#include <QTimer>
#include <QWidget>

#include <memory>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QTableView;
class QTreeView;

namespace orvane {

class ChangesModel;
class CodeSides;
class UnionModel;
struct Vocabulary;

// Shows what is different between two versions: the table of both, the list of changes, and the code of one
// change on both sides. It reads nothing and decides nothing: what the user wants comes out as signals.
class frmCompare : public QWidget {
    Q_OBJECT

  public:
    explicit frmCompare(const Vocabulary& vocabulary, QWidget* parent = nullptr);

    // What the versions are called, and what the button says that brings a change into the open document;
    // nothing when there is none to bring it into.
    struct Heading {
        QString Old;
        QString New;
        QString TakeOver;
    };
    void ShowHeading(const Heading& heading);
    void ShowSource(VersionSource source);

    // The versions are being read or compared. What is shown goes when that takes long enough to be seen.
    void ShowBusy();
    void ShowVersions(std::shared_ptr<const review::ComparedVersions> versions);
    // There is nothing to compare with, and why.
    void ShowNothing(const QString& why);
    // What there is to tell beside the changes; empty for nothing.
    void Say(const QString& notice);

    bool ComparesView() const;

  Q_SIGNALS:
    void SourceChosen(orvane::VersionSource source);
    void ExchangeWanted();
    void ViewToggled();
    // By its place in the list.
    void TakeOverWanted(std::size_t change);
    void ChangeChosen(std::size_t change);
    void IdentityChosen(const orvane::review::Wishes& wish);
    // The user has come to the window.
    void Entered();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    enum class Direction { Next, Previous };

    void BuildChoices();
    void BuildViews();
    void BuildIdentity();
    void BuildButtons();
    void LayOut();
    QPushButton* AddButton(const QString& name, const QString& caption);
    void Show(std::shared_ptr<const review::ComparedVersions> versions);
    void ShowSummary();
    void ShowChange();
    void ShowIdentity(const review::Change& change);
    void SelectChange(int row);
    void SelectAt(const QModelIndex& cell);
    void Go(Direction direction);
    void TakeOver();
    int ChosenRow() const;

    QComboBox* cboCompareWith = nullptr;
    QPushButton* cmdExchange = nullptr;
    QCheckBox* chkView = nullptr;
    QLabel* lblSummary = nullptr;
    QLabel* lblNotice = nullptr;
    QTableView* tblCompare = nullptr;
    QTreeView* lstChanges = nullptr;
    CodeSides* sides_ = nullptr;
    QLabel* lblIdentity = nullptr;
    QComboBox* cboIdentity = nullptr;
    QPushButton* cmdPrevious = nullptr;
    QPushButton* cmdNext = nullptr;
    QPushButton* cmdTakeOver = nullptr;
    QPushButton* cmdClose = nullptr;
    UnionModel* union_;
    ChangesModel* changes_;
    QTimer* tmrCompare_; // runs while what is shown may still be
    Heading heading_;
    std::shared_ptr<const review::ComparedVersions> versions_; // what is shown; none for nothing
    std::vector<review::Wishes> wishes_;                       // those that can be chosen
    int lastRow_ = 0;                                          // of the change that was looked at last
};

} // namespace orvane
