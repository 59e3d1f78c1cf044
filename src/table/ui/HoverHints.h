// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"

#include <QLineEdit>
#include <QObject>

#include <optional>

namespace orvane {

class FsmDocument;
class FsmGridModel;
class FsmGridView;

// What happens in the table while the pointer moves over it: the hint of the cell, the head of its row set
// off, and, while Shift is held, where its transition leads.
class HoverHints : public QObject {
    Q_OBJECT

  public:
    // All three outlive this.
    HoverHints(const FsmDocument& document, FsmGridModel& model, FsmGridView& view);

    void SetShiftHeld(bool held) { shiftHeld_ = held; }

    void ClearHoverEffects();
    // The document has changed: what is shown of the cell under the pointer is what it is now.
    void FollowChange();
    // None are shown while something lies open over the table: they would lie over that.
    void SetQuiet(bool quiet);

    // Points out the cell, yellow, and the head of the state it leads to. Nothing without a transition.
    void ShowNextState(Cell cell);
    void HideNextState();

  Q_SIGNALS:
    // A new cell is under the pointer: widths may have been dragged.
    void CellEntered();
    void HintWanted(const QString& text, bool wrap);
    void HintGone();
    void HintChanged(const QString& text, bool wrap); // empty when there is none any more

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void PointerAt(Cell cell);
    void ShowCellHint(Cell cell);
    void ShowRowHeaderHighlight(RowNumber row);
    void PlaceMarker();

    const FsmDocument& document_;
    FsmGridModel& model_;
    FsmGridView& view_;
    QLineEdit* txtRowheader_;
    QWidget* picNextStateMarker_;
    bool shiftHeld_ = false;
    bool isQuiet_ = false;
    StateNumber markedState_ = kNoState; // at whose head the marker is
    std::optional<Cell> pointer_;        // the cell it was in last
};

} // namespace orvane
