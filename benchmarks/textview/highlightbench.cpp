// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Colouring a generated 50,000-line C file (document filled, highlighter
// attached, every block coloured) against kate-syntax-highlighter colouring the
// same file, whole process. Then each other highlighter on a file of its own
// kind, per line, against the C highlighter per line.
#include "AnsiCHighlighter.h"
#include "DBCHighlighter.h"
#include "EdsHighlighter.h"
#include "PlcHighlighter.h"
#include "XMLHighlighter.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextDocument>

#include <cstdio>
#include <functional>

namespace {

QByteArray generate(int lines, const std::function<QByteArray(int)> &unit)
{
    QByteArray text;
    for (int u = 0; text.count('\n') < lines; ++u)
        text += unit(u);
    return text;
}

QByteArray cUnit(int f)
{
    const QByteArray n = QByteArray::number(f);
    return "/* Handler number " + n + " of the generated table. */\n"
           "static unsigned int handler_" + n + "(const char *name, int count)\n{\n"
           "    int total = 0; // running sum\n"
           "    for (int i = 0; i < count; ++i)\n"
           "        total += strlen(name) * i;\n"
           "    printf(\"%s: %d\\n\", name, total);\n"
           "    return (unsigned int)total;\n}\n\n";
}

QByteArray edsUnit(int i)
{
    const QByteArray index = QByteArray::number(0x2000 + i, 16).toUpper();
    return "[" + index + "]\nParameterName=Value " + QByteArray::number(i) + "\nObjectType=0x7\n"
           "DataType=0x0007 ; UNSIGNED32\nAccessType=rw\nDefaultValue=0\nPDOMapping=1\n"
           "ParameterValue=0x" + index + "\nDenotation=\"node " + QByteArray::number(i) + "\"\n\n";
}

QByteArray dbcUnit(int i)
{
    const QByteArray n = QByteArray::number(i);
    return "BO_ " + n + " Message_" + n + ": 8 Node1\n"
           " SG_ Signal_" + n + " : 0|16@1+ (0.1,0) [0|6553.5] \"km/h\" Vector__XXX\n"
           "CM_ SG_ " + n + " Signal_" + n + " \"Speed of SPN " + n + "\";\n"
           "BA_ \"GenMsgCycleTime\" BO_ " + n + " 100;\n\n";
}

QByteArray plcUnit(int i)
{
    const QByteArray n = QByteArray::number(i);
    return "VAR_EXTERNAL\n    speed_" + n + " : INT; (* km/h *)\n    count_" + n + " : UDINT;\n"
           "    name_" + n + " : STRING; flags_" + n + " : WORD;\nEND_VAR\n";
}

QByteArray xmlUnit(int i)
{
    const QByteArray n = QByteArray::number(i);
    return "  <object index=\"" + n + "\" name=\"Value " + n + "\">\n"
           "    <access type=\"rw\"/> <!-- int -->\n  </object>\n";
}

template<typename Highlighter>
double colourSeconds(const QByteArray &source)
{
    double best = 1e300;
    for (int round = 0; round < 3; ++round) {
        QElapsedTimer timer;
        timer.start();
        QTextDocument document;
        document.setPlainText(QString::fromUtf8(source));
        Highlighter highlighter(&document);
        highlighter.rehighlight();
        best = qMin(best, timer.nsecsElapsed() / 1e9);
    }
    return best;
}

void row(const char *name, const QString &ours, const QString &peer, double ratio)
{
    std::printf("%-44s | %-22s | %-22s | %.3f\n", name, qPrintable(ours), qPrintable(peer), ratio);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QByteArray source = generate(50000, cUnit);
    const int cLines = source.count('\n');
    QTemporaryDir dir;
    const QString path = dir.filePath("generated.c");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(source) != source.size())
        return 1;
    file.close();

    const double ours = colourSeconds<AnsiCHighlighter>(source);
    const QString peer = QStandardPaths::findExecutable(QStringLiteral("kate-syntax-highlighter"));
    if (peer.isEmpty()) {
        row("C colouring, 50k lines (ms)", QString::number(ours * 1e3, 'f', 1), "skipped (no peer)", 0);
    } else {
        double best = 1e300;
        for (int round = 0; round < 3; ++round) {
            QProcess process;
            QElapsedTimer timer;
            timer.start();
            process.start(peer, { "-s", "C", "-f", "ansi", "-o", dir.filePath("out.ansi"), path });
            if (!process.waitForFinished(120000) || process.exitCode() != 0) {
                std::fprintf(stderr, "%s failed\n", qPrintable(peer));
                return 1;
            }
            best = qMin(best, timer.nsecsElapsed() / 1e9);
        }
        row("C colouring, 50k lines (ms)", QStringLiteral("%1 AnsiC").arg(ours * 1e3, 0, 'f', 1),
            QStringLiteral("%1 kate-syntax-hl.").arg(best * 1e3, 0, 'f', 1), ours / best);
    }

    // Per line, against C per line: no highlighter may be the slow one.
    const double cPerLine = ours / cLines;
    struct Other { const char *name; QByteArray text; double (*seconds)(const QByteArray &); };
    const Other others[] = {
        { "EDS colouring, us/line (peer: C)", generate(50000, edsUnit), colourSeconds<EdsHighlighter> },
        { "DBC colouring, us/line (peer: C)", generate(50000, dbcUnit), colourSeconds<DBCHighlighter> },
        { "PLC colouring, us/line (peer: C)", generate(50000, plcUnit), colourSeconds<PlcHighlighter> },
        { "XML colouring, us/line (peer: C)", generate(50000, xmlUnit), colourSeconds<XMLHighlighter> },
    };
    for (const Other &other : others) {
        const double perLine = other.seconds(other.text) / other.text.count('\n');
        row(other.name, QString::number(perLine * 1e6, 'f', 3), QString::number(cPerLine * 1e6, 'f', 3),
            perLine / cPerLine);
    }
    return 0;
}
