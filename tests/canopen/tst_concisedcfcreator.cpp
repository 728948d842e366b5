// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "ConciseDcfCreator.h"
#include "DCFWriter.h"
#include "TestFiles.h"

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
    void writeConcise();
    void nodeIdFormula_data();
    void nodeIdFormula();
    void malformedValue_data();
    void malformedValue();
    void readerRejects_data();
    void readerRejects();
    void configuredExport_data();
    void configuredExport();

private:
    QString writeSheet(const QByteArray &text) { return m_dir.write(text); }
    TestSupport::SheetFolder m_dir;
};

void tst_ConciseDcfCreator::initTestCase()
{
    QVERIFY2(m_dir.isValid(), qPrintable(m_dir.errorString()));
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
    QTest::newRow("huge count visits only the keys present")
        << QByteArray("SupportedObjects=0x7fffffff\n3=0x3000\n1=0x1000\n01=0x0100\n") << Indices{ 0x1000, 0x3000 };
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

static const QByteArray conciseSheet =
    "[DeviceComissioning]\nNodeID=5\n"
    "[MandatoryObjects]\nSupportedObjects=2\n1=0x1000\n2=0x1017\n"
    "[OptionalObjects]\nSupportedObjects=3\n1=0x1800\n2=0x2000\n3=0x1017\n"
    "[ManufacturerObjects]\nSupportedObjects=2\n1=0x2001\n2=0x6000\n"
    "[1000]\nObjectType=0x7\nDataType=0x0007\nAccessType=ro\nParameterValue=0x191\n"
    "[1017]\nObjectType=0x7\nDataType=0x0006\nAccessType=rw\nParameterValue=1000\n"
    "[1800]\nObjectType=0x9\nSubNumber=3\n"
    "[1800sub0]\nDataType=0x0005\nAccessType=const\nParameterValue=2\n"
    "[1800sub1]\nDataType=0x0007\nAccessType=RW\nParameterValue=$NODEID+0x180\n"
    "[1800sub2]\nDataType=0x0005\nAccessType=rw\nDefaultValue=254\n"
    "[2000]\nDataType=0x0009\nAccessType=rw\nParameterValue=Hi\n"
    "[2001]\nDataType=0x0003\nAccessType=wo\nParameterValue=-2\n"
    "[6000]\nDataType=0x000F\nAccessType=rww\nParameterValue=0A0B0C\n";

// Reads the form by hand, independently of the creator's own reader.
static QList<QPair<QString, QByteArray>> decodeByHand(const QByteArray &bytes)
{
    QList<QPair<QString, QByteArray>> out;
    QDataStream in(bytes);
    in.setByteOrder(QDataStream::LittleEndian);
    quint32 count = 0;
    in >> count;
    for (quint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        quint16 index = 0;
        quint8 sub = 0;
        quint32 size = 0;
        in >> index >> sub >> size;
        QByteArray data(int(qMin<quint32>(size, 1024)), '\0');
        in.readRawData(data.data(), data.size());
        out.append({ QString::number(index, 16) + "/" + QString::number(sub), data });
    }
    return out;
}

void tst_ConciseDcfCreator::writeConcise()
{
    const QString output = m_dir.filePath("node5.cdcf");
    ConciseDcfCreator creator(writeSheet(conciseSheet));
    QVERIFY2(creator.writeConciseDcf(output), qPrintable(creator.errorString()));
    QFile file(output);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QCOMPARE(bytes.toHex(' '), QByteArray("05 00 00 00 "
                                          "17 10 00 02 00 00 00 e8 03 "
                                          "00 18 01 04 00 00 00 85 01 00 00 "
                                          "00 20 00 02 00 00 00 48 69 "
                                          "01 20 00 02 00 00 00 fe ff "
                                          "00 60 00 03 00 00 00 0a 0b 0c"));

    const QList<QPair<QString, QByteArray>> expected = {
        { "1017/0", QByteArray::fromHex("e803") }, { "1800/1", QByteArray::fromHex("85010000") },
        { "2000/0", "Hi" }, { "2001/0", QByteArray::fromHex("feff") }, { "6000/0", QByteArray::fromHex("0a0b0c") } };
    QCOMPARE(decodeByHand(bytes), expected);

    QList<ConciseDcfCreator::ConciseEntry> entries;
    QString error;
    QVERIFY2(ConciseDcfCreator::readConciseDcf(bytes, &entries, &error), qPrintable(error));
    QCOMPARE(entries.size(), 5);
    QCOMPARE(entries.at(1).index, quint16(0x1800));
    QCOMPARE(entries.at(1).subIndex, quint8(1));
    QCOMPARE(entries.at(4).data, QByteArray::fromHex("0a0b0c"));

    const QList<ConciseDcfCreator::stDataItems> items = creator.dataItems();
    QCOMPARE(items.size(), 5);
    QCOMPARE(items.at(3).index, quint16(0x2001));
    QCOMPARE(items.at(3).size, quint32(2));
}

void tst_ConciseDcfCreator::nodeIdFormula_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("node id first") << "$NODEID+0x180" << QByteArray::fromHex("85010000");
    QTest::newRow("node id last, spaces, mixed case") << "0x180 + $NodeId" << QByteArray::fromHex("85010000");
    QTest::newRow("decimal offset") << "$nodeid+384" << QByteArray::fromHex("85010000");
    QTest::newRow("node id alone") << "$NODEID" << QByteArray::fromHex("05000000");
    QTest::newRow("octal") << "0600" << QByteArray::fromHex("80010000");
    QTest::newRow("largest") << "0xFFFFFFFF" << QByteArray::fromHex("ffffffff");
}

