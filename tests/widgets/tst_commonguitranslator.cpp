// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "CommonGUITranslator.h"

#include <QDialogButtonBox>
#include <QLibraryInfo>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

class tst_CommonGUITranslator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadLanguage_data();
    void loadLanguage();
    void loadLocale_data();
    void loadLocale();
    void directoryComesFirst();
    void installTranslations();
    void installNothingForEnglish();
};

static const char nextTip[] = "Next Tip";
static const QString germanNextTip = QStringLiteral("N\u00e4chster Tipp");

void tst_CommonGUITranslator::loadLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("loads");

    QTest::newRow("bare") << "de" << true;
    QTest::newRow("BCP 47 form of uiLanguages") << "de-DE" << true;
    QTest::newRow("POSIX form") << "de_AT" << true;
    QTest::newRow("with script") << "de-Latn-CH" << true;
    QTest::newRow("blanks around") << " de " << true;
    QTest::newRow("unknown code") << "xx" << false;
    QTest::newRow("language without catalogue") << "fr-FR" << false;
    QTest::newRow("empty") << "" << false;
}

void tst_CommonGUITranslator::loadLanguage()
{
    QFETCH(QString, language);
    QFETCH(bool, loads);

    CommonGUITranslator translator;
    QCOMPARE(translator.loadLanguage(language), loads);
    QCOMPARE(translator.translate("TipOfTheDay", nextTip), loads ? germanNextTip : QString());
}

void tst_CommonGUITranslator::loadLocale_data()
{
    QTest::addColumn<QString>("localeName");
    QTest::addColumn<bool>("loads");

    QTest::newRow("Germany") << "de_DE" << true;
    QTest::newRow("Austria") << "de_AT" << true;
    QTest::newRow("Switzerland") << "de_CH" << true;
    QTest::newRow("English") << "en_US" << false;
    QTest::newRow("C") << "C" << false;
}

void tst_CommonGUITranslator::loadLocale()
{
    QFETCH(QString, localeName);
    QFETCH(bool, loads);

    CommonGUITranslator translator;
    QCOMPARE(translator.loadLocale(QLocale(localeName)), loads);
    if (loads)
        QCOMPARE(translator.translate("TipOfTheDay", nextTip), germanNextTip);
}

void tst_CommonGUITranslator::directoryComesFirst()
{
    // A catalogue in the given folder wins over the built-in copy; an empty
    // file there is not a catalogue and falls through to the next folder.
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QFile empty(dir.filePath(QStringLiteral("commongui_de.qm")));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    empty.close();
    CommonGUITranslator translator;
    QVERIFY(translator.loadLanguage(QStringLiteral("de"), dir.path()));
    QCOMPARE(translator.translate("TipOfTheDay", nextTip), germanNextTip);
    QVERIFY(!translator.filePath().startsWith(dir.path()));
}

void tst_CommonGUITranslator::installTranslations()
{
    const QStringList installed = CommonGUITranslator::installTranslations(qApp, QLocale(QStringLiteral("de_DE")));
    QVERIFY(installed.contains(QStringLiteral("commongui_de")));
    QCOMPARE(QCoreApplication::translate("TipOfTheDay", nextTip), germanNextTip);

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QString qtDir = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    const QString qtDir = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
    if (!QFile::exists(qtDir + QStringLiteral("/qtbase_de.qm")))
        QSKIP("Qt's German catalogues are not installed (qttranslations5-l10n, qt6-translations-l10n)");
    QCOMPARE(installed, QStringList({QStringLiteral("commongui_de"), QStringLiteral("qtbase_de"),
                                     QStringLiteral("qt_help_de")}));
    // Qt's standard buttons follow.
    QDialogButtonBox box(QDialogButtonBox::Cancel);
    QCOMPARE(box.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Abbrechen"));
}

void tst_CommonGUITranslator::installNothingForEnglish()
{
    QCOMPARE(CommonGUITranslator::installTranslations(qApp, QLocale(QStringLiteral("en_GB"))), QStringList());
    QCOMPARE(CommonGUITranslator::installTranslations(nullptr, QLocale(QStringLiteral("de"))), QStringList());
}

QTEST_MAIN(tst_CommonGUITranslator)
#include "tst_commonguitranslator.moc"
