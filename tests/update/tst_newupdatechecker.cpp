// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "newUpdateChecker.h"

#include "TestSupport.h"
#include "UpdateTestServer.h"

#include <QDataStream>
#include <QJsonArray>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

using StringMap = QMap<QString, QString>;

namespace {
QByteArray stream(const std::function<void(QDataStream &)> &write)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_5_1);
    write(out);
    return bytes;
}

// A reply as the server frames it.
QByteArray replyFrame(qint16 code, qint8 status, const QByteArray &payload)
{
    const QByteArray inner = stream([&](QDataStream &out) { out << status << payload; });
    const QByteArray message = stream([&](QDataStream &out) { out << code << inner; });
    return stream([&](QDataStream &out) { out << qint64(message.size() + 4) << message; });
}

QByteArray mapPayload(const StringMap &map)
{
    return stream([&](QDataStream &out) { out << map; });
}

// Sets id and version by a check whose own request goes nowhere.
bool primed(newUpdateChecker &checker, const QString &current)
{
    qputenv("COMMONGUI_UPDATE_SERVER", QStringLiteral("http://127.0.0.1:%1").arg(closedPort()).toUtf8());
    QSignalSpy errors(&checker, &newUpdateChecker::networkReplyError);
    checker.checkForUpdates("1350", current, 0, false);
    return errors.wait(30000);
}

int postCount(const UpdateTestServer &server)
{
    int count = 0;
    for (const QJsonObject &request : server.requests())
        count += request.value("path").toString() == "/versioninfo/versionstest.php";
    return count;
}
}

class tst_newUpdateChecker : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void requestFrame_data();
    void requestFrame();
    void reportsBySignal_data();
    void reportsBySignal();
    void reportsByMessageBox_data();
    void reportsByMessageBox();
    void nthRequestPostedNTimes();
    void parsesReply_data();
    void parsesReply();
    void failures_data();
    void failures();
    void readsTcpMessages();

private:
    void setProducts(const StringMap &map);

    QTemporaryDir m_home;
    UpdateTestServer m_server;
};

void tst_newUpdateChecker::initTestCase()
{
    QVERIFY(m_home.isValid());
    qputenv("HOME", m_home.path().toLocal8Bit());
    QStandardPaths::setTestModeEnabled(true);
    QVERIFY(m_server.isRunning());
}

void tst_newUpdateChecker::init()
{
    qputenv("COMMONGUI_UPDATE_SERVER", m_server.url().toUtf8());
    m_server.removeFile("1350.reply.json");
    setProducts({});
}

void tst_newUpdateChecker::setProducts(const StringMap &map)
{
    QJsonObject object;
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        object.insert(it.key(), it.value());
    m_server.writeFile("products.json", QJsonDocument(object).toJson());
}

void tst_newUpdateChecker::requestFrame_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("sentAs");
    QTest::addColumn<QString>("body");

    QTest::newRow("01 prefix loses its 0") << "01350" << "1350"
                                           << "productid=AAAAAAAAABoAAAAWIAoAAAAQAAAAAQAAAAgAMQAzADUAMA==";
    QTest::newRow("02 prefix kept") << "02350" << "02350"
                                    << "productid=AAAAAAAAABwAAAAYIAoAAAASAAAAAQAAAAoAMAAyADMANQAw";
    QTest::newRow("'+' stays raw") << "~>" << "~>" << "productid=AAAAAAAAABYAAAASIAoAAAAMAAAAAQAAAAQAfgA+";
    QTest::newRow("'/' stays raw") << "a?b" << "a?b" << "productid=AAAAAAAAABgAAAAUIAoAAAAOAAAAAQAAAAYAYQA/AGI=";
}

void tst_newUpdateChecker::requestFrame()
{
    QFETCH(QString, product);
    QFETCH(QString, sentAs);
    QFETCH(QString, body);
    newUpdateChecker checker;
    QSignalSpy spy(&checker, &newUpdateChecker::versionAvailable);

    checker.checkForUpdates(product, "2.4.0", 0, false);
    QVERIFY(spy.wait(30000));

    const QJsonObject request = m_server.requests().last();
    QCOMPARE(request.value("path").toString(), QStringLiteral("/versioninfo/versionstest.php"));
    QCOMPARE(request.value("contentType").toString(), QStringLiteral("application/x-www-form-urlencoded"));
    QCOMPARE(request.value("body").toString(), body);
    QCOMPARE(request.value("code").toInt(), 8202);
    QCOMPARE(request.value("strings").toArray(), QJsonArray { sentAs });
    QCOMPARE(spy.at(0).at(1).toString(), sentAs + "-10");
}

