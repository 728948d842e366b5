// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Runs the actions named on its command line ("@action[:arg]") inside a
// KorvilBaseApplication, so tests can watch the real process: exit code,
// stderr, files.
#include "DebugCrashHandler.h"
#include "KorvilBaseApplication.h"

#include <CommonUtilities/Helper.h>

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QEvent>
#include <QMessageBox>
#include <QTimer>

#include <cstdio>
#include <memory>
#include <dlfcn.h>
#include <new>
#include <stdexcept>

namespace {

void spin(int microseconds)
{
    QElapsedTimer t;
    t.start();
    while (t.nsecsElapsed() < qint64(microseconds) * 1000) {
    }
}

class Thrower : public QObject
{
public:
    QStringList kinds;  // one per event, in turn
    int spinMicroseconds = 0;

    bool event(QEvent *e) override
    {
        if (e->type() != QEvent::User)
            return QObject::event(e);
        const QString kind = kinds.isEmpty() ? QString() : kinds.takeFirst();
        if (kind == QLatin1String("badalloc"))
            throw std::bad_alloc();
        if (kind == QLatin1String("runtime"))
            throw std::runtime_error("probe failure");
        if (kind == QLatin1String("int"))
            throw 42;
        spin(spinMicroseconds);
        return true;
    }
};

// Slow to go: its deferred deletion is a slow event whose receiver is gone after it.
class Doomed : public QObject
{
public:
    int spinMicroseconds = 0;
    ~Doomed() override { spin(spinMicroseconds); }
};

// Speaks while it goes, after the application object is gone.
class LateTalker : public QObject
{
public:
    ~LateTalker() override { qWarning("late message"); }
};

// Marker functions the trace test resolves with addr2line.
__attribute__((noinline)) int probeTraceMarkerInner(int x)
{
    return x * 3 + 1;
}

__attribute__((noinline)) int probeTraceMarker(int x)
{
    return probeTraceMarkerInner(x) + probeTraceMarkerInner(x + 1);
}

}

int main(int argc, char **argv)
{
    QString name = QStringLiteral("Probe Tool");
    for (int i = 1; i < argc; ++i) {
        if (qstrncmp(argv[i], "@name:", 6) == 0)
            name = QString::fromLocal8Bit(argv[i] + 6);
    }
    std::unique_ptr<LateTalker> late;  // outlives the application object
    KorvilBaseApplication app(argc, argv, name, QStringLiteral("1.2.3"));
    qInstallMessageHandler(messageHandler);
    DebugCrashHandler *handler = app.debugCrashHandler();

    Dl_info info;
    if (dladdr(reinterpret_cast<void *>(&probeTraceMarker), &info))
        printf("base %p\n", info.dli_fbase);

    Thrower thrower;
    thrower.setObjectName(QStringLiteral("thrower"));
    bool runLoop = false;
    const QStringList args = app.arguments();
    for (const QString &arg : args) {
        if (!arg.startsWith(QLatin1Char('@')))
            continue;
        const QString action = arg.mid(1).section(QLatin1Char(':'), 0, 0);
        const QString value = arg.section(QLatin1Char(':'), 1);
        if (action == QLatin1String("msg")) {
            qDebug("%s", qPrintable(value));
        } else if (action == QLatin1String("warn")) {
            qWarning("%s", qPrintable(value));
        } else if (action == QLatin1String("type")) {
            printf("type %d\n", handler->debugHandlingType());
        } else if (action == QLatin1String("settype")) {
            handler->setDebugHandlingType(DebugCrashHandler::DebugHandlingType(value.toInt()));
        } else if (action == QLatin1String("update")) {
            handler->updateLogType(DebugCrashHandler::DebugHandlingType(value.toInt()));
        } else if (action == QLatin1String("logfile")) {
            printf("logfile %s\n", qPrintable(handler->debugLogFileName()));
        } else if (action == QLatin1String("trace")) {
            app.onInstrumentFunctionChanged(value == QLatin1String("on"));
        } else if (action == QLatin1String("call")) {
            printf("marker %d\n", probeTraceMarker(value.toInt()));
        } else if (action == QLatin1String("settings")) {
            app.initSettings(static_cast<unsigned char>(value.toInt()));
            printf("settings %d\n", Helper::lastSettingsKind());
        } else if (action == QLatin1String("throw")) {
            // Several kinds: the later ones throw while the first failure's box is open.
            thrower.kinds = value.split(QLatin1Char(','));
            app.setStopFunction([] { printf("stop function\n"); fflush(stdout); });
            for (int i = 0; i < thrower.kinds.size(); ++i)
                QCoreApplication::postEvent(&thrower, new QEvent(QEvent::User));
            runLoop = true;
        } else if (action == QLatin1String("slowdelete")) {
            auto doomed = new Doomed;
            doomed->setObjectName(QStringLiteral("doomed"));
            doomed->spinMicroseconds = value.toInt();
            app.setProcessingTime(true);
            doomed->deleteLater();
            QCoreApplication::sendPostedEvents(doomed, QEvent::DeferredDelete);
            app.setProcessingTime(false);
        } else if (action == QLatin1String("late")) {
            late = std::make_unique<LateTalker>();
        } else if (action == QLatin1String("slow")) {
            app.setProcessingTime(true);
            thrower.spinMicroseconds = value.toInt();
            QCoreApplication::postEvent(&thrower, new QEvent(QEvent::User));
            QCoreApplication::sendPostedEvents(&thrower, QEvent::User);
            app.setProcessingTime(false);
        }
    }
    fflush(stdout);
    if (!runLoop)
        return 0;

    // Answers the modal error box the way a user would.
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, [] {
        if (QWidget *w = QApplication::activeModalWidget()) {
            if (auto box = qobject_cast<QMessageBox *>(w)) {
                printf("box %s|%s|%d\n", qPrintable(box->windowTitle()),
                       qPrintable(box->text().replace(QLatin1Char('\n'), QLatin1String("\\n"))),
                       int(box->icon()));
                fflush(stdout);
                box->buttons().first()->click();
            }
        }
    });
    closer.start(20);
    QTimer::singleShot(10000, [] { QCoreApplication::exit(99); });
    return app.exec();
}
