// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QByteArray>
#include <QTcpSocket>

// A TCP socket that exchanges length-framed messages: a qint64 byte count, then
// the message as a QDataStream QByteArray field (stream version Qt_5_1, big-endian).
class COMMONGUI_EXPORT TcpSocketClient : public QTcpSocket
{
    Q_OBJECT

public:
    explicit TcpSocketClient(QObject *parent = nullptr);
    ~TcpSocketClient() override;

    void writeDataToSocket(QByteArray data);

Q_SIGNALS:
    void receivedData(QByteArray dataFromServer);
    void isConnected();
    void isDisConnected();

public Q_SLOTS:
    // Takes at most one message per call; further buffered messages wait for the next readyRead.
    void readDataFromSocket();
    void endConnection();
    void setConnected();
    void hostFound();

private:
    qint64 blockSize;
};
