// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "FileViewerDialog.h"

#include <QDesktopServices>
#include <QDirIterator>
#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSyntaxHighlighter>
#include <QTextEdit>
#include <QtTest>

class UrlCatcher : public QObject
{
    Q_OBJECT
public slots:
    void open(const QUrl &url) { urls << url; }
public:
    QList<QUrl> urls;
};

class tst_FileViewerDialog : public QObject
{
    Q_OBJECT

private slots:
    void title_data();
    void title();
    void highlighterBySuffix_data();
    void highlighterBySuffix();
    void exactText_data();
    void exactText();
    void reloadAfterChange_data();
    void reloadAfterChange();
    void everyNotificationReloads();
    void fontSizeUpTwoDownOne();
    void textSizeAppliesToAllText();
    void searchLine();
    void openFolder();
    void corpus();

private:
    static QString write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path : QString();
    }
    static QTextEdit *viewer(FileViewerDialog &dialog) { return dialog.findChild<QTextEdit *>("txtViewer"); }
    static QString highlighterOf(FileViewerDialog &dialog)
    {
        auto h = viewer(dialog)->document()->findChild<QSyntaxHighlighter *>();
        return h ? QString::fromLatin1(h->metaObject()->className()) : QString("none");
    }

    QTemporaryDir m_dir;
};

void tst_FileViewerDialog::title_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    QTest::newRow("file path as it stands") << "/tmp/a.b.txt" << "File Viewer - /tmp/a.b.txt";
    QTest::newRow("resource: name up to the first dot") << ":/docs/readme.old.txt" << "File Viewer - readme";
    QTest::newRow("resource without folder") << ":notes.md" << "File Viewer - :notes";
}

void tst_FileViewerDialog::title()
{
    QFETCH(QString, path);
    QFETCH(QString, expected);
    FileViewerDialog dialog(path);
    QCOMPARE(dialog.windowTitle(), expected);
}

void tst_FileViewerDialog::highlighterBySuffix_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    // Unreadable paths show an error text, highlighter set up all the same.
    QTest::newRow("missing file") << "missing/file.c" << "AnsiCHighlighter";
    QTest::newRow("missing file, tags in its path") << "missing/<b>x</b>.c" << "AnsiCHighlighter";
    QTest::newRow("folder") << "folder.dbc" << "DBCHighlighter";
    QTest::newRow("c") << "name.c" << "AnsiCHighlighter";
    QTest::newRow("h") << "name.h" << "AnsiCHighlighter";
    QTest::newRow("eds") << "name.eds" << "EdsHighlighter";
    QTest::newRow("dcf") << "name.dcf" << "EdsHighlighter";
    QTest::newRow("txt") << "name.txt" << "PlcHighlighter";
    QTest::newRow("xml") << "name.xml" << "XMLHighlighter";
    QTest::newRow("dbc") << "name.dbc" << "DBCHighlighter";
    QTest::newRow("upper-case C") << "name.C" << "none";
    QTest::newRow("upper-case EDS") << "name.EDS" << "none";
    QTest::newRow("complete suffix tar.c") << "name.tar.c" << "none";
    QTest::newRow("no suffix") << "name" << "none";
    QTest::newRow("other suffix") << "name.cpp" << "none";
}

void tst_FileViewerDialog::highlighterBySuffix()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);
    QDir(m_dir.path()).mkdir("folder.dbc");
    const QString path = m_dir.filePath(name);
    const bool readable = !name.startsWith("missing") && !name.startsWith("folder");
    QVERIFY(!readable || !write(path, "int main(void);\n").isEmpty());
    FileViewerDialog dialog(path);
    QCOMPARE(highlighterOf(dialog), expected);
    QCOMPARE(viewer(dialog)->toPlainText(),
             readable ? QString("int main(void);\n") : QString("Error %1 is not readable.").arg(path));
}

