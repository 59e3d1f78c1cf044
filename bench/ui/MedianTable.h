// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace orvane {

// Runs once and returns how long that took, in milliseconds.
using Timed = std::function<double()>;

// How long the work takes, in milliseconds.
double TimeOf(const std::function<void()>& work);

// Operations beside their floors. Each round runs every operation and, right before it, its floor, so that
// whatever else the machine is doing falls on both; the table has the medians.
class MedianTable {
  public:
    // `aim` is the largest ratio that is good.
    void Add(const std::string& operation, const std::string& floorName, double aim, const Timed& run,
             const Timed& floor);
    // The first round warms up and does not count.
    void Measure(int rounds);
    void Print(std::ostream& out) const;

  private:
    struct Line {
        std::string Operation;
        std::string FloorName;
        double Aim = 0;
        Timed Run;
        Timed Floor;
        std::vector<double> Times;
        std::vector<double> Floors;
    };

    std::vector<Line> lines_;
};

} // namespace orvane
