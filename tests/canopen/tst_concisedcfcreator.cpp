#include "ConciseDcfCreator.h"

#include <QtTest>

class tst_ConciseDcfCreator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void parseSection_data();
    void parseSection();
    void duplicatesKept();
    void convertWritesNothing();

private:
    QString writeSheet(const QByteArray &text);
    QTemporaryDir m_dir;
    int m_files = 0;
};

void tst_ConciseDcfCreator::initTestCase()
{
    QVERIFY2(m_dir.isValid(), qPrintable(m_dir.errorString()));
}

QString tst_ConciseDcfCreator::writeSheet(const QByteArray &text)
{
    const QString name = m_dir.filePath(QStringLiteral("sheet%1.dcf").arg(++m_files));
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        return QString();
    file.write(text);
    return name;
}

using Indices = QVector<unsigned short>;

void tst_ConciseDcfCreator::parseSection_data()
{
    QTest::addColumn<QByteArray>("section");
    QTest::addColumn<Indices>("expected");
    QTest::newRow("hex count, upper-case prefix skipped")
        << QByteArray("SupportedObjects=0x3\n1=0x1000\n2=0X1001\n3=0x1018\n") << Indices{ 0x1000, 0x1018 };
    QTest::newRow("decimal count, upper-case digits accepted")
        << QByteArray("SupportedObjects=2\n1=0x1A00\n2=0x1a01\n") << Indices{ 0x1A00, 0x1A01 };
    QTest::newRow("octal count")
        << QByteArray("SupportedObjects=010\n1=0x1\n8=0x8\n9=0x9\n") << Indices{ 0x1, 0x8 };
    QTest::newRow("bare hex skipped without a gap")
        << QByteArray("SupportedObjects=3\n1=1A00\n2=0x2000\n3=x\n") << Indices{ 0x2000 };
    QTest::newRow("unparsable count")
        << QByteArray("SupportedObjects=three\n1=0x1000\n") << Indices{};
    QTest::newRow("negative count")
        << QByteArray("SupportedObjects=-1\n1=0x1000\n") << Indices{};
    QTest::newRow("count beyond the keys")
        << QByteArray("SupportedObjects=4\n2=0x6000\n") << Indices{ 0x6000 };
    QTest::newRow("wide value keeps low 16 bits")
        << QByteArray("SupportedObjects=1\n1=0x12345\n") << Indices{ 0x2345 };
}

void tst_ConciseDcfCreator::parseSection()
{
    QFETCH(QByteArray, section);
    QFETCH(Indices, expected);
    ConciseDcfCreator creator(writeSheet("[OptionalObjects]\n" + section));
    Indices indices{ 0x0100 };
    QVERIFY(creator.parseSectionForIndices(indices, "OptionalObjects"));
    QCOMPARE(indices, Indices{ 0x0100 } + expected);
}

void tst_ConciseDcfCreator::duplicatesKept()
{
    ConciseDcfCreator creator(writeSheet("[MandatoryObjects]\nSupportedObjects=1\n1=0x1000\n"
                                         "[OptionalObjects]\nSupportedObjects=2\n1=0x1000\n2=0x0100\n"));
    Indices indices;
    creator.parseSectionForIndices(indices, "MandatoryObjects");
    creator.parseSectionForIndices(indices, "OptionalObjects");
    QCOMPARE(indices, (Indices{ 0x1000, 0x1000, 0x0100 }));
}

void tst_ConciseDcfCreator::convertWritesNothing()
{
    const QString sheet = writeSheet("[MandatoryObjects]\nSupportedObjects=1\n1=0x1000\n"
                                     "[1000]\nParameterName=Device type\nParameterValue=0x191\n");
    QFile original(sheet);
    QVERIFY(original.open(QIODevice::ReadOnly));
    const QByteArray before = original.readAll();
    original.close();
    const QString output = m_dir.filePath("out.bin");
    ConciseDcfCreator creator(sheet);
    QVERIFY(!creator.convert(output));
    QVERIFY(!QFile::exists(output));
    QVERIFY(original.open(QIODevice::ReadOnly));
    QCOMPARE(original.readAll(), before);
}

QTEST_GUILESS_MAIN(tst_ConciseDcfCreator)
#include "tst_concisedcfcreator.moc"
