// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DebugCrashHandler.h"

#include "FunctionTrace_p.h"
#include "TextCompat_p.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTextStream>

#include <atomic>
#include <cstdio>

namespace {
std::atomic<DebugCrashHandler *> s_currentHandler{ nullptr };
// The handling type of the last handler once it is gone: messages of the
// application's teardown still reach the console forms, never the log.
std::atomic<int> s_typeAfterHandler{ DebugCrashHandler::DefaultHandling };
QString s_sessionStamp;

QString applicationDirectoryName()
{
    return QCoreApplication::applicationName().remove(QLatin1Char(' '));
}
}

DebugCrashHandler::DebugCrashHandler(QObject *parent)
    : QObject(parent)
{
    s_currentHandler = this;
    s_sessionStamp = QDateTime::currentDateTime().toString(QStringLiteral("yyMMdd_hhmmss"));
}

DebugCrashHandler::~DebugCrashHandler()
{
    DebugCrashHandler *self = this;
    if (s_currentHandler.compare_exchange_strong(self, nullptr))
        s_typeAfterHandler = m_type;
    // finish() has closed the log by now; free what it leaves behind.
    delete m_logStream;
    delete m_logFile;
}

void DebugCrashHandler::setDebugHandlingType(DebugHandlingType type)
{
    m_type = type;
    if (type == LogFile) {
        initDebugLogfile();
        m_type = LogFile | StandardHandling;
    } else if (type == InstrumentFunctions) {
        FunctionTrace::traceAllowed = true;
    }
}

void DebugCrashHandler::updateLogType(DebugHandlingType type)
{
    m_type |= type;
}

void DebugCrashHandler::initDebugLogfile()
{
    // The session has one log: opened again, it stays the same open file.
    if (m_logFile && m_logFile->isOpen())
        return;
    delete m_logStream;
    delete m_logFile;
    const QString dir = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
            + QStringLiteral("/korvil/%1/").arg(applicationDirectoryName());
    QDir().mkpath(dir);
    const QString path = dir + QStringLiteral("%1_DebugLog.dbo").arg(s_sessionStamp);
    m_logFile = new QFile(path);
    m_logFile->open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text);
    m_logStream = new QTextStream(m_logFile);
}

void DebugCrashHandler::closeDebugLogfile()
{
    if (m_logFile)
        m_logFile->close();
}

void DebugCrashHandler::removeDebugLogfile()
{
    if (m_logFile)
        m_logFile->remove();
    if (m_logStream) {
        delete m_logStream;
        m_logStream = nullptr;
    }
}

QString DebugCrashHandler::debugLogFileName() const
{
    return m_logFile ? m_logFile->fileName() : QString();
}

void DebugCrashHandler::handleDebugOut(QtMsgType type, const QMessageLogContext &context,
                                       const QString &msg)
{
    if (m_type & LogFile) {
        logDebugOutput(type, msg);
        // Every message stands twice in the log; tools that parse it expect that.
        if (m_type & LogFile)
            logDebugOutput(type, msg);
    }
    if (m_type & PrintOutput)
        printDebugOutput(type, context, msg);
    if (m_type & PrintDetailed)
        printDebugOutputDetailed(type, context, msg);
    // Looked for, but routed like any other message.
    (void)msg.contains(QLatin1String("Timers cannot be stopped"));
}

void DebugCrashHandler::logDebugOutput(QtMsgType, const QString &msg)
{
    if (!m_logFile || !m_logFile->isOpen())
        return;
    // "yyyy.MM.dd<TAB>hh:mm:ss:zzz", formatted by hand: QDateTime::toString parses
    // its pattern on every call, and this runs for every message, twice.
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    char stamp[32];
    std::snprintf(stamp, sizeof stamp, "%04d.%02d.%02d\t%02d:%02d:%02d:%03d", date.year(),
                  date.month(), date.day(), time.hour(), time.minute(), time.second(),
                  time.msec());
    QTextStream out(m_logFile);
    CommonGUICompat::useUtf8(out);
    out << stamp << "\t\t" << msg << "\n";
}

namespace {
void printTimePrefix()
{
    const QByteArray time =
            QDateTime::currentDateTime().toString(QStringLiteral("hh:mm:ss.zzz")).toLatin1();
    fprintf(stderr, "Time: %s: ", time.constData());
}

void printShort(const QString &msg)
{
    const QByteArray text = msg.toLocal8Bit();
    printTimePrefix();
    fprintf(stderr, "%s\n", text.constData());
    fflush(stderr);
}

void printDetailed(const QMessageLogContext &context, const QString &msg)
{
    const QByteArray text = msg.toLocal8Bit();
    printTimePrefix();
    // The label is the same for every message type.
    fprintf(stderr, "QtDebugMsg: %s (%s:%u, %s)\n", text.constData(),
            context.file ? context.file : "", unsigned(context.line),
            context.function ? context.function : "");
    fflush(stderr);
}
}

void DebugCrashHandler::printDebugOutput(QtMsgType, const QMessageLogContext &,
                                         const QString &msg)
{
    printShort(msg);
}

void DebugCrashHandler::printDebugOutputDetailed(QtMsgType, const QMessageLogContext &context,
                                                 const QString &msg)
{
    printDetailed(context, msg);
}

void DebugCrashHandler::finish()
{
    closeDebugLogfile();
    if (!(m_type & LogFile))
        removeDebugLogfile();
    deInitFunctiontrace();
    qDebug() << "void DebugCrashHandler::finish()" << "Line:" << __LINE__;
}

void DebugCrashHandler::initFunctionTrace()
{
    using namespace FunctionTrace;
    // Switched on while on: the open file goes on, no second one is begun.
    if (traceFile && traceFileOpen)
        return;
    const QString name = applicationDirectoryName();
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QDir().mkpath(documents + QStringLiteral("/korvil/%1/").arg(name));
    const QString path = documents + QStringLiteral("/korvil//%1/").arg(name)
            + QStringLiteral("functionsLog_%1.efl").arg(traceFileCounter);
    ++traceFileCounter;
    traceFile = fopen(path.toLatin1().constData(), "w");
    traceFileOpen = traceFile != nullptr;
    traceFree = 1;
}

void DebugCrashHandler::deInitFunctiontrace()
{
    using namespace FunctionTrace;
    // The pointer is kept after closing; a closed file counts as absent, so a
    // second close and hooks running after it are harmless.
    if (traceFile && traceFileOpen) {
        traceFree = 0;
        fflush(traceFile);
        fclose(traceFile);
        traceFileOpen = false;
    }
}

void DebugCrashHandler::setInstrumentFunctions(bool on)
{
    using namespace FunctionTrace;
    if (!traceAllowed)
        return;
    if (on) {
        initFunctionTrace();
        traceEnabled = true;
    } else {
        deInitFunctiontrace();
        traceEnabled = false;
    }
}

void messageHandler(QtMsgType type, const QMessageLogContext &context, const QString &msg)
{
    if (DebugCrashHandler *handler = s_currentHandler.load()) {
        handler->handleDebugOut(type, context, msg);
        return;
    }
    const int kind = s_typeAfterHandler.load();
    if (kind & DebugCrashHandler::PrintOutput)
        printShort(msg);
    if (kind & DebugCrashHandler::PrintDetailed)
        printDetailed(context, msg);
}

void noMessageOutput(QtMsgType, const QMessageLogContext &, const QString &)
{
}
