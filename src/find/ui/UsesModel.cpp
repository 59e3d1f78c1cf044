// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/UsesModel.h"

#include "find/PlaceText.h"
#include "find/Search.h"
#include "find/ui/ShownLine.h"
#include "kit/AnsiString.h"

#include <utility>

namespace orvane {

UsesModel::UsesModel(const FsmDocument& document, QObject* parent)
    : ListModel({tr("Place"), tr("What")}, parent), document_(document) {}

void UsesModel::Show(std::vector<find::Use> uses) { Replace(uses_, std::move(uses)); }

QVariant UsesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const find::Use& use = UseAt(index.row());
    if (role == Qt::ToolTipRole && !use.Text)
        return {};
    if (role == Qt::ToolTipRole) // the line, which a list of uses has no column for
        return ShownLine(find::LineAt(TextAt(document_, use.Text->Place), use.Text->Start)).toHtmlEscaped();
    if (index.column() == What)
        return FromAnsi(use.What);
    return FromAnsi(use.Text ? find::PlaceTitle(document_, use.Text->Place)
                             : find::CellTitle(document_, use.At));
}

} // namespace orvane
