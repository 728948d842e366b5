// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "CANopenTypes.h"
#include "DCFWriter.h"
#include "DataSheet.h"
#include "TestFiles.h"

#include <QtTest>

class tst_DataSheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAsWritten_data();
    void readsAsWritten();
    void objectList();
    void latin1Fallback();
    void loadSeesUnsavedEdits();
    void checkValue_data();
    void checkValue();
    void corpusSheets();
};

// A vendor-like sheet: names with commas and quotes, mixed letter case,
// a $NODEID default and a VAR without sub-sections.
static const QByteArray vendorSheet =
    "[DeviceInfo]\r\n"
    "VendorName=Korvil, Inc.\r\n"
    "[DeviceComissioning]\r\nNodeID=0x05\r\n"
    "[1000]\r\nParameterName=Device type\r\nObjectType=0x7\r\nDataType=0x0007\r\nAccessType=ro\r\n"
    "DefaultValue=0x00000191\r\n"
    "[1800]\r\nParameterName=TPDO1 communication parameter\r\nObjectType=0x9\r\nSubNumber=2\r\n"
    "[1800sub0]\r\nParameterName=Highest sub-index supported\r\nObjectType=0x7\r\nDataType=0x0005\r\n"
    "AccessType=CONST\r\nDefaultValue=1\r\n"
    "[1800SUB1]\r\nparametername=COB-ID used by TPDO, 1st\r\nobjecttype=0x7\r\ndatatype=0x0007\r\n"
    "accesstype=rw\r\ndefaultvalue=$NODEID+0x180\r\n"
    "[2000]\r\nParameterName=Mode \"fast\",slow , off\r\nObjectType=0x7\r\nDataType=0x0009\r\n"
    "AccessType=rw\r\nDefaultValue=a,b\\c\r\nParameterValue= x , y \r\nDenotation=Line 1, left\r\n"
    "[1a00]\r\nParameterName=TPDO1 mapping\r\nObjectType=0x8\r\nDataType=0x0007\r\nSubNumber=1\r\n";

void tst_DataSheet::readsAsWritten_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    const QByteArray lf = QByteArray(vendorSheet).replace("\r\n", "\n");
    for (const auto &eol : { std::make_pair("CRLF", vendorSheet), std::make_pair("LF", lf) }) {
        const QByteArray text = eol.second;
        auto row = [&](const char *name) { return &QTest::newRow(qPrintable(QStringLiteral("%1, %2").arg(QLatin1String(eol.first), QLatin1String(name)))); };
        *row("comma kept") << text << "DeviceInfo" << "VendorName" << "Korvil, Inc.";
        *row("quotes and commas kept") << text << "2000" << "ParameterName" << "Mode \"fast\",slow , off";
        *row("backslash kept") << text << "2000" << "DefaultValue" << "a,b\\c";
        *row("outer blanks trimmed") << text << "2000" << "ParameterValue" << "x , y";
        *row("lower-case keys") << text << "1800sub1" << "ParameterName" << "COB-ID used by TPDO, 1st";
        *row("section in any case") << text << "1800sub1" << "DefaultValue" << "$NODEID+0x180";
        *row("key in any case") << text << "DEVICEINFO" << "vendorname" << "Korvil, Inc.";
        *row("missing key") << text << "1000" << "Denotation" << "";
    }
}

void tst_DataSheet::readsAsWritten()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, section);
    QFETCH(QString, key);
    QFETCH(QString, expected);
    DataSheet sheet;
    sheet.parse(text);
    QCOMPARE(sheet.value(section, key), expected);
    QCOMPARE(sheet.contains(section, key), !expected.isEmpty());
    QVERIFY(!sheet.isLatin1());
}

void tst_DataSheet::objectList()
{
    DataSheet sheet;
    sheet.parse(vendorSheet);
    QCOMPARE(sheet.nodeId(), 5);
    const QList<DataSheetObject> objects = sheet.objects();
    QStringList seen;
    for (const DataSheetObject &o : objects)
        seen << QStringLiteral("%1/%2 %3").arg(o.index, 4, 16, QLatin1Char('0')).arg(o.subIndex).arg(o.section);
    // ARRAY and RECORD heads carry no value of their own.
    QCOMPARE(seen, QStringList({ "1000/0 1000", "1800/0 1800sub0", "1800/1 1800SUB1", "2000/0 2000" }));
    const DataSheetObject &cobId = objects.at(2);
    QCOMPARE(cobId.name, QStringLiteral("COB-ID used by TPDO, 1st"));
    QCOMPARE(cobId.dataType, int(CAN::UNSIGNED32));
    QCOMPARE(cobId.dataTypeText, QStringLiteral("0x0007"));
    QCOMPARE(cobId.defaultValue, QStringLiteral("$NODEID+0x180"));
    QVERIFY(cobId.isWritable());
    QCOMPARE(objects.at(1).accessType, QStringLiteral("const"));
    QVERIFY(!objects.at(1).isWritable());
    QCOMPARE(objects.at(3).denotation, QStringLiteral("Line 1, left"));
}

