// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"
#include "table/TextFitting.h"

#include <QAbstractTableModel>
#include <QColor>

namespace orvane {

// The table as 55 rows by 101 columns, heads included, so that its numbers are the document's. Texts are made
// when they are asked for; nothing is kept, and nothing is read back from here.
class FsmGridModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    // The document outlives the model.
    FsmGridModel(const FsmDocument& document, TextMeasurer measure, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    void SetMeasurer(TextMeasurer measure);

    // What the document changed, for whoever shows it. A column changes with its head.
    void ColumnChanged(int column);
    void RowHeadsChanged() { ColumnChanged(0); }
    void AllChanged();

    // The state that stepping has reached; its head is red. 0 is none.
    int CurrentState() const { return currentState_; }
    void SetCurrentState(int state);

    // The one cell whose transition is pointed out, yellow.
    void Highlight(int row, int column);
    void ClearHighlight();

  private:
    QColor Background(int row, int column) const;
    void CellChanged(const QModelIndex& cell);

    const FsmDocument& document_;
    TextMeasurer measure_;
    int currentState_ = kNoState;
    QModelIndex highlighted_;
};

} // namespace orvane
