// SPDX-License-Identifier: GPL-3.0-or-later
// A machine that runs in the table: whatever looks another way then is drawn again.
#include "support/Property.h"
#include "table/ui/CellIndex.h"
#include "table/ui/FsmGridModel.h"
#include "table/ui/GridMeasurer.h"

#include <QFont>

#include <set>

namespace orvane {
namespace {

// Two rows and three states have something in them.
FsmDocument SmallDocument() {
    FsmDocument document;
    for (const int state : {1, 2, 3}) {
        document.State(state).Name = "S";
        document.State(state).Targets[6] = 1;
        document.State(state).Targets[kTimeoutRow] = 2;
    }
    return document;
}

rc::Gen<RunPicture> AnyPicture() {
    return rc::gen::apply(
        [](int state, std::uint64_t rows, int next, int last, std::uint64_t inputs, std::uint32_t count) {
            RunPicture picture;
            picture.State = state;
            picture.Takeable = rows;
            picture.Next = next;
            if (last > 0)
                picture.Last = Cell{6, last};
            picture.TrueInputs = inputs << kFirstEventRow;
            picture.Countdown = state == 2 ? "7" : "";
            if (count > 0)
                picture.Counts.assign(std::size_t(kTableColumns) * kTableRows, count);
            return picture;
        },
        rc::gen::inRange(0, 4), rc::gen::inRange<std::uint64_t>(0, 128),
        rc::gen::elementOf(std::vector{0, 4, 6}), rc::gen::inRange(0, 4),
        rc::gen::inRange<std::uint64_t>(0, 4), rc::gen::inRange<std::uint32_t>(0, 3));
}

// How every cell looks, by its index.
std::vector<std::vector<QVariant>> Looks(const FsmGridModel& model) {
    std::vector<std::vector<QVariant>> looks;
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex index = model.index(row, column);
            looks.push_back({index.data(Qt::BackgroundRole), index.data(kRunMarkRole).toInt(),
                             index.data(kRunNoteRole).toString()});
        }
    }
    return looks;
}

TEST(RunInTheTable, EveryCellThatLooksAnotherWayIsDrawnAgain) {
    test::ExpectProperty({.Cases = 60}, [] {
        const FsmDocument document = SmallDocument();
        FsmGridModel model(document, GridMeasurer(QFont()));
        std::set<std::pair<int, int>> drawn;
        QObject::connect(&model, &FsmGridModel::dataChanged, &model,
                         [&drawn](const QModelIndex& first, const QModelIndex& last) {
                             for (int row = first.row(); row <= last.row(); ++row) {
                                 for (int column = first.column(); column <= last.column(); ++column)
                                     drawn.emplace(row, column);
                             }
                         });
        const auto pictures = *rc::gen::container<std::vector<RunPicture>>(5, AnyPicture());
        for (std::size_t i = 0; i <= pictures.size(); ++i) {
            const auto before = Looks(model);
            drawn.clear();
            model.ShowRun(i < pictures.size() ? std::optional(pictures[i]) : std::nullopt);
            const auto after = Looks(model);
            for (std::size_t cell = 0; cell < after.size(); ++cell) {
                const std::pair place{int(cell) / model.columnCount(), int(cell) % model.columnCount()};
                RC_ASSERT(before[cell] == after[cell] || drawn.count(place) == 1);
            }
        }
    });
}

TEST(RunInTheTable, WhatStaysAsItIsIsNotDrawnAgain) {
    const FsmDocument document = SmallDocument();
    FsmGridModel model(document, GridMeasurer(QFont()));
    RunPicture picture;
    picture.State = 2;
    picture.Countdown = "7";
    model.ShowRun(picture);
    int columns = 0;
    QObject::connect(&model, &FsmGridModel::dataChanged, &model,
                     [&columns](const QModelIndex& first, const QModelIndex& last) {
                         columns = std::max(columns, last.column() - first.column() + 1);
                     });
    model.ShowRun(picture);
    EXPECT_EQ(columns, 0);
    picture.Countdown = "6";
    model.ShowRun(picture);
    EXPECT_EQ(columns, 1);
}

} // namespace
} // namespace orvane
