// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Arbitrary tip files: parsed, then every tip shown and stepped through in both
// directions, pictures and animations looked up under ":/totd/totd/".
#include "TipOfTheDay.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *input, size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_tipfile";
    static char *argv[] = { name, nullptr };
    static QApplication *app = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return new QApplication(argc, argv);
    }();
    static QTemporaryDir dir;
    (void)app;

    const QString path = dir.filePath(QStringLiteral("tips.txt"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return 0;
    file.write(reinterpret_cast<const char *>(input), qint64(size));
    file.close();

    const unsigned char last = size ? input[0] : 0;
    TipOfTheDay tips(path, true, last);
    for (int i = 0; i < 3; ++i)
        tips.on_btnNext_clicked();
    for (int i = 0; i < 5; ++i)
        tips.on_btnPrev_clicked();
    tips.showNewTip(last);
    return 0;
}