void tst_ConciseDcfCreator::nodeIdFormula()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, data);
    const QString sheet = writeSheet("[DeviceComissioning]\nNodeID=0x05\n[OptionalObjects]\nSupportedObjects=1\n1=0x1800\n"
                                     "[1800sub1]\nDataType=0x0007\nAccessType=rw\nParameterValue=" + value.toUtf8() + "\n");
    const QString output = m_dir.filePath("formula.cdcf");
    ConciseDcfCreator creator(sheet);
    QVERIFY2(creator.writeConciseDcf(output), qPrintable(creator.errorString()));
    QFile file(output);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray::fromHex("01000000 0018 01 04000000") + data);
}

void tst_ConciseDcfCreator::malformedValue_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("reason");
    QTest::newRow("above UNSIGNED8") << QByteArray("0x0005") << QByteArray("256") << "value \"256\" is out of range for UNSIGNED8";
    QTest::newRow("not a number") << QByteArray("0x0006") << QByteArray("12abc") << "value \"12abc\" cannot be read as UNSIGNED16";
    QTest::newRow("node id missing") << QByteArray("0x0007") << QByteArray("$NODEID+1") << "value \"$NODEID+1\" uses $NODEID but the file has no node id";
    QTest::newRow("below INTEGER8") << QByteArray("0x0002") << QByteArray("-129") << "value \"-129\" is out of range for INTEGER8";
    QTest::newRow("wide hex for INTEGER8") << QByteArray("0x0002") << QByteArray("0x1FF") << "value \"0x1FF\" is out of range for INTEGER8";
    QTest::newRow("negative unsigned") << QByteArray("0x0007") << QByteArray("-1") << "value \"-1\" is out of range for UNSIGNED32";
    QTest::newRow("boolean 2") << QByteArray("0x0001") << QByteArray("2") << "value \"2\" is out of range for BOOLEAN";
    QTest::newRow("odd domain") << QByteArray("0x000F") << QByteArray("0x1G") << "value \"0x1G\" is not a hex string of whole bytes for DOMAIN";
    QTest::newRow("unknown type") << QByteArray("0x000E") << QByteArray("1") << "data type \"0x000E\" is not supported";
}

