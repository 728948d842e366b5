// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "NewUpdateCheckerWorker.h"

#include <QNetworkAccessManager>

#include <memory>

namespace {
// A product map is a few hundred bytes; a larger reply is refused rather than buffered.
constexpr qint64 maximumReply = 1024 * 1024;
}

NewUpdateCheckerWorker::NewUpdateCheckerWorker(QObject *parent)
    : QObject(parent)
{
}

QNetworkAccessManager *NewUpdateCheckerWorker::newManager()
{
    // One manager per request; parented to the worker so it goes when the thread ends.
    auto manager = new QNetworkAccessManager(this);
    connect(manager, &QNetworkAccessManager::finished, this, &NewUpdateCheckerWorker::replyFinished);
    return manager;
}

void NewUpdateCheckerWorker::limitSize(QNetworkReply *reply)
{
    auto guard = std::make_shared<QMetaObject::Connection>();
    *guard = connect(reply, &QNetworkReply::downloadProgress, this, [this, reply, guard](qint64 received, qint64 total) {
        if (received <= maximumReply && total <= maximumReply)
            return;
        disconnect(*guard);
        // Reported as a cancelled request; the checker then finds the body empty.
        disconnect(reply, &QNetworkReply::errorOccurred, this, &NewUpdateCheckerWorker::replyError);
        reply->skip(reply->bytesAvailable());
        replyError(QNetworkReply::OperationCanceledError);
        if (!reply->isFinished())
            reply->abort();
    });
}

void NewUpdateCheckerWorker::doWork(QNetworkRequest request, QByteArray block)
{
    QNetworkReply *reply = newManager()->post(request, block);
    connect(reply, &QNetworkReply::errorOccurred, this, &NewUpdateCheckerWorker::replyError);
    limitSize(reply);
}

QNetworkReply *NewUpdateCheckerWorker::doGet(QNetworkRequest request)
{
    QNetworkReply *reply = newManager()->get(request);
    connect(reply, &QNetworkReply::errorOccurred, this, &NewUpdateCheckerWorker::replyError);
    limitSize(reply);
    return reply;
}

void NewUpdateCheckerWorker::replyFinished(QNetworkReply *reply)
{
    Q_EMIT resultReady(reply, QNetworkReply::NoError);
}

void NewUpdateCheckerWorker::replyError(QNetworkReply::NetworkError error)
{
    Q_EMIT resultReady(nullptr, error);
}
