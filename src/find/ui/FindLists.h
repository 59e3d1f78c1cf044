// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

class QAbstractItemModel;
class QString;
class QTreeView;
class QWidget;

namespace orvane {

// A list of rows as all windows of this part show them: whole rows, the columns as wide as their share of the
// list, in per cent, and the last one with what is left.
QTreeView* MakeList(QWidget* parent, const char* name, const QString& accessibleName,
                    QAbstractItemModel* model, std::vector<int> percents);

} // namespace orvane
