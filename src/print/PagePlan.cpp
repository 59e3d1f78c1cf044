// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PagePlan.h"

#include "text/NumberText.h"

#include <algorithm>

namespace orvane::print {

namespace {

constexpr int kTileWidth = 160;
constexpr int kTileHeight = 110;
constexpr int kBoxGap = 100;           // beside and below the boxes
constexpr std::size_t kMostTiles = 30; // in a line

bool IsDrawn(const PagePlan& plan) { return plan.Rows <= kMostTiles && plan.Columns <= kMostTiles; }

} // namespace

int PlanHeight(const PagePlan& plan, const Letters& letters) {
    const int drawn = !plan.IsOnePage() && IsDrawn(plan) ? int(plan.Rows) * kTileHeight : 0;
    return std::max(drawn, letters.LineHeight(Face::Small)) + kBoxGap;
}

void WritePlan(PageFlow& flow, const PagePlan& plan) {
    if (plan.IsOnePage())
        return flow.Skip(PlanHeight(plan, flow.Measure()));
    const std::string place = "Part " + NumberText(std::int64_t(plan.Row * plan.Columns + plan.Column + 1)) +
                              " of " + NumberText(std::int64_t(plan.Rows * plan.Columns));
    const int left = flow.Width() - (IsDrawn(plan) ? int(plan.Columns) * kTileWidth + kBoxGap : 0);
    flow.Put(left - WidthOf(place, Face::Small, flow.Measure()), Face::Small, place);
    for (std::size_t row = 0; IsDrawn(plan) && row < plan.Rows; ++row) {
        for (std::size_t column = 0; column < plan.Columns; ++column) {
            const Box box{flow.Width() - int(plan.Columns - column) * kTileWidth,
                          flow.At() + int(row) * kTileHeight, kTileWidth, kTileHeight};
            if (row == plan.Row && column == plan.Column)
                flow.Current().Grounds.push_back({box, Shade::Dark});
            DrawFrame(flow.Current(), box);
        }
    }
    flow.Skip(PlanHeight(plan, flow.Measure()));
}

void DrawFrame(Sheet& sheet, const Box& box) {
    const int right = box.X + box.Width;
    const int bottom = box.Y + box.Height;
    for (const Line& line : {Line{box.X, box.Y, right, box.Y}, Line{box.X, bottom, right, bottom},
                             Line{box.X, box.Y, box.X, bottom}, Line{right, box.Y, right, bottom}})
        sheet.Lines.push_back(line);
}

} // namespace orvane::print
