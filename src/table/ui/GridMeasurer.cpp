// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/GridMeasurer.h"

#include "kit/AnsiString.h"

#include <QFontInfo>
#include <QFontMetrics>

#include <algorithm>
#include <string>
#include <unordered_map>

namespace orvane {

namespace {

// A redraw asks for the same few thousand texts again and again, and shaping a text costs a hundred times
// what finding it costs.
class CachedWidths final : public TextMeasurer {
  public:
    CachedWidths(const QFont& font, int scale) : metrics_(font), scale_(scale) {}

    Twips operator()(std::string_view text) const override {
        if (text.size() > kLongestKept)
            return Measure(text);
        if (widths_.size() > kMostKept)
            widths_.clear();
        const auto [entry, isNew] = widths_.try_emplace(std::string(text));
        if (isNew)
            entry->second = Measure(text);
        return entry->second;
    }

  private:
    static constexpr std::size_t kLongestKept = 256; // characters
    static constexpr std::size_t kMostKept = 20000;  // texts; a full table has 5555, each cut a few times

    Twips Measure(std::string_view text) const {
        const Twips shown = TwipsFromPixels(metrics_.horizontalAdvance(CellLine(text)));
        return (shown.Count() * 100 + scale_ - 1) / scale_; // never less than it takes
    }

    QFontMetrics metrics_;
    int scale_;
    mutable std::unordered_map<std::string, Twips> widths_;
};

} // namespace

QString CellLine(std::string_view text) { return CellLine(FromAnsi(text)); }

QString CellLine(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral(" "))
        .replace(QLatin1Char('\n'), QLatin1Char(' '))
        .replace(QLatin1Char('\r'), QLatin1Char(' '));
}

std::unique_ptr<TextMeasurer> GridMeasurer(const QFont& font, int scale) {
    return std::make_unique<CachedWidths>(font, scale);
}

int FontPercent(const QFont& font) {
    constexpr double kUsual = 9; // points
    constexpr double kLargestUsual = 11;
    const double size = QFontInfo(font).pointSizeF();
    return size > kLargestUsual ? int(size * 100 / kUsual) : 100;
}

} // namespace orvane