void tst_newUpdateChecker::reportsBySignal_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<StringMap>("products");
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("newer");

    QTest::newRow("2004017 reads 2.4.17") << "2.4.0" << StringMap { { "1350-10", "2004017" } } << "2.4.17" << true;
    QTest::newRow("newer minor") << "2.4.17" << StringMap { { "1350-10", "2005000" } } << "2.5.0" << true;
    QTest::newRow("lower major beats higher minor") << "3.0.0" << StringMap { { "1350-10", "2009009" } }
                                                    << "2.9.9" << false;
    QTest::newRow("patch compared as a number") << "2.4.9" << StringMap { { "1350-10", "2004010" } }
                                                << "2.4.10" << true;
    QTest::newRow("same version") << "2.10.3" << StringMap { { "1350-10", "2010003" } } << "2.10.3" << false;
    QTest::newRow("10.0.0 against 9.9.9") << "10.0.0" << StringMap { { "1350-10", "9009009" } } << "9.9.9" << false;
    QTest::newRow("2.4 padded to 2.4.0") << "2.4" << StringMap { { "1350-10", "2004001" } } << "2.4.1" << true;
    QTest::newRow("value abc") << "2.4.0" << StringMap { { "1350-10", "abc" } } << "0.0.0" << false;
    QTest::newRow("missing key") << "0.0.0" << StringMap { { "1350", "2004017" }, { "2350-10", "9000000" } }
                                 << "0.0.0" << false;
}

void tst_newUpdateChecker::reportsBySignal()
{
    QFETCH(QString, current);
    QFETCH(StringMap, products);
    QFETCH(QString, version);
    QFETCH(bool, newer);
    setProducts(products);
    BoxRecorder recorder;
    newUpdateChecker checker;
    QSignalSpy spy(&checker, &newUpdateChecker::versionAvailable);

    checker.checkForUpdates("01350", current, 0, false);
    QVERIFY(spy.wait(30000));

    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), version);
    QCOMPARE(spy.at(0).at(1).toString(), QStringLiteral("1350-10"));
    QCOMPARE(spy.at(0).at(2).toBool(), newer);
    QCOMPARE(recorder.boxes.size(), 0);
}

void tst_newUpdateChecker::reportsByMessageBox_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<StringMap>("products");
    QTest::addColumn<QString>("informative");
    QTest::addColumn<int>("icon");

    const int info = QMessageBox::Information;
    const int warn = QMessageBox::Warning;
    QTest::newRow("newer") << "2.4.0" << StringMap { { "1350-10", "2004017" } }
                           << "New version 2.4.17 is available." << info;
    // The box compares digit strings: 210 < 2103, though the versions are equal.
    QTest::newRow("2.10.3 against itself") << "2.10.3" << StringMap { { "1350-10", "2010003" } }
                                           << "New version 2.10.3 is available." << info;
    QTest::newRow("10.0.0 against 9.9.9") << "10.0.0" << StringMap { { "1350-10", "9009009" } }
                                          << "New version 9.9.9 is available." << info;
    QTest::newRow("2.4.17 cut to 241") << "2.4.17" << StringMap { { "1350-10", "2004017" } }
                                       << "New version 2.4.17 is available." << info;
    QTest::newRow("older on server") << "3.0.0" << StringMap { { "1350-10", "2004000" } }
                                     << "No new version available. Version 3.0.0 is current version." << warn;
    QTest::newRow("2.4 shown padded") << "2.4" << StringMap { { "1350-10", "2004000" } }
                                      << "No new version available. Version 2.4.0 is current version." << warn;
    QTest::newRow("missing key") << "2.4.0" << StringMap()
                                 << "No new version available. Version 2.4.0 is current version." << warn;
}

