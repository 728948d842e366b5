// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "TcpSocketClient.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

using ByteArrays = QList<QByteArray>;
using Counts = QList<int>;

class tst_TcpSocketClient : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void receivesInChunks_data();
    void receivesInChunks();
    void badFrames_data();
    void badFrames();
    void sendsFramed_data();
    void sendsFramed();
    void connectionSignals();

private:
    // Writes from the server side and waits until the client has seen it.
    void serverWrites(const QByteArray &bytes);

    QTcpServer m_server;
    TcpSocketClient *m_client = nullptr;
    QPointer<QTcpSocket> m_peer;
};

void tst_TcpSocketClient::init()
{
    QVERIFY(m_server.listen(QHostAddress::LocalHost));
    m_client = new TcpSocketClient;
    QSignalSpy connected(m_client, &TcpSocketClient::isConnected);
    m_client->connectToHost(QHostAddress::LocalHost, m_server.serverPort());
    QVERIFY(m_server.waitForNewConnection(30000));
    m_peer = m_server.nextPendingConnection();
    QVERIFY(connected.count() == 1 || connected.wait());
}

void tst_TcpSocketClient::cleanup()
{
    delete m_client;
    m_client = nullptr;
    delete m_peer;
    m_server.close();
}

void tst_TcpSocketClient::serverWrites(const QByteArray &bytes)
{
    QSignalSpy ready(m_client, &QIODevice::readyRead);
    m_peer->write(bytes);
    QVERIFY(m_peer->waitForBytesWritten(30000));
    QVERIFY(ready.wait(30000));
}

void tst_TcpSocketClient::receivesInChunks_data()
{
    QTest::addColumn<ByteArrays>("chunks");
    QTest::addColumn<Counts>("countsAfter");
    QTest::addColumn<Counts>("bufferedAfter");
    QTest::addColumn<QByteArray>("message");

    const QByteArray hello = QByteArray::fromHex("0000000000000009" "00000005") + "hello";
    QTest::newRow("whole frame") << ByteArrays { hello } << Counts { 1 } << Counts { 0 } << QByteArray("hello");
    QTest::newRow("seven bytes, then the rest") << ByteArrays { hello.left(7), hello.mid(7) }
                                                << Counts { 0, 1 } << Counts { 7, 0 } << QByteArray("hello");
    QTest::newRow("eight bytes, then the rest") << ByteArrays { hello.left(8), hello.mid(8) }
                                                << Counts { 0, 1 } << Counts { 0, 0 } << QByteArray("hello");
    QTest::newRow("cut inside the message") << ByteArrays { hello.left(14), hello.mid(14) }
                                            << Counts { 0, 1 } << Counts { 6, 0 } << QByteArray("hello");
    QTest::newRow("empty message") << ByteArrays { QByteArray::fromHex("0000000000000004" "00000000") }
                                   << Counts { 1 } << Counts { 0 } << QByteArray();
    // Without a usable frame length the message field alone is the frame.
    const QByteArray unframed = QByteArray::fromHex("ffffffffffffffff" "00000002") + "hi";
    QTest::newRow("negative frame length") << ByteArrays { unframed } << Counts { 1 } << Counts { 0 }
                                           << QByteArray("hi");
    QTest::newRow("negative frame length, message in two chunks")
            << ByteArrays { unframed.left(10), unframed.mid(10) } << Counts { 0, 1 } << Counts { 2, 0 }
            << QByteArray("hi");
    // The frame length rules: bytes after the message inside the frame are not the next frame.
    QTest::newRow("padding inside the frame")
            << ByteArrays { QByteArray::fromHex("000000000000000a" "00000002") + "hi" + "pppp" }
            << Counts { 1 } << Counts { 0 } << QByteArray("hi");
    // The second frame waits in the buffer; any new data brings the next readyRead.
    QTest::newRow("two frames at once, one per readyRead")
            << ByteArrays { QByteArray::fromHex("0000000000000005" "00000001" "61" "0000000000000006" "00000002") + "bc",
                            QByteArray(1, '\0') }
            << Counts { 1, 2 } << Counts { 14, 1 } << QByteArray("bc");
}

