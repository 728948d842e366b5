// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Starting a tool on the application frame.
#include <CommonGUI/DebugCrashHandler.h>
#include <CommonGUI/KorvilBaseApplication.h>

#include <QMainWindow>

int main(int argc, char **argv)
{
    // Names the tool, creates the debug handler and reads --debug-log and friends.
    KorvilBaseApplication app(argc, argv, QStringLiteral("Bus Monitor"), QStringLiteral("3.1.0"));
    app.setOrganizationName(QStringLiteral("Korvil"));
    app.setProperty("AppNameWithVersion", QStringLiteral("Bus Monitor 3.1.0"));
    qInstallMessageHandler(messageHandler);  // only after the application exists

    // Save what can be saved before the out-of-memory box appears.
    app.setStopFunction([] { /* flush open documents */ });

    QMainWindow window;
    window.show();
    return app.exec();
}
