// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QString>

#include <functional>

class DebugCrashHandler;

/**
 * \file KorvilBaseApplication.h
 * The application object and the memory reserve it hands back on failure.
 */

/**
 * The 200 MiB memory reserve taken when the library loads and handed back on a
 * failure, so that the error dialog can still be shown. It is freed once, by
 * KorvilBaseApplication::releaseEmergencyMemory(); the pointer is not cleared.
 */
COMMONGUI_EXPORT extern char *_emergencyMemory;

/**
 * The application object that every tool of the family constructs once in its
 * main() instead of a QApplication.
 *
 * It names the application, creates the DebugCrashHandler and sets its mode from
 * the command-line switches "--debug-log" (log file, kept), "--with-debug"
 * (messages on stderr), "--debug-detailed" and "--debug-standard" (both standard
 * handling) and "--instrument-functions" (allows function-call tracing). The
 * switches are matched as whole arguments in that order, and each one replaces
 * the mode set by the one before: "--with-debug" after "--debug-log" stops the
 * log and deletes it at exit. It does not install a message handler: install
 * messageHandler() or noMessageOutput() yourself after constructing it.
 *
 * Every event dispatch is guarded: an exception that escapes an event handler
 * releases the memory reserve, runs the stop function, shows the "Out of memory"
 * dialog (for every kind of exception alike) and ends the event loop with exit
 * code 1 for std::bad_alloc, 2 for another std::exception and 3 for anything
 * else. The class has no meta-object, so its texts translate in the
 * QApplication context.
 */
class COMMONGUI_EXPORT KorvilBaseApplication : public QApplication
{
public:
    /**
     * Constructs the application from @p argc and @p argv, sets
     * @p applicationName and @p applicationVersion on it, and creates the
     * debug handler configured from the command line.
     */
    KorvilBaseApplication(int &argc, char **argv, QString applicationName,
                          QString applicationVersion);
    /**
     * Finishes the diagnostics (DebugCrashHandler::finish(): closes the log and
     * deletes it unless "--debug-log" is still in force, closes the trace file)
     * and deletes the debug handler.
     */
    ~KorvilBaseApplication() override;

    /**
     * Dispatches @p event to @p receiver as QApplication does, timing it when
     * setProcessingTime() is on, and turns an escaping exception into the
     * controlled exit described above; then it returns true.
     */
    bool notify(QObject *receiver, QEvent *event) override;

    /** Forwards @p kind unchanged to Helper::initSettings() of the sibling library CommonUtilities. */
    void initSettings(unsigned char kind);
    /**
     * Switches the timing of every event dispatch on or off; when on, dispatches
     * that take more than 10 ms are logged at debug level with the event type,
     * the receiver's object name and the milliseconds.
     */
    void setProcessingTime(bool on);
    /** Frees the memory reserve and runs the stop function, once per process; later calls do nothing. */
    void releaseEmergencyMemory();
    /** Sets the function run when the reserve is released, before the error dialog, to @p stop. */
    void setStopFunction(const std::function<void()> &stop);
    /**
     * Starts (@p on) or stops function-call tracing into a new trace file; does
     * nothing unless the tool was started with "--instrument-functions".
     */
    void onInstrumentFunctionChanged(bool on);
    /** Shows the modal "Out of memory" dialog and returns when it is closed. */
    void showMessageBox();

    /** Returns the debug handler the application created; it lives as long as the application. */
    DebugCrashHandler *debugCrashHandler() const { return m_debugHandler; }

private:
    DebugCrashHandler *m_debugHandler = nullptr;
    QElapsedTimer m_eventTimer;
    bool m_processingTime = false;
    bool m_failing = false;
    std::function<void()> m_stopFunction;
};
