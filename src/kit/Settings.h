// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSettings>

namespace orvane {

// The user's settings: a file of its own, also on Windows, so that nothing is left behind in a registry.
class Settings : public QSettings {
  public:
    Settings()
        : QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Orvane"),
                    QStringLiteral("orvane")) {}
};

} // namespace orvane
