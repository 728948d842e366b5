// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"
#include "TcpSocketClient.h"

#include <QByteArray>
#include <QMap>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QThread>

/**
 * Asks the update server for the newest version of a product by a framed binary
 * POST to "<update server>/versioninfo/versionstest.php", issued from a worker
 * thread.
 *
 * The request body is "productid=" and the base64 text of a frame holding the
 * message code and the product id; the reply maps product keys ("<id>-10") to
 * versions encoded as major * 1000000 + minor * 1000 + patch. The worker thread
 * starts with the first request and runs until the checker is destroyed; the
 * destructor quits it and waits for it without a time limit.
 *
 * Kept behaviour a caller must know: every sendList() adds one more worker, so
 * the n-th request on the same checker is posted n times; each comparison
 * appends "-10" to the stored product id again, so use a new checker per check;
 * and the message box compares the digit strings of the versions, the current
 * one cut to five characters, so it may announce a "new" version where the
 * \e newer flag of versionAvailable() is false (current 2.10.3, server 2.10.3).
 */
class COMMONGUI_EXPORT newUpdateChecker : public QObject
{
    Q_OBJECT

public:
    /** Constructs a checker; its worker thread starts with the first request. */
    explicit newUpdateChecker(QObject *parent = nullptr);
    /** Quits the worker thread and blocks until it has ended. */
    ~newUpdateChecker() override;

    /**
     * Starts a check of @p productId running @p currentVersion (such as "2.4.17")
     * and returns at once. A product id starting with "01" loses its first
     * character. With @p showMessage the outcome is shown in modal message
     * boxes; without it, it is emitted by versionAvailable(). @p arch is not used.
     */
    void checkForUpdates(QString productId, QString currentVersion, signed char arch, bool showMessage);
    /**
     * Frames @p list with @p messageCode and posts it from the worker thread;
     * checkForUpdates() sends the product id with code 8202 (0x200A).
     */
    void sendList(QStringList list, unsigned short messageCode);

    /** Sets the TCP end point of connectToServer() to @p address and @p port. */
    void setServer(const QString &address, quint16 port);
    /**
     * Connects the checker's TcpSocketClient to the end point of setServer();
     * its messages are read like POST replies.
     */
    void connectToServer();
    /** Does nothing; kept because checkForUpdates() calls it with its \e arch argument. */
    void isx86(signed char);

Q_SIGNALS:
    /**
     * This signal is emitted without message boxes when a reply was read, with
     * the server's @p version ("2.4.17"; "0.0.0" when the product is missing),
     * the @p productKey looked up, and whether that version is @p newer than
     * the running one, compared part by part. Nothing is emitted when either
     * version has fewer than three parts.
     */
    void versionAvailable(QString version, QString productKey, bool newer);
    /**
     * This signal is emitted when a request fails, whether or not messages are
     * shown, with the network @p error.
     */
    void networkReplyError(QNetworkReply::NetworkError error);
    /** This signal hands a request and its form body @p data to the worker thread. */
    void post(QNetworkRequest request, QByteArray data);
    /** This signal is declared for a GET through the worker; nothing emits it. */
    void post(QNetworkRequest request);

public Q_SLOTS:
    /**
     * Reads the finished @p reply: a body goes to readData(); an empty body shows
     * the "No connection to" box when messages are shown. The reply is not deleted.
     */
    void replyFinished(QNetworkReply *reply);
    /** Emits networkReplyError() with @p error. */
    void replyError(QNetworkReply::NetworkError error);
    /**
     * Parses the framed reply @p receivedData and passes its version map to
     * checkNewerVersion(). A reply that is too short, whose status is not 1 or
     * whose code is not 0x200A is ignored in silence.
     */
    void readData(QByteArray receivedData);
    /**
     * Compares the running version with the entry of the product in
     * @p versionList and reports the outcome, by message box or by
     * versionAvailable(). A missing or unreadable entry counts as 0.0.0.
     */
    void checkNewerVersion(QMap<QString, QString> versionList);
    /** Shows "Query for update has failed." with "No connection to" and the URL of @p reply. */
    void noConnection(QNetworkReply *reply);
    /**
     * Takes a worker's result: a null @p reply reports @p error through
     * replyError(), a finished one is read by replyFinished().
     */
    void handlePostResult(QNetworkReply *reply, QNetworkReply::NetworkError error);

private:
    QThread workerThread;
    QThread spareThread;
    QNetworkAccessManager networkManager;
    TcpSocketClient tcpClient;
    quint16 serverPort = 0;
    QString serverAddress;
    QString currentVersion;
    QString productId;
    bool showMessage = false;
};
