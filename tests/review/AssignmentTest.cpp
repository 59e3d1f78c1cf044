// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/Assignment.h"
#include "review/IncreasingRun.h"
#include "support/Versions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

namespace orvane::test {
namespace {

using review::BestAssignment;
using review::Worths;

Worths RandomWorths(Dice& dice, std::size_t rows, std::size_t columns) {
    Worths worths(rows, columns);
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t column = 0; column < columns; ++column)
            worths.At(row, column) = Roll(dice, 3) == 0 ? 0 : Roll(dice, 100);
    }
    return worths;
}

double WorthOf(const Worths& worths, const std::vector<std::optional<std::size_t>>& columns) {
    double sum = 0;
    for (std::size_t row = 0; row < columns.size(); ++row)
        sum += columns[row] ? worths.At(row, *columns[row]) : 0;
    return sum;
}

// By trying all orders; rows must not be more than columns.
double BestByTrying(const Worths& worths) {
    std::vector<std::size_t> order(worths.Columns());
    std::iota(order.begin(), order.end(), std::size_t(0));
    double best = 0;
    do {
        double sum = 0;
        for (std::size_t row = 0; row < worths.Rows(); ++row)
            sum += worths.At(row, order[row]);
        best = std::max(best, sum);
    } while (std::next_permutation(order.begin(), order.end()));
    return best;
}

TEST(BestAssignment, IsWorthAsMuchAsTheBestOfAllOrders) {
    Dice dice(3);
    for (int round = 0; round < 300; ++round) {
        const std::size_t rows = 1 + std::size_t(Roll(dice, 5));
        const Worths worths = RandomWorths(dice, rows, rows + std::size_t(Roll(dice, 2)));
        EXPECT_EQ(WorthOf(worths, BestAssignment(worths)), BestByTrying(worths));
    }
}

TEST(BestAssignment, GivesNoColumnTwiceAndNoPairThatIsWorthNothing) {
    Dice dice(4);
    for (int round = 0; round < 200; ++round) {
        const Worths worths =
            RandomWorths(dice, 1 + std::size_t(Roll(dice, 12)), 1 + std::size_t(Roll(dice, 12)));
        std::vector<std::size_t> taken;
        const auto columns = BestAssignment(worths);
        for (std::size_t row = 0; row < columns.size(); ++row) {
            if (!columns[row])
                continue;
            EXPECT_GT(worths.At(row, *columns[row]), 0);
            EXPECT_EQ(std::count(taken.begin(), taken.end(), *columns[row]), 0);
            taken.push_back(*columns[row]);
        }
    }
}

TEST(BestAssignment, OfAnEmptySideHasNoPairs) {
    EXPECT_TRUE(BestAssignment(Worths(0, 3)).empty());
    EXPECT_TRUE(BestAssignment(Worths(3, 0)).empty());
}

std::size_t LongestByTrying(const std::vector<int>& numbers) {
    std::size_t longest = 0;
    for (unsigned chosen = 0; chosen < 1u << numbers.size(); ++chosen) {
        std::vector<int> run;
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            if ((chosen >> i & 1) != 0)
                run.push_back(numbers[i]);
        }
        if (std::is_sorted(run.begin(), run.end()))
            longest = std::max(longest, run.size());
    }
    return longest;
}

TEST(LongestIncreasingRun, IsIncreasingAndAsLongAsAny) {
    Dice dice(5);
    for (int round = 0; round < 200; ++round) {
        std::vector<int> numbers(std::size_t(Roll(dice, 10)));
        std::iota(numbers.begin(), numbers.end(), 1);
        std::shuffle(numbers.begin(), numbers.end(), dice);
        const std::vector<bool> belongs = review::LongestIncreasingRun(numbers);
        std::vector<int> run;
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            if (belongs[i])
                run.push_back(numbers[i]);
        }
        EXPECT_TRUE(std::is_sorted(run.begin(), run.end()));
        EXPECT_EQ(run.size(), LongestByTrying(numbers));
    }
}

} // namespace
} // namespace orvane::test
