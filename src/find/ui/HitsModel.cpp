// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ui/HitsModel.h"

#include "find/PlaceText.h"
#include "find/ui/ShownLine.h"
#include "kit/AnsiString.h"

#include <utility>

namespace orvane {

HitsModel::HitsModel(const FsmDocument& document, QObject* parent)
    : ListModel({tr("Place"), tr("Text")}, parent), document_(document) {}

void HitsModel::Show(std::vector<find::Hit> hits) { Replace(hits_, std::move(hits)); }

QVariant HitsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole))
        return {};
    const find::Hit& hit = HitAt(index.row());
    if (index.column() == Place)
        return FromAnsi(find::PlaceTitle(document_, hit.Place));
    return ShownLine(find::LineAt(TextAt(document_, hit.Place), hit.Start));
}

} // namespace orvane
