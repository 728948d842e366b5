// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QByteArray>
#include <QTcpSocket>

/**
 * A TCP socket that exchanges length-framed binary messages.
 *
 * A frame is a qint64 count of the bytes that follow, then the message as a
 * QDataStream QByteArray field (a 32-bit length and the bytes), written with
 * stream version QDataStream::Qt_5_1, big-endian. Connect with connectToHost()
 * as with any QTcpSocket. Errors are reported only by QAbstractSocket's own
 * signals; a frame whose announced length never arrives leaves the client waiting.
 */
class COMMONGUI_EXPORT TcpSocketClient : public QTcpSocket
{
    Q_OBJECT

public:
    /** Constructs an unconnected client and connects the socket's signals to its slots. */
    explicit TcpSocketClient(QObject *parent = nullptr);
    /** Destroys the client; an open connection is closed by QTcpSocket. */
    ~TcpSocketClient() override;

    /**
     * Frames @p data and writes it with a single write(). An empty array is sent
     * as 12 bytes: the frame length 4 and the array's own zero length.
     */
    void writeDataToSocket(QByteArray data);

Q_SIGNALS:
    /** This signal is emitted with the bytes of each complete received message. */
    void receivedData(QByteArray dataFromServer);
    /** This signal is emitted when the connection has been established. */
    void isConnected();
    /** This signal is emitted when the peer closed the connection, after the socket was aborted. */
    void isDisConnected();

public Q_SLOTS:
    /**
     * Reads the next message when it is complete and emits receivedData().
     * Called on readyRead(). It takes at most one message per call: a further
     * message that arrived in the same chunk waits for the next readyRead().
     */
    void readDataFromSocket();
    /** Aborts the socket, emits isDisConnected() and disconnects. Called on disconnected(). */
    void endConnection();
    /** Emits isConnected(). Called on connected(). */
    void setConnected();
    /** Writes the debug message "TcpSocketClient found host". Called on QAbstractSocket::hostFound(). */
    void hostFound();

private:
    qint64 blockSize;
};
