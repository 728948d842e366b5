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
#include <QEventLoop>
#include <QFile>
#include <QMenu>
#include <QMessageBox>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>

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

// Whether anything answers at the upload address: the library sends each dump once
// and deletes it without telling the outcome, so the tool asks first and keeps
// the dumps when nobody is there.
bool uploadServerReachable(const QString &url, QString *error)
{
    if (url.isEmpty()) {
        *error = QObject::tr("no upload address is configured");
        return false;
    }
    QNetworkAccessManager manager;
    QNetworkRequest request{ QUrl(url) };
    request.setTransferTimeout(5000);
    QNetworkReply *reply = manager.head(request);
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    // Any HTTP answer, even an error status, means a server is listening.
    const bool answered = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
    if (!answered)
        *error = reply->errorString();
    delete reply;
    return answered;
}

void sendCrashReports(DemoWindow *window, SentryCrashRecoverer *recoverer)
{
    const QString url = crashUploadUrl();
    window->showStatus(QObject::tr("Sending crash reports..."));
    QString error;
    if (!uploadServerReachable(url, &error)) {
        window->log(QObject::tr("Crash reports not sent: %1. They are kept and offered again at the next start.")
                        .arg(error));
    } else {
        recoverer->uploadPendingCrashes();
        window->log(QObject::tr("Crash reports handed to %1; the server does not confirm what arrived.")
                        .arg(QUrl(url).host()));
    }
    window->showStatus(QObject::tr("Ready"));
}

// `done` runs when the question is answered (or was not needed).
void askAboutCrashes(DemoWindow *window, std::function<void()> done = {})
{
    auto recoverer = new SentryCrashRecoverer(crashUploadUrl(), dumpDirectory(), window);
    if (!recoverer->hasPendingCrashes()) {
        delete recoverer;
        if (done)
            done();
        return;
    }
    // Window-modal and opened, not exec'd: start-up goes on while the question waits.
    QMessageBox *box = crashQuestion(window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(box, &QMessageBox::finished, window, [window, recoverer, done](int result) {
        if (result == QMessageBox::Yes) {
            sendCrashReports(window, recoverer);
        } else {
            recoverer->discardPendingCrashes();
            window->log(QObject::tr("Crash reports discarded"));
        }
        recoverer->deleteLater();
        if (done)
            done();
    });
    box->open();
}
}

static DemoModuleRegistrar registrar({ QString::fromLatin1(QT_TRANSLATE_NOOP("DemoModule", "Update checks")), 70, [](DemoWindow *window) {
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

    QMenu *diagnostics = window->toolsMenu()->addMenu(QObject::tr("C&rash reports"));
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
    QObject::connect(ask, &QAction::triggered, window, [window] {
        if (SentryCrashRecoverer(QString(), dumpDirectory()).hasPendingCrashes())
            askAboutCrashes(window);
        else
            window->log(QObject::tr("No crash reports are waiting"));
    });

    window->addScreenshot(QStringLiteral("update-crash-report-question"), [] { return crashQuestion(nullptr); });

    // The screenshot mode must never wait for an answer.
    if (!window->screenshotMode())
        window->addStartupStep([window](std::function<void()> done) { askAboutCrashes(window, done); });
} });
