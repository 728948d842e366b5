// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DebugCrashHandler.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

extern "C" void __cyg_profile_func_enter(void *, void *);
extern "C" void __cyg_profile_func_exit(void *, void *);

class tst_DebugCrashHandler : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void updateLogTypeOrs();
    void logLinesOnlyWhileOpen();
    void traceOnOffOnAndDoubleClose();

private:
    QString traceDir() const;
    QTemporaryDir m_home;
};

void tst_DebugCrashHandler::initTestCase()
{
    QVERIFY(m_home.isValid());
    qputenv("HOME", m_home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", (m_home.path() + "/.config").toLocal8Bit());
    QCoreApplication::setApplicationName("Handler Test");
}

QString tst_DebugCrashHandler::traceDir() const
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + "/korvil/HandlerTest";
}

void tst_DebugCrashHandler::updateLogTypeOrs()
{
    DebugCrashHandler handler(nullptr);
    QCOMPARE(handler.debugHandlingType(), 2);
    handler.setDebugHandlingType(DebugCrashHandler::PrintOutput);
    handler.updateLogType(DebugCrashHandler::PrintDetailed);
    QCOMPARE(handler.debugHandlingType(), 33);
    handler.setDebugHandlingType(DebugCrashHandler::StandardHandling);
    QCOMPARE(handler.debugHandlingType(), 4);
}

void tst_DebugCrashHandler::logLinesOnlyWhileOpen()
{
    DebugCrashHandler handler(nullptr);
    handler.logDebugOutput(QtDebugMsg, "before open");  // no file yet: nothing, no crash
    handler.setDebugHandlingType(DebugCrashHandler::LogFile);
    const QString path = handler.debugLogFileName();
    QVERIFY(path.startsWith(traceDir() + "/"));
    handler.handleDebugOut(QtWarningMsg, QMessageLogContext(), "Timers cannot be stopped from another thread");
    handler.closeDebugLogfile();
    handler.logDebugOutput(QtDebugMsg, "after close");
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QCOMPARE(text.count("Timers cannot be stopped"), 2);
    QVERIFY(!text.contains("after close"));
    handler.finish();  // bit 8 set: the log stays
    QVERIFY(QFile::exists(path));
}

void tst_DebugCrashHandler::traceOnOffOnAndDoubleClose()
{
    int marker = 0;
    __cyg_profile_func_enter(&marker, nullptr);  // nothing started: no file, no record

    DebugCrashHandler handler(nullptr);
    handler.setInstrumentFunctions(true);  // not allowed yet
    QVERIFY(!QDir(traceDir()).exists("functionsLog_0.efl"));

    handler.setDebugHandlingType(DebugCrashHandler::InstrumentFunctions);
    handler.setInstrumentFunctions(true);
    __cyg_profile_func_enter(&marker, nullptr);
    __cyg_profile_func_exit(&marker, nullptr);
    handler.setInstrumentFunctions(false);
    __cyg_profile_func_enter(&marker, nullptr);  // off: dropped
    handler.setInstrumentFunctions(true);
    __cyg_profile_func_enter(&marker, nullptr);
    handler.finish();
    handler.finish();  // closes an already closed file: harmless
    __cyg_profile_func_exit(&marker, nullptr);  // after the end of the session: dropped

    const QString record = QString::asprintf("0x%p\n", static_cast<void *>(&marker));
    QVERIFY(record.startsWith("0x0x"));
    QFile first(traceDir() + "/functionsLog_0.efl");
    QVERIFY(first.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromLatin1(first.readAll()), record + record);
    QFile second(traceDir() + "/functionsLog_1.efl");
    QVERIFY(second.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromLatin1(second.readAll()), record);
}

QTEST_GUILESS_MAIN(tst_DebugCrashHandler)
#include "tst_debugcrashhandler.moc"
