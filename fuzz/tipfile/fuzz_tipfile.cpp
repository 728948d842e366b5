// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Arbitrary tip files: parsed, then tips shown and stepped through in both
// directions, pictures and animations looked up under ":/totd/totd/".
#include "TipOfTheDay.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <memory>
#include <vector>

// One dialog reads many inputs (below), so memory grows from run to run by
// design and libFuzzer's hunt for a leak after each such run would only scan
// the heap again and again. Leaks are still reported when the process ends.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static std::vector<char *> args(*argv, *argv + *argc);
    static char noLeakHunt[] = "-detect_leaks=0";
    args.push_back(noLeakHunt);
    args.push_back(nullptr);
    *argc = int(args.size()) - 1;
    *argv = args.data();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *input, size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_tipfile";
    static char *argv[] = { name, nullptr };
    static QApplication *app = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return new QApplication(argc, argv);
    }();
    static QTemporaryDir dir(QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm/fuzz_tipfile-XXXXXX")
                                                                         : QDir::tempPath() + QStringLiteral("/fuzz_tipfile-XXXXXX"));
    (void)app;

    static const QString path = dir.filePath(QStringLiteral("tips.txt"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return 0;
    file.write(reinterpret_cast<const char *>(input), qint64(size));
    file.close();

    // Building the dialog costs far more than reading a file into it: one
    // dialog reads many inputs in turn (its tips pile up, as reading the file
    // again does), and a new one comes before they grow large.
    static std::unique_ptr<TipOfTheDay> tips;
    static int lines = 0;
    const unsigned char last = size ? input[0] : 0;
    const int added = int(QByteArray::fromRawData(reinterpret_cast<const char *>(input), int(size)).count('\n')) + 1;
    if (!tips || lines + added > 4096) {
        tips.reset();
        tips = std::make_unique<TipOfTheDay>(path, true, last);
        lines = added;
    } else {
        tips->parseTipFile();
        lines += added;
    }
    // Forward once and back twice from the tip the input names: both steps and,
    // from either end, both wrap-arounds.
    tips->showNewTip(last);
    tips->on_btnNext_clicked();
    tips->on_btnPrev_clicked();
    tips->on_btnPrev_clicked();
    return 0;
}
