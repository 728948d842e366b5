// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "TcpSocketClient.h"

#include "UpdateProtocol_p.h"

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
    QByteArray message;
    if (CommonGUI::UpdateProtocol::takeFrame(this, blockSize, &message))
        Q_EMIT receivedData(message);
}

void TcpSocketClient::endConnection()
{
    abort();
    Q_EMIT isDisConnected();
    disconnectFromHost();
}

void TcpSocketClient::setConnected()
{
    Q_EMIT isConnected();
}

void TcpSocketClient::hostFound()
{
    qDebug("TcpSocketClient found host");
}
