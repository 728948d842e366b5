// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Colouring a generated 50,000-line C file: AnsiCHighlighter on a document
// against the command-line "highlight" tool (Debian package "highlight") on
// the same file, both in lines per second. The peer is skipped when absent.
#include "AnsiCHighlighter.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextDocument>

#include <cstdio>

static QByteArray generateC(int lines)
{
    QByteArray text;
    text.reserve(lines * 40);
    text += "#include <stdio.h>\n#include <string.h>\n";
    int n = 2;
    for (int f = 0; n < lines; ++f) {
        text += "/* Handler number " + QByteArray::number(f) + " of the generated table. */\n";
        text += "static unsigned int handler_" + QByteArray::number(f) + "(const char *name, int count)\n{\n";
        text += "    int total = 0; // running sum\n";
        text += "    for (int i = 0; i < count; ++i)\n";
        text += "        total += strlen(name) * i;\n";
        text += "    printf(\"%s: %d\\n\", name, total);\n";
        text += "    return (unsigned int)total;\n}\n\n";
        n += 10;
    }
    return text;
}

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const int lines = 50000;
    const QByteArray source = generateC(lines);
    const int lineCount = source.count('\n');
    QTemporaryDir dir;
    const QString path = dir.filePath("generated.c");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(source) != source.size())
        return 1;
    file.close();

    double ours = 1e300;
    for (int round = 0; round < 3; ++round) {
        QTextDocument document;
        document.setPlainText(QString::fromUtf8(source));
        AnsiCHighlighter highlighter(&document);
        QElapsedTimer timer;
        timer.start();
        highlighter.rehighlight();
        ours = qMin(ours, timer.nsecsElapsed() / 1e9);
    }
    const double ourRate = lineCount / ours;

    const QString peer = QStandardPaths::findExecutable(QStringLiteral("highlight"));
    QString peerText = QStringLiteral("skipped (no highlight)");
    double ratio = 0;
    if (!peer.isEmpty()) {
        double best = 1e300;
        for (int round = 0; round < 3; ++round) {
            QProcess process;
            QElapsedTimer timer;
            timer.start();
            process.start(peer, { "--syntax=c", "--out-format=ansi", "-i", path, "-o", dir.filePath("out.ansi") });
            if (!process.waitForFinished(120000) || process.exitCode() != 0) {
                best = 0;
                break;
            }
            best = qMin(best, timer.nsecsElapsed() / 1e9);
        }
        if (best > 0) {
            const double peerRate = lineCount / best;
            peerText = QStringLiteral("%1 highlight").arg(peerRate, 0, 'f', 0);
            ratio = ourRate / peerRate;
        }
    }
    std::printf("%-44s | %-22s | %-22s | %.3f\n", "highlight 50k-line C file (lines/s, higher)",
                qPrintable(QStringLiteral("%1 AnsiC").arg(ourRate, 0, 'f', 0)), qPrintable(peerText), ratio);
    return 0;
}
