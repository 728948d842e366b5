// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "AboutDialog.h"
#include "CommonGUITranslator.h"

#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QtTest>

class tst_AboutAndStyle : public QObject
{
    Q_OBJECT

private slots:
    void aboutShowsVersions();
    void aboutTakesApplicationDefaults();
    void translationsBuiltIn_data();
    void translationsBuiltIn();
};

void tst_AboutAndStyle::aboutShowsVersions()
{
    AboutDialog about(QStringLiteral("Bus Monitor"), QStringLiteral("3.1.0"),
                      QStringLiteral("<p>Licensed under the <b>Korvil</b> terms.</p>"));
    QCOMPARE(about.windowTitle(), QStringLiteral("About Bus Monitor"));
    QCOMPARE(about.findChild<QLabel *>(QStringLiteral("lblTitle"))->text(),
             QStringLiteral("Bus Monitor 3.1.0"));
    const QString versions = about.findChild<QLabel *>(QStringLiteral("lblVersions"))->text();
    QVERIFY2(versions.contains(QStringLiteral("CommonGUI library 0.9")), qPrintable(versions));
    QVERIFY2(versions.contains(QLatin1String(qVersion())), qPrintable(versions));
    QCOMPARE(about.findChild<QTextBrowser *>(QStringLiteral("txtCredits"))->toPlainText(),
             QStringLiteral("Licensed under the Korvil terms."));
}

void tst_AboutAndStyle::aboutTakesApplicationDefaults()
{
    QCoreApplication::setApplicationName(QStringLiteral("Node Tool"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.3"));
    AboutDialog about;
    QCOMPARE(about.findChild<QLabel *>(QStringLiteral("lblTitle"))->text(),
             QStringLiteral("Node Tool 1.2.3"));
    QVERIFY(about.findChild<QTextBrowser *>(QStringLiteral("txtCredits"))->isHidden());
}

void tst_AboutAndStyle::translationsBuiltIn_data()
{
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("german");

    QTest::newRow("tip of the day") << "TipOfTheDay" << "Next Tip" << QStringLiteral("N\u00e4chster Tipp");
    QTest::newRow("converter title") << "CalcoraDialog" << "Value Converter" << "Werteumrechner";
    QTest::newRow("help tab") << "HelpViewer" << "Search" << "Suche";
}

void tst_AboutAndStyle::translationsBuiltIn()
{
    QFETCH(QString, context);
    QFETCH(QString, source);
    QFETCH(QString, german);

    CommonGUITranslator translator;
    QVERIFY(translator.loadLanguage(QStringLiteral("de")));
    QCOMPARE(translator.translate(qPrintable(context), qPrintable(source)), german);
    QVERIFY(!CommonGUITranslator().loadLanguage(QStringLiteral("xx")));
}

QTEST_MAIN(tst_AboutAndStyle)
#include "tst_aboutandstyle.moc"
