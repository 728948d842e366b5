#include "NewUpdateCheckerWorker.h"

#include <QNetworkAccessManager>

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
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 received, qint64 total) {
        if (received > maximumReply || total > maximumReply)
            reply->abort();
    });
}

void NewUpdateCheckerWorker::doWork(QNetworkRequest request, QByteArray block)
{
    QNetworkReply *reply = newManager()->post(request, block);
    limitSize(reply);
    connect(reply, &QNetworkReply::errorOccurred, this, &NewUpdateCheckerWorker::replyError);
}

QNetworkReply *NewUpdateCheckerWorker::doGet(QNetworkRequest request)
{
    QNetworkReply *reply = newManager()->get(request);
    limitSize(reply);
    connect(reply, &QNetworkReply::errorOccurred, this, &NewUpdateCheckerWorker::replyError);
    return reply;
}

void NewUpdateCheckerWorker::replyFinished(QNetworkReply *reply)
{
    emit resultReady(reply, QNetworkReply::NoError);
}

void NewUpdateCheckerWorker::replyError(QNetworkReply::NetworkError error)
{
    emit resultReady(nullptr, error);
}
