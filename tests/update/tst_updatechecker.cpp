// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "UpdateChecker.h"

#include "TestSupport.h"
#include "UpdateTestServer.h"

#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

class tst_UpdateChecker : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void evaluatesReply_data();
    void evaluatesReply();
    void failedQuery_data();
    void failedQuery();
    void silent_data();
    void silent();

private:
    void runQuery(const QString &product, const QString &version, bool silent, QStringList *signalled = nullptr);

    QTemporaryDir m_home;
    UpdateTestServer m_server;
};

void tst_UpdateChecker::initTestCase()
{
    QVERIFY(m_home.isValid());
    qputenv("HOME", m_home.path().toLocal8Bit());
    QStandardPaths::setTestModeEnabled(true);
    QVERIFY(m_server.isRunning());
}

void tst_UpdateChecker::init()
{
    qputenv("COMMONGUI_UPDATE_SERVER", m_server.url().toUtf8());
}

void tst_UpdateChecker::runQuery(const QString &product, const QString &version, bool silent,
                                 QStringList *signalled)
{
    QPointer<UpdateChecker> checker = new UpdateChecker;
    QSignalSpy spy(checker.data(), &UpdateChecker::newVersion);
    checker->queryForUpdates(product, version, silent);
    QTRY_VERIFY_WITH_TIMEOUT(checker.isNull(), 30000);
    for (const QList<QVariant> &arguments : qAsConst(spy))
        if (signalled)
            signalled->append(arguments.at(0).toString());
}

void tst_UpdateChecker::evaluatesReply_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("informative");
    QTest::addColumn<int>("icon");

    const QString ok = QStringLiteral("Query for update successful.");
    const QString failed = QStringLiteral("Query for update has failed.");
    const QString invalid = QStringLiteral("Invalid data received from update server:");
    const int info = QMessageBox::Information;
    const int warn = QMessageBox::Warning;

    QTest::newRow("newer patch") << "2.4.0" << QByteArray("demotool:2.4.1\n") << ok
                                 << "New version 2.4.1 is available." << info;
    QTest::newRow("2.4 padded to equal 2.4.0") << "2.4" << QByteArray("demotool:2.4.0") << ok
            << "No new version available. Version 2.4.0 is current version." << warn;
    QTest::newRow("textual: 2.10.0 sorts below 2.4.0") << "2.4.0" << QByteArray("demotool:2.10.0") << ok
            << "No new version available. Version 2.10.0 is current version." << warn;
    QTest::newRow("older on server") << "3.0.0" << QByteArray("demotool:2.9.9") << ok
            << "No new version available. Version 2.9.9 is current version." << warn;
    // Padded, 2.4.10.0 would equal the reply; unpadded it is a shorter prefix, so lower.
    QTest::newRow("length 6 not padded") << "2.4.10" << QByteArray("demotool:2.4.10.0") << ok
            << "New version 2.4.10.0 is available." << info;
    QTest::newRow("length 4 not padded") << "10.2" << QByteArray("demotool:10.2.0") << ok
            << "New version 10.2.0 is available." << info;
    QTest::newRow("[*-9] lets + through") << "2.4.0" << QByteArray("demotool:2.4.0+1") << ok
            << "New version 2.4.0+1 is available." << info;
    QTest::newRow("no version") << "2.4.0" << QByteArray("demotool:") << ok
            << "No new version available. Version  is current version." << warn;
    QTest::newRow("name on a later line") << "2.4.0" << QByteArray("# published\ndemotool:3.0.0") << ok
            << "New version 3.0.0 is available." << info;
    QTest::newRow("NUL ends the text") << "2.4.0" << QByteArray("demotool:3.0.0\0:9", 17) << ok
            << "New version 3.0.0 is available." << info;
    QTest::newRow("name is case-sensitive") << "2.4.0" << QByteArray("DEMOTOOL:9.9.9") << failed << invalid << warn;
    QTest::newRow("text before the name") << "2.4.0" << QByteArray("x demotool:3.0.0") << failed << invalid << warn;
    QTest::newRow("last colon splits") << "2.4.0" << QByteArray("demotool:x:3.0.0") << failed << invalid << warn;
    QTest::newRow("empty body") << "2.4.0" << QByteArray() << failed << invalid << warn;
    // Only the first 64 KiB of a body are kept.
    QTest::newRow("version line after 64 KiB") << "2.4.0" << QByteArray(70000, '#') + "\ndemotool:3.0.0" << failed
                                               << invalid << warn;
    QTest::newRow("binary garbage") << "2.4.0" << QByteArray("\xff\xfe\x00\x01\x80", 5) << failed << invalid << warn;
}

