// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "ManualHandler.h"

#include <QAction>
#include <QDesktopServices>
#include <QMenu>
#include <QtTest>

#include <memory>

class tst_ManualHandler : public QObject
{
    Q_OBJECT

public slots:
    void openUrl(const QUrl &url) { m_opened << url.toString(); }

private slots:
    void titles_data();
    void titles();
    void noManualsGivesNoMenu_data();
    void noManualsGivesNoMenu();
    void refillDoesNotDuplicate();
    void triggerOpensThePdf_data();
    void triggerOpensThePdf();
    void titleTableShape();

private:
    QStringList m_opened;
};

static void touch(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("%PDF-1.4\n");
}

static QStringList entryTitles(QMenu *menu)
{
    QStringList titles;
    for (QAction *action : menu->actions())
        titles << action->text();
    return titles;
}

void tst_ManualHandler::titles_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("titles");

    QTest::newRow("known and unknown")
            << QStringList { "handbook_tarvet_de.pdf", "notes.pdf" }
            << QStringList { "Handbuch (de)", "notes" };
    QTest::newRow("base name ends at the first dot")
            << QStringList { "handbook_tarvet_de.old.pdf" } << QStringList { "Handbuch (de)" };
    QTest::newRow("keys are case-sensitive")
            << QStringList { "Handbook_Tarvet_DE.pdf" } << QStringList { "Handbook_Tarvet_DE" };
    QTest::newRow("only pdf files")
            << QStringList { "readme.txt", "extension_tarvet_en.pdf", "handbook_tarvet_en.pdf.txt" }
            << QStringList { "Extension Manual - Vendor (en)" };
    QTest::newRow("sorted by file name, not by title")
            << QStringList { "scripting_reference.pdf", "handbook_tarvet_en.pdf", "Zeta.pdf", "alpha.pdf" }
            << QStringList { "alpha", "Manual (en)", "Script API (en)", "Zeta" };
}

void tst_ManualHandler::titles()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, titles);

    QTemporaryDir dir;
    for (const QString &file : qAsConst(files))
        touch(dir.filePath(file));
    ManualHandler handler;
    handler.setManualsPath(dir.path());

    QMenu *menu = handler.getManualsMenu();

    QVERIFY(menu);
    QCOMPARE(menu->title(), QStringLiteral("Manuals"));
    QCOMPARE(entryTitles(menu), titles);
    delete menu;
}

void tst_ManualHandler::noManualsGivesNoMenu_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("only other files") << "manuals";
    QTest::newRow("missing directory") << "manuals/missing";
    QTest::newRow("path never set") << "";
}

void tst_ManualHandler::noManualsGivesNoMenu()
{
    QFETCH(QString, path);

    QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("manuals")));
    touch(dir.filePath(QStringLiteral("manuals/readme.txt")));
    // A PDF in the working directory must not turn up for an unset path.
    touch(dir.filePath(QStringLiteral("handbook_tarvet_de.pdf")));
    const QString previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(dir.path()));
    ManualHandler handler;
    if (!path.isEmpty())
        handler.setManualsPath(dir.filePath(path));

    QMenu *menu = handler.getManualsMenu();
    QDir::setCurrent(previous);

    QCOMPARE(menu, nullptr);
}

void tst_ManualHandler::refillDoesNotDuplicate()
{
    QTemporaryDir dir;
    touch(dir.filePath(QStringLiteral("handbook_tarvet_de.pdf")));
    touch(dir.filePath(QStringLiteral("handbook_tarvet_en.pdf")));
    ManualHandler handler;
    handler.setManualsPath(dir.path());

    QMenu *first = handler.getManualsMenu();
    QVERIFY(QFile::remove(dir.filePath(QStringLiteral("handbook_tarvet_en.pdf"))));
    touch(dir.filePath(QStringLiteral("scripting_reference.pdf")));
    QMenu *second = handler.getManualsMenu();

    QCOMPARE(second, first);  // one menu, refilled
    const QStringList refilled { "Handbuch (de)", "Script API (en)" };
    QCOMPARE(entryTitles(second), refilled);

    delete second;  // a host that frees the menu gets a new one next time
    QMenu *third = handler.getManualsMenu();
    QVERIFY(third);
    QCOMPARE(entryTitles(third), refilled);
    delete third;
}

void tst_ManualHandler::triggerOpensThePdf_data()
{
    QTest::addColumn<bool>("handlerGone");
    QTest::newRow("handler alive") << false;
    // A host may keep the menu it was handed after the handler is gone.
    QTest::newRow("handler gone") << true;
}

void tst_ManualHandler::triggerOpensThePdf()
{
    QFETCH(bool, handlerGone);
    QTemporaryDir dir;
    touch(dir.filePath(QStringLiteral("manual_tarvet_en.pdf")));
    auto handler = std::make_unique<ManualHandler>();
    handler->setManualsPath(dir.path());
    QPointer<QMenu> menu = handler->getManualsMenu();
    QVERIFY(menu);
    if (handlerGone)
        handler.reset();
    QVERIFY(menu);
    QCOMPARE(entryTitles(menu), QStringList { "User Manual (en)" });
    QPointer<QAction> entry = menu->actions().first();
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "openUrl");
    m_opened.clear();

    entry->trigger();
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));

    // "file:///" before an absolute path: the viewer gets four slashes; opened once.
    QCOMPARE(m_opened, QStringList { "file:////" + dir.path().mid(1) + "/manual_tarvet_en.pdf" });
    delete menu;
    QVERIFY(!entry);  // the entries go with the menu
}

void tst_ManualHandler::titleTableShape()
{
    const QMap<QString, QString> &table = ManualHandler::mFileNameToDisplayName;
    QSet<QString> titles;
    for (auto it = table.cbegin(); it != table.cend(); ++it) {
        QVERIFY2(!it.key().contains(QLatin1Char('.')), qPrintable(it.key()));  // base names only
        const QString language = it.key().endsWith(QLatin1String("_de")) ? " (de)" : " (en)";
        QVERIFY2(it.value().endsWith(language), qPrintable(it.value()));
        titles.insert(it.value());
    }
    QCOMPARE(titles.size(), table.size());  // two manuals never share a menu title
}

QTEST_MAIN(tst_ManualHandler)
#include "tst_manualhandler.moc"
