// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

class QDialog;
class QPushButton;
class QVBoxLayout;

namespace orvane {

inline constexpr QSize kPlanSize{760, 420}; // pixels, of the dialogs that show changes before they are made

// The row below such a list: all and none, OK and Cancel. OK accepts, Cancel rejects.
struct PlanButtons {
    QPushButton* All;
    QPushButton* None;
    QPushButton* Ok;
};
PlanButtons AddPlanButtons(QDialog& dialog, QVBoxLayout& layout);

} // namespace orvane