void tst_DataSheet::latin1Fallback()
{
    DataSheet sheet;
    sheet.parse("[2001]\nParameterName=Temp\xe9rature \xb0" "C\nDataType=0x0008\nAccessType=ro\n");
    QVERIFY(sheet.isLatin1());
    QCOMPARE(sheet.value("2001", "ParameterName"), QString::fromUtf8("Température °C"));
    sheet.parse("[2001]\nParameterName=Temp\xc3\xa9rature\n");
    QVERIFY(!sheet.isLatin1());
    QCOMPARE(sheet.value("2001", "ParameterName"), QString::fromUtf8("Température"));
}

void tst_DataSheet::loadSeesUnsavedEdits()
{
    TestSupport::SheetFolder dir;
    const QString file = dir.write(vendorSheet);
    QVERIFY(!file.isEmpty());
    DCFWriter writer;
    QVERIFY(writer.setDCFFile(file));
    writer.setParameterValue(0x2000, 0, QStringLiteral("0x42"), QStringLiteral("Set here"));
    // No event loop has run: the edit is not on disk yet.
    QVERIFY(!TestSupport::readFile(file).contains("Set here"));

    DataSheet sheet;
    QString error;
    QVERIFY(sheet.load(file, &error));
    QCOMPARE(sheet.value("2000", "ParameterValue"), QStringLiteral("0x42"));
    QCOMPARE(sheet.value("2000", "Denotation"), QStringLiteral("Set here"));
    QCOMPARE(sheet.value("DeviceInfo", "VendorName"), QStringLiteral("Korvil, Inc."));

    QVERIFY(!sheet.load(dir.filePath("missing.dcf"), &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(sheet.sections().isEmpty());
}

void tst_DataSheet::checkValue_data()
{
    QTest::addColumn<int>("dataType");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("nodeId");
    QTest::addColumn<bool>("ok");
    QTest::newRow("UNSIGNED16 text") << int(CAN::UNSIGNED16) << "abc" << 5 << false;
    QTest::newRow("UNSIGNED8 too big") << int(CAN::UNSIGNED8) << "300" << 5 << false;
    QTest::newRow("UNSIGNED8 max") << int(CAN::UNSIGNED8) << "0xff" << 5 << true;
    QTest::newRow("INTEGER8 lowest") << int(CAN::INTEGER8) << "-128" << 5 << true;
    QTest::newRow("INTEGER8 below") << int(CAN::INTEGER8) << "-129" << 5 << false;
    QTest::newRow("UNSIGNED32 node formula") << int(CAN::UNSIGNED32) << "$NODEID+0x180" << 5 << true;
    QTest::newRow("node formula without node") << int(CAN::UNSIGNED32) << "$NODEID+0x180" << -1 << false;
    QTest::newRow("VISIBLE_STRING with comma") << int(CAN::VISIBLE_STRING) << "a, b" << 5 << true;
    QTest::newRow("unknown type") << 0x7f << "1" << 5 << false;
}

void tst_DataSheet::checkValue()
{
    QFETCH(int, dataType);
    QFETCH(QString, value);
    QFETCH(int, nodeId);
    QFETCH(bool, ok);
    DataSheetObject object;
    object.dataType = dataType;
    const QString reason = DataSheet::checkValue(object, value, nodeId);
    QCOMPARE(reason.isEmpty(), ok);
}

// Real sheets, when the folder is there: every value-carrying section is listed with its name.
void tst_DataSheet::corpusSheets()
{
    const QDir corpus(qEnvironmentVariable("COMMONGUI_CORPUS_DIR") + QStringLiteral("/eds"));
    if (qEnvironmentVariableIsEmpty("COMMONGUI_CORPUS_DIR") || !corpus.exists())
        QSKIP("no sample sheets");
    const QFileInfoList files = corpus.entryInfoList({ "*.eds", "*.dcf" }, QDir::Files);
    for (const QFileInfo &file : files) {
        DataSheet sheet;
        QVERIFY(sheet.load(file.filePath()));
        for (const DataSheetObject &object : sheet.objects())
            QVERIFY2(!object.name.isEmpty() || !sheet.contains(object.section, "ParameterName"),
                     qPrintable(file.fileName() + QLatin1Char(' ') + object.section));
    }
}

QTEST_GUILESS_MAIN(tst_DataSheet)
#include "tst_datasheet.moc"
