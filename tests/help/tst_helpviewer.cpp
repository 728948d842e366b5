// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "HelpBrowser.h"
#include "HelpViewer.h"
#include "HelpViewerDialog.h"

#include <QDesktopServices>
#include <QHelpEngine>
#include <QHelpIndexModel>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchQueryWidget>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QtTest>

class tst_HelpViewer : public QObject
{
    Q_OBJECT

public slots:
    void openUrl(const QUrl &url) { m_opened << url.toString(); }

private slots:
    void initTestCase();
    void threeTabs();
    void searchFindsWord_data();
    void searchFindsWord();
    void indexActivationShowsPage();
    void browserLoadsFromCollection_data();
    void browserLoadsFromCollection();
    void missingCollection();
    void dialogTopics_data();
    void dialogTopics();
    void dialogKeepsPageOnMissingFile_data();
    void dialogKeepsPageOnMissingFile();
    void dialogShowsManual();

private:
    bool write(const QString &name, const QByteArray &content);
    QStringList opened(const std::function<void()> &action);

    QTemporaryDir m_dir;
    QString m_collection;
    QStringList m_opened;
};

bool tst_HelpViewer::write(const QString &name, const QByteArray &content)
{
    QFile file(m_dir.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QStringList tst_HelpViewer::opened(const std::function<void()> &action)
{
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openUrl");
    m_opened.clear();
    action();
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    return m_opened;
}

void tst_HelpViewer::initTestCase()
{
    QVERIFY2(m_dir.isValid(), qPrintable(m_dir.errorString()));
    QVERIFY(write("intro.html",
                  "<html><head><title>Introduction</title></head><body><h1>Introduction</h1>"
                  "<p>The node list shows every device on the bus.</p></body></html>"));
    QVERIFY(write("sdo.html",
                  "<html><head><title>SDO access</title></head><body><h1>SDO access</h1>"
                  "<p>Reading an object uses an expedited flywheel transfer.</p></body></html>"));
    QVERIFY(write("demo.qhp", R"(<?xml version="1.0" encoding="UTF-8"?>
<QtHelpProject version="1.0">
  <namespace>com.korvil.test</namespace>
  <virtualFolder>doc</virtualFolder>
  <filterSection>
    <toc>
      <section title="Introduction" ref="intro.html">
        <section title="SDO access" ref="sdo.html"/>
      </section>
    </toc>
    <keywords>
      <keyword name="node list" ref="intro.html"/>
      <keyword name="SDO" ref="sdo.html"/>
    </keywords>
    <files>
      <file>intro.html</file>
      <file>sdo.html</file>
    </files>
  </filterSection>
</QtHelpProject>
)"));
    QVERIFY(write("demo.qhcp", R"(<?xml version="1.0" encoding="UTF-8"?>
<QHelpCollectionProject version="1.0">
  <docFiles>
    <generate>
      <file><input>demo.qhp</input><output>demo.qch</output></file>
    </generate>
    <register><file>demo.qch</file></register>
  </docFiles>
</QHelpCollectionProject>
)"));
    const QString generator = QStringLiteral(QHELPGENERATOR_PATH);
    if (!QFileInfo(generator).isExecutable())
        QSKIP("qhelpgenerator is not installed");
    QProcess process;
    process.setWorkingDirectory(m_dir.path());
    process.start(generator, { QStringLiteral("demo.qhcp"), QStringLiteral("-o"), QStringLiteral("demo.qhc") });
    QVERIFY(process.waitForFinished(120000));
    QVERIFY2(process.exitCode() == 0, process.readAllStandardError().constData());
    m_collection = m_dir.filePath(QStringLiteral("demo.qhc"));
    QVERIFY(QFile::exists(m_collection));
}

void tst_HelpViewer::threeTabs()
{
    HelpViewer viewer;
    QVERIFY(viewer.setHelpFile(m_collection));

    auto tabs = viewer.findChild<QTabWidget *>(QStringLiteral("tabWidget"));
    QCOMPARE(tabs->count(), 3);
    QCOMPARE(tabs->tabText(0), QStringLiteral("Content"));
    QCOMPARE(tabs->tabText(1), QStringLiteral("Search"));
    QCOMPARE(tabs->tabText(2), QStringLiteral("Index"));
    auto splitter = viewer.findChild<QSplitter *>(QStringLiteral("splitter"));
    QCOMPARE(splitter->count(), 2);
    QVERIFY(qobject_cast<HelpBrowser *>(splitter->widget(1)));

    // A second collection adds panes and leaves the old tabs in place.
    QVERIFY(viewer.setHelpFile(m_collection));
    QCOMPARE(tabs->count(), 6);
    QCOMPARE(splitter->count(), 2);
}

void tst_HelpViewer::searchFindsWord_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<int>("hits");

    QTest::newRow("word on one page") << "flywheel" << 1;
    QTest::newRow("word on no page") << "gearbox" << 0;
}

void tst_HelpViewer::searchFindsWord()
{
    QFETCH(QString, query);
    QFETCH(int, hits);

    HelpViewer viewer;
    QVERIFY(viewer.setHelpFile(m_collection));
    auto engine = viewer.findChild<QHelpEngine *>();
    QVERIFY(engine);
    QHelpSearchEngine *search = engine->searchEngine();
    QSignalSpy indexed(search, &QHelpSearchEngine::indexingFinished);
    QVERIFY(indexed.wait(60000));

    QSignalSpy finished(search, &QHelpSearchEngine::searchingFinished);
    // The clear button would fade in by a parentless animation that outlives
    // the viewer when no event loop runs after the test.
    for (QLineEdit *edit : search->queryWidget()->findChildren<QLineEdit *>())
        edit->setClearButtonEnabled(false);
    search->queryWidget()->setSearchInput(query);
    emit search->queryWidget()->search();  // what the search button does
    QVERIFY(finished.count() == 1 || finished.wait(60000));

    QCOMPARE(finished.at(0).at(0).toInt(), hits);
    QCOMPARE(search->searchResultCount(), hits);
    if (hits)
        QCOMPARE(search->searchResults(0, 1).first().url().fileName(), QStringLiteral("sdo.html"));
}

void tst_HelpViewer::indexActivationShowsPage()
{
    HelpViewer viewer;
    const QUrl page(QStringLiteral("qthelp://com.korvil.test/doc/sdo.html"));
    viewer.onDocumentActivated(QHelpLink { page, QStringLiteral("SDO") }, QStringLiteral("SDO"));

    QVERIFY(viewer.setHelpFile(m_collection));
    auto browser = viewer.findChild<HelpBrowser *>();
    QCOMPARE(browser->source(), QUrl());
    viewer.onDocumentActivated(QHelpLink { page, QStringLiteral("SDO") }, QStringLiteral("SDO"));

    QCOMPARE(browser->source(), page);
    QVERIFY(browser->toPlainText().contains(QStringLiteral("expedited flywheel transfer")));
}

void tst_HelpViewer::browserLoadsFromCollection_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("expected");

    QTest::newRow("qthelp page from the collection")
            << "qthelp://com.korvil.test/doc/intro.html" << "every device on the bus";
    QTest::newRow("file page from disk") << "file:intro.html" << "every device on the bus";
    QTest::newRow("page missing from the collection")
            << "qthelp://com.korvil.test/doc/none.html" << "";
}

void tst_HelpViewer::browserLoadsFromCollection()
{
    QFETCH(QString, url);
    QFETCH(QString, expected);

    QHelpEngine engine(m_collection);
    QVERIFY(engine.setupData());
    HelpBrowser browser(&engine);
    QUrl name(url);
    if (name.scheme() == QLatin1String("file"))
        name = QUrl::fromLocalFile(m_dir.filePath(name.path()));

    const QVariant data = browser.loadResource(QTextDocument::HtmlResource, name);

    if (expected.isEmpty())
        QVERIFY(data.toByteArray().isEmpty());
    else
        QVERIFY2(data.toString().contains(expected), qPrintable(data.toString()));
}

void tst_HelpViewer::missingCollection()
{
    HelpViewer viewer;
    // A collection in a folder that does not exist cannot be created.
    QVERIFY(!viewer.setHelpFile(m_dir.filePath(QStringLiteral("missing/none.qhc"))));
}

void tst_HelpViewer::dialogTopics_data()
{
    QTest::addColumn<QString>("topic");
    QTest::addColumn<bool>("opensPdf");

    QTest::newRow("Manual opens the PDF") << "Manual" << true;
    QTest::newRow("manual in lower case is an anchor") << "manual" << false;
    QTest::newRow("other anchor") << "sdo" << false;
}

void tst_HelpViewer::dialogTopics()
{
    QFETCH(QString, topic);
    QFETCH(bool, opensPdf);

    HelpViewerDialog dialog;
    QVERIFY(dialog.setFile(m_dir.filePath(QStringLiteral("intro.html"))));

    const QStringList urls = opened([&] { dialog.setTopic(topic); });

    const QStringList pdf { QStringLiteral("file:///") + QCoreApplication::applicationDirPath()
                            + QStringLiteral("/doc/manual_tarvet_de.pdf") };
    QCOMPARE(urls, opensPdf ? pdf : QStringList());
    QCOMPARE(dialog.isVisible(), !opensPdf);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Brisca - Help"));
}

void tst_HelpViewer::dialogKeepsPageOnMissingFile_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("missing file") << "gone.html";
    QTest::newRow("folder, not a file") << "folder.html";
}

void tst_HelpViewer::dialogKeepsPageOnMissingFile()
{
    QFETCH(QString, path);

    QVERIFY(QDir().mkpath(m_dir.filePath(QStringLiteral("folder.html"))));
    HelpViewerDialog dialog;
    const QString intro = m_dir.filePath(QStringLiteral("intro.html"));
    QVERIFY(dialog.setFile(intro));
    QVERIFY(!dialog.setFile(m_dir.filePath(path)));

    auto browser = dialog.findChild<QTextBrowser *>(QStringLiteral("textBrowser"));
    QCOMPARE(browser->source(), QUrl(QStringLiteral("file:") + intro));
    QVERIFY(browser->toPlainText().contains(QStringLiteral("every device on the bus")));

    dialog.show();
    QTest::mouseClick(dialog.findChild<QPushButton *>(QStringLiteral("pushButton")), Qt::LeftButton);
    QVERIFY(dialog.isHidden());
}

void tst_HelpViewer::dialogShowsManual()
{
    HelpViewerDialog dialog;
    dialog.setManualFile(QStringLiteral("/opt/tool/doc/handbook_tarvet_en.pdf"));
    bool shown = false;

    const QStringList urls = opened([&] { shown = dialog.showManual(); });

    QVERIFY(shown);
    QCOMPARE(urls, QStringList { "file:////opt/tool/doc/handbook_tarvet_en.pdf" });
}

QTEST_MAIN(tst_HelpViewer)
#include "tst_helpviewer.moc"
