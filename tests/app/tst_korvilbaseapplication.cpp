// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "TestSupport.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

// Every case runs the probe tool as its own process with HOME in a temporary
// folder and looks at what a user would find: exit code, stderr, files.
class tst_KorvilBaseApplication : public QObject
{
    Q_OBJECT

private slots:
    void logFile();
    void defaultTypeIsSilent();
    void consoleForms();
    void switchPrecedence_data();
    void switchPrecedence();
    void logDeletedWhenBitCleared();
    void exceptionsExit_data();
    void exceptionsExit();
    void slowEvents();
    void slowEventDeletesReceiver();
    void messageAfterApplication();
    void logOpenedTwice();
    void traceFiles();
    void traceOnTwice();
    void traceNeedsSwitch();
    void initSettingsForwards();

private:
    struct Run {
        int exitCode = -1;
        QString out;
        QString err;
    };
    Run run(const QStringList &args);
    QString documents() const { return TestSupport::documentsFolder(m_home.path()); }

    QTemporaryDir m_home;
};

tst_KorvilBaseApplication::Run tst_KorvilBaseApplication::run(const QStringList &args)
{
    QProcess process;
    process.setProcessEnvironment(TestSupport::isolatedEnvironment(m_home.path()));
    process.start(QStringLiteral(APPPROBE_PATH), args);
    Run result;
    if (!process.waitForFinished(30000)) {
        process.kill();
        process.waitForFinished();
        return result;
    }
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -2;
    result.out = QString::fromLocal8Bit(process.readAllStandardOutput());
    result.err = QString::fromLocal8Bit(process.readAllStandardError());
    return result;
}

static QStringList filesIn(const QString &dir, const QString &filter)
{
    return QDir(dir).entryList({ filter }, QDir::Files, QDir::Name);
}

void tst_KorvilBaseApplication::logFile()
{
    QDir(documents()).removeRecursively();
    const Run r = run({ "--debug-log", "@name:My Tool", "@type", "@msg:hello log", "@msg:second" });
    QCOMPARE(r.exitCode, 0);
    QVERIFY2(r.out.contains("type 12"), qPrintable(r.out));

    const QString dir = documents() + "/korvil/MyTool";
    const QStringList logs = filesIn(dir, "*_DebugLog.dbo");
    QCOMPARE(logs.size(), 1);
    QVERIFY2(QRegularExpression("^\\d{6}_\\d{6}_DebugLog\\.dbo$").match(logs.first()).hasMatch(),
             qPrintable(logs.first()));

    QFile file(dir + '/' + logs.first());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    const QRegularExpression layout("^\\d{4}\\.\\d{2}\\.\\d{2}\\t\\d{2}:\\d{2}:\\d{2}:\\d{3}\\t\\t(.*)$");
    QStringList messages;
    for (const QString &line : lines) {
        if (line.isEmpty())
            continue;
        const auto m = layout.match(line);
        QVERIFY2(m.hasMatch(), qPrintable(line));
        messages << m.captured(1);
    }
    // Each message twice, on consecutive lines.
    QCOMPARE(messages.mid(0, 4), QStringList({ "hello log", "hello log", "second", "second" }));
}

void tst_KorvilBaseApplication::defaultTypeIsSilent()
{
    QDir(documents()).removeRecursively();
    const Run r = run({ "@type", "@msg:quiet please" });
    QCOMPARE(r.exitCode, 0);
    QVERIFY(r.out.contains("type 2"));
    QVERIFY2(!r.err.contains("quiet please"), qPrintable(r.err));
    QVERIFY(filesIn(documents() + "/korvil/ProbeTool", "*.dbo").isEmpty());
}

void tst_KorvilBaseApplication::consoleForms()
{
    const Run r = run({ "--with-debug", "@msg:short form", "@update:32", "@type", "@msg:both forms" });
    QCOMPARE(r.exitCode, 0);
    QVERIFY(r.out.contains("type 33"));
    const QStringList lines = r.err.split('\n');
    const QRegularExpression shortForm("^Time: \\d{2}:\\d{2}:\\d{2}\\.\\d{3}: short form$");
    QVERIFY2(lines.filter(shortForm).size() == 1, qPrintable(r.err));
    const QRegularExpression detailed(
            "^Time: \\d{2}:\\d{2}:\\d{2}\\.\\d{3}: QtDebugMsg: both forms \\(.*appprobe\\.cpp:\\d+, .*main.*\\)$");
    QVERIFY2(lines.filter(detailed).size() == 1, qPrintable(r.err));
    QVERIFY2(lines.filter(QRegularExpression("^Time: .*: both forms$")).size() == 1, qPrintable(r.err));
}

