// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"
#include "table/TextFitting.h"

#include <QAbstractTableModel>
#include <QColor>

#include <memory>
#include <optional>

namespace orvane {

// The table as 55 rows by 101 columns, heads included, so that its numbers are the document's. Texts are made
// when they are asked for; nothing is kept, and nothing is read back from here.
class FsmGridModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    // The document outlives the model.
    FsmGridModel(const FsmDocument& document, std::unique_ptr<TextMeasurer> measure,
                 QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    void SetMeasurer(std::unique_ptr<TextMeasurer> measure);

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

  private:
    QColor Background(Cell cell) const;
    void BackgroundChanged(Cell cell);

    const FsmDocument& document_;
    std::unique_ptr<TextMeasurer> measure_;
    StateNumber currentState_ = kNoState;
    std::optional<Cell> highlighted_;
};

} // namespace orvane
