// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// The hex editor on a 16 MiB image: the readable dump against xxd over the same
// bytes, and the paint time of one screen at the end against the start.
#include "QHexEdit.h"
#include "XByteArray.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>

namespace {

const int s_imageSize = 16 * 1024 * 1024;

QByteArray image()
{
    QByteArray bytes(s_imageSize, '\0');
    quint32 x = 0x12345678;
    for (int i = 0; i < bytes.size(); ++i) {
        x = x * 1664525u + 1013904223u;
        bytes[i] = char(x >> 24);
    }
    return bytes;
}

double bestMs(int rounds, const std::function<void()> &work)
{
    double best = 1e300;
    for (int r = 0; r < rounds; ++r) {
        QElapsedTimer timer;
        timer.start();
        work();
        best = std::min(best, timer.nsecsElapsed() / 1e6);
    }
    return best;
}

double residentMiB()
{
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = statm.readAll().split(' ');
    return fields.size() > 1 ? fields.at(1).toDouble() * 4096 / (1024 * 1024) : 0;
}

void row(const char *name, double ours, double peer)
{
    std::printf("%-44s | %-22.3f | %-22.3f | %.3f\n", name, ours, peer, ours / peer);
}

}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QByteArray bytes = image();

    // Dump: both produce the full text of 16 MiB; xxd writes it to a file.
    QTemporaryDir dir;
    const QString input = dir.filePath(QStringLiteral("image.bin"));
    QFile file(input);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return 1;
    file.close();
    XByteArray buffer;
    buffer.setData(bytes);
    qsizetype dumpLength = 0;
    const double ours = bestMs(3, [&] { dumpLength = buffer.toRedableString(0, -1).size(); });
    const QString xxd = QStandardPaths::findExecutable(QStringLiteral("xxd"));
    if (xxd.isEmpty()) {
        std::printf("%-44s | %-22.3f | %-22s | %s\n", "toRedableString 16 MiB (ms)", ours, "no xxd", "-");
    } else {
        const double peer = bestMs(3, [&] {
            QProcess process;
            process.start(xxd, { input, dir.filePath(QStringLiteral("image.txt")) });
            process.waitForFinished(-1);
        });
        row("toRedableString 16 MiB vs xxd (ms)", ours, peer);
    }
    if (dumpLength == 0)
        return 1;

    const double residentBefore = residentMiB();
    QHexEdit edit;
    QElapsedTimer timer;
    timer.start();
    edit.setData(bytes);
    const double load = timer.nsecsElapsed() / 1e6;
    edit.resize(900, 700);
    edit.show();
    QApplication::processEvents();

    // One full repaint of the viewport into an image, as the screen would get it.
    QImage target(edit.viewport()->size(), QImage::Format_ARGB32_Premultiplied);
    auto paintOnce = [&] {
        for (int i = 0; i < 20; ++i)
            edit.viewport()->render(&target);
    };
    edit.verticalScrollBar()->setValue(0);
    const double start = bestMs(5, paintOnce) / 20;
    edit.verticalScrollBar()->setValue(edit.verticalScrollBar()->maximum());
    const double end = bestMs(5, paintOnce) / 20;
    row("paint one screen, end vs start of 16 MiB (ms)", end, start);

    // Typing at the end of the image: one command, one repaint.
    edit.setCursorPosition(edit.size() - 1);
    const double key = bestMs(5, [&] {
        for (int i = 0; i < 20; ++i) {
            edit.replace(edit.size() - 1, QByteArray(1, char(i)));
            edit.viewport()->render(&target);
        }
    }) / 20;
    row("edit a byte + repaint at 16 MiB vs paint (ms)", key, end);
    // After the edits the editor holds its own copy of the bytes plus the marks.
    row("editor memory vs data size (MiB)", residentMiB() - residentBefore, s_imageSize / (1024.0 * 1024.0));
    std::printf("%-44s | %-22.3f | %-22s | %s\n", "setData 16 MiB (ms)", load, "-", "-");
    return 0;
}