void tst_KorvilBaseApplication::switchPrecedence_data()
{
    QTest::addColumn<QStringList>("switches");
    QTest::addColumn<int>("type");
    QTest::newRow("none") << QStringList() << 2;
    QTest::newRow("debug-log") << QStringList{ "--debug-log" } << 12;
    QTest::newRow("with-debug") << QStringList{ "--with-debug" } << 1;
    QTest::newRow("detailed") << QStringList{ "--debug-detailed" } << 4;
    QTest::newRow("standard equals detailed") << QStringList{ "--debug-standard" } << 4;
    QTest::newRow("with-debug replaces log") << QStringList{ "--debug-log", "--with-debug" } << 1;
    QTest::newRow("table order, not argument order") << QStringList{ "--with-debug", "--debug-log" } << 1;
    QTest::newRow("instrument replaces all") << QStringList{ "--debug-log", "--instrument-functions" } << 16;
    QTest::newRow("whole arguments only") << QStringList{ "--debug-log=1", "--WITH-DEBUG" } << 2;
}

void tst_KorvilBaseApplication::switchPrecedence()
{
    QFETCH(QStringList, switches);
    QFETCH(int, type);
    const Run r = run(switches + QStringList{ "@type" });
    QCOMPARE(r.exitCode, 0);
    QVERIFY2(r.out.contains(QStringLiteral("type %1\n").arg(type)), qPrintable(r.out));
}

void tst_KorvilBaseApplication::logDeletedWhenBitCleared()
{
    QDir(documents()).removeRecursively();
    // The log is opened, then --with-debug takes over: console only, log removed at exit.
    const Run r = run({ "--debug-log", "--with-debug", "@logfile", "@msg:to console" });
    QCOMPARE(r.exitCode, 0);
    QVERIFY(r.err.contains(": to console\n"));
    const QString path = r.out.section("logfile ", 1).section('\n', 0, 0);
    QVERIFY2(path.endsWith("_DebugLog.dbo"), qPrintable(r.out));
    QVERIFY(!QFile::exists(path));

    const Run kept = run({ "--debug-log", "@settype:1", "@settype:8", "@logfile" });
    QVERIFY(QFile::exists(kept.out.section("logfile ", 1).section('\n', 0, 0)));
}

void tst_KorvilBaseApplication::exceptionsExit_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("warning");
    QTest::newRow("bad_alloc") << "badalloc" << 1 << "bad_alloc exception: std::bad_alloc";
    QTest::newRow("std::exception") << "runtime" << 2 << "exception: probe failure";
    QTest::newRow("int") << "int" << 3 << "exception";
    // Later failures while the first one's box is open change nothing.
    QTest::newRow("bad_alloc, then another") << "badalloc,runtime" << 1 << "bad_alloc exception: std::bad_alloc";
    QTest::newRow("int, then two more") << "int,badalloc,runtime" << 3 << "exception";
}

void tst_KorvilBaseApplication::exceptionsExit()
{
    QFETCH(QString, kind);
    QFETCH(int, exitCode);
    QFETCH(QString, warning);
    const Run r = run({ "--with-debug", "@throw:" + kind });
    QCOMPARE(r.exitCode, exitCode);
    QVERIFY2(r.err.split('\n').filter(QRegularExpression("^Time: [\\d:.]+: " + QRegularExpression::escape(warning) + "$")).size() == 1,
             qPrintable(r.err));
    // The stop function runs before the one dialog, whatever the exception.
    QVERIFY2(r.out.contains("stop function\nbox "), qPrintable(r.out));
    QCOMPARE(r.out.count("stop function"), 1);
    QCOMPARE(r.out.count("box "), 1);
    const QString expected = "box Out of memory|The application run out of memory.\\n"
                             "This could occure when handling a large amount of data.\\n"
                             "Please check the performance settings in the settings dialog.\\n\\n"
                             "The application will close now.|3\n";
    QVERIFY2(r.out.contains(expected), qPrintable(r.out));
}

void tst_KorvilBaseApplication::slowEvents()
{
    // A busy event handler well over and well under the limit, then right at it.
    const Run r = run({ "--with-debug", "@slow:30000", "@slow:2000", "@slow:10100", "@slow:11300" });
    QCOMPARE(r.exitCode, 0);
    const QRegularExpression line("processing event type 1000 for object thrower took (\\d+)ms");
    QList<int> logged;
    auto it = line.globalMatch(r.err);
    while (it.hasNext())
        logged << it.next().captured(1).toInt();
    QVERIFY2(!logged.isEmpty() && logged.first() >= 30, qPrintable(r.err));
    // Only more than 10 ms counts: a reading of exactly 10 is never logged.
    for (int ms : logged)
        QVERIFY2(ms >= 11, qPrintable(r.err));
    QVERIFY2(logged.contains(11) || logged.last() > 11, qPrintable(r.err));
    QVERIFY2(logged.size() <= 3, qPrintable(r.err));
}