void tst_FileViewerDialog::exactText_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    // Texts that a rich-text guess would take for HTML and render.
    QTest::newRow("xml with a DOCTYPE")
        << "page.xml"
        << QByteArray("<?xml version=\"1.0\"?>\n<!DOCTYPE article PUBLIC \"-//OASIS//DTD DocBook XML V4.5//EN\"\n"
                      "  \"http://www.oasis-open.org/docbook/xml/4.5/docbookx.dtd\">\n"
                      "<article><title>Node &amp; bus</title><para>Text <emphasis>here</emphasis></para></article>\n");
    QTest::newRow("txt whose first line is a tag")
        << "notes.txt" << QByteArray("<b>VAR_EXTERNAL</b>\n  x : INT;\n<br>END_VAR &lt;\n");
    QTest::newRow("dcf whose first line is a tag")
        << "node.dcf" << QByteArray("<html>\n[1000]\nParameterName=<i>Device type</i>\n");
    QTest::newRow("file without a suffix, html body")
        << "README" << QByteArray("<html><body><p>one</p>\n<p>two</p></body></html>\n");
}

void tst_FileViewerDialog::exactText()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    const QString path = write(m_dir.filePath(name), bytes);
    FileViewerDialog dialog(path);
    QCOMPARE(viewer(dialog)->toPlainText(), QString::fromUtf8(bytes));

    const QByteArray changed = bytes + "<p>added</p>\n";
    QVERIFY(!write(path, changed).isEmpty());
    QVERIFY(QMetaObject::invokeMethod(&dialog, "timerElapsed"));
    QCOMPARE(viewer(dialog)->toPlainText(), QString::fromUtf8(changed));
    dialog.setTextSize(14);
    QCOMPARE(viewer(dialog)->toPlainText(), QString::fromUtf8(changed));
}

