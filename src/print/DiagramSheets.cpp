// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/DiagramSheets.h"

#include "print/PagePlan.h"

#include <algorithm>
#include <cmath>

namespace orvane::print {

namespace {

constexpr double kReadable = 0.65; // of the full size: letters of about 6 points
constexpr int kMostParts = 36;     // a wall of more pages helps nobody
constexpr double kOverlap = 0.05;  // of a page, so that what lies on a border is whole on one of the two

// So many parts of this length, which overlap, cover the whole.
int PartsFor(int whole, int part) {
    const double step = part * (1 - kOverlap);
    return whole <= part ? 1 : int(std::ceil((whole - part) / step)) + 1;
}

// As large as it fits, but not larger than it is.
double FittingScale(const Paper& size, int width, int height) {
    return std::min({1.0, double(width) / size.Width, double(height) / size.Height});
}

void ShowPart(PageFlow& flow, const Box& part, double scale) {
    flow.Current().Shown =
        PicturePart{part, Box{0, flow.At(), int(part.Width * scale), int(part.Height * scale)}};
}

// So long are parts that cover the whole evenly.
int EvenPart(int whole, std::size_t parts) {
    return int(std::ceil(whole / (1 + (double(parts) - 1) * (1 - kOverlap))));
}

void WriteParts(PageFlow& flow, const Paper& size, PagePlan plan) {
    const Box part{0, 0, EvenPart(size.Width, plan.Columns), EvenPart(size.Height, plan.Rows)};
    const double scale = FittingScale({part.Width, part.Height}, flow.Width(),
                                      flow.Bottom() - flow.Top() - PlanHeight(plan, flow.Measure()));
    const int across = int(std::ceil(part.Width * (1 - kOverlap)));
    const int down = int(std::ceil(part.Height * (1 - kOverlap)));
    for (plan.Row = 0; plan.Row < plan.Rows; ++plan.Row) {
        for (plan.Column = 0; plan.Column < plan.Columns; ++plan.Column) {
            flow.BeginPage();
            WritePlan(flow, plan);
            const int x = int(plan.Column) * across;
            const int y = int(plan.Row) * down;
            ShowPart(flow,
                     {x, y, std::min(part.Width, size.Width - x), std::min(part.Height, size.Height - y)},
                     scale);
        }
    }
}

} // namespace

void WriteDiagram(PageFlow& flow, const Picture& picture) {
    const Paper& size = picture.Size;
    flow.BeginChapter("Diagram");
    if (size.Width == 0 || size.Height == 0)
        return flow.Write(0, Face::Body, "There is nothing to draw yet.");
    if (!picture.IsWhole)
        flow.Write(0, Face::Body,
                   "The machine has more lines than one picture can show: this is what is around its first "
                   "state. All transitions stand in the table.");
    const double scale = FittingScale(size, flow.Width(), flow.Room());
    ShowPart(flow, {0, 0, size.Width, size.Height}, scale);
    PagePlan plan;
    Box part{0, 0, int(flow.Width() / kReadable), int(flow.Room() / kReadable)};
    plan.Columns = std::size_t(PartsFor(size.Width, part.Width));
    plan.Rows = std::size_t(PartsFor(size.Height, part.Height)) + 1; // as its own plan takes from the room
    part.Height -= int(PlanHeight(plan, flow.Measure()) / kReadable);
    plan.Rows = std::size_t(PartsFor(size.Height, part.Height));
    if (scale < kReadable && plan.Rows * plan.Columns <= kMostParts)
        WriteParts(flow, size, plan);
}

} // namespace orvane::print
