// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ui/SidePane.h"

#include "review/ui/SignLook.h"

#include <QEvent>

namespace orvane {

namespace {

constexpr int kSignMargin = 2;
constexpr int kLineMarker = 1;

} // namespace

SidePane::SidePane(Side side, QWidget* parent) : CodePane({}, parent), side_(side) {
    setReadOnly(true);
    markerDefine(Background, kLineMarker);
    setMarginType(kSignMargin, TextMarginRightJustified);
    setMarginMarkerMask(kSignMargin, 0);
    setMarginWidth(kSignMargin, QStringLiteral("00"));
    ApplySignLook();
}

void SidePane::ApplySignLook() {
    setMarkerBackgroundColor(GroundOf(side_ == Side::Old ? '-' : '+'), kLineMarker);
}

// The editor takes no text while it is read only.
void SidePane::ShowSide(std::string_view text, const std::vector<review::LineChange>& changes) {
    setReadOnly(false);
    SetText(text);
    setReadOnly(true);
    markerDeleteAll(kLineMarker);
    clearMarginText();
    std::optional<std::size_t> first;
    for (const review::LineChange& change : changes) {
        const std::size_t begin = side_ == Side::Old ? change.OldFirst : change.NewFirst;
        const std::size_t count = side_ == Side::Old ? change.OldCount : change.NewCount;
        for (std::size_t line = begin; line < begin + count; ++line)
            MarkLine(line);
        first = first.value_or(begin);
    }
    if (first)
        ensureLineVisible(int(*first));
}

void SidePane::MarkLine(std::size_t line) {
    markerAdd(int(line), kLineMarker);
    const QChar sign = QLatin1Char(side_ == Side::Old ? '-' : '+');
    setMarginText(int(line), sign, 0);
}

void SidePane::changeEvent(QEvent* event) {
    CodePane::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ApplySignLook();
}

} // namespace orvane
