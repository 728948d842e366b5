// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Showing a file in the viewer, and colouring a document of your own.
#include <CommonGUI/EdsHighlighter.h>
#include <CommonGUI/FileViewerDialog.h>

#include <QApplication>
#include <QTextEdit>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QString path = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("node.dcf");

    // The suffix picks the highlighter; the dialog reloads the file when it changes.
    auto viewer = new FileViewerDialog(path);
    viewer->setAttribute(Qt::WA_DeleteOnClose);
    viewer->setTextSize(11);
    viewer->show();

    // Any QTextDocument can take a highlighter; the document owns it.
    QTextEdit editor;
    new EdsHighlighter(editor.document());
    editor.setPlainText("[1000]\nParameterName=Device type\nDefaultValue=0x00000191 ; DS401\n");
    editor.show();

    return app.exec();
}
