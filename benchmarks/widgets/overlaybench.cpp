// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Cost of fitting the overlay's caption: the library's linear walk from 400 pt
// down in steps of 30 against a binary search over the same sizes, both with
// fresh font metrics per try. It is why small resizes skip the refit.
#include "TextOverlay.h"

#include <QApplication>
#include <QFontMetrics>

#include <chrono>
#include <cstdio>
#include <string>

namespace {

int binarySearchFit(const QString &text, const QRect &rect, const QFont &base)
{
    int lo = 0, hi = 13;  // sizes 10 + 30 * k
    QFont font = base;
    while (lo < hi) {
        const int mid = (lo + hi + 1) / 2;
        font.setPointSize(10 + 30 * mid);
        const QFontMetrics metrics(font);
        if (metrics.horizontalAdvance(text) <= rect.right() - rect.left()
            && metrics.height() <= rect.bottom() - rect.top())
            lo = mid;
        else
            hi = mid - 1;
    }
    return 10 + 30 * lo;
}

template<typename F>
double bestMicroseconds(F &&work, int calls, int rounds = 5)
{
    double best = 1e300;
    for (int r = 0; r < rounds; ++r) {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < calls; ++i)
            work(i);
        const double us = std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count() / calls;
        if (us < best)
            best = us;
    }
    return best;
}

}

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QString caption = QStringLiteral("Simulation mode");
    TextOverlay overlay(caption);
    const QFont base(QStringLiteral("Arial"), 400);
    volatile int sink = 0;
    const int calls = 400;

    // Areas vary so no size is answered from a cache of the last call.
    auto area = [](int i) { return QRect(QPoint(0, 0), QPoint(300 + (i % 7) * 150, 80 + (i % 5) * 60)); };
    const double ours = bestMicroseconds([&](int i) {
        const QRect r = area(i);
        overlay.setCoords(r.topLeft(), r.bottomRight());
        overlay.calcNewTextSize();
        sink = overlay.font().pointSize();
    }, calls);
    const double peer = bestMicroseconds([&](int i) { sink = binarySearchFit(caption, area(i), base); }, calls);
    (void)sink;

    std::printf("%-44s | %-22s | %-22s | %.3f\n", "overlay font fit (us/fit, vs binary search)",
                std::to_string(ours).c_str(), std::to_string(peer).c_str(), ours / peer);
    return 0;
}
