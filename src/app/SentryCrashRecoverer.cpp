// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SentryCrashRecoverer.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QHttpMultiPart>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

namespace {
// An empty name would mean the working directory: never scan or delete there.
bool directoryExists(const QString &directory)
{
    return !directory.isEmpty() && QDir(directory).exists();
}

QDirIterator pendingCrashes(const QString &directory)
{
    // Case-sensitive: "a.DMP" is not a dump of ours.
    return QDirIterator(directory, { QStringLiteral("*.dmp") }, QDir::Files | QDir::CaseSensitive,
                        QDirIterator::Subdirectories);
}
}

SentryCrashRecoverer::SentryCrashRecoverer(const QString &uploadUrl, const QString &dumpDirectory,
                                           QObject *parent)
    : QObject(parent)
    , uploadUrl(uploadUrl)
    , dumpDirectory(dumpDirectory)
{
}

bool SentryCrashRecoverer::hasPendingCrashes() const
{
    if (!directoryExists(dumpDirectory))
        return false;
    return pendingCrashes(dumpDirectory).hasNext();
}

void SentryCrashRecoverer::uploadPendingCrashes()
{
    if (uploadUrl.isEmpty())
        return;
    if (!directoryExists(dumpDirectory))
        return;
    QNetworkAccessManager manager;
    const QString release = QCoreApplication::applicationName().remove(QLatin1Char(' '))
            + QLatin1Char('@') + QCoreApplication::applicationVersion();

    QDirIterator it = pendingCrashes(dumpDirectory);
    while (it.hasNext()) {
        const QString path = it.next();
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            continue;  // tried again next time
        const QByteArray dump = file.readAll();
        file.close();
        if (dump.isEmpty()) {
            QFile::remove(path);
            continue;
        }

        auto multiPart = new QHttpMultiPart(QHttpMultiPart::FormDataType);
        QHttpPart dumpPart;
        dumpPart.setRawHeader("Content-Disposition",
                              QStringLiteral("form-data; name=\"upload_file_minidump\"; filename=\"%1\"")
                                      .arg(QFileInfo(path).fileName())
                                      .toUtf8());
        dumpPart.setRawHeader("Content-Type", "application/octet-stream");
        dumpPart.setBody(dump);
        multiPart->append(dumpPart);
        QHttpPart releasePart;
        releasePart.setRawHeader("Content-Disposition", "form-data; name=\"sentry[release]\"");
        releasePart.setBody(release.toUtf8());
        multiPart->append(releasePart);

        QNetworkReply *reply = manager.post(QNetworkRequest(QUrl(uploadUrl)), multiPart);
        multiPart->setParent(reply);
        QEventLoop loop;
        connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        if (!reply->isFinished())
            loop.exec();
        // Offered once: a failed upload is not retried.
        QFile::remove(path);
        reply->deleteLater();
    }
}

void SentryCrashRecoverer::discardPendingCrashes()
{
    if (!directoryExists(dumpDirectory))
        return;
    QDirIterator it = pendingCrashes(dumpDirectory);
    while (it.hasNext())
        QFile::remove(it.next());
}
