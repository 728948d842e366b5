// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// The hex editor: the readable dump of 16 MiB against xxd over the same bytes;
// on a 256 MiB image opening against a copy of the data, find against memmem,
// paint at the end against the start, and the memory it takes.
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
#include <cstdlib>
#include <cstring>
#include <functional>

namespace {

const int s_imageSize = 16 * 1024 * 1024;
const int s_bigSize = 256 * 1024 * 1024;

void fill(QByteArray &bytes)
{
    quint32 x = 0x12345678;
    char *p = bytes.data();
    for (int i = 0; i < bytes.size(); ++i) {
        x = x * 1664525u + 1013904223u;
        p[i] = char(x >> 24);
    }
}

QByteArray image()
{
    QByteArray bytes(s_imageSize, '\0');
    fill(bytes);
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

    // The editor on a 256 MiB image: open and first paint, find, paint, edit, memory.
    QByteArray big(s_bigSize, '\0');
    fill(big);
    const QByteArray pattern("\xc0\xff\xee\x42", 4);
    if (memmem(big.constData(), size_t(big.size()), pattern.constData(), 4))
        return 1;  // the pattern must occur only where it is put: at the very end
    big.replace(big.size() - 4, 4, pattern);

    // Open: the peer is the plain copy of the bytes, which any host holding
    // its own image pays; ours is setData() plus laying out and painting a screen.
    QImage target(QSize(900, 700), QImage::Format_ARGB32_Premultiplied);
    const double copy = bestMs(3, [&] {
        QByteArray copied(big.constData(), big.size());
        if (copied.at(1) != big.at(1))
            std::abort();
    });
    const double open = bestMs(3, [&] {
        QHexEdit edit;
        edit.resize(900, 700);
        edit.setData(big);
        edit.viewport()->render(&target);
    });
    row("open + first paint 256 MiB vs data copy (ms)", open, copy);

    const double residentBefore = residentMiB();
    QHexEdit edit;
    edit.setData(big);
    edit.resize(900, 700);
    edit.show();
    QApplication::processEvents();

    int found = 0;
    const double findOurs = bestMs(5, [&] { found = edit.indexOf(pattern); });
    const void *hit = nullptr;
    const double findPeer = bestMs(5, [&] { hit = memmem(big.constData(), size_t(big.size()), pattern.constData(), 4); });
    const double qt = bestMs(5, [&] { found += big.indexOf(pattern) - found; });
    if (found != big.size() - 4 || !hit)
        return 1;
    row("indexOf 4 bytes in 256 MiB vs memmem (ms)", findOurs, findPeer);
    row("indexOf 4 bytes in 256 MiB vs QByteArray (ms)", findOurs, qt);

    // One full repaint of the viewport into an image, as the screen would get it.
    auto paintOnce = [&] {
        for (int i = 0; i < 20; ++i)
            edit.viewport()->render(&target);
    };
    edit.verticalScrollBar()->setValue(0);
    const double start = bestMs(5, paintOnce) / 20;
    edit.verticalScrollBar()->setValue(edit.verticalScrollBar()->maximum());
    const double end = bestMs(5, paintOnce) / 20;
    row("paint one screen, end vs start of 256 MiB (ms)", end, start);

    // Typing at the end of the image: one command, one repaint.
    edit.setCursorPosition(edit.size() - 1);
    const double key = bestMs(5, [&] {
        for (int i = 0; i < 20; ++i) {
            edit.replace(edit.size() - 1, QByteArray(1, char(i)));
            edit.viewport()->render(&target);
        }
    }) / 20;
    row("edit a byte + repaint at 256 MiB vs paint (ms)", key, end);
    // After the edits the editor holds its own copy of the bytes plus the marks.
    row("editor memory vs data size (MiB)", residentMiB() - residentBefore, s_bigSize / (1024.0 * 1024.0));
    return 0;
}
