// SPDX-License-Identifier: GPL-3.0-or-later
// The greedy search of Myers: for each number of differences how far one can come on every diagonal, which is
// how many more old lines than new ones have been passed. What was reached with each number is kept, and the
// way back through it gives the lines that are equal.
#include "review/LineDiff.h"

#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace orvane::review {

namespace {

constexpr std::int64_t kMostDifferences = 1000;
constexpr std::size_t kContext = 2; // equal lines that are shown around a change

using LineSpan = std::span<const std::string_view>;

// Lines of both texts, from 0, that are equal.
struct EqualRun {
    std::size_t OldFirst;
    std::size_t NewFirst;
    std::size_t Count;
};

class Search {
  public:
    Search(LineSpan oldLines, LineSpan newLines)
        : old_(oldLines),
          new_(newLines),
          oldCount_(std::int64_t(oldLines.size())),
          newCount_(std::int64_t(newLines.size())) {}

    // In order; none when there are too many differences.
    std::vector<EqualRun> EqualRuns() {
        const std::int64_t most = std::min(oldCount_ + newCount_, kMostDifferences);
        for (std::int64_t differences = 0; differences <= most; ++differences) {
            reached_.emplace_back(std::size_t(2 * differences + 1), -1);
            for (std::int64_t diagonal = -differences; diagonal <= differences; diagonal += 2) {
                const std::int64_t reach = Slide(Start(diagonal, differences), diagonal);
                Reach(diagonal, differences) = reach;
                if (diagonal == oldCount_ - newCount_ && reach == oldCount_)
                    return WayBack(differences);
            }
        }
        return {};
    }

  private:
    // How many old lines have been passed; -1 where nothing leads to.
    std::int64_t& Reach(std::int64_t diagonal, std::int64_t differences) {
        return reached_[std::size_t(differences)][std::size_t(diagonal + differences)];
    }
    std::int64_t ReachOrNone(std::int64_t diagonal, std::int64_t differences) {
        return diagonal < -differences || diagonal > differences ? -1 : Reach(diagonal, differences);
    }

    // With one old line left out, or one new line put in.
    std::int64_t AfterLeavingOut(std::int64_t diagonal, std::int64_t differences) {
        const std::int64_t before = ReachOrNone(diagonal - 1, differences - 1);
        return before >= 0 && before < oldCount_ ? before + 1 : -1;
    }
    std::int64_t AfterPuttingIn(std::int64_t diagonal, std::int64_t differences) {
        const std::int64_t before = ReachOrNone(diagonal + 1, differences - 1);
        return before >= 0 && before - diagonal <= newCount_ ? before : -1;
    }

    std::int64_t Start(std::int64_t diagonal, std::int64_t differences) {
        if (differences == 0)
            return 0;
        return std::max(AfterLeavingOut(diagonal, differences), AfterPuttingIn(diagonal, differences));
    }

    std::int64_t Slide(std::int64_t at, std::int64_t diagonal) const {
        while (at >= 0 && at < oldCount_ && at - diagonal < newCount_ &&
               old_[std::size_t(at)] == new_[std::size_t(at - diagonal)])
            ++at;
        return at;
    }

    std::vector<EqualRun> WayBack(std::int64_t differences) {
        std::vector<EqualRun> runs;
        std::int64_t diagonal = oldCount_ - newCount_;
        for (; differences >= 0; --differences) {
            const std::int64_t start = Start(diagonal, differences);
            const std::int64_t end = Reach(diagonal, differences);
            if (end > start)
                runs.push_back({std::size_t(start), std::size_t(start - diagonal), std::size_t(end - start)});
            diagonal += start == AfterLeavingOut(diagonal, differences) ? -1 : 1;
        }
        std::reverse(runs.begin(), runs.end());
        return runs;
    }

    LineSpan old_;
    LineSpan new_;
    std::int64_t oldCount_;
    std::int64_t newCount_;
    std::vector<std::vector<std::int64_t>> reached_; // by differences, then by diagonal
};

std::string Range(std::size_t first, std::size_t count) {
    const std::string line = NumberText(std::int64_t(count == 0 ? first : first + 1));
    return count == 1 ? line : line + "," + NumberText(std::int64_t(count));
}

// Changes that stand so near to each other that what is shown around them would meet.
std::vector<std::span<const LineChange>> Groups(std::span<const LineChange> changes) {
    std::vector<std::span<const LineChange>> groups;
    std::size_t first = 0;
    for (std::size_t next = 1; next <= changes.size(); ++next) {
        const LineChange& last = changes[next - 1];
        if (next < changes.size() && changes[next].OldFirst <= last.OldFirst + last.OldCount + 2 * kContext)
            continue;
        groups.push_back(changes.subspan(first, next - first));
        first = next;
    }
    return groups;
}

struct BothLines {
    const Lines& Old;
    const Lines& New;
};

class Hunks {
  public:
    explicit Hunks(const BothLines& lines) : old_(lines.Old), new_(lines.New) {}

