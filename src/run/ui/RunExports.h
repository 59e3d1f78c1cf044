// SPDX-License-Identifier: GPL-3.0-or-later
// A run as files for others. The user is asked where to, and told when it did not work.
#pragma once

#include "run/LiveRun.h"

#include <QPixmap>
#include <QString>

class QWidget;

namespace orvane {

class Session;

// As PNG.
void SavePicture(QWidget& window, const Session& session, const QPixmap& picture);

// The run up to the moment shown, for viewers of signals. `unit` is how long a unit is, "0.1 s" or empty.
void SaveVcd(QWidget& window, const Session& session, const run::LiveRun& run, const QString& unit);

} // namespace orvane
