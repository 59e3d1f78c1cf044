// SPDX-License-Identifier: GPL-3.0-or-later
// The Hungarian method by shortest augmenting paths. Rows are taken in one after the other; each time the
// cheapest path of exchanges to a free column is looked for, with prices on rows and columns that keep all
// remaining costs at 0 or above. The table is filled up to a square with pairs that are worth nothing. Row
// and column 0 are not of the table: column 0 holds the row that is being taken in.
#include "review/Assignment.h"

#include <algorithm>
#include <limits>

namespace orvane::review {

namespace {

class Assigner {
  public:
    explicit Assigner(const Worths& worths)
        : worths_(worths),
          size_(std::max(worths.Rows(), worths.Columns())),
          rowPrices_(size_ + 1),
          columnPrices_(size_ + 1),
          rowOf_(size_ + 1),
          cameFrom_(size_ + 1) {}

    // By column from 1 on the row, from 1 on, that it has.
    const std::vector<std::size_t>& Assign() {
        for (std::size_t row = 1; row <= size_; ++row)
            TakeIn(row);
        return rowOf_;
    }

  private:
    double Cost(std::size_t row, std::size_t column) const {
        const bool inTable = row <= worths_.Rows() && column <= worths_.Columns();
        return inTable ? -worths_.At(row - 1, column - 1) : 0;
    }

    void TakeIn(std::size_t row) {
        rowOf_[0] = row;
        least_.assign(size_ + 1, std::numeric_limits<double>::infinity());
        done_.assign(size_ + 1, false);
        std::size_t column = 0;
        while (rowOf_[column] != 0)
            column = NextColumn(column);
        for (; column != 0; column = cameFrom_[column])
            rowOf_[column] = rowOf_[cameFrom_[column]];
    }

    // The column that can be reached at the least cost from those that are done.
    std::size_t NextColumn(std::size_t from) {
        done_[from] = true;
        std::size_t next = 0;
        double nearest = std::numeric_limits<double>::infinity();
        for (std::size_t column = 1; column <= size_; ++column) {
            if (done_[column])
                continue;
            const std::size_t row = rowOf_[from];
            const double cost = Cost(row, column) - rowPrices_[row] - columnPrices_[column];
            if (cost < least_[column]) {
                least_[column] = cost;
                cameFrom_[column] = from;
            }
            if (least_[column] < nearest) {
                nearest = least_[column];
                next = column;
            }
        }
        Reprice(nearest);
        return next;
    }

    void Reprice(double nearest) {
        for (std::size_t column = 0; column <= size_; ++column) {
            if (done_[column]) {
                rowPrices_[rowOf_[column]] += nearest;
                columnPrices_[column] -= nearest;
            } else {
                least_[column] -= nearest;
            }
        }
    }

    const Worths& worths_;
    std::size_t size_;
    std::vector<double> rowPrices_;
    std::vector<double> columnPrices_;
    std::vector<std::size_t> rowOf_;
    std::vector<std::size_t> cameFrom_;
    std::vector<double> least_;
    std::vector<bool> done_;
};

} // namespace

std::vector<std::optional<std::size_t>> BestAssignment(const Worths& worths) {
    std::vector<std::optional<std::size_t>> columns(worths.Rows());
    Assigner assigner(worths);
    const std::vector<std::size_t>& rowOf = assigner.Assign();
    for (std::size_t column = 0; column < worths.Columns(); ++column) {
        const std::size_t row = rowOf[column + 1];
        if (row != 0 && row <= worths.Rows() && worths.At(row - 1, column) > 0)
            columns[row - 1] = column;
    }
    return columns;
}

} // namespace orvane::review