void tst_FileViewerDialog::reloadAfterChange_data()
{
    QTest::addColumn<QByteArray>("changed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("new text") << QByteArray("changed\r\nline two\n") << "changed\nline two\n";
    QTest::newRow("cut at the zero byte") << QByteArray("before\0after", 12) << "before";
    QTest::newRow("UTF-8") << QByteArray("gr\xc3\xbc\xc3\x9f") << QString::fromUtf8("gr\xc3\xbc\xc3\x9f");
}

void tst_FileViewerDialog::reloadAfterChange()
{
    QFETCH(QByteArray, changed);
    QFETCH(QString, expected);
    QByteArray lines;
    for (int i = 0; i < 500; ++i)
        lines += "line " + QByteArray::number(i) + "\n";
    const QString path = write(m_dir.filePath("reload.log"), lines);
    FileViewerDialog dialog(path);
    dialog.resize(400, 300);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QScrollBar *bar = viewer(dialog)->verticalScrollBar();
    bar->setValue(bar->maximum());
    QVERIFY(bar->value() > 0);

    // The long tail would let the scroll position survive if it were kept.
    QVERIFY(!write(path, changed + QByteArray(2000, '\n')).isEmpty());

    QTRY_COMPARE(viewer(dialog)->toPlainText().left(expected.size()), expected);
    QCOMPARE(viewer(dialog)->toPlainText().size() > expected.size(), !changed.contains('\0'));
    QCOMPARE(bar->value(), 0);
    QCOMPARE(viewer(dialog)->textCursor().position(), 0);
}

void tst_FileViewerDialog::everyNotificationReloads()
{
    const QString path = write(m_dir.filePath("burst.c"), "x\n");
    FileViewerDialog dialog(path);
    QSignalSpy changed(viewer(dialog), &QTextEdit::textChanged);
    dialog.setTextSize(10);  // one reload, to learn what one reload emits
    const int perReload = changed.count();
    QVERIFY(perReload > 0);
    changed.clear();
    // A burst is not merged: three reloads follow.
    for (int i = 0; i < 3; ++i)
        QVERIFY(QMetaObject::invokeMethod(&dialog, "fileModified", Q_ARG(QString, path)));
    QCOMPARE(changed.count(), 0);
    QTRY_COMPARE(changed.count(), 3 * perReload);
}

void tst_FileViewerDialog::fontSizeUpTwoDownOne()
{
    FileViewerDialog dialog(write(m_dir.filePath("font.c"), "x\n"));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTextEdit *text = viewer(dialog);
    QCOMPARE(text->font().family(), QString("Courier 13"));
    const qreal before = text->font().pointSizeF();

    QTest::keyClick(text, Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(text->font().pointSizeF(), before + 2);
    QTest::keyClick(text, Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(text->font().pointSizeF(), before + 1);
}

void tst_FileViewerDialog::textSizeAppliesToAllText()
{
    const QString path = write(m_dir.filePath("size.c"), "int a;\nchar b;\n");
    FileViewerDialog dialog(path);
    write(path, "long c;\nshort d;\n");  // read again by setTextSize
    dialog.setTextSize(20.5);
    QTextCursor cursor(viewer(dialog)->document());
    QCOMPARE(viewer(dialog)->toPlainText(), QString("long c;\nshort d;\n"));
    for (int position : { 1, 5, 10, 15 }) {
        cursor.setPosition(position);
        QCOMPARE(cursor.charFormat().fontPointSize(), 20.5);
    }
}

void tst_FileViewerDialog::searchLine()
{
    // Offsets: "beta" at 6, 11 and 22.
    FileViewerDialog dialog(write(m_dir.filePath("find.xml"), "alpha beta\nBETA gamma\nbeta"));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTextEdit *text = viewer(dialog);
    auto frame = dialog.findChild<QFrame *>("frSearchAndButton");
    auto edit = dialog.findChild<QLineEdit *>("edtSearchLine");
    QVERIFY(!frame->isVisible());

    QTest::keyClick(text, Qt::Key_Slash);
    QVERIFY(frame->isVisible());
    QTRY_VERIFY(edit->hasFocus());

    edit->setText("beta");
    QCOMPARE(text->textCursor().selectionStart(), 6);
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(!frame->isVisible());
    text->setFocus();

    const QList<QPair<Qt::Key, int>> steps = {
        { Qt::Key_N, 11 }, { Qt::Key_N, 22 }, { Qt::Key_N, 22 },  // no wrap at the end
        { Qt::Key_B, 11 }, { Qt::Key_B, 6 }, { Qt::Key_B, 6 },    // nor at the start
    };
    for (const auto &step : steps) {
        QTest::keyClick(text, step.first);
        QCOMPARE(text->textCursor().selectionStart(), step.second);
        QCOMPARE(text->textCursor().selectedText().toLower(), QString("beta"));
    }
}

void tst_FileViewerDialog::openFolder()
{
    QDir(m_dir.path()).mkdir("sub");
    const QString path = write(m_dir.filePath("sub/folder.dbc"), "BO_ 1 x: 8 y\n");
    UrlCatcher catcher;
    QDesktopServices::setUrlHandler("file", &catcher, "open");
    FileViewerDialog dialog(path);
    dialog.findChild<QPushButton *>("pushButton")->click();
    QDesktopServices::unsetUrlHandler("file");
    QCOMPARE(catcher.urls, QList<QUrl>{ QUrl::fromLocalFile(m_dir.filePath("sub")) });
}

static QStringList warnings;
static void collect(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        warnings << message;
}

void tst_FileViewerDialog::corpus()
{
    const QString dir = qEnvironmentVariable("COMMONGUI_CORPUS_DIR");
    if (dir.isEmpty() || !QFileInfo(dir).isDir())
        QSKIP("COMMONGUI_CORPUS_DIR not set or absent");
    QDirIterator it(dir, QDir::Files, QDirIterator::Subdirectories);
    int files = 0;
    while (it.hasNext()) {
        const QString path = it.next();
        warnings.clear();
        QtMessageHandler old = qInstallMessageHandler(collect);
        {
            FileViewerDialog dialog(path);
            if (auto h = viewer(dialog)->document()->findChild<QSyntaxHighlighter *>())
                h->rehighlight();
            QVERIFY2(!viewer(dialog)->toPlainText().startsWith("Error "), qPrintable(path));
        }
        qInstallMessageHandler(old);
        QVERIFY2(warnings.isEmpty(), qPrintable(path + ": " + warnings.join("; ")));
        ++files;
    }
    QVERIFY(files > 0);
}

QTEST_MAIN(tst_FileViewerDialog)
#include "tst_fileviewerdialog.moc"