void tst_ConciseDcfCreator::malformedValue()
{
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, value);
    QFETCH(QString, reason);
    const QString sheet = writeSheet("[OptionalObjects]\nSupportedObjects=2\n1=0x1017\n2=0x2000\n"
                                     "[1017]\nDataType=0x0006\nAccessType=rw\nParameterValue=1000\n"
                                     "[2000]\nDataType=" + type + "\nAccessType=rw\nParameterValue=" + value + "\n");
    const QString output = m_dir.filePath("kept.cdcf");
    {
        QFile old(output);
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("old");
    }
    ConciseDcfCreator creator(sheet);
    QVERIFY(!creator.writeConciseDcf(output));
    QCOMPARE(creator.errors(), QStringList{ "0x2000sub0 [2000]: " + reason });
    QFile file(output);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("old"));
}

void tst_ConciseDcfCreator::readerRejects_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");
    QTest::newRow("empty") << QByteArray() << "Truncated concise DCF: 0 byte(s), no entry count";
    QTest::newRow("bogus count") << QByteArray::fromHex("ffffffff")
                                 << "Inconsistent concise DCF: 4294967295 entries cannot fit in 4 bytes";
    QTest::newRow("header cut") << QByteArray::fromHex("01000000 001000")
                                << "Inconsistent concise DCF: 1 entries cannot fit in 7 bytes";
    QTest::newRow("data beyond the end") << QByteArray::fromHex("01000000 0010 00 04000000 aabb")
                                         << "Truncated concise DCF: entry 1 (0x1000sub0) declares 4 bytes, 2 left";
    QTest::newRow("second entry swallowed") << QByteArray::fromHex("02000000 0010 00 07000000 01020304050607")
                                            << "Truncated concise DCF: entry 2 of 2 is cut short";
    QTest::newRow("trailing bytes") << QByteArray::fromHex("00000000 ff")
                                    << "Inconsistent concise DCF: 1 bytes after the last entry";
}

void tst_ConciseDcfCreator::readerRejects()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);
    QList<ConciseDcfCreator::ConciseEntry> entries{ {} };
    QString message;
    QVERIFY(!ConciseDcfCreator::readConciseDcf(bytes, &entries, &message));
    QCOMPARE(message, error);
    QCOMPARE(entries.size(), 1);  // untouched on failure
}

void tst_ConciseDcfCreator::configuredExport_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("expected");  // empty: the export fails
    QTest::newRow("written") << "1000" << QByteArray::fromHex("01000000 1710 00 02000000 e803");
    QTest::newRow("not a number") << "abc" << QByteArray();
    QTest::newRow("out of range") << "70000" << QByteArray();
}

// The configured DCF is an intermediate: neither success nor failure leaves it
// (or anything else) beside the output, and the data sheet stays as it was.
void tst_ConciseDcfCreator::configuredExport()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, expected);
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QByteArray text = "[OptionalObjects]\r\nSupportedObjects=1\r\n1=0x1017\r\n"
                            "[1017]\r\nParameterName=Producer heartbeat time\r\nObjectType=0x7\r\n"
                            "DataType=0x0006\r\nAccessType=rw\r\nDefaultValue=0\r\n";
    const QString sheet = dir.filePath("device.eds");
    {
        QFile file(sheet);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    const QString output = dir.filePath("node5.cdcf");
    ConciseDcfCreator creator(sheet);
    const bool ok = creator.writeConciseDcf(output, [&](DCFWriter &writer) {
        writer.setParameterValue(0x1017, 0, value, QString());
    });
    QCOMPARE(ok, !expected.isEmpty());
    QCOMPARE(creator.errors().isEmpty(), ok);
    const QStringList left = QDir(dir.path()).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot);
    QCOMPARE(left, ok ? QStringList({ "device.eds", "node5.cdcf" }) : QStringList({ "device.eds" }));
    QFile file(sheet);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), text);
    if (ok) {
        QFile out(output);
        QVERIFY(out.open(QIODevice::ReadOnly));
        QCOMPARE(out.readAll(), expected);
    }
}

QTEST_GUILESS_MAIN(tst_ConciseDcfCreator)
#include "tst_concisedcfcreator.moc"