void tst_newUpdateChecker::reportsByMessageBox()
{
    QFETCH(QString, current);
    QFETCH(StringMap, products);
    QFETCH(QString, informative);
    QFETCH(int, icon);
    setProducts(products);
    BoxRecorder recorder;
    TestSupport::ModalCloser closer;
    auto checker = new newUpdateChecker;
    QSignalSpy versions(checker, &newUpdateChecker::versionAvailable);

    checker->checkForUpdates("1350", current, 0, true);

    QTRY_COMPARE_WITH_TIMEOUT(recorder.boxes.size(), 1, 30000);
    delete checker;
    QCOMPARE(recorder.boxes.at(0).title, QString());
    QCOMPARE(recorder.boxes.at(0).text, QStringLiteral("Query for update successful."));
    QCOMPARE(recorder.boxes.at(0).informativeText, informative);
    QCOMPARE(int(recorder.boxes.at(0).icon), icon);
    QCOMPARE(versions.count(), 0);
}

void tst_newUpdateChecker::nthRequestPostedNTimes()
{
    setProducts({ { "1350-10", "2004017" } });
    newUpdateChecker checker;
    QSignalSpy spy(&checker, &newUpdateChecker::versionAvailable);
    const int before = postCount(m_server);

    checker.checkForUpdates("1350", "2.4.0", 0, false);
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 1, 30000);
    checker.checkForUpdates("1350", "2.4.0", 0, false);
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 3, 30000);
    checker.checkForUpdates("1350", "2.4.0", 0, false);
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 6, 30000);

    QCOMPARE(postCount(m_server) - before, 6);
    QStringList keys;
    for (const QList<QVariant> &arguments : qAsConst(spy))
        keys << arguments.at(1).toString() + "=" + arguments.at(0).toString();
    // Every comparison appends "-10" again to the stored id.
    QCOMPARE(keys, QStringList({ "1350-10=2.4.17", "1350-10=2.4.17", "1350-10-10=0.0.0", "1350-10=2.4.17",
                                 "1350-10-10=0.0.0", "1350-10-10-10=0.0.0" }));
}

void tst_newUpdateChecker::parsesReply_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("version");  // null: nothing reported

    const QByteArray map = mapPayload({ { "1350-10", "2004017" } });
    QTest::newRow("version list") << "2.4.0" << replyFrame(0x200A, 1, map) << "2.4.17";
    // "7" becomes "7.0": two parts are too few to compare.
    QTest::newRow("current version 7") << "7" << replyFrame(0x200A, 1, map) << QString();
    QTest::newRow("status 0") << "2.4.0" << replyFrame(0x200A, 0, map) << QString();
    QTest::newRow("status 2") << "2.4.0" << replyFrame(0x200A, 2, map) << QString();
    QTest::newRow("code 0x200B with a map") << "2.4.0" << replyFrame(0x200B, 1, map) << QString();
    QTest::newRow("code 0x000A") << "2.4.0" << replyFrame(0x000A, 1, map) << QString();
    QTest::newRow("frame length 2^62 is skipped unread") << "2.4.0"
            << QByteArray::fromHex("4000000000000000") + replyFrame(0x200A, 1, map).mid(8) << "2.4.17";
    // A broken map is an empty map: the product counts as 0.0.0.
    QTest::newRow("map cut short") << "2.4.0" << replyFrame(0x200A, 1, map.left(map.size() - 3)) << "0.0.0";
    QTest::newRow("map count 2^31") << "2.4.0" << replyFrame(0x200A, 1, QByteArray::fromHex("80000000")) << "0.0.0";
    // The status reads 1, the payload does not: an empty map, so 0.0.0.
    QTest::newRow("payload cut short") << "2.4.0"
            << QByteArray::fromHex("0000000000000012" "0000000e" "200a" "00000008" "01" "00000010" "616263")
            << "0.0.0";
    QTest::newRow("inner block cut short") << "2.4.0" << replyFrame(0x200A, 1, map).left(30) << QString();
    QTest::newRow("inner length 2^32-16") << "2.4.0"
            << QByteArray::fromHex("0000000000000010" "0000000c" "200a" "fffffff0" "01") << QString();
    QTest::newRow("11 bytes") << "2.4.0" << QByteArray(11, '\0') << QString();
    QTest::newRow("empty") << "2.4.0" << QByteArray() << QString();
    QTest::newRow("all ones") << "2.4.0" << QByteArray(64, '\xff') << QString();
}

