// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/JournalView.h"

#include "session/JournalBytes.h"

#include <limits>

namespace orvane {

namespace {

constexpr std::uint8_t kPolytask = 1;
constexpr std::uint8_t kShowTimeTarget = 2;
constexpr std::uint8_t kShowTimingMode = 4;
constexpr std::uint8_t kShowElse = 8;

std::uint8_t Marks(const ViewOptions& view) {
    unsigned marks = view.Polytask ? kPolytask : 0;
    marks |= view.ShowTimeTarget ? kShowTimeTarget : 0;
    marks |= view.ShowTimingMode ? kShowTimingMode : 0;
    marks |= view.ShowElse ? kShowElse : 0;
    return marks & 0xFF;
}

Twips ReadLength(JournalBytesReader& bytes) {
    using Limits = std::numeric_limits<std::int32_t>;
    return bytes.Signed(Limits::min(), Limits::max());
}

// Columns are mostly as wide as their neighbours: runs of equal widths.
void WriteWidths(const JournalView& view, JournalBytesWriter& bytes) {
    for (std::size_t at = 0; at < view.Widths.size();) {
        const std::size_t first = at;
        while (at < view.Widths.size() && view.Widths[at] == view.Widths[first])
            ++at;
        bytes.Count(at - first);
        bytes.Signed(view.Widths[first].Count());
    }
}

void ReadWidths(JournalView& view, JournalBytesReader& bytes) {
    for (std::size_t at = 0; at < view.Widths.size() && !bytes.Failed();) {
        const std::uint64_t run = bytes.Count();
        const Twips width = ReadLength(bytes);
        bytes.Require(run > 0 && run <= view.Widths.size() - at);
        for (std::uint64_t i = 0; i < run && !bytes.Failed(); ++i)
            view.Widths[at++] = width;
    }
}

} // namespace

JournalView ViewOf(const FsmDocument& document) {
    JournalView view{document.View, {}, document.General.BuildFile};
    auto width = view.Widths.begin();
    for (const StateNumber number : StateNumbers())
        *width++ = document.State(number).ColWidth;
    return view;
}

void ApplyView(const JournalView& view, FsmDocument& document) {
    document.View = view.Options;
    document.General.BuildFile = view.BuildFile;
    auto width = view.Widths.begin();
    for (const StateNumber number : StateNumbers())
        document.State(number).ColWidth = *width++;
}

void WriteView(const JournalView& view, JournalBytesWriter& bytes) {
    bytes.Byte(Marks(view.Options));
    bytes.Signed(view.Options.Col0Width.Count());
    const RowHeights& heights = view.Options.RowVisible;
    for (const Twips height : {heights.Else, heights.ExitAction, heights.TimingMode, heights.TimeTarget})
        bytes.Signed(height.Count());
    WriteWidths(view, bytes);
    bytes.Text(view.BuildFile);
}

JournalView ReadView(JournalBytesReader& bytes) {
    JournalView view;
    const std::uint8_t marks = bytes.Byte();
    view.Options.Polytask = (marks & kPolytask) != 0;
    view.Options.ShowTimeTarget = (marks & kShowTimeTarget) != 0;
    view.Options.ShowTimingMode = (marks & kShowTimingMode) != 0;
    view.Options.ShowElse = (marks & kShowElse) != 0;
    view.Options.Col0Width = ReadLength(bytes);
    RowHeights& heights = view.Options.RowVisible;
    for (Twips* height : {&heights.Else, &heights.ExitAction, &heights.TimingMode, &heights.TimeTarget})
        *height = ReadLength(bytes);
    ReadWidths(view, bytes);
    view.BuildFile = bytes.Text();
    return view;
}

} // namespace orvane
