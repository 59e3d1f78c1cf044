// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/Pattern.h"
#include "find/Search.h"
#include "find/WhereUsed.h"
#include "kit/Pane.h"

#include <optional>

class QCheckBox;
class QLabel;
class QPushButton;
class QTabWidget;
class QTreeView;
class QVBoxLayout;

namespace orvane {

class DocumentLineEdit;
class HitsModel;
class UsesModel;

// The pane below the table in which texts are looked for and uses are listed. It shows what it is given and
// tells what the user wants; it looks for nothing itself.
class dckFind : public Pane {
    Q_OBJECT

  public:
    // The document outlives the pane.
    dckFind(const FsmDocument& document, QWidget* parent);

    // To the field for what is looked for, ready to type another.
    void TakeFocus() override;
    find::SearchQuery Query() const;
    std::string Replacement() const;
    // What the query has found, or why nothing could be looked for. The row that was chosen stays chosen.
    void ShowHits(find::SearchResult found);
    void ShowFault(const QString& fault);
    // The next hit is chosen and asked for, or the one before, around the ends.
    void Step(int by);

    void ShowUses(const QString& title, std::vector<find::Use> uses);
    bool ShowsUses() const;

  Q_SIGNALS:
    void QueryChanged();
    void ReplaceWanted();
    void PieceChosen(const orvane::TextPiece& piece);
    void PlaceChosen(orvane::Cell place);

  private:
    QWidget* MakeFindPage();
    QWidget* MakeUsesPage();
    QCheckBox* MakeBox(const char* name, const QString& caption, const QString& hint);
    void ConnectLists();
    void ChooseHit(int row);
    void ChooseUse(int row);

    HitsModel* hits_;
    UsesModel* uses_;
    QTabWidget* tabFind;
    DocumentLineEdit* txtFind;
    DocumentLineEdit* txtReplace;
    QCheckBox* chkCase;
    QCheckBox* chkWord;
    QCheckBox* chkRegex;
    QPushButton* cmdReplaceAll;
    QLabel* lblFound;
    QLabel* lblUsed;
    QTreeView* lstHits;
    QTreeView* lstUses;
};

} // namespace orvane
