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

// Asks the update server for the newest version of a product by a framed binary
// POST issued from a worker thread. The destructor quits that thread and waits for it.
class COMMONGUI_EXPORT newUpdateChecker : public QObject
{
    Q_OBJECT

public:
    explicit newUpdateChecker(QObject *parent = nullptr);
    ~newUpdateChecker() override;

    // A product id starting with "01" loses its first character.
    void checkForUpdates(QString productId, QString currentVersion, signed char arch, bool showMessage);
    void sendList(QStringList list, unsigned short messageCode);

    // The end point of connectToServer.
    void setServer(const QString &address, quint16 port);
    void connectToServer();
    void isx86(signed char);

Q_SIGNALS:
    void versionAvailable(QString version, QString productKey, bool newer);
    void networkReplyError(QNetworkReply::NetworkError error);
    void post(QNetworkRequest request, QByteArray data);
    void post(QNetworkRequest request);

public Q_SLOTS:
    void replyFinished(QNetworkReply *reply);
    void replyError(QNetworkReply::NetworkError error);
    void readData(QByteArray receivedData);
    void checkNewerVersion(QMap<QString, QString> versionList);
    void noConnection(QNetworkReply *reply);
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