void tst_UpdateChecker::evaluatesReply()
{
    QFETCH(QString, current);
    QFETCH(QByteArray, body);
    QFETCH(QString, text);
    QFETCH(QString, informative);
    QFETCH(int, icon);
    m_server.writeFile(QStringLiteral("demotool.info"), body);
    BoxRecorder recorder;
    TestSupport::ModalCloser closer;

    runQuery(QStringLiteral("demotool"), current, false);

    QCOMPARE(m_server.requests().last().value("path").toString(), QStringLiteral("/versioninfo/demotool.info"));
    QCOMPARE(recorder.boxes.size(), 1);
    QCOMPARE(recorder.boxes.at(0).title, QStringLiteral("Update Check"));
    QCOMPARE(recorder.boxes.at(0).text, text);
    QCOMPARE(recorder.boxes.at(0).informativeText, informative);
    QCOMPARE(int(recorder.boxes.at(0).icon), icon);
}

void tst_UpdateChecker::failedQuery_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<bool>("unreachable");
    QTest::newRow("404") << "missing" << false;
    QTest::newRow("500") << "status500" << false;
    QTest::newRow("server closes early") << "hangup" << false;
    QTest::newRow("nobody listens") << "demotool" << true;
}

void tst_UpdateChecker::failedQuery()
{
    QFETCH(QString, product);
    QFETCH(bool, unreachable);
    m_server.writeFile(QStringLiteral("demotool.info"), "demotool:9.9.9");
    const QString base = unreachable ? QStringLiteral("http://127.0.0.1:%1").arg(closedPort()) : m_server.url();
    qputenv("COMMONGUI_UPDATE_SERVER", base.toUtf8());
    BoxRecorder recorder;
    TestSupport::ModalCloser closer;

    runQuery(product, QStringLiteral("2.4.0"), false);

    QCOMPARE(recorder.boxes.size(), 1);
    QCOMPARE(recorder.boxes.at(0).title, QStringLiteral("Update Check"));
    QCOMPARE(recorder.boxes.at(0).text, QStringLiteral("Query for update has failed."));
    QCOMPARE(recorder.boxes.at(0).informativeText,
             QStringLiteral("No connection to ") + base + QStringLiteral("/versioninfo/") + product + ".info");
    QCOMPARE(int(recorder.boxes.at(0).icon), int(QMessageBox::Warning));
}

void tst_UpdateChecker::silent_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("current");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QStringList>("signalled");
    QTest::newRow("newer, 2.4 padded") << "demotool" << "2.4" << QByteArray("demotool:2.4.1")
                                       << QStringList { "New version 2.4.1 is available." };
    QTest::newRow("same version") << "demotool" << "2.4.0" << QByteArray("demotool:2.4.0") << QStringList();
    QTest::newRow("invalid data") << "demotool" << "2.4.0" << QByteArray("other:9.9.9") << QStringList();
    QTest::newRow("404") << "missing" << "2.4.0" << QByteArray() << QStringList();
}

void tst_UpdateChecker::silent()
{
    QFETCH(QString, product);
    QFETCH(QString, current);
    QFETCH(QByteArray, body);
    QFETCH(QStringList, signalled);
    m_server.writeFile(QStringLiteral("demotool.info"), body);
    BoxRecorder recorder;
    QStringList seen;

    runQuery(product, current, true, &seen);

    QCOMPARE(seen, signalled);
    QCOMPARE(recorder.boxes.size(), 0);
}

QTEST_MAIN(tst_UpdateChecker)
#include "tst_updatechecker.moc"
