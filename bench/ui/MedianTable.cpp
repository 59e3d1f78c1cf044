// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/MedianTable.h"

#include <algorithm>
#include <chrono>
#include <iomanip>

namespace orvane {

namespace {

double Median(std::vector<double> times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

} // namespace

double TimeOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    return time.count();
}

void MedianTable::Add(const std::string& operation, const std::string& floorName, double aim,
                      const Timed& run, const Timed& floor) {
    lines_.push_back({operation, floorName, aim, run, floor, {}, {}});
}

void MedianTable::Measure(int rounds) {
    for (int round = 0; round <= rounds; ++round) {
        for (Line& line : lines_) {
            const double floor = line.Floor();
            const double time = line.Run();
            if (round == 0)
                continue;
            line.Floors.push_back(floor);
            line.Times.push_back(time);
        }
    }
}

void MedianTable::Print(std::ostream& out) const {
    for (const Line& line : lines_) {
        const double time = Median(line.Times);
        const double floor = Median(line.Floors);
        out << "| " << line.Operation << " | " << std::fixed << std::setprecision(2) << time << " | "
            << line.FloorName << " | " << floor << " | " << std::setprecision(1) << time / floor << " | "
            << line.Aim << " |\n";
    }
}

} // namespace orvane
