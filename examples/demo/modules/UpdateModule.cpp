// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Update checks and the upload of crash dumps that earlier runs left behind.
#include "DemoModule.h"
#include "DemoWindow.h"

#include "SentryCrashRecoverer.h"
#include "UpdateChecker.h"
#include "UpdateServer.h"
#include "newUpdateChecker.h"

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <memory>

namespace {
const QString productName = QStringLiteral("commongui-demo");
const QString productId = QStringLiteral("01350");

QString dumpDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/crashdumps");
}

// A real tool passes its Sentry project's minidump URL; the demo posts to its update server.
QString crashUploadUrl()
{
    const QByteArray configured = qgetenv("COMMONGUI_DEMO_SENTRY_URL");
    if (!configured.isEmpty())
        return QString::fromUtf8(configured);
    QUrl url = CommonGUI::updateServerUrl();
    if (url.isEmpty())
        return QString();
    url.setPath(QStringLiteral("/api/1/minidump/"));
    url.setQuery(QStringLiteral("sentry_key=demo"));
    return url.toString();
}

QMessageBox *crashQuestion(QWidget *parent)
{
    auto box = new QMessageBox(QMessageBox::Question, QObject::tr("Crash report"),
                               QObject::tr("%1 ended unexpectedly last time.").arg(QApplication::applicationName()),
                               QMessageBox::Yes | QMessageBox::No, parent);
    box->setObjectName(QStringLiteral("crashReportQuestion"));
    box->setInformativeText(QObject::tr("Send the crash report to the maker? It holds the state of the "
                                        "program when it stopped, not your documents."));
    box->button(QMessageBox::Yes)->setText(QObject::tr("&Send"));
    box->button(QMessageBox::No)->setText(QObject::tr("&Discard"));
    box->setDefaultButton(QMessageBox::Yes);
    return box;
}

void askAboutCrashes(DemoWindow *window)
{
    auto recoverer = new SentryCrashRecoverer(crashUploadUrl(), dumpDirectory(), window);
    if (!recoverer->hasPendingCrashes()) {
        delete recoverer;
        return;
    }
    // Window-modal and opened, not exec'd: start-up goes on while the question waits.
    QMessageBox *box = crashQuestion(window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(box, &QMessageBox::finished, window, [window, recoverer](int result) {
        if (result == QMessageBox::Yes) {
            window->showStatus(QObject::tr("Sending crash reports..."));
            recoverer->uploadPendingCrashes();
            window->log(recoverer->hasPendingCrashes() ? QObject::tr("Some crash reports could not be read")
                                                       : QObject::tr("Crash reports sent"));
        } else {
            recoverer->discardPendingCrashes();
            window->log(QObject::tr("Crash reports discarded"));
        }
        window->showStatus(QObject::tr("Ready"));
        recoverer->deleteLater();
    });
    box->open();
}
}

static DemoModuleRegistrar registrar({ QStringLiteral("Update checks"), 70, [](DemoWindow *window) {
    QMenu *updates = window->helpMenu()->addMenu(QObject::tr("Check for &updates"));

    QAction *byFile = updates->addAction(QObject::tr("From the &version file"));
    QObject::connect(byFile, &QAction::triggered, window, [window] {
        window->log(QObject::tr("Asking %1 for %2.info").arg(CommonGUI::updateServerUrl().toString(), productName));
        auto checker = new UpdateChecker(window);  // deletes itself after the answer
        checker->queryForUpdates(productName, QApplication::applicationVersion(), false);
    });

    // A fresh posted checker per check: one object would post its n-th check n times.
    auto posted = std::make_shared<QPointer<newUpdateChecker>>();
    auto startPosted = [window, posted](bool showMessage) {
        delete posted->data();  // waits for its worker thread
        auto checker = new newUpdateChecker(window);
        *posted = checker;
        QObject::connect(checker, &newUpdateChecker::networkReplyError, window,
                         [window](QNetworkReply::NetworkError error) {
            window->log(QObject::tr("Update request failed (network error %1)").arg(int(error)));
        });
        QObject::connect(checker, &newUpdateChecker::versionAvailable, window,
                         [window](const QString &version, const QString &key, bool newer) {
            window->log(newer ? QObject::tr("Version %1 of %2 is available").arg(version, key)
                              : QObject::tr("%1 is up to date (server has %2)").arg(key, version));
        });
        window->log(QObject::tr("Posting an update request for product %1").arg(productId));
        checker->checkForUpdates(productId, QApplication::applicationVersion(), 0, showMessage);
    };
    QAction *byRequest = updates->addAction(QObject::tr("By &binary request"));
    QObject::connect(byRequest, &QAction::triggered, window, [startPosted] { startPosted(true); });
    QAction *quiet = updates->addAction(QObject::tr("By binary request, &quietly"));
    QObject::connect(quiet, &QAction::triggered, window, [startPosted] { startPosted(false); });

    QMenu *diagnostics = window->toolsMenu()->addMenu(QObject::tr("&Crash reports"));
    QAction *sample = diagnostics->addAction(QObject::tr("Leave a &sample crash dump"));
    QObject::connect(sample, &QAction::triggered, window, [window] {
        QDir().mkpath(dumpDirectory());
        QFile dump(QDir(dumpDirectory()).filePath(
                QDateTime::currentDateTime().toString(QStringLiteral("yyMMdd_hhmmss")) + QStringLiteral(".dmp")));
        if (dump.open(QIODevice::WriteOnly) && dump.write("MDMP sample written by the demo") > 0)
            window->log(QObject::tr("Sample dump %1: the next start asks about it").arg(dump.fileName()));
        else
            window->log(QObject::tr("Could not write %1").arg(dump.fileName()));
    });
    QAction *ask = diagnostics->addAction(QObject::tr("&Ask about pending reports now"));
    QObject::connect(ask, &QAction::triggered, window, [window] { askAboutCrashes(window); });

    window->addScreenshot(QStringLiteral("update-crash-report-question"), [] { return crashQuestion(nullptr); });

    // The screenshot mode must never wait for an answer.
    const QStringList &arguments = window->arguments();
    const bool screenshots = std::any_of(arguments.cbegin(), arguments.cend(), [](const QString &argument) {
        return argument.startsWith(QLatin1String("--screenshots"));
    });
    if (!screenshots)
        QTimer::singleShot(0, window, [window] { askAboutCrashes(window); });
} });
