// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/KeepsJournal.h"

#include "kit/Settings.h"

namespace orvane {

namespace {

QString Key() { return QStringLiteral("KeepJournal"); }

} // namespace

bool KeepsJournal() { return Settings().value(Key(), true).toBool(); }

void SetKeepsJournal(bool keeps) { Settings().setValue(Key(), keeps); }

} // namespace orvane
