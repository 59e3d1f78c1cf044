// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "table/TextFitting.h"

#include <QFont>
#include <QString>

#include <memory>
#include <string_view>

namespace orvane {

// A text of the document as one line of a cell shows it: a blank stands for a line end.
QString CellLine(std::string_view text);
QString CellLine(QString text);

// Measures cell lines in this font, in twips of a document that is shown at this scale, in percent.
std::unique_ptr<TextMeasurer> GridMeasurer(const QFont& font, int scale = 100);

// How large a table is shown for the sake of its font alone, in percent: what the documents say is meant for
// the usual sizes, and is shown just so up to the largest of them.
int FontPercent(const QFont& font);

} // namespace orvane
