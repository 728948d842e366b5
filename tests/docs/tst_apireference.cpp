// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// The API reference as Qt Assistant and Qt Creator read it: registered into a
// help collection, every public class found by its name (F1) with its page.
#include <QFile>
#include <QHelpEngineCore>
#include <QHelpLink>
#include <QTemporaryDir>
#include <QtTest>

class tst_ApiReference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void classPage_data();
    void classPage();
    void memberKeyword_data();
    void memberKeyword();
    void guidePages_data();
    void guidePages();

private:
    QTemporaryDir m_dir;
    std::unique_ptr<QHelpEngineCore> m_engine;
    QString m_namespace;
};

void tst_ApiReference::initTestCase()
{
    QVERIFY2(m_dir.isValid(), qPrintable(m_dir.errorString()));
    const QString qch = qEnvironmentVariable("COMMONGUI_API_QCH");
    QVERIFY2(QFile::exists(qch), qPrintable(qch + QLatin1String(" is missing: build the docs target")));
    m_engine.reset(new QHelpEngineCore(m_dir.filePath("reference.qhc")));
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    m_engine->setReadOnly(false);  // Qt 6 opens collections read-only unless told
#endif
    QVERIFY2(m_engine->setupData(), qPrintable(m_engine->error()));
    QVERIFY2(m_engine->registerDocumentation(qch), qPrintable(m_engine->error()));
    m_namespace = QHelpEngineCore::namespaceName(qch);
    QCOMPARE(m_namespace, QStringLiteral("com.korvil.commongui"));
}

void tst_ApiReference::classPage_data()
{
    QTest::addColumn<QString>("name");
    QFile list(qEnvironmentVariable("COMMONGUI_API_CLASSES"));
    QVERIFY2(list.open(QIODevice::ReadOnly | QIODevice::Text), qPrintable(list.fileName()));
    int rows = 0;
    for (const QByteArray &line : list.readAll().split('\n')) {
        const QString name = QString::fromLatin1(line.trimmed());
        if (!name.isEmpty()) {
            QTest::newRow(qPrintable(name)) << name;
            ++rows;
        }
    }
    // Guards against an empty class list passing every row by having none.
    QVERIFY(rows >= 30);
}

void tst_ApiReference::classPage()
{
    QFETCH(QString, name);
    const QList<QHelpLink> links = m_engine->documentsForIdentifier(name);
    QVERIFY2(!links.isEmpty(), "no keyword for the class");
    const QByteArray page = m_engine->fileData(links.first().url);
    const bool reference = page.contains(QStringLiteral("%1 Class Reference").arg(name).toUtf8())
            || page.contains(QStringLiteral("%1 Struct Reference").arg(name).toUtf8());
    QVERIFY2(reference, qPrintable(links.first().url.toString()));
}

void tst_ApiReference::memberKeyword_data()
{
    QTest::addColumn<QString>("id");
    QTest::newRow("function") << "UpdateChecker::queryForUpdates";
    QTest::newRow("signal") << "newUpdateChecker::versionAvailable";
    QTest::newRow("slot") << "HelpViewer::onDocumentActivated";
    QTest::newRow("static function") << "CommonGUITranslator::installTranslations";
    QTest::newRow("property") << "CustomLineEdit::acceptedSuffixes";
    QTest::newRow("nested struct member") << "TipOfTheDay::TipStruct::image";
    QTest::newRow("namespace function") << "CommonGUI::updateServerUrl";
    QTest::newRow("hex editor slot") << "QHexEdit::setData";
    QTest::newRow("hex editor signal") << "QHexEdit::dataChanged";
    QTest::newRow("settings helper") << "GuiHelper::saveSettings";
}

// Qt Creator's F1 on a member looks up "Class::member".
void tst_ApiReference::memberKeyword()
{
    QFETCH(QString, id);
    QVERIFY(!m_engine->documentsForIdentifier(id).isEmpty());
}

void tst_ApiReference::guidePages_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("hex editor") << "Editing bytes with QHexEdit";
    QTest::newRow("search") << "Searching item views";
}

void tst_ApiReference::guidePages()
{
    QFETCH(QString, title);
    const QList<QUrl> files = m_engine->files(m_namespace, QString(), QStringLiteral("html"));
    for (const QUrl &url : files) {
        if (m_engine->fileData(url).contains(title.toUtf8()))
            return;
    }
    QFAIL("guide page not in the reference");
}

QTEST_MAIN(tst_ApiReference)
#include "tst_apireference.moc"
