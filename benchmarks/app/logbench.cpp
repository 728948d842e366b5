// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Debug-log throughput: messages through messageHandler into the log file (each
// stands there twice) against a plain fprintf loop writing the same two lines.
#include "DebugCrashHandler.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>

int main(int argc, char **argv)
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    QCoreApplication app(argc, argv);
    app.setApplicationName(QStringLiteral("Log Bench"));
    const int messages = 200000;

    double oursBest = 0, peerBest = 0;
    for (int round = 0; round < 3; ++round) {
        DebugCrashHandler handler(nullptr);
        handler.setDebugHandlingType(DebugCrashHandler::LogFile);
        qInstallMessageHandler(messageHandler);
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < messages; ++i)
            qDebug("SDO upload of 0x%04x sub %d from node %d", 0x1000 + (i & 0xff), i & 7, 5);
        const double ours = 2.0 * messages / (timer.nsecsElapsed() / 1e9);
        qInstallMessageHandler(nullptr);
        handler.finish();

        FILE *peer = std::fopen(QString(home.path() + "/peer.log").toLocal8Bit().constData(), "w");
        timer.start();
        for (int i = 0; i < messages; ++i) {
            const QByteArray stamp = QDateTime::currentDateTime()
                                             .toString(QStringLiteral("yyyy.MM.dd\thh:mm:ss:zzz"))
                                             .toUtf8();
            for (int twice = 0; twice < 2; ++twice) {
                std::fprintf(peer, "%s\t\tSDO upload of 0x%04x sub %d from node %d\n",
                             stamp.constData(), 0x1000 + (i & 0xff), i & 7, 5);
            }
        }
        std::fclose(peer);
        const double plain = 2.0 * messages / (timer.nsecsElapsed() / 1e9);
        oursBest = std::max(oursBest, ours);
        peerBest = std::max(peerBest, plain);
    }
    std::printf("%-44s | %-22.0f | %-22.0f | %.3f\n", "debug log (lines/s, peer: fprintf loop)",
                oursBest, peerBest, oursBest / peerBest);
    return 0;
}
