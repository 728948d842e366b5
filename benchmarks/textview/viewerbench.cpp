// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Opening a 5 MB C file in the viewer (read, set, colour, show) against what
// any viewer must do: read the file into a QTextEdit with a highlighter that
// colours nothing, and show it.
#include "FileViewerDialog.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSyntaxHighlighter>
#include <QTemporaryDir>
#include <QTextEdit>

#include <cstdio>

namespace {

class NoOpHighlighter : public QSyntaxHighlighter
{
public:
    using QSyntaxHighlighter::QSyntaxHighlighter;

protected:
    void highlightBlock(const QString &) override {}
};

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
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
            in.open(QIODevice::ReadOnly | QIODevice::Text);
            QTextEdit edit;
            edit.setPlainText(QString::fromUtf8(in.readAll()));
            new NoOpHighlighter(edit.document());
            edit.resize(900, 700);
            edit.show();
            QApplication::processEvents();
        }
        peer = std::min(peer, timer.nsecsElapsed() / 1e6);
    }
    std::printf("%-44s | %-22s | %-22s | %.3f\n", "file viewer open 5 MB C file (ms)",
                qPrintable(QStringLiteral("%1 FileViewerDialog").arg(ours, 0, 'f', 0)),
                qPrintable(QStringLiteral("%1 no-op highlighter").arg(peer, 0, 'f', 0)), ours / peer);
    return 0;
}
