// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace orvane {

// What a window edits, told inside it: "State 3:Opening". It makes no window wider: what there is no room for
// is cut off, and is whole in the tooltip.
class EditedLabel : public QLabel {
    Q_OBJECT

  public:
    explicit EditedLabel(QWidget* parent, const QString& what = {});

    void ShowEdited(const QString& what);
};

} // namespace orvane
