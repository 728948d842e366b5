// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QByteArray>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QObject>

// Issues the posted checker's requests from its worker thread. Replies stay owned by
// the worker's network managers and live as long as the worker.
class COMMONGUI_EXPORT NewUpdateCheckerWorker : public QObject
{
    Q_OBJECT

public:
    explicit NewUpdateCheckerWorker(QObject *parent = nullptr);

Q_SIGNALS:
    // reply is null when error reports a failure; the finished reply follows separately.
    void resultReady(QNetworkReply *reply, QNetworkReply::NetworkError error);

public Q_SLOTS:
    void doWork(QNetworkRequest request, QByteArray block);
    QNetworkReply *doGet(QNetworkRequest request);
    void replyFinished(QNetworkReply *reply);
    void replyError(QNetworkReply::NetworkError error);

private:
    QNetworkAccessManager *newManager();
    void limitSize(QNetworkReply *reply);
};
