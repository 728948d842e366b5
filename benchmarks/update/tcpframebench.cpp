// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Round trips of framed messages over loopback TCP: TcpSocketClient against a
// plain QTcpSocket that frames by hand. An echo server in the same event loop
// sends every byte back, so both sides see the same server.
#include "TcpSocketClient.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtEndian>

#include <cstdio>
#include <cstring>
#include <string>

namespace {
class EchoServer : public QTcpServer
{
public:
    EchoServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *peer = nextPendingConnection();
            connect(peer, &QIODevice::readyRead, peer, [peer] { peer->write(peer->readAll()); });
            connect(peer, &QAbstractSocket::disconnected, peer, &QObject::deleteLater);
        });
    }
};

// Microseconds per round trip with the library's client.
double ours(quint16 port, const QByteArray &payload, int trips)
{
    TcpSocketClient client;
    QEventLoop loop;
    int done = 0;
    QObject::connect(&client, &TcpSocketClient::receivedData, &loop, [&](const QByteArray &) {
        if (++done == trips)
            loop.quit();
        else
            client.writeDataToSocket(payload);
    });
    client.connectToHost(QHostAddress::LocalHost, port);
    client.waitForConnected();
    QElapsedTimer timer;
    timer.start();
    client.writeDataToSocket(payload);
    loop.exec();
    return timer.nsecsElapsed() / 1000.0 / trips;
}

// The same exchange with framing written by hand on a plain socket.
double peer(quint16 port, const QByteArray &payload, int trips)
{
    QTcpSocket socket;
    QEventLoop loop;
    const auto send = [&] {
        QByteArray frame(12 + payload.size(), Qt::Uninitialized);
        qToBigEndian<qint64>(payload.size() + 4, frame.data());
        qToBigEndian<quint32>(quint32(payload.size()), frame.data() + 8);
        memcpy(frame.data() + 12, payload.constData(), size_t(payload.size()));
        socket.write(frame);
    };
    int done = 0;
    QObject::connect(&socket, &QIODevice::readyRead, &loop, [&] {
        while (socket.bytesAvailable() >= 8) {
            char head[8];
            socket.peek(head, 8);
            const qint64 length = qFromBigEndian<qint64>(head);
            if (socket.bytesAvailable() < 8 + length)
                return;
            const QByteArray message = socket.read(8 + length).mid(12);
            if (++done == trips) {
                loop.quit();
                return;
            }
            send();
        }
    });
    socket.connectToHost(QHostAddress::LocalHost, port);
    socket.waitForConnected();
    QElapsedTimer timer;
    timer.start();
    send();
    loop.exec();
    return timer.nsecsElapsed() / 1000.0 / trips;
}
}

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    EchoServer server;
    const struct { const char *name; int size; int trips; } cases[] = {
        { "tcp frame round trip, 64 B (us/trip)", 64, 20000 },
        { "tcp frame round trip, 64 KiB (us/trip)", 64 * 1024, 2000 },
    };
    for (const auto &c : cases) {
        const QByteArray payload(c.size, 'x');
        double o = 1e300, p = 1e300;
        // Alternating who goes first: the second run of a pair tends to be slower.
        for (int round = 0; round < 6; ++round) {
            if (round % 2) {
                o = qMin(o, ours(server.serverPort(), payload, c.trips));
                p = qMin(p, peer(server.serverPort(), payload, c.trips));
            } else {
                p = qMin(p, peer(server.serverPort(), payload, c.trips));
                o = qMin(o, ours(server.serverPort(), payload, c.trips));
            }
        }
        std::printf("%-44s | %-22s | %-22s | %.3f\n", c.name, std::to_string(o).c_str(),
                    std::to_string(p).c_str(), o / p);
    }
    return 0;
}
