#include "newUpdateChecker.h"

#include "NewUpdateCheckerWorker.h"
#include "UpdateServer.h"

#include <QDataStream>
#include <QHostAddress>
#include <QMessageBox>
#include <QMetaType>

namespace {
constexpr qint16 versionListRequest = 8202;  // 0x200A
constexpr qint16 mapFlag = 0x2000;
constexpr int frameHeader = 12;  // qint64 frame length + the message's 32-bit length
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
    emit post(request, body);
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
    emit networkReplyError(error);
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
    if (receivedData.size() < frameHeader)
        return;
    receivedData.remove(0, frameHeader);
    QDataStream in(receivedData);
    in.setVersion(QDataStream::Qt_5_1);
    qint16 code = 0;
    QByteArray inner;
    in >> code >> inner;
    if (in.status() != QDataStream::Ok)
        return;

    QDataStream innerIn(inner);
    innerIn.setVersion(QDataStream::Qt_5_1);
    qint8 status = 0;
    QByteArray payload;
    innerIn >> status >> payload;
    if (innerIn.status() != QDataStream::Ok)
        return;

    QMap<QString, QString> versionList;
    if (code & mapFlag) {
        QDataStream mapIn(payload);
        mapIn.setVersion(QDataStream::Qt_5_1);
        mapIn >> versionList;
        if (mapIn.status() != QDataStream::Ok)
            versionList.clear();
    }
    if (status == 1 && code == versionListRequest)
        checkNewerVersion(versionList);
}

void newUpdateChecker::checkNewerVersion(QMap<QString, QString> versionList)
{
    // The suffix stays on the member: a second comparison looks up "<id>-10-10".
    productId.append(QStringLiteral("-10"));
    const QString key = productId;

    if (currentVersion.left(5).remove(QLatin1Char('.')).size() < 3)
        currentVersion.append(QStringLiteral(".0"));
    const QStringList currentParts = currentVersion.split(QLatin1Char('.'));
    // Cut to 5 characters: "2.4.17" counts as 241.
    const uint currentNumber = currentVersion.left(5).remove(QLatin1Char('.')).toUInt();

    const uint value = versionList.value(key).toUInt();
    const QString serverVersion = QString::asprintf("%d.%d.%d", int(value / 1000000),
                                                    int(value / 1000 % 1000), int(value % 1000));
    const QStringList serverParts = serverVersion.split(QLatin1Char('.'));
    if (currentParts.size() < 3 || serverParts.size() < 3)
        return;

    bool newer = false;
    for (int i = 0; i < 3; ++i) {
        const uint server = serverParts.at(i).toUInt();
        const uint current = currentParts.at(i).toUInt();
        if (i == 2 || server != current) {
            newer = server > current;
            break;
        }
    }
    const uint serverNumber = QString(serverVersion).remove(QLatin1Char('.')).toUInt();

    if (!showMessage) {
        emit versionAvailable(serverVersion, key, newer);
        return;
    }
    // Decided on the digit strings, not on newer: the two rules differ on purpose.
    QMessageBox box;
    box.setText(tr("Query for update successful."));
    if (currentNumber < serverNumber) {
        box.setInformativeText(QStringLiteral("New version ") + serverVersion + QStringLiteral(" is available."));
        box.setIcon(QMessageBox::Information);
    } else {
        box.setInformativeText(QStringLiteral("No new version available. Version ") + currentVersion
                               + QStringLiteral(" is current version."));
        box.setIcon(QMessageBox::Warning);
    }
    box.exec();
}
