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
    // Lines are read one at a time and alike, so the first 64 of an input
    // stand for the rest; a dialog then takes several inputs before it is full.
    const char *text = reinterpret_cast<const char *>(input);
    int lines = 0;
    for (size_t i = 0; i < size; ++i) {
        if (text[i] == '\n' && ++lines == 64) {
            size = i + 1;
            break;
        }
    }
    file.write(text, qint64(size));
    file.close();

    // Building the dialog costs far more than reading a file into it: one
    // dialog reads inputs in turn (its tips pile up, as reading a file again
    // does) until this input's tips would lie beyond what an 8-bit index reaches.
    static std::unique_ptr<TipOfTheDay> tips;
    static int count = 0;
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(input), int(size));
    // One tip per line read; a last line without a break counts too.
    const int added = int(bytes.count('\n')) + (bytes.isEmpty() || bytes.endsWith('\n') ? 0 : 1);
    const unsigned char pick = size ? input[0] : 0;
    int first = count;
    if (!tips || count + added > 256) {
        tips.reset();
        tips = std::make_unique<TipOfTheDay>(path, true, pick);
        first = 0;
        count = added;
    } else {
        tips->parseTipFile();
        count += added;
    }
    // One of this input's tips, then forward once and back twice: both steps
    // and, from either end, both wrap-arounds.
    tips->showNewTip(static_cast<unsigned char>(first + (added ? pick % added : 0)));
    tips->on_btnNext_clicked();
    tips->on_btnPrev_clicked();
    tips->on_btnPrev_clicked();
    // As an event loop would: what the steps posted is delivered, not piled up.
    QCoreApplication::sendPostedEvents();
    return 0;
}