void tst_TcpSocketClient::receivesInChunks()
{
    QFETCH(ByteArrays, chunks);
    QFETCH(Counts, countsAfter);
    QFETCH(Counts, bufferedAfter);
    QFETCH(QByteArray, message);
    QSignalSpy received(m_client, &TcpSocketClient::receivedData);

    for (int i = 0; i < chunks.size(); ++i) {
        serverWrites(chunks.at(i));
        QCOMPARE(received.count(), countsAfter.at(i));
        QCOMPARE(m_client->bytesAvailable(), qint64(bufferedAfter.at(i)));
    }
    QCOMPARE(received.last().at(0).toByteArray(), message);
}

void tst_TcpSocketClient::badFrames_data()
{
    QTest::addColumn<QByteArray>("garbage");
    QTest::addColumn<bool>("nextFrameArrives");

    QTest::newRow("length 2^62") << QByteArray::fromHex("4000000000000000") + QByteArray(100, 'x') << false;
    QTest::newRow("negative length, message never complete")
            << QByteArray::fromHex("ffffffffffffffff") + QByteArray(100, 'x') << false;
    QTest::newRow("frame too short for a message")
            << QByteArray::fromHex("0000000000000002" "0000") << true;
    QTest::newRow("message longer than its frame")
            << QByteArray::fromHex("0000000000000006" "00000010") + "ab" << true;
    QTest::newRow("message length 2^32-2") << QByteArray::fromHex("0000000000000006" "fffffffe") + "ab" << true;
}

void tst_TcpSocketClient::badFrames()
{
    QFETCH(QByteArray, garbage);
    QFETCH(bool, nextFrameArrives);
    QSignalSpy received(m_client, &TcpSocketClient::receivedData);

    serverWrites(garbage);
    QCOMPARE(received.count(), 0);
    serverWrites(QByteArray::fromHex("0000000000000006" "00000002") + "ok");

    if (nextFrameArrives) {
        QCOMPARE(received.count(), 1);
        QCOMPARE(received.at(0).at(0).toByteArray(), QByteArray("ok"));
    } else {
        QCOMPARE(received.count(), 0);
    }
}

void tst_TcpSocketClient::sendsFramed_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("wire");
    QTest::newRow("empty") << QByteArray("") << QByteArray::fromHex("0000000000000004" "00000000");
    QTest::newRow("null") << QByteArray() << QByteArray::fromHex("0000000000000004" "ffffffff");
    QTest::newRow("three bytes") << QByteArray("abc") << QByteArray::fromHex("0000000000000007" "00000003" "616263");
    QTest::newRow("NUL inside") << QByteArray("\0z", 2) << QByteArray::fromHex("0000000000000006" "00000002" "007a");
}

void tst_TcpSocketClient::sendsFramed()
{
    QFETCH(QByteArray, data);
    QFETCH(QByteArray, wire);

    m_client->writeDataToSocket(data);

    QByteArray seen;
    QTRY_VERIFY_WITH_TIMEOUT((seen += m_peer->readAll()).size() >= wire.size(), 30000);
    QCOMPARE(seen.toHex(), wire.toHex());
}

void tst_TcpSocketClient::connectionSignals()
{
    QSignalSpy disconnected(m_client, &TcpSocketClient::isDisConnected);
    m_peer->disconnectFromHost();
    QVERIFY(disconnected.wait(30000));
    QCOMPARE(disconnected.count(), 1);
    QCOMPARE(m_client->state(), QAbstractSocket::UnconnectedState);
}

QTEST_GUILESS_MAIN(tst_TcpSocketClient)
#include "tst_tcpsocketclient.moc"
