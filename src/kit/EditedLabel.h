// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/ElidedLabel.h"

namespace orvane {

// What a window edits, told inside it: "State 3:Opening".
class EditedLabel : public ElidedLabel {
    Q_OBJECT

  public:
    explicit EditedLabel(QWidget* parent, const QString& what = {});
};

} // namespace orvane
