// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/KeepsJournal.h"

#include "kit/Settings.h"

namespace orvane {

namespace {

QString Key() { return QStringLiteral("KeepJournal"); }

} // namespace

bool KeepsJournal() { return Settings().value(Key(), true).toBool(); }

bool SetKeepsJournal(bool keeps) {
    Settings settings;
    settings.setValue(Key(), keeps);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace orvane
