// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace orvane::review {

// How much each of some rows and each of some columns are worth as a pair, 0 and above.
class Worths {
  public:
    Worths(std::size_t rows, std::size_t columns) : columns_(columns), worths_(rows * columns) {}

    std::size_t Rows() const { return columns_ == 0 ? 0 : worths_.size() / columns_; }
    std::size_t Columns() const { return columns_; }
    double& At(std::size_t row, std::size_t column) { return worths_[row * columns_ + column]; }
    double At(std::size_t row, std::size_t column) const { return worths_[row * columns_ + column]; }

  private:
    std::size_t columns_;
    std::vector<double> worths_;
};

// The pairs that are worth the most together; by row the column, none for a row whose pair would be worth
// nothing. Takes time with the third power of the larger side.
std::vector<std::optional<std::size_t>> BestAssignment(const Worths& worths);

} // namespace orvane::review
