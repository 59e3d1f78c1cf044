// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/EditedLabel.h"

namespace orvane {

EditedLabel::EditedLabel(QWidget* parent, const QString& what) : ElidedLabel(parent) {
    setObjectName(QStringLiteral("lblEdited"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    ShowText(what);
}

} // namespace orvane
