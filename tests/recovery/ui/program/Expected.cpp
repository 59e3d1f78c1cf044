// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/ui/program/Expected.h"

#include "core/TightPacked.h"
#include "recovery/ui/program/Strokes.h"
#include "support/ui/TableFixture.h"
#include "table/CellEdit.h"

namespace orvane::test {

Expected::Expected() {
    session_.Replace(Beginning(), "/machine.zfsm");
    images_.push_back(session_.History().Current());
}

FsmDocument Expected::Beginning() { return PumpDocument(); }

const std::string& Expected::Before(int stroke) {
    while (images_.size() <= static_cast<std::size_t>(stroke))
        Draw(static_cast<int>(images_.size()) - 1);
    return images_[static_cast<std::size_t>(stroke)];
}

Doing Expected::DoingIn(int stroke) {
    switch (StrokeOf(stroke).Kind) {
    case StrokeKind::Undo:
        return Doing::Undoing;
    case StrokeKind::Redo:
        return Doing::Redoing;
    case StrokeKind::Save:
        return Doing::Saving;
    case StrokeKind::Target:
        break;
    }
    return Doing::Drawing;
}

void Expected::EnterHalfTyped(int stroke) {
    (void)Before(stroke);
    images_.resize(static_cast<std::size_t>(stroke) + 1);
    Type(kHalfTyped.Row, kHalfTyped.State, kHalfTyped.Target);
    images_.back() = session_.History().Current();
}

void Expected::Type(int row, int state, int target) {
    session_.Edit({"transition", {Touched::Extent::Column, StateNumber(state)}}, [&](const Editable& open) {
        return StoreTypedTarget(open.Document, {RowNumber(row), StateNumber(state)}, std::to_string(target));
    });
}

void Expected::Draw(int stroke) {
    const Stroke drawn = StrokeOf(stroke);
    if (drawn.Kind == StrokeKind::Target)
        Type(drawn.Row, drawn.State, drawn.Target);
    else if (drawn.Kind == StrokeKind::Undo)
        (void)session_.Undo();
    else if (drawn.Kind == StrokeKind::Redo)
        (void)session_.Redo();
    else
        session_.MarkSaved("/machine.zfsm");
    images_.push_back(session_.History().Current());
}

} // namespace orvane::test