void tst_newUpdateChecker::parsesReply()
{
    QFETCH(QString, current);
    QFETCH(QByteArray, reply);
    QFETCH(QString, version);
    newUpdateChecker checker;
    QVERIFY(primed(checker, current));
    QSignalSpy spy(&checker, &newUpdateChecker::versionAvailable);

    checker.readData(reply);

    QCOMPARE(spy.count(), version.isNull() ? 0 : 1);
    if (!version.isNull()) {
        QCOMPARE(spy.at(0).at(0).toString(), version);
        QCOMPARE(spy.at(0).at(1).toString(), QStringLiteral("1350-10"));
    }
}

void tst_newUpdateChecker::failures_data()
{
    QTest::addColumn<QByteArray>("reply");  // the server's instructions; empty: nobody listens
    QTest::addColumn<int>("error");

    QTest::newRow("404") << QByteArray(R"({"http": 404})") << int(QNetworkReply::ContentNotFoundError);
    QTest::newRow("500") << QByteArray(R"({"http": 500})") << int(QNetworkReply::InternalServerError);
    QTest::newRow("server closes early") << QByteArray(R"({"hangup": true})")
                                         << int(QNetworkReply::RemoteHostClosedError);
    QTest::newRow("nobody listens") << QByteArray() << int(QNetworkReply::ConnectionRefusedError);
    const QByteArray huge = QByteArray(2 * 1024 * 1024, 'x').toBase64();
    QTest::newRow("reply over 1 MiB") << QByteArray(R"({"raw": ")") + huge + "\"}"
                                      << int(QNetworkReply::OperationCanceledError);
}

void tst_newUpdateChecker::failures()
{
    QFETCH(QByteArray, reply);
    QFETCH(int, error);
    const QString base = reply.isEmpty() ? QStringLiteral("http://127.0.0.1:%1").arg(closedPort()) : m_server.url();
    if (!reply.isEmpty())
        m_server.writeFile("1350.reply.json", reply);
    qputenv("COMMONGUI_UPDATE_SERVER", base.toUtf8());
    BoxRecorder recorder;
    TestSupport::ModalCloser closer;
    newUpdateChecker checker;
    QSignalSpy errors(&checker, &newUpdateChecker::networkReplyError);

    checker.checkForUpdates("1350", "2.4.0", 0, true);

    QTRY_COMPARE_WITH_TIMEOUT(recorder.boxes.size(), 1, 30000);
    QTRY_COMPARE_WITH_TIMEOUT(errors.count(), 1, 30000);
    QCOMPARE(errors.at(0).at(0).value<QNetworkReply::NetworkError>(), QNetworkReply::NetworkError(error));
    QCOMPARE(recorder.boxes.at(0).text, QStringLiteral("Query for update has failed."));
    QCOMPARE(recorder.boxes.at(0).informativeText,
             QStringLiteral("No connection to ") + base + QStringLiteral("/versioninfo/versionstest.php"));
    QCOMPARE(int(recorder.boxes.at(0).icon), int(QMessageBox::Warning));
}

void tst_newUpdateChecker::readsTcpMessages()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    newUpdateChecker checker;
    QVERIFY(primed(checker, "2.4.0"));
    QSignalSpy spy(&checker, &newUpdateChecker::versionAvailable);

    checker.setServer("127.0.0.1", server.serverPort());
    checker.connectToServer();
    QVERIFY(server.waitForNewConnection(30000));
    QTcpSocket *peer = server.nextPendingConnection();
    // The TCP message is parsed like an HTTP body, so it carries a reply frame whole.
    const QByteArray message = replyFrame(0x200A, 1, mapPayload({ { "1350-10", "3000001" } }));
    peer->write(stream([&](QDataStream &out) { out << qint64(message.size() + 4) << message; }));

    QVERIFY(spy.wait(30000));
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("3.0.1"));
    QCOMPARE(spy.at(0).at(2).toBool(), true);
}

QTEST_MAIN(tst_newUpdateChecker)
#include "tst_newupdatechecker.moc"
