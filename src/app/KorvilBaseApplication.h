// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QString>

#include <functional>

class DebugCrashHandler;

// The 200 MiB reserve taken when the library loads and handed back on failure so
// that the error dialog can still be shown. Freed once; the pointer is not cleared.
COMMONGUI_EXPORT extern char *_emergencyMemory;

class COMMONGUI_EXPORT KorvilBaseApplication : public QApplication
{
public:
    KorvilBaseApplication(int &argc, char **argv, QString applicationName,
                          QString applicationVersion);
    ~KorvilBaseApplication() override;

    bool notify(QObject *receiver, QEvent *event) override;

    // Forwarded unchanged to the sibling CommonUtilities library.
    void initSettings(unsigned char kind);
    // When on, every event dispatch is timed and those over 10 ms are logged.
    void setProcessingTime(bool on);
    // Frees the reserve and runs the stop function, once per process; later calls do nothing.
    void releaseEmergencyMemory();
    // Runs when the reserve is released, before the error dialog.
    void setStopFunction(const std::function<void()> &stop);
    void onInstrumentFunctionChanged(bool on);
    void showMessageBox();

    DebugCrashHandler *debugCrashHandler() const { return m_debugHandler; }

private:
    DebugCrashHandler *m_debugHandler = nullptr;
    QElapsedTimer m_eventTimer;
    bool m_processingTime = false;
    bool m_failing = false;
    std::function<void()> m_stopFunction;
};
