// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Configuring a whole data sheet: open, a value on every sub-object, write.
// A sheet four times larger should cost about four times as much.
#include "DCFWriter.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

static QByteArray sheet(int objects)
{
    QByteArray text = "; generated data sheet\r\n[FileInfo]\r\nFileName=bench.eds\r\n\r\n";
    for (int i = 0; i < objects; ++i) {
        const QByteArray index = QByteArray::number(0x2000 + i, 16).toUpper();
        text += "[" + index + "]\r\nParameterName=Object " + QByteArray::number(i)
            + "\r\nObjectType=0x9\r\nSubNumber=3\r\n\r\n";
        for (int sub = 0; sub < 3; ++sub) {
            text += "[" + index + "sub" + QByteArray::number(sub) + "]\r\nParameterName=Entry "
                + QByteArray::number(sub) + "\r\nObjectType=0x7\r\nDataType=0x0007\r\nAccessType=rw\r\n"
                + "DefaultValue=0\r\nPDOMapping=1\r\nParameterValue=0x5\r\n\r\n";
        }
    }
    return text;
}

static double bestSeconds(const QString &file, const QByteArray &text, int objects, int rounds)
{
    double best = 1e300;
    for (int r = 0; r < rounds; ++r) {
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return -1;
        out.write(text);
        out.close();
        QElapsedTimer timer;
        timer.start();
        {
            DCFWriter writer;
            writer.setDCFFile(file);
            for (int i = 0; i < objects; ++i) {
                for (int sub = 0; sub < 3; ++sub)
                    writer.setParameterValue(quint16(0x2000 + i), quint8(sub), QString::number(i + sub),
                                             QStringLiteral("Configured"));
            }
            writer.writeFile();
        }
        const double s = timer.nsecsElapsed() / 1e9;
        if (s < best)
            best = s;
    }
    return best;
}

// Each size runs in a process of its own, so neither inherits the other's heap.
static double childSeconds(const QString &self, int objects)
{
    QProcess child;
    child.start(self, { QStringLiteral("--objects"), QString::number(objects) });
    if (!child.waitForFinished(120000) || child.exitCode() != 0)
        return -1;
    return child.readAllStandardOutput().trimmed().toDouble();
}

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() == 3 && args.at(1) == QLatin1String("--objects")) {
        const int objects = args.at(2).toInt();
        QTemporaryDir dir;
        const double s = bestSeconds(dir.filePath(QStringLiteral("bench.eds")), sheet(objects), objects, 5);
        std::printf("%.9f\n", s);
        return s < 0 ? 1 : 0;
    }
    const int small = 1000, large = 4000;
    double tSmall = 1e300, tLarge = 1e300;
    // Alternate the sizes so both see the same machine state.
    for (int round = 0; round < 3; ++round) {
        const double a = childSeconds(app.applicationFilePath(), small);
        const double b = childSeconds(app.applicationFilePath(), large);
        if (a <= 0 || b <= 0) {
            std::fprintf(stderr, "dcf configure: a measuring run failed\n");
            return 1;
        }
        tSmall = std::min(tSmall, a);
        tLarge = std::min(tLarge, b);
    }
    const double ours = large / tLarge, peer = small / tSmall;
    std::printf("%-44s | %-22.0f | %-22.0f | %.3f\n", "dcf configure 4000 vs 1000 objects (obj/s)",
                ours, peer, ours / peer);
    const double growth = tLarge / tSmall;
    if (growth > 4.5)
        std::fprintf(stderr, "dcf configure: 4x the objects cost %.2fx the time (limit 4.5)\n", growth);
    return 0;
}
