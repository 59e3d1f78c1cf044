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

// Measures cell lines in this font.
std::unique_ptr<TextMeasurer> GridMeasurer(const QFont& font, int zoom = 100);

} // namespace orvane
