// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "print/Letters.h"

namespace orvane::print {

// Where a part of the print begins.
struct Chapter {
    std::string Title; // UTF-8
    std::size_t FirstSheet = 0;
};

// What stands at the foot of every sheet beside its number; UTF-8.
struct Foot {
    std::string Left;
    std::string Middle;
};

// Pages that are filled from the top down. Each has its title above and its number below; what does not fit
// any more goes on the next one.
class PageFlow {
  public:
    PageFlow(const Paper& paper, const Letters& letters);

    // A new page, with this title above it and above those that follow.
    void BeginChapter(const std::string& title);
    void BeginPage();
    // A new page unless so much is left of this one.
    void Need(int height);

    int Width() const { return paper_.Width; }
    int Top() const { return top_; }
    int Bottom() const { return bottom_; }
    int At() const { return at_; }
    int Room() const { return bottom_ - at_; }
    void Skip(int height) { at_ += height; }

    // A line of text at the current height, which stays.
    void Put(int x, Face face, std::string utf8);
    // Wrapped into the page's width from there on; the height moves on.
    void Write(int x, Face face, std::string_view utf8);
    Sheet& Current() { return sheets_.back(); }
    std::size_t Sheets() const { return sheets_.size(); }

    const Letters& Measure() const { return letters_; }
    const std::vector<Chapter>& Chapters() const { return chapters_; }
    // All sheets, numbered. The flow has none any more.
    std::vector<Sheet> Take(const Foot& foot);

  private:
    const Paper paper_;
    const Letters& letters_;
    const int top_;
    const int bottom_;
    int at_ = 0;
    std::string title_;
    std::vector<Chapter> chapters_;
    std::vector<Sheet> sheets_;
};

} // namespace orvane::print
