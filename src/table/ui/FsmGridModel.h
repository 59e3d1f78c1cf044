// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "core/DesignFinding.h"
#include "core/FsmDocument.h"
#include "core/TableGeometry.h"
#include "session/RunPicture.h"
#include "table/CellColour.h"
#include "table/TextFitting.h"

#include <QAbstractTableModel>
#include <QColor>

#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace orvane {

// The table as 55 rows by 101 columns, heads included, so that its numbers are the document's. Texts are made
// when they are asked for; nothing is kept, and nothing is read back from here.
// How a cell takes part in the picture of a running machine: flags, 0 for not at all, and a note at its right
// end that is there with kHasNote.
inline constexpr int kRunMarkRole = Qt::UserRole;
inline constexpr int kRunNoteRole = Qt::UserRole + 1;
// What there is to be told of the cell: how bad the worst of it is, 0 for nothing, and the texts.
inline constexpr int kFindingRole = Qt::UserRole + 2;
inline constexpr int kFindingTextRole = Qt::UserRole + 3;
// Whether the cell has an action: such a one is marked, because a narrow column has no room for its star.
inline constexpr int kHasActionRole = Qt::UserRole + 4;
inline constexpr int kTakeable = 1;
inline constexpr int kNextTaken = 2;
inline constexpr int kLastTaken = 4;
inline constexpr int kTrueInput = 8;
inline constexpr int kHasNote = 16;

class FsmGridModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    // The document outlives the model.
    FsmGridModel(const FsmDocument& document, std::unique_ptr<TextMeasurer> measure,
                 QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    void SetMeasurer(std::unique_ptr<TextMeasurer> measure);

    // Whether the colours are those of a dark desktop.
    void SetDark(bool dark);

    // What the document changed, for whoever shows it. A column changes with its head.
    void ColumnChanged(StateNumber column);
    void RowHeadsChanged() { ColumnChanged(kNoState); }
    void AllChanged();

    // The state that stepping has reached; its head is red.
    StateNumber CurrentState() const { return currentState_; }
    void SetCurrentState(StateNumber state);

    // The one cell whose transition is pointed out, yellow.
    void Highlight(Cell cell);
    void ClearHighlight();

    // Their marks stand at the corners of cells and heads.
    void ShowFindings(const std::vector<DesignFinding>& findings);

    // The machine that runs, or none.
    void ShowRun(const std::optional<RunPicture>& run);

  private:
    bool HasAction(Cell cell) const;
    RunMark Mark(Cell cell) const;
    QVariant MarkFlags(Cell cell) const;
    QString FindingTexts(Cell cell) const;
    void RunChanged(const RunPicture& before, const RunPicture& after);
    Colour Background(Cell cell) const;
    QColor TextColour(Cell cell) const;
    void BackgroundChanged(Cell cell);

    const FsmDocument& document_;
    std::unique_ptr<TextMeasurer> measure_;
    StateNumber currentState_ = kNoState;
    std::optional<Cell> highlighted_;
    std::optional<RunPicture> run_;
    bool isDark_ = false;
    std::vector<DesignFinding> findings_;
    std::array<unsigned char, std::size_t{kTableColumns} * kTableRows>
        findingOf_{}; // as kFindingRole gives it
};

} // namespace orvane
