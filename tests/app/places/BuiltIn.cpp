// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the plugin a part of a program that is linked statically for Windows, where Qt asks for none of its
// kind.
#include <QCoreApplication>
#include <QGenericPlugin>
#include <QtPlugin>

const QStaticPlugin qt_static_plugin_PlacesPlugin(); // of Qt's making

namespace {

void BeginToAnswer() {
    if (qEnvironmentVariableIsSet("ORVANE_PLACES"))
        qobject_cast<QGenericPlugin*>(qt_static_plugin_PlacesPlugin().instance())->create({}, {});
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(BeginToAnswer)
