// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QObject>
#include <QString>
#include <QtGlobal>

class QFile;
class QTextStream;

/**
 * \file DebugCrashHandler.h
 * The debug handler and the two message handlers a tool installs.
 */

/**
 * Decides where the process's Qt messages go: nowhere, to stderr with a time
 * stamp or with the source position, and/or into a debug log file; and keeps
 * the function-call trace file.
 *
 * KorvilBaseApplication creates the one handler and sets its mode from the
 * command line; messageHandler() forwards every message to it. The debug log is
 * "<Documents>/korvil/<application name without spaces>/<yyMMdd_hhmmss>_DebugLog.dbo",
 * one line per message ("yyyy.MM.dd<tab>hh:mm:ss:zzz<tab><tab>message"), and
 * every message stands in it twice, on two consecutive lines. The trace files
 * are "<Documents>/korvil//<name>/functionsLog_<n>.efl", numbered from 0 in each
 * run, with one line "0x0x<address>" per function entry and exit. Failures to
 * create folders or files are not reported: nothing is written then. The
 * message handler takes no lock; log lines of several threads may interleave.
 */
class COMMONGUI_EXPORT DebugCrashHandler : public QObject
{
    Q_OBJECT

public:
    /** The output modes, as bit flags; the mode is tested bit by bit. */
    enum DebugHandlingType {
        PrintOutput = 1,          //!< Each message on stderr as "Time: hh:mm:ss.zzz: message" ("--with-debug").
        DefaultHandling = 2,      //!< No output; the mode at construction.
        StandardHandling = 4,     //!< No output of its own ("--debug-detailed", "--debug-standard").
        LogFile = 8,              //!< Each message into the debug log file, which is kept at exit ("--debug-log").
        InstrumentFunctions = 16, //!< Allows function-call tracing ("--instrument-functions").
        PrintDetailed = 32        //!< Each message on stderr with source file, line and function; only through updateLogType().
    };

    /** Constructs a silent handler (DefaultHandling) and makes it the one messageHandler() uses. */
    explicit DebugCrashHandler(QObject *parent);
    /** Destroys the handler; closing and removing the log is finish()'s work, not this. */
    ~DebugCrashHandler() override;

    /**
     * Replaces the mode with @p type. LogFile also opens the log and sets the mode
     * to LogFile | StandardHandling; InstrumentFunctions also allows tracing for
     * the rest of the process. A mode without LogFile set after the log was
     * opened stops writing to it, and the log is deleted at finish().
     */
    void setDebugHandlingType(DebugHandlingType type);
    /** Adds the bits of @p type to the mode; the only way to reach PrintDetailed. */
    void updateLogType(DebugHandlingType type);
    /** Returns the mode, a combination of DebugHandlingType bits. */
    int debugHandlingType() const { return m_type; }

    /** Opens a new debug log file for appending, creating its folder. */
    void initDebugLogfile();
    /** Closes the debug log file, if one was opened. */
    void closeDebugLogfile();
    /** Deletes the debug log file from disk, if one was opened. */
    void removeDebugLogfile();
    /** Returns the path of the debug log file, or an empty string when none was opened. */
    QString debugLogFileName() const;

    /**
     * Routes one message @p msg to the outputs of the mode: twice into the log
     * (LogFile), then the short (PrintOutput) and the detailed (PrintDetailed)
     * stderr form. The message type and @p context are not used for routing.
     */
    void handleDebugOut(QtMsgType type, const QMessageLogContext &context, const QString &msg);
    /** Appends one line with @p msg to the log file when it is open. */
    void logDebugOutput(QtMsgType type, const QString &msg);
    /** Writes "Time: hh:mm:ss.zzz: " and @p msg to stderr. */
    void printDebugOutput(QtMsgType type, const QMessageLogContext &context, const QString &msg);
    /**
     * Writes @p msg to stderr with the time and the file, line and function of
     * @p context, labelled "QtDebugMsg" for every message type alike.
     */
    void printDebugOutputDetailed(QtMsgType type, const QMessageLogContext &context,
                                  const QString &msg);

    /**
     * Ends the session: closes the log, deletes it unless the mode has LogFile,
     * and closes the trace file. The application's destructor calls it.
     */
    void finish();

    /** Opens the next numbered trace file, creating its folder; an earlier run's file of that number is overwritten. */
    void initFunctionTrace();
    /** Flushes and closes the current trace file. */
    void deInitFunctiontrace();
    /**
     * Starts tracing into a new trace file (@p on) or stops it and closes the
     * file. Does nothing unless tracing was allowed by InstrumentFunctions.
     */
    void setInstrumentFunctions(bool on);

private:
    QFile *m_logFile = nullptr;
    QTextStream *m_logStream = nullptr;
    int m_type = DefaultHandling;
};

/**
 * A Qt message handler that forwards every message to the most recently
 * constructed DebugCrashHandler; install it with qInstallMessageHandler() after
 * the application object exists. Once that handler is gone, messages reach only
 * the console forms it had switched on.
 */
COMMONGUI_EXPORT void messageHandler(QtMsgType type, const QMessageLogContext &context,
                                     const QString &msg);
/** A Qt message handler that silences all messages, for release builds that want no output. */
COMMONGUI_EXPORT void noMessageOutput(QtMsgType type, const QMessageLogContext &context,
                                      const QString &msg);
