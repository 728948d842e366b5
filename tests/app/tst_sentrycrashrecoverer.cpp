// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SentryCrashRecoverer.h"

#include "../update/UpdateTestServer.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QtTest>

#include <unistd.h>

using Files = QMap<QString, QByteArray>;

class tst_SentryCrashRecoverer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pendingCrashes_data();
    void pendingCrashes();
    void uploadsEachDumpOnce();
    void uploadOutcomes_data();
    void uploadOutcomes();
    void emptyDirectoryNameIsNoDirectory();

private:
    QString uploadUrl() const { return m_server.url() + "/api/42/minidump/?sentry_key=abc"; }
    int uploadCount() const;

    QTemporaryDir m_home;
    UpdateTestServer m_server;
};

namespace {
void createFiles(const QString &root, const Files &files)
{
    for (auto it = files.cbegin(); it != files.cend(); ++it) {
        const QString path = root + "/" + it.key();
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(it.value());
    }
}

QStringList filesIn(const QString &root)
{
    QStringList result;
    QDirIterator it(root, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        result << QDir(root).relativeFilePath(it.next());
    result.sort();
    return result;
}
}

void tst_SentryCrashRecoverer::initTestCase()
{
    QVERIFY(m_home.isValid());
    qputenv("HOME", m_home.path().toLocal8Bit());
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName("Bus Monitor");
    QCoreApplication::setApplicationVersion("3.1.0");
    QVERIFY(m_server.isRunning());
}

int tst_SentryCrashRecoverer::uploadCount() const
{
    int count = 0;
    for (const QJsonObject &request : m_server.requests())
        count += request.value("path").toString().startsWith("/api/");
    return count;
}

void tst_SentryCrashRecoverer::pendingCrashes_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<bool>("pending");
    QTest::newRow("a.dmp") << QStringList { "a.dmp" } << true;
    QTest::newRow("deep in subdirectories") << QStringList { "sub/dir/a.dmp" } << true;
    QTest::newRow("upper-case suffix") << QStringList { "a.DMP" } << false;
    QTest::newRow("further suffix") << QStringList { "a.dmp.txt" } << false;
    QTest::newRow("named dmp") << QStringList { "dmp" } << false;
    QTest::newRow("directory named x.dmp") << QStringList { "x.dmp/readme" } << false;
    QTest::newRow("empty directory") << QStringList() << false;
}

void tst_SentryCrashRecoverer::pendingCrashes()
{
    QFETCH(QStringList, files);
    QFETCH(bool, pending);
    QTemporaryDir dumps;
    Files content;
    for (const QString &name : files)
        content.insert(name, "MDMP");
    createFiles(dumps.path(), content);

    QCOMPARE(SentryCrashRecoverer(uploadUrl(), dumps.path()).hasPendingCrashes(), pending);
    SentryCrashRecoverer(QString(), dumps.path()).discardPendingCrashes();
    QCOMPARE(int(filesIn(dumps.path()).size()), pending ? files.size() - 1 : files.size());
}

void tst_SentryCrashRecoverer::uploadsEachDumpOnce()
{
    QTemporaryDir dumps;
    createFiles(dumps.path(), { { "first.dmp", QByteArray("MDMP\x93\xa7\0\0first", 13) },
                                { "sub/dir/second.dmp", "second" },
                                { "zero.dmp", QByteArray() },
                                { "notes.txt", "keep" },
                                { "a.DMP", "keep" } });
    const int before = uploadCount();
    SentryCrashRecoverer recoverer(uploadUrl(), dumps.path());

    recoverer.uploadPendingCrashes();

    QCOMPARE(filesIn(dumps.path()), QStringList({ "a.DMP", "notes.txt" }));
    QCOMPARE(uploadCount() - before, 2);  // none for the empty dump
    QMap<QString, QJsonObject> byName;
    for (const QJsonObject &request : m_server.requests().mid(m_server.requests().size() - 2)) {
        QCOMPARE(request.value("path").toString(), QStringLiteral("/api/42/minidump/?sentry_key=abc"));
        QVERIFY(request.value("contentType").toString().startsWith("multipart/form-data; boundary="));
        const QJsonArray parts = request.value("parts").toArray();
        QCOMPARE(parts.size(), 2);
        const QJsonObject dump = parts.at(0).toObject();
        const QJsonObject release = parts.at(1).toObject();
        QCOMPARE(release.value("headers").toObject(),
                 QJsonObject({ { "Content-Disposition", "form-data; name=\"sentry[release]\"" } }));
        QCOMPARE(QByteArray::fromBase64(release.value("body").toString().toLatin1()), QByteArray("BusMonitor@3.1.0"));
        QCOMPARE(dump.value("headers").toObject().value("Content-Type").toString(),
                 QStringLiteral("application/octet-stream"));
        QCOMPARE(dump.value("headers").toObject().size(), 2);
        byName.insert(dump.value("headers").toObject().value("Content-Disposition").toString(), dump);
    }
    QCOMPARE(byName.keys(), QStringList({ "form-data; name=\"upload_file_minidump\"; filename=\"first.dmp\"",
                                          "form-data; name=\"upload_file_minidump\"; filename=\"second.dmp\"" }));
    QCOMPARE(QByteArray::fromBase64(byName.first().value("body").toString().toLatin1()),
             QByteArray("MDMP\x93\xa7\0\0first", 13));
    QCOMPARE(QByteArray::fromBase64(byName.last().value("body").toString().toLatin1()), QByteArray("second"));
}

