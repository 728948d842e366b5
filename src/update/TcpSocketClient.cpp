#include "TcpSocketClient.h"

#include <QDataStream>
#include <QDebug>

namespace {
// Room for the message's own 32-bit length field.
constexpr qint64 minimumFrame = 4;
}

TcpSocketClient::TcpSocketClient(QObject *parent)
    : QTcpSocket(parent)
    , blockSize(0)
{
    connect(this, &QIODevice::readyRead, this, &TcpSocketClient::readDataFromSocket);
    connect(this, &QAbstractSocket::disconnected, this, &TcpSocketClient::endConnection);
    connect(this, &QAbstractSocket::connected, this, &TcpSocketClient::setConnected);
    connect(this, &QAbstractSocket::hostFound, this, &TcpSocketClient::hostFound);
}

TcpSocketClient::~TcpSocketClient()
{
    // The base destructor closes the socket; its disconnected must not reach our slots then.
    disconnect(this, nullptr, this, nullptr);
}

void TcpSocketClient::writeDataToSocket(QByteArray data)
{
    QByteArray frame;
    frame.reserve(int(sizeof(qint64)) + minimumFrame + data.size());  // one allocation per frame
    QDataStream out(&frame, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_5_1);
    out << qint64(0) << data;
    out.device()->seek(0);
    out << qint64(frame.size()) - qint64(sizeof(qint64));
    write(frame);
}

void TcpSocketClient::readDataFromSocket()
{
    QDataStream in(this);
    in.setVersion(QDataStream::Qt_5_1);
    if (blockSize == 0) {
        if (bytesAvailable() < qint64(sizeof(qint64)))
            return;
        in >> blockSize;
    }
    // A negative length can never be met: like a too large one, it leaves us waiting.
    // The length is only compared, never allocated, so a huge value costs nothing.
    if (blockSize < 0 || blockSize > bytesAvailable())
        return;

    // The frame is cut by its own length, so a malformed message cannot swallow the next frame.
    const qint64 frameSize = blockSize;
    blockSize = 0;
    if (frameSize < minimumFrame) {
        skip(frameSize);
        return;
    }
    quint32 length = 0;
    in >> length;
    const qint64 rest = frameSize - minimumFrame;
    QByteArray data;
    if (length != 0xFFFFFFFFu) {  // all ones: a null array
        if (length > rest) {
            skip(rest);
            return;
        }
        data = read(length);
    }
    skip(rest - data.size());
    emit receivedData(data);
}

void TcpSocketClient::endConnection()
{
    abort();
    emit isDisConnected();
    disconnectFromHost();
}

void TcpSocketClient::setConnected()
{
    emit isConnected();
}

void TcpSocketClient::hostFound()
{
    qDebug("TcpSocketClient found host");
}
