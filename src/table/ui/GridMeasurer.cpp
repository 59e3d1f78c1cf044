// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/GridMeasurer.h"

#include "kit/AnsiString.h"

#include <QFontMetrics>

#include <string>
#include <unordered_map>

namespace orvane {

namespace {

// A redraw asks for the same few thousand texts again and again, and shaping a text costs a hundred times
// what finding it costs.
class CachedWidths final : public TextMeasurer {
  public:
    CachedWidths(const QFont& font, int zoom) : metrics_(font), zoom_(zoom) {}

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
        return (shown.Count() * 100 + zoom_ - 1) / zoom_; // never less than it takes
    }

    QFontMetrics metrics_;
    int zoom_;
    mutable std::unordered_map<std::string, Twips> widths_;
};

} // namespace

QString CellLine(std::string_view text) { return CellLine(FromAnsi(text)); }

QString CellLine(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral(" "))
        .replace(QLatin1Char('\n'), QLatin1Char(' '))
        .replace(QLatin1Char('\r'), QLatin1Char(' '));
}

std::unique_ptr<TextMeasurer> GridMeasurer(const QFont& font, int zoom) {
    return std::make_unique<CachedWidths>(font, zoom);
}

} // namespace orvane
