// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Checking for updates and sending the crash dumps of earlier runs.
#include <CommonGUI/KorvilBaseApplication.h>
#include <CommonGUI/SentryCrashRecoverer.h>
#include <CommonGUI/UpdateChecker.h>
#include <CommonGUI/newUpdateChecker.h>

#include <QMainWindow>
#include <QMessageBox>
#include <QStandardPaths>
#include <QStatusBar>

int main(int argc, char **argv)
{
    KorvilBaseApplication app(argc, argv, QStringLiteral("Bus Monitor"), QStringLiteral("3.1.0"));
    QMainWindow window;
    window.show();

    // Dumps that a crash handler wrote during earlier runs: ask once, then send or drop them.
    const QString dumps = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/crashdumps";
    SentryCrashRecoverer recoverer(QStringLiteral("https://sentry.example/api/7/minidump/?sentry_key=0123abcd"),
                                   dumps);
    if (recoverer.hasPendingCrashes()) {
        if (QMessageBox::question(&window, QObject::tr("Crash report"),
                                  QObject::tr("Send the report of the last crash?")) == QMessageBox::Yes)
            recoverer.uploadPendingCrashes();  // blocks, but keeps the window painted
        else
            recoverer.discardPendingCrashes();
    }

    // Version file: one object per query, deleting itself afterwards; true = silent.
    auto quick = new UpdateChecker(&window);
    QObject::connect(quick, &UpdateChecker::newVersion, &window,
                     [&window](const QString &message) { window.statusBar()->showMessage(message); });
    quick->queryForUpdates(QStringLiteral("busmonitor"), app.applicationVersion(), true);

    // Binary request from a worker thread; keep one checker for the window's life.
    auto posted = new newUpdateChecker(&window);
    QObject::connect(posted, &newUpdateChecker::versionAvailable, &window,
                     [&window](const QString &version, const QString &, bool newer) {
        if (newer)
            window.statusBar()->showMessage(QObject::tr("Version %1 is available").arg(version));
    });
    posted->checkForUpdates(QStringLiteral("01350"), app.applicationVersion(), 0, false);

    return app.exec();
}
