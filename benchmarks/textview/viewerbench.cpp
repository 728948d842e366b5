// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Opening a 5 MB C file in the viewer (read, set, highlight, lay out) against
// putting the same text into a bare QTextEdit with setPlainText.
#include "FileViewerDialog.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextEdit>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("big.c"));
    QByteArray text;
    for (int i = 0; text.size() < 5 * 1000 * 1000; ++i) {
        text += "/* node " + QByteArray::number(i) + " */\n"
                "static int handler_" + QByteArray::number(i) + "(int value) { return value * 2 + 0x1F; }\n"
                "#define OBJ_" + QByteArray::number(i) + " \"object\"\n";
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        return 1;
    file.close();

    double ours = 1e300, peer = 1e300;
    for (int round = 0; round < 3; ++round) {
        QElapsedTimer timer;
        timer.start();
        {
            FileViewerDialog viewer(path);
            viewer.resize(900, 700);
            viewer.show();
            QApplication::processEvents();
        }
        ours = std::min(ours, timer.nsecsElapsed() / 1e6);

        timer.start();
        {
            QFile in(path);
            in.open(QIODevice::ReadOnly);
            QTextEdit edit;
            edit.setPlainText(QString::fromUtf8(in.readAll()));
            edit.resize(900, 700);
            edit.show();
            QApplication::processEvents();
        }
        peer = std::min(peer, timer.nsecsElapsed() / 1e6);
    }
    std::printf("%-44s | %-22.0f | %-22.0f | %.3f\n", "file viewer open 5 MB C file (ms)", ours, peer,
                ours / peer);
    return 0;
}
