// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PageFlow.h"

#include "text/NumberText.h"

#include <utility>

namespace orvane::print {

namespace {

constexpr int kGap = 100; // between a page's text and the lines above and below it

} // namespace

PageFlow::PageFlow(const Paper& paper, const Letters& letters)
    : paper_(paper),
      letters_(letters),
      top_(letters.LineHeight(Face::Bold) + 2 * kGap),
      bottom_(paper.Height - letters.LineHeight(Face::Small) - 2 * kGap) {}

void PageFlow::BeginChapter(const std::string& title) {
    chapters_.push_back({title, sheets_.size()});
    title_ = title;
    BeginPage();
}

void PageFlow::BeginPage() {
    sheets_.emplace_back();
    at_ = 0;
    Put(0, Face::Bold, Fitted(title_, paper_.Width, 1, Face::Bold, letters_).front());
    Current().Lines.push_back({0, top_ - kGap, paper_.Width, top_ - kGap});
    at_ = top_;
}

void PageFlow::Need(int height) {
    if (sheets_.empty() || (Room() < height && at_ > top_))
        BeginPage();
}

void PageFlow::Put(int x, Face face, std::string utf8) {
    if (!utf8.empty())
        Current().Texts.push_back({x, at_, face, std::move(utf8)});
}

void PageFlow::Write(int x, Face face, std::string_view utf8) {
    for (std::string& line : Wrapped(utf8, paper_.Width - x, face, letters_)) {
        Need(letters_.LineHeight(face));
        Put(x, face, std::move(line));
        Skip(letters_.LineHeight(face));
    }
}

std::vector<Sheet> PageFlow::Take(const Foot& foot) {
    const int y = paper_.Height - letters_.LineHeight(Face::Small);
    const std::string count = NumberText(std::int64_t(sheets_.size()));
    for (std::size_t i = 0; i < sheets_.size(); ++i) {
        const std::string number = "Page " + NumberText(std::int64_t(i + 1)) + " of " + count;
        const int numberAt = paper_.Width - WidthOf(number, Face::Small, letters_);
        const int third = paper_.Width / 3;
        sheets_[i].Lines.push_back({0, y - kGap, paper_.Width, y - kGap});
        const auto put = [&](int x, int width, const std::string& text) {
            if (!text.empty())
                sheets_[i].Texts.push_back(
                    {x, y, Face::Small, Fitted(text, width, 1, Face::Small, letters_).front()});
        };
        put(0, third + third / 2, foot.Left);
        put(third + third / 2 + kGap, third - 2 * kGap, foot.Middle);
        sheets_[i].Texts.push_back({numberAt, y, Face::Small, number});
    }
    return std::exchange(sheets_, {});
}

} // namespace orvane::print
