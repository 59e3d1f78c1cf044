// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/LineMerge.h"

#include "review/ConflictBlock.h"
#include "review/LineDiff.h"

#include <algorithm>

namespace orvane::review {

namespace {

// A side's changes of the base, taken one after the other.
class Changer {
  public:
    Changer(const Lines& base, std::string_view text)
        : lines_(LinesOf(text)), changes_(DiffLines(base, lines_)), next_(changes_.begin()) {}

    bool IsDone() const { return next_ == changes_.end(); }
    std::size_t NextFirst() const { return IsDone() ? std::string_view::npos : next_->OldFirst; }

    // Takes the changes that begin up to `end` into the region; returns where it ends then.
    std::size_t TakeUpTo(std::size_t end) {
        for (; !IsDone() && next_->OldFirst <= end; ++next_) {
            end = std::max(end, next_->OldFirst + next_->OldCount);
            shift_ += std::ptrdiff_t(next_->NewCount) - std::ptrdiff_t(next_->OldCount);
        }
        return end;
    }

    // The side's lines in the place of the base's lines up to `end`; to be asked for region after region.
    Lines LinesUpTo(std::size_t end) {
        const std::size_t newEnd = std::size_t(std::ptrdiff_t(end) + shift_);
        Lines lines(lines_.begin() + std::ptrdiff_t(at_), lines_.begin() + std::ptrdiff_t(newEnd));
        at_ = newEnd;
        return lines;
    }

  private:
    Lines lines_;
    std::vector<LineChange> changes_;
    std::vector<LineChange>::const_iterator next_;
    std::ptrdiff_t shift_ = 0; // how many more lines the side has up to here
    std::size_t at_ = 0;
};

void Append(std::vector<std::string>& merged, const Lines& lines) {
    merged.insert(merged.end(), lines.begin(), lines.end());
}

class LineMerger {
  public:
    LineMerger(const ThreeTexts& texts, std::string_view title, Blocks blocks)
        : base_(LinesOf(texts.Base)),
          ours_(base_, texts.Ours),
          theirs_(base_, texts.Theirs),
          title_(title),
          blocks_(blocks) {}

    MergedText Merge() {
        while (!ours_.IsDone() || !theirs_.IsDone())
            MergeRegion();
        Append(merged_, ours_.LinesUpTo(base_.size()));
        return {TextOf(Lines(merged_.begin(), merged_.end())), conflicts_};
    }

  private:
    // From the next change of either side on, as far as changes touch each other.
    void MergeRegion() {
        const std::size_t first = std::min(ours_.NextFirst(), theirs_.NextFirst());
        Append(merged_, ours_.LinesUpTo(first));
        (void)theirs_.LinesUpTo(first);
        std::size_t end = first;
        for (std::size_t before = first + 1; before != end;) {
            before = end;
            end = theirs_.TakeUpTo(ours_.TakeUpTo(end));
        }
        Choose(Lines(base_.begin() + std::ptrdiff_t(first), base_.begin() + std::ptrdiff_t(end)),
               ours_.LinesUpTo(end), theirs_.LinesUpTo(end));
    }

    void Choose(const Lines& base, const Lines& ours, const Lines& theirs) {
        if (ours == base || ours == theirs)
            return Append(merged_, theirs);
        Append(merged_, ours);
        if (theirs == base)
            return;
        ++conflicts_;
        if (blocks_ == Blocks::Without)
            return;
        const std::string baseText = TextOf(base);
        const std::string theirText = TextOf(theirs);
        merged_.push_back(ConflictBlock({title_, baseText, theirText}));
    }

    Lines base_;
    Changer ours_;
    Changer theirs_;
    std::string_view title_;
    std::vector<std::string> merged_;
    Blocks blocks_;
    int conflicts_ = 0;
};

} // namespace

MergedText MergeLines(const ThreeTexts& texts, std::string_view title, Blocks blocks) {
    return LineMerger(texts, title, blocks).Merge();
}

} // namespace orvane::review
