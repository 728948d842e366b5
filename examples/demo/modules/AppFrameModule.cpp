// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// The application frame: tracing on and off, slow-event timing, the log file.
#include "DemoModule.h"
#include "DemoWindow.h"

#include "DebugCrashHandler.h"
#include "KorvilBaseApplication.h"

#include <QAction>
#include <QMenu>

static DemoModuleRegistrar registrar({ QString::fromLatin1(QT_TRANSLATE_NOOP("DemoModule", "Application frame")), 0, [](DemoWindow *window) {
    auto app = static_cast<KorvilBaseApplication *>(qApp);
    QMenu *diagnostics = window->toolsMenu()->addMenu(QObject::tr("&Diagnostics"));
    QAction *trace = diagnostics->addAction(QObject::tr("Record function &trace"));
    trace->setCheckable(true);
    trace->setEnabled(window->arguments().contains(QStringLiteral("--instrument-functions")));
    QObject::connect(trace, &QAction::toggled, window, [app, window](bool on) {
        app->onInstrumentFunctionChanged(on);
        window->log(on ? QObject::tr("Function trace started") : QObject::tr("Function trace stopped"));
    });
    QAction *timing = diagnostics->addAction(QObject::tr("Log &slow events"));
    timing->setCheckable(true);
    QObject::connect(timing, &QAction::toggled, window, [app](bool on) { app->setProcessingTime(on); });
    const QString log = app->debugCrashHandler()->debugLogFileName();
    window->log(log.isEmpty() ? QObject::tr("No debug log (start with --debug-log)")
                              : QObject::tr("Debug log: %1").arg(log));
} });
