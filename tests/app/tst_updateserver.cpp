// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "UpdateServer.h"

#include <QtTest>

class tst_UpdateServer : public QObject
{
    Q_OBJECT

private slots:
    void lookup_data();
    void lookup();
};

void tst_UpdateServer::lookup_data()
{
    QTest::addColumn<QByteArray>("environment");
    QTest::addColumn<QString>("expected");
    const QString fallback = CommonGUI::defaultUpdateServerUrl().toString();
    QTest::newRow("unset: build-time default") << QByteArray() << fallback;
    QTest::newRow("host and port") << QByteArray("http://127.0.0.1:8123") << "http://127.0.0.1:8123";
    QTest::newRow("path is dropped") << QByteArray("https://updates.example.org/base/") << "https://updates.example.org";
    QTest::newRow("surrounding blanks") << QByteArray("  http://localhost:80 ") << "http://localhost:80";
    QTest::newRow("no scheme: default") << QByteArray("updates.example.org") << fallback;
    QTest::newRow("garbage: default") << QByteArray("::not a url::") << fallback;
}

void tst_UpdateServer::lookup()
{
    QFETCH(QByteArray, environment);
    QFETCH(QString, expected);
    if (environment.isNull())
        qunsetenv("COMMONGUI_UPDATE_SERVER");
    else
        qputenv("COMMONGUI_UPDATE_SERVER", environment);
    QCOMPARE(CommonGUI::updateServerUrl().toString(), expected);
    // Read at every call: a change takes effect at once.
    qunsetenv("COMMONGUI_UPDATE_SERVER");
    QCOMPARE(CommonGUI::updateServerUrl(), CommonGUI::defaultUpdateServerUrl());
}

QTEST_GUILESS_MAIN(tst_UpdateServer)
#include "tst_updateserver.moc"
