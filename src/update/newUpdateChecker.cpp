// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "newUpdateChecker.h"

#include "NewUpdateCheckerWorker.h"
#include "UpdateProtocol_p.h"
#include "UpdateServer.h"

#include <QDataStream>
#include <QHostAddress>
#include <QMessageBox>
#include <QMetaType>

namespace {
constexpr qint16 versionListRequest = 8202;  // 0x200A
}

newUpdateChecker::newUpdateChecker(QObject *parent)
    : QObject(parent)
    , networkManager(nullptr)
    , tcpClient(nullptr)
{
    qRegisterMetaType<QNetworkRequest>("QNetworkRequest");
    qRegisterMetaType<QNetworkReply::NetworkError>("QNetworkReply::NetworkError");
    qRegisterMetaType<QNetworkReply *>("QNetworkReply*");
    connect(&tcpClient, &TcpSocketClient::receivedData, this, &newUpdateChecker::readData);
    tcpClient.setSocketOption(QAbstractSocket::KeepAliveOption, 0);
}

newUpdateChecker::~newUpdateChecker()
{
    workerThread.quit();
    workerThread.wait();
}

void newUpdateChecker::checkForUpdates(QString productId, QString currentVersion, signed char arch,
                                       bool showMessage)
{
    if (productId.startsWith(QLatin1String("01")))
        productId.remove(0, 1);
    this->productId = productId;
    this->currentVersion = currentVersion;
    this->showMessage = showMessage;
    sendList(QStringList() << this->productId, versionListRequest);
    isx86(arch);
}

void newUpdateChecker::sendList(QStringList list, unsigned short messageCode)
{
    QByteArray listBlock;
    {
        QDataStream out(&listBlock, QIODevice::WriteOnly);
        out.setVersion(QDataStream::Qt_5_1);
        out << list;
    }
    QByteArray message;
    {
        QDataStream out(&message, QIODevice::WriteOnly);
        out.setVersion(QDataStream::Qt_5_1);
        out << qint16(messageCode) << listBlock;
    }
    QByteArray frame;
    {
        QDataStream out(&frame, QIODevice::WriteOnly);
        out.setVersion(QDataStream::Qt_5_1);
        out << qint64(0) << message;
        out.device()->seek(0);
        out << qint64(frame.size()) - qint64(sizeof(qint64));
    }

    QUrl url = CommonGUI::updateServerUrl();
    url.setPath(QStringLiteral("/versioninfo/versionstest.php"));
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/x-www-form-urlencoded"));
    // The base64 text goes in raw, not percent-encoded: that is what the server expects.
    const QByteArray body = QByteArrayLiteral("productid=") + frame.toBase64();

    // Each call adds a worker and a connection, so the n-th request goes out n times.
    auto worker = new NewUpdateCheckerWorker;
    worker->moveToThread(&workerThread);
    connect(&workerThread, &QThread::finished, worker, &QObject::deleteLater);
    connect(this, QOverload<QNetworkRequest, QByteArray>::of(&newUpdateChecker::post), worker,
            &NewUpdateCheckerWorker::doWork, Qt::UniqueConnection);
    connect(worker, &NewUpdateCheckerWorker::resultReady, this, &newUpdateChecker::handlePostResult);
    workerThread.start(QThread::InheritPriority);
    Q_EMIT post(request, body);
}

void newUpdateChecker::setServer(const QString &address, quint16 port)
{
    serverAddress = address;
    serverPort = port;
}

void newUpdateChecker::connectToServer()
{
    tcpClient.connectToHost(QHostAddress(serverAddress), serverPort, QIODevice::ReadWrite);
}

void newUpdateChecker::isx86(signed char)
{
}

void newUpdateChecker::handlePostResult(QNetworkReply *reply, QNetworkReply::NetworkError error)
{
    if (!reply)
        replyError(error);
    else
        replyFinished(reply);
}

void newUpdateChecker::replyError(QNetworkReply::NetworkError error)
{
    Q_EMIT networkReplyError(error);
}

void newUpdateChecker::replyFinished(QNetworkReply *reply)
{
    const QByteArray data = reply->readAll();
    if (!data.isEmpty())
        readData(data);
    else if (showMessage)
        noConnection(reply);
}

void newUpdateChecker::noConnection(QNetworkReply *reply)
{
    QMessageBox box;
    box.setText(tr("Query for update has failed."));
    box.setInformativeText(QStringLiteral("No connection to ") + reply->url().toString());
    box.setIcon(QMessageBox::Warning);
    box.exec();
}

void newUpdateChecker::readData(QByteArray receivedData)
{
    QMap<QString, QString> versionList;
    if (CommonGUI::UpdateProtocol::readVersionList(receivedData, &versionList))
        checkNewerVersion(versionList);
}

void newUpdateChecker::checkNewerVersion(QMap<QString, QString> versionList)
{
    // The suffix stays on the member: a second comparison looks up "<id>-10-10".
    productId.append(QStringLiteral("-10"));
    const QString key = productId;
    const CommonGUI::UpdateProtocol::VersionComparison comparison
            = CommonGUI::UpdateProtocol::compareVersions(currentVersion, versionList.value(key));
    if (!comparison.comparable)
        return;

    if (!showMessage) {
        Q_EMIT versionAvailable(comparison.serverVersion, key, comparison.newer);
        return;
    }
    // Decided on the digit strings, not on newer: the two rules differ on purpose.
    QMessageBox box;
    box.setText(tr("Query for update successful."));
    if (comparison.newerByDigits) {
        box.setInformativeText(QStringLiteral("New version ") + comparison.serverVersion
                               + QStringLiteral(" is available."));
        box.setIcon(QMessageBox::Information);
    } else {
        box.setInformativeText(QStringLiteral("No new version available. Version ") + currentVersion
                               + QStringLiteral(" is current version."));
        box.setIcon(QMessageBox::Warning);
    }
    box.exec();
}
