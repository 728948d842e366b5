// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QObject>
#include <QString>
#include <QtGlobal>

class QFile;
class QTextStream;

class COMMONGUI_EXPORT DebugCrashHandler : public QObject
{
    Q_OBJECT

public:
    enum DebugHandlingType {
        PrintOutput = 1,
        DefaultHandling = 2,
        StandardHandling = 4,
        LogFile = 8,
        InstrumentFunctions = 16,
        PrintDetailed = 32
    };

    explicit DebugCrashHandler(QObject *parent);
    // Closing and removing the log is finish()'s work; this only frees memory.
    ~DebugCrashHandler() override;

    void setDebugHandlingType(DebugHandlingType type);
    // ORs the bits in; the only way to reach PrintDetailed.
    void updateLogType(DebugHandlingType type);
    int debugHandlingType() const { return m_type; }

    void initDebugLogfile();
    void closeDebugLogfile();
    void removeDebugLogfile();
    QString debugLogFileName() const;

    void handleDebugOut(QtMsgType type, const QMessageLogContext &context, const QString &msg);
    void logDebugOutput(QtMsgType type, const QString &msg);
    void printDebugOutput(QtMsgType type, const QMessageLogContext &context, const QString &msg);
    void printDebugOutputDetailed(QtMsgType type, const QMessageLogContext &context,
                                  const QString &msg);

    void finish();

    void initFunctionTrace();
    void deInitFunctiontrace();
    void setInstrumentFunctions(bool on);

private:
    QFile *m_logFile = nullptr;
    QTextStream *m_logStream = nullptr;
    int m_type = DefaultHandling;
};

// Forwards every message to the most recently constructed DebugCrashHandler.
// Install it only after the application object exists. Once that handler is
// gone, messages reach only the console forms it had switched on.
COMMONGUI_EXPORT void messageHandler(QtMsgType type, const QMessageLogContext &context,
                                     const QString &msg);
// Silences all Qt messages.
COMMONGUI_EXPORT void noMessageOutput(QtMsgType type, const QMessageLogContext &context,
                                      const QString &msg);