void tst_SentryCrashRecoverer::uploadOutcomes_data()
{
    QTest::addColumn<QString>("server");  // "200", "500", "closed", or "none" for an empty url
    QTest::addColumn<Files>("files");
    QTest::addColumn<QStringList>("remaining");
    QTest::addColumn<int>("uploads");
    const Files two { { "a.dmp", "one" }, { "b/c.dmp", "two" } };
    QTest::newRow("server answers 500, still deleted") << "500" << two << QStringList() << 2;
    QTest::newRow("nobody listens, still deleted") << "closed" << two << QStringList() << 0;
    QTest::newRow("empty url keeps dumps") << "none" << Files { { "a.dmp", "one" }, { "keep.txt", "x" } }
                                           << QStringList({ "a.dmp", "keep.txt" }) << 0;
    QTest::newRow("unreadable dump stays") << "200" << Files { { "locked.dmp", "one" }, { "open.dmp", "two" } }
                                           << QStringList({ "locked.dmp" }) << 1;
}

void tst_SentryCrashRecoverer::uploadOutcomes()
{
    QFETCH(QString, server);
    QFETCH(Files, files);
    QFETCH(QStringList, remaining);
    QFETCH(int, uploads);
    QTemporaryDir dumps;
    createFiles(dumps.path(), files);
    if (files.contains("locked.dmp")) {
        if (geteuid() == 0)
            QSKIP("root can read any file");
        QFile(dumps.filePath("locked.dmp")).setPermissions(QFileDevice::WriteOwner);
    }
    if (server == "500")
        m_server.writeFile("upload.status", "500");
    const QString url = server == "none" ? QString()
            : server == "closed" ? QStringLiteral("http://127.0.0.1:%1/api/1/minidump/").arg(closedPort())
                                 : uploadUrl();
    const int before = uploadCount();
    SentryCrashRecoverer recoverer(url, dumps.path());

    recoverer.uploadPendingCrashes();
    m_server.removeFile("upload.status");

    QCOMPARE(filesIn(dumps.path()), remaining);
    QCOMPARE(uploadCount() - before, uploads);
    QCOMPARE(recoverer.hasPendingCrashes(), remaining.contains("a.dmp") || remaining.contains("locked.dmp"));
}

void tst_SentryCrashRecoverer::emptyDirectoryNameIsNoDirectory()
{
    QTemporaryDir work;
    createFiles(work.path(), { { "a.dmp", "one" } });
    const QString previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(work.path()));
    SentryCrashRecoverer recoverer(uploadUrl(), QString());
    const int before = uploadCount();

    const bool pending = recoverer.hasPendingCrashes();
    recoverer.uploadPendingCrashes();
    recoverer.discardPendingCrashes();
    QDir::setCurrent(previous);

    QVERIFY(!pending);
    QCOMPARE(filesIn(work.path()), QStringList({ "a.dmp" }));
    QCOMPARE(uploadCount(), before);
}

QTEST_GUILESS_MAIN(tst_SentryCrashRecoverer)
#include "tst_sentrycrashrecoverer.moc"
