// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QByteArray>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QObject>

/**
 * Issues the requests of a newUpdateChecker on the checker's worker thread.
 *
 * The checker creates the workers and moves them to its thread; a tool has no
 * need to create one. Each request gets a network access manager of its own
 * that is never freed; the replies stay owned by those managers and are read
 * by the checker on its own thread after they finished.
 */
class COMMONGUI_EXPORT NewUpdateCheckerWorker : public QObject
{
    Q_OBJECT

public:
    /** Constructs a worker. */
    explicit NewUpdateCheckerWorker(QObject *parent = nullptr);

Q_SIGNALS:
    /**
     * This signal is emitted with the finished @p reply and QNetworkReply::NoError,
     * or with a null @p reply and the @p error when a request fails; the failed
     * reply still finishes later and is then emitted once more.
     */
    void resultReady(QNetworkReply *reply, QNetworkReply::NetworkError error);

public Q_SLOTS:
    /** Posts @p block to @p request with a new network access manager. */
    void doWork(QNetworkRequest request, QByteArray block);
    /** Issues a GET for @p request with a new network access manager and returns its reply. */
    QNetworkReply *doGet(QNetworkRequest request);
    /** Emits resultReady() for the finished @p reply. */
    void replyFinished(QNetworkReply *reply);
    /** Emits resultReady() with a null reply and @p error. */
    void replyError(QNetworkReply::NetworkError error);

private:
    QNetworkAccessManager *newManager();
    void limitSize(QNetworkReply *reply);
};
