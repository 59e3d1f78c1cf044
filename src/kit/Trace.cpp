// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/Trace.h"

#include <QDateTime>
#include <QLoggingCategory>

#include <string>

namespace orvane {

namespace {

Q_LOGGING_CATEGORY(traceCategory, "orvane.trace", QtInfoMsg)

} // namespace

void Trace(std::string_view label) { qCDebug(traceCategory).noquote() << std::string(label).c_str(); }

void TraceStart() { Trace("Start at " + QDateTime::currentDateTime().toString(Qt::ISODate).toStdString()); }

} // namespace orvane