void tst_KorvilBaseApplication::slowEventDeletesReceiver()
{
    // The receiver's name is read before the event deletes it.
    const Run r = run({ "--with-debug", "@slowdelete:30000" });
    QCOMPARE(r.exitCode, 0);
    QVERIFY2(r.err.contains(QRegularExpression("processing event type 52 for object doomed took \\d+ms")),
             qPrintable(r.err));
}

void tst_KorvilBaseApplication::messageAfterApplication()
{
    // The handler is gone with the application: the message still reaches the console.
    const Run r = run({ "--with-debug", "@late" });
    QCOMPARE(r.exitCode, 0);
    QVERIFY2(r.err.contains(QRegularExpression("Time: [\\d:.]+: late message\n")), qPrintable(r.err));
}

void tst_KorvilBaseApplication::logOpenedTwice()
{
    QDir(documents()).removeRecursively();
    const Run r = run({ "--debug-log", "@msg:first", "@settype:8", "@msg:second" });
    QCOMPARE(r.exitCode, 0);
    const QString dir = documents() + "/korvil/ProbeTool";
    const QStringList logs = filesIn(dir, "*");
    QCOMPARE(logs.size(), 1);
    QFile file(dir + '/' + logs.first());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QCOMPARE(text.count("\t\tfirst\n"), 2);
    QCOMPARE(text.count("\t\tsecond\n"), 2);
}

void tst_KorvilBaseApplication::traceOnTwice()
{
    QDir(documents()).removeRecursively();
    const Run r = run({ "--instrument-functions", "@trace:on", "@trace:on", "@call:1", "@trace:off" });
    QCOMPARE(r.exitCode, 0);
    const QString dir = documents() + "/korvil/ProbeTool";
    // One file, closed with everything in it.
    QCOMPARE(filesIn(dir, "*.efl"), QStringList({ "functionsLog_0.efl" }));
    QFile file(dir + "/functionsLog_0.efl");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().count("0x0x") >= 6);
}

void tst_KorvilBaseApplication::traceFiles()
{
    QDir(documents()).removeRecursively();
    const Run r = run({ "--instrument-functions", "@name:My Tool", "@call:1", "@trace:on", "@call:2",
                        "@trace:off", "@call:3", "@trace:on", "@call:4", "@trace:off" });
    QCOMPARE(r.exitCode, 0);
    const QString dir = documents() + "/korvil/MyTool";
    QCOMPARE(filesIn(dir, "*.efl"), QStringList({ "functionsLog_0.efl", "functionsLog_1.efl" }));

    const quintptr base = r.out.section("base ", 1).section('\n', 0, 0).toULongLong(nullptr, 16);
    QVERIFY(base != 0);
    for (const QString &name : { "functionsLog_0.efl", "functionsLog_1.efl" }) {
        QFile file(dir + '/' + name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList lines = QString::fromLatin1(file.readAll()).split('\n', Qt::SkipEmptyParts);
        QVERIFY2(!lines.isEmpty(), qPrintable(name));
        QStringList offsets;
        for (const QString &line : lines) {
            QVERIFY2(line.startsWith("0x0x"), qPrintable(line));
            const quintptr address = line.mid(4).toULongLong(nullptr, 16);
            offsets << QString::number(address - base, 16);
        }
        QProcess addr2line;
        addr2line.start("addr2line", QStringList{ "-f", "-C", "-e", APPPROBE_PATH } + offsets);
        QVERIFY(addr2line.waitForFinished(30000));
        const QStringList resolved = QString::fromLocal8Bit(addr2line.readAllStandardOutput()).split('\n');
        const QStringList functions = resolved.filter(QRegularExpression("^[^/?]"));
        // Every record is one of the probe's own functions; the markers appear
        // once on entry and once on exit per call.
        QCOMPARE(resolved.filter("??").size(), 0);
        QCOMPARE(functions.filter(QRegularExpression("probeTraceMarker\\(int\\)")).size(), 2);
        QCOMPARE(functions.filter(QRegularExpression("probeTraceMarkerInner\\(int\\)")).size(), 4);
    }
}

void tst_KorvilBaseApplication::traceNeedsSwitch()
{
    QDir(documents()).removeRecursively();
    const Run r = run({ "--debug-log", "@trace:on", "@call:1", "@trace:off" });
    QCOMPARE(r.exitCode, 0);
    QVERIFY(filesIn(documents() + "/korvil/ProbeTool", "*.efl").isEmpty());
}

void tst_KorvilBaseApplication::initSettingsForwards()
{
    const Run r = run({ "@settings:200" });
    QCOMPARE(r.exitCode, 0);
    QVERIFY2(r.out.contains("settings 200\n"), qPrintable(r.out));
}

QTEST_GUILESS_MAIN(tst_KorvilBaseApplication)
#include "tst_korvilbaseapplication.moc"
