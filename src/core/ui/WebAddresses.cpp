// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ui/WebAddresses.h"

namespace orvane {

namespace {

QUrl Address(const char* variable, const char* builtIn) {
    return QUrl(qEnvironmentVariable(variable, QString::fromUtf8(builtIn)));
}

} // namespace

QUrl DownloadPage() { return Address("ORVANE_DOWNLOAD_URL", ORVANE_DOWNLOAD_URL); }

QUrl HomePage() { return Address("ORVANE_HOME_URL", ORVANE_HOME_URL); }

} // namespace orvane
