// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "KorvilBaseApplication.h"

#include "DebugCrashHandler.h"

#include <CommonUtilities/Helper.h>

#include <QDebug>
#include <QMessageBox>
#include <QPushButton>

#include <exception>
#include <new>

char *_emergencyMemory = new char[209715200];

KorvilBaseApplication::KorvilBaseApplication(int &argc, char **argv, QString applicationName,
                                             QString applicationVersion)
    : QApplication(argc, argv)
{
    QCoreApplication::setApplicationName(applicationName);
    QCoreApplication::setApplicationVersion(applicationVersion);
    m_debugHandler = new DebugCrashHandler(this);

    // Each switch replaces the type rather than adding to it; later switches win.
    struct Switch { const char *name; DebugCrashHandler::DebugHandlingType type; };
    static const Switch switches[] = {
        { "--debug-log", DebugCrashHandler::LogFile },
        { "--with-debug", DebugCrashHandler::PrintOutput },
        { "--debug-detailed", DebugCrashHandler::StandardHandling },
        { "--debug-standard", DebugCrashHandler::StandardHandling },
        { "--instrument-functions", DebugCrashHandler::InstrumentFunctions },
    };
    for (const Switch &s : switches) {
        if (QCoreApplication::arguments().contains(QLatin1String(s.name)))
            m_debugHandler->setDebugHandlingType(s.type);
    }
}

KorvilBaseApplication::~KorvilBaseApplication()
{
    m_debugHandler->finish();
    qDebug() << "virtual KorvilBaseApplication::~KorvilBaseApplication()" << "Line:" << __LINE__;
    delete m_debugHandler;
    m_debugHandler = nullptr;
}

bool KorvilBaseApplication::notify(QObject *receiver, QEvent *event)
{
    int code = 0;
    try {
        if (!m_processingTime)
            return QApplication::notify(receiver, event);
        // Taken before dispatch: the event may delete its receiver (and itself).
        const QByteArray name = receiver->objectName().toLocal8Bit();
        const int type = int(event->type());
        m_eventTimer.start();
        const bool result = QApplication::notify(receiver, event);
        const qint64 elapsed = m_eventTimer.elapsed();
        if (elapsed > 10)
            qDebug("processing event type %d for object %s took %dms", type, name.constData(), int(elapsed));
        return result;
    } catch (const std::bad_alloc &e) {
        qWarning("bad_alloc exception: %s", e.what());
        code = 1;
    } catch (const std::exception &e) {
        qWarning("exception: %s", e.what());
        code = 2;
    } catch (...) {
        qWarning("exception");
        code = 3;
    }
    // A failure while the first one is being reported (its box runs an event
    // loop) changes nothing: one release, one box, the first exit code.
    if (m_failing)
        return true;
    m_failing = true;
    // Whatever escaped, the user sees the out-of-memory box: the reserve was
    // given back for it.
    releaseEmergencyMemory();
    showMessageBox();
    QCoreApplication::exit(code);
    return true;
}

void KorvilBaseApplication::initSettings(unsigned char kind)
{
    Helper::initSettings(kind);
}

void KorvilBaseApplication::setProcessingTime(bool on)
{
    m_processingTime = on;
}

void KorvilBaseApplication::releaseEmergencyMemory()
{
    static bool released = false;
    if (released)
        return;
    released = true;
    delete[] _emergencyMemory;
    if (m_stopFunction)
        m_stopFunction();
}

void KorvilBaseApplication::setStopFunction(const std::function<void()> &stop)
{
    m_stopFunction = stop;
}

void KorvilBaseApplication::onInstrumentFunctionChanged(bool on)
{
    if (m_debugHandler)
        m_debugHandler->setInstrumentFunctions(on);
}

void KorvilBaseApplication::showMessageBox()
{
    QMessageBox box(QMessageBox::Critical, QApplication::tr("Out of memory"),
                    QStringLiteral("The application run out of memory.\n"
                                   "This could occure when handling a large amount of data.\n"
                                   "Please check the performance settings in the settings dialog.\n"
                                   "\n"
                                   "The application will close now."),
                    QMessageBox::NoButton, nullptr);
    box.addButton(QApplication::tr("OK"), QMessageBox::RejectRole);
    box.exec();
}
