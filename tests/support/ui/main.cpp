// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the window tests inside one application on the platform that QT_QPA_PLATFORM names, offscreen by
// default.
#include <QApplication>
#include <QTemporaryDir>

#include <gmock/gmock.h>

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // What the program remembers for its next run is kept apart from the settings of whoever runs the tests.
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    qputenv("XDG_STATE_HOME", settings.path().toLocal8Bit());
    const QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