    void Add(std::span<const LineChange> group) {
        const LineChange& first = group.front();
        const LineChange& last = group.back();
        const std::size_t before = std::min(kContext, first.OldFirst);
        const std::size_t oldEnd = last.OldFirst + last.OldCount;
        const std::size_t after = std::min(kContext, old_.size() - oldEnd);
        const std::size_t newFirst = first.NewFirst - before;
        std::size_t at = first.OldFirst - before;
        told_.push_back("@@ -" + Range(at, oldEnd + after - at) + " +" +
                        Range(newFirst, last.NewFirst + last.NewCount + after - newFirst) + " @@");
        for (const LineChange& change : group) {
            Tell(' ', old_, at, change.OldFirst);
            Tell('-', old_, change.OldFirst, change.OldFirst + change.OldCount);
            Tell('+', new_, change.NewFirst, change.NewFirst + change.NewCount);
            at = change.OldFirst + change.OldCount;
        }
        Tell(' ', old_, at, oldEnd + after);
    }

    std::vector<std::string> Take() { return std::move(told_); }

  private:
    void Tell(char sign, const Lines& lines, std::size_t first, std::size_t end) {
        for (; first < end; ++first)
            told_.push_back(sign + std::string(lines[first]));
    }

    const Lines& old_;
    const Lines& new_;
    std::vector<std::string> told_;
};

} // namespace

Lines LinesOf(std::string_view text) {
    Lines lines;
    if (text.empty())
        return lines;
    for (std::size_t end = text.find(kLineEnd); end != std::string_view::npos; end = text.find(kLineEnd)) {
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end + kLineEnd.size());
    }
    lines.push_back(text);
    return lines;
}

std::string TextOf(const Lines& lines) {
    std::string text;
    for (std::size_t i = 0; i < lines.size(); ++i)
        text.append(i == 0 ? "" : kLineEnd).append(lines[i]);
    return text;
}

std::vector<LineChange> DiffLines(const Lines& oldLines, const Lines& newLines) {
    const auto [oldStart, newStart] =
        std::mismatch(oldLines.begin(), oldLines.end(), newLines.begin(), newLines.end());
    const std::size_t front = std::size_t(oldStart - oldLines.begin());
    const std::size_t most = std::min(oldLines.size(), newLines.size()) - front;
    std::size_t back = 0;
    while (back < most &&
           *(oldLines.end() - 1 - std::int64_t(back)) == *(newLines.end() - 1 - std::int64_t(back)))
        ++back;

    const LineSpan oldMiddle(oldStart, oldLines.size() - front - back);
    const LineSpan newMiddle(newStart, newLines.size() - front - back);
    std::vector<EqualRun> runs = Search(oldMiddle, newMiddle).EqualRuns();
    runs.push_back({oldMiddle.size(), newMiddle.size(), 0});
    std::vector<LineChange> changes;
    std::size_t oldAt = 0;
    std::size_t newAt = 0;
    for (const EqualRun& run : runs) {
        if (run.OldFirst > oldAt || run.NewFirst > newAt)
            changes.push_back({front + oldAt, run.OldFirst - oldAt, front + newAt, run.NewFirst - newAt});
        oldAt = run.OldFirst + run.Count;
        newAt = run.NewFirst + run.Count;
    }
    return changes;
}

std::vector<std::string> UnifiedDiff(std::string_view oldText, std::string_view newText) {
    if (oldText == newText)
        return {};
    const Lines oldLines = LinesOf(oldText);
    const Lines newLines = LinesOf(newText);
    const std::vector<LineChange> changes = DiffLines(oldLines, newLines);
    Hunks hunks({oldLines, newLines});
    for (const std::span<const LineChange> group : Groups(changes))
        hunks.Add(group);
    return hunks.Take();
}

} // namespace orvane::review
