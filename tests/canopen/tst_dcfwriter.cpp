// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DCFWriter.h"
#include "TestFiles.h"
#include "TextCompat_p.h"

#include <QtTest>

#include <memory>

using Sections = QMap<QString, QString>;  // "section/key" -> value

class tst_DCFWriter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void missingFile();
    void addSub_data();
    void addSub();
    void addIndex();
    void setParameterValue_data();
    void setParameterValue();
    void setDenotation();
    void loadDropsValues();
    void deleteSpellings_data();
    void deleteSpellings();
    void exists_data();
    void exists();
    void optionalObjects_data();
    void optionalObjects();
    void commissioning();
    void corpus();
    void untouchedRoundTrip_data();
    void untouchedRoundTrip();
    void editedRoundTrip();
    void valueEscaping_data();
    void valueEscaping();
    void corpusRoundTrip();
    void oddLayouts_data();
    void oddLayouts();

private:
    QString writeSheet(const QByteArray &text) { return m_dir->write(text); }
    static QStringList keysOf(const QString &fileName);
    static QString valueOf(const QString &fileName, const QString &key);

    QTemporaryDir m_home;
    std::unique_ptr<TestSupport::SheetFolder> m_dir;
};

void tst_DCFWriter::initTestCase()
{
    QVERIFY(m_home.isValid());
    qputenv("HOME", m_home.path().toLocal8Bit());
    QStandardPaths::setTestModeEnabled(true);
    m_dir = std::make_unique<TestSupport::SheetFolder>();
    QVERIFY2(m_dir->isValid(), qPrintable(m_dir->errorString()));
}

QStringList tst_DCFWriter::keysOf(const QString &fileName)
{
    QSettings settings(fileName, QSettings::IniFormat);
    CommonGUICompat::useUtf8(settings);
    return settings.allKeys();
}

QString tst_DCFWriter::valueOf(const QString &fileName, const QString &key)
{
    QSettings settings(fileName, QSettings::IniFormat);
    CommonGUICompat::useUtf8(settings);
    return settings.value(key, QStringLiteral("<absent>")).toString();
}

void tst_DCFWriter::missingFile()
{
    DCFWriter writer;
    QVERIFY(writer.writeFile());  // nothing open yet
    QVERIFY(!writer.setDCFFile(m_dir->filePath(QStringLiteral("absent.eds"))));
    QVERIFY(!QFile::exists(m_dir->filePath(QStringLiteral("absent.eds"))));
}

void tst_DCFWriter::addSub_data()
{
    QTest::addColumn<bool>("nv");
    QTest::addColumn<int>("subIndex");
    QTest::addColumn<int>("dataType");
    QTest::addColumn<bool>("pdo");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("section");
    QTest::addColumn<Sections>("expected");

    QTest::newRow("sub 0 with value: default and parameter value")
        << false << 0 << 5 << false << "2" << "1a00sub0"
        << Sections{ { "ParameterName", "Number" }, { "ObjectType", "7" }, { "Denotation", "Number" },
                     { "DataType", "0x5" }, { "PDOMapping", "0x0" }, { "AccessType", "rw" },
                     { "DefaultValue", "2" }, { "ParameterValue", "2" } };
    QTest::newRow("sub 0x1a mapped, no value")
        << false << 0x1a << 7 << true << "" << "1a00sub1a"
        << Sections{ { "ParameterName", "Number" }, { "ObjectType", "7" }, { "Denotation", "Number" },
                     { "DataType", "0x7" }, { "PDOMapping", "0x1" }, { "AccessType", "rw" } };
    QTest::newRow("sub 1 with value: no default")
        << false << 1 << 0x1b << false << "0x10" << "1a00sub1"
        << Sections{ { "ParameterName", "Number" }, { "ObjectType", "7" }, { "Denotation", "Number" },
                     { "DataType", "0x1b" }, { "PDOMapping", "0x0" }, { "AccessType", "rw" },
                     { "ParameterValue", "0x10" } };
    QTest::newRow("nv sub 0: not mapped, never a default")
        << true << 0 << 5 << true << "3" << "1a00sub0"
        << Sections{ { "ParameterName", "Number" }, { "ObjectType", "7" }, { "Denotation", "Number" },
                     { "DataType", "0x5" }, { "PDOMapping", "0x0" }, { "AccessType", "rw" },
                     { "ParameterValue", "3" } };
    QTest::newRow("nv sub 2: mapped by its sub-index")
        << true << 2 << 7 << false << "" << "1a00sub2"
        << Sections{ { "ParameterName", "Number" }, { "ObjectType", "7" }, { "Denotation", "Number" },
                     { "DataType", "0x7" }, { "PDOMapping", "0x1" }, { "AccessType", "rw" } };
}

void tst_DCFWriter::addSub()
{
    QFETCH(bool, nv);
    QFETCH(int, subIndex);
    QFETCH(int, dataType);
    QFETCH(bool, pdo);
    QFETCH(QString, value);
    QFETCH(QString, section);
    QFETCH(Sections, expected);

    const QString file = writeSheet("[FileInfo]\nFileName=x.eds\n");
    {
        DCFWriter writer;
        QVERIFY(writer.setDCFFile(file));
        const auto type = static_cast<CAN::CANopenDataType>(dataType);
        if (nv)
            QVERIFY(writer.addNVSub(0x1A00, quint8(subIndex), type, "Number", "rw", value));
        else
            QVERIFY(writer.addSub(0x1A00, quint8(subIndex), type, "Number", "rw", pdo, value));
        QVERIFY(writer.writeFile());
    }
    QSettings settings(file, QSettings::IniFormat);
    settings.beginGroup(section);
    QStringList keys = settings.childKeys();
    keys.sort();
    QStringList expectedKeys = expected.keys();
    QCOMPARE(keys, expectedKeys);
    for (auto it = expected.cbegin(); it != expected.cend(); ++it)
        QCOMPARE(settings.value(it.key()).toString(), it.value());
}

void tst_DCFWriter::addIndex()
{
    const QString file = writeSheet("[FileInfo]\nFileName=x.eds\n");
    {
        DCFWriter writer;
        QVERIFY(writer.setDCFFile(file));
        QVERIFY(writer.addIndex(0x2000, CAN::UNSIGNED8, CANopen::RECORD, "Record", 3));
        QVERIFY(writer.addNVArray(0x20A0, CAN::UNSIGNED32, "Array", 12));
        writer.writeFile();
    }
    QCOMPARE(keysOf(file), (QStringList{ "2000/ObjectType", "2000/ParameterName", "2000/SubNumber",
                                         "20a0/ObjectType", "20a0/ParameterName", "20a0/SubNumber",
                                         "FileInfo/FileName" }));
    QCOMPARE(valueOf(file, "2000/ObjectType"), QStringLiteral("9"));
    QCOMPARE(valueOf(file, "2000/SubNumber"), QStringLiteral("3"));
    QCOMPARE(valueOf(file, "20a0/ObjectType"), QStringLiteral("8"));
    QCOMPARE(valueOf(file, "20a0/SubNumber"), QStringLiteral("12"));
}

void tst_DCFWriter::setParameterValue_data()
{
    QTest::addColumn<QByteArray>("sheet");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("subIndex");
    QTest::addColumn<QString>("section");  // empty: nothing written

    QTest::newRow("upper index, lower sub")
        << QByteArray("[1A00sub1]\nParameterName=a\n") << 0x1A00 << 1 << "1A00sub1";
    QTest::newRow("odd spelling found ignoring case")
        << QByteArray("[1a00SUB1]\nParameterName=a\n") << 0x1A00 << 1 << "1a00SUB1";
    QTest::newRow("upper sub-index")
        << QByteArray("[1A00sub1A]\nParameterName=a\n") << 0x1A00 << 0x1A << "1A00sub1A";
    QTest::newRow("var object: value in the index section")
        << QByteArray("[1000]\nParameterName=a\n") << 0x1000 << 0 << "1000";
    QTest::newRow("var object spelled upper")
        << QByteArray("[100A]\nParameterName=a\n") << 0x100A << 0 << "100A";
    QTest::newRow("sub section preferred to the var section")
        << QByteArray("[1000]\nParameterName=a\n[1000sub0]\nParameterName=b\n") << 0x1000 << 0 << "1000sub0";
    QTest::newRow("var object has no sub 1")
        << QByteArray("[1000]\nParameterName=a\n") << 0x1000 << 1 << "";
    // Both spellings present: the first of the sorted list wins, upper case sorts first.
    QTest::newRow("two spellings: sorted first wins")
        << QByteArray("[1a00sub1]\nParameterName=a\n[1A00SUB1]\nParameterName=b\n") << 0x1A00 << 1 << "1A00SUB1";
    QTest::newRow("section without keys does not count")
        << QByteArray("[1a00sub1]\n[1a00]\nParameterName=a\n") << 0x1A00 << 1 << "";
    QTest::newRow("absent object")
        << QByteArray("[1a00sub1]\nParameterName=a\n") << 0x1A01 << 1 << "";
}

void tst_DCFWriter::setParameterValue()
{
    QFETCH(QByteArray, sheet);
    QFETCH(int, index);
    QFETCH(int, subIndex);
    QFETCH(QString, section);

    const QString file = writeSheet(sheet);
    {
        DCFWriter writer;
        QVERIFY(writer.setDCFFile(file));
        QVERIFY(writer.setParameterValue(quint16(index), quint8(subIndex), "0x55", "Speed"));
        QVERIFY(writer.writeFile());
    }
    QStringList written;
    for (const QString &key : keysOf(file)) {
        if (key.endsWith("/ParameterValue") || key.endsWith("/Denotation"))
            written << key;
    }
    if (section.isEmpty()) {
        QCOMPARE(written, QStringList());
        return;
    }
    QCOMPARE(written, (QStringList{ section + "/Denotation", section + "/ParameterValue" }));
    QCOMPARE(valueOf(file, section + "/ParameterValue"), QStringLiteral("0x55"));
    QCOMPARE(valueOf(file, section + "/Denotation"), QStringLiteral("Speed"));
}

void tst_DCFWriter::setDenotation()
{
    const QString file = writeSheet("[2000sub1]\nParameterName=a\n[2000sub2]\nParameterName=b\n");
    {
        DCFWriter writer;
        QVERIFY(writer.setDCFFile(file));
        QVERIFY(writer.setDenotation(0x2000, 1, "Left"));
        QVERIFY(writer.setDenotation(0x2000, 2, ""));  // empty: not written
        QVERIFY(writer.setParameterValue(0x2000, 2, "", "Right"));  // denotation only
        writer.writeFile();
    }
    QCOMPARE(keysOf(file), (QStringList{ "2000sub1/Denotation", "2000sub1/ParameterName",
                                         "2000sub2/Denotation", "2000sub2/ParameterName" }));
    QCOMPARE(valueOf(file, "2000sub1/Denotation"), QStringLiteral("Left"));
    QCOMPARE(valueOf(file, "2000sub2/Denotation"), QStringLiteral("Right"));
}

void tst_DCFWriter::loadDropsValues()
{
    const QString file = writeSheet("[1000]\nParameterName=Device type\nParameterValue=0x191\n"
                                    "[1a00sub1]\nparametervalue=1\nDENOTATION=x\nDefaultValue=7\n"
                                    "[2000]\nParameterValue=1\nDenotation=only values\n"
                                    "[DeviceInfo]\nMyDenotationText=gone too\nVendorName=Acme\n");
    {
        DCFWriter writer;
        QVERIFY(writer.setDCFFile(file));
        // The emptied section is no longer an object of the file.
        QVERIFY(!writer.existIndex(0x2000));
        writer.writeFile();
    }
    QCOMPARE(keysOf(file), (QStringList{ "1000/ParameterName", "1a00sub1/DefaultValue",
                                         "DeviceInfo/VendorName" }));
    const QByteArray text = TestSupport::readFile(file).toLower();
    QVERIFY(!text.contains("parametervalue"));
    QVERIFY(!text.contains("denotation"));
}

void tst_DCFWriter::deleteSpellings_data()
{
    QTest::addColumn<bool>("wholeIndex");
    QTest::addColumn<QStringList>("remaining");
    QTest::newRow("delIndex: 1a00 and 1A00, not 1A00sub1A")
        << true << QStringList{ "1A00SUB1A", "1A00sub1A", "1a00SUB1a", "1a00sub1", "1a00sub1a" };
    QTest::newRow("delSub: three spellings of sub 0x1a")
        << false << QStringList{ "1A00", "1a00", "1a00SUB1a", "1a00sub1" };
}

void tst_DCFWriter::deleteSpellings()
{
    QFETCH(bool, wholeIndex);
    QFETCH(QStringList, remaining);
    const QString file = writeSheet("[1a00]\nA=1\n[1A00]\nA=1\n[1a00sub1a]\nA=1\n[1A00SUB1A]\nA=1\n"
                                    "[1A00sub1A]\nA=1\n[1a00SUB1a]\nA=1\n[1a00sub1]\nA=1\n");
    DCFWriter writer;
    QVERIFY(writer.setDCFFile(file));
    QVERIFY(wholeIndex ? writer.delIndex(0x1A00) : writer.delSub(0x1A00, 0x1A));
    writer.writeFile();
    QSettings settings(file, QSettings::IniFormat);
    QCOMPARE(settings.childGroups(), remaining);
    // The writer's own answers follow the edit.
    QCOMPARE(writer.existIndex(0x1A00), !wholeIndex);
    QVERIFY(writer.existSub(0x1A00, 0x1A));  // 1a00SUB1a stays in both cases
}

void tst_DCFWriter::exists_data()
{
    QTest::addColumn<QByteArray>("sheet");
    QTest::addColumn<bool>("index");
    QTest::addColumn<bool>("sub");
    QTest::newRow("lower case") << QByteArray("[1a00]\nA=1\n[1a00sub1]\nA=1\n") << true << true;
    QTest::newRow("any case") << QByteArray("[1A00]\nA=1\n[1A00SUB1]\nA=1\n") << true << true;
    QTest::newRow("sub only") << QByteArray("[1a00Sub1]\nA=1\n") << false << true;
    QTest::newRow("other sub only") << QByteArray("[1a00sub10]\nA=1\n") << false << false;
    QTest::newRow("empty sections") << QByteArray("[1a00]\n[1a00sub1]\n") << false << false;
}

void tst_DCFWriter::exists()
{
    QFETCH(QByteArray, sheet);
    QFETCH(bool, index);
    QFETCH(bool, sub);
    DCFWriter writer;
    QVERIFY(writer.setDCFFile(writeSheet(sheet)));
    QCOMPARE(writer.existIndex(0x1A00), index);
    QCOMPARE(writer.existSub(0x1A00, 1), sub);
}

void tst_DCFWriter::optionalObjects_data()
{
    QTest::addColumn<QByteArray>("sheet");
    QTest::addColumn<QList<unsigned short>>("indices");
    QTest::addColumn<Sections>("expected");

    QTest::newRow("duplicates and stale keys")
        << QByteArray("[OptionalObjects]\nSupportedObjects=3\n1=0x1800\n2=0x1801\n3=0x1802\n4=0x1803\n")
        << QList<unsigned short>{ 0x2001, 0x1A00, 0x2001 }
        << Sections{ { "SupportedObjects", "2" }, { "1", "0x1a00" }, { "2", "0x2001" },
                     { "4", "0x1803" } };  // beyond the old count: left alone
    QTest::newRow("empty list clears")
        << QByteArray("[OptionalObjects]\nSupportedObjects=2\n1=0x1800\n2=0x1801\n")
        << QList<unsigned short>{} << Sections{ { "SupportedObjects", "0" } };
    QTest::newRow("count read with the reader's escapes")
        << QByteArray("[OptionalObjects]\nSupportedObjects=\\q2\n1=0x1800\n2=0x1801\n")
        << QList<unsigned short>{ 0x2001 } << Sections{ { "SupportedObjects", "1" }, { "1", "0x2001" } };
    QTest::newRow("no section yet, padded lower-case hex")
        << QByteArray("[FileInfo]\nA=1\n")
        << QList<unsigned short>{ 0xFFFF, 0x0001, 0x1a00, 0x0001 }
        << Sections{ { "SupportedObjects", "3" }, { "1", "0x0001" }, { "2", "0x1a00" }, { "3", "0xffff" } };
}

void tst_DCFWriter::optionalObjects()
{
    QFETCH(QByteArray, sheet);
    QFETCH(QList<unsigned short>, indices);
    QFETCH(Sections, expected);
    const QString file = writeSheet(sheet);
    {
        DCFWriter writer;
        QVERIFY(writer.setDCFFile(file));
        writer.updateOptionalObjects(indices);
        writer.writeFile();
    }
    QSettings settings(file, QSettings::IniFormat);
    settings.beginGroup("OptionalObjects");
    QStringList keys = settings.childKeys();
    keys.sort();
    QCOMPARE(keys, expected.keys());
    for (auto it = expected.cbegin(); it != expected.cend(); ++it)
        QCOMPARE(settings.value(it.key()).toString(), it.value());
}

void tst_DCFWriter::commissioning()
{
    const QString file = writeSheet("[FileInfo]\nA=1\n");
    {
        DCFWriter writer;
        QVERIFY(writer.setDCFFile(file));
        writer.updateDeviceCommisioning(500, 2, "Line 1", 0x7F, QString::fromUtf8("Zähler"));
        writer.updateOtherSettings("FileInfo", "FileName", "node127.dcf");
        writer.writeFile();
    }
    const QString text = QString::fromUtf8(TestSupport::readFile(file));
    QVERIFY2(text.contains("[DeviceComissioning]"), qPrintable(text));
    QVERIFY(text.contains("Baudrate=500"));
    QVERIFY(text.contains("NodeID=127"));
    QVERIFY(text.contains("NetNumber=2"));
    QVERIFY(text.contains("NetworkName=Line 1"));
    QVERIFY(text.contains(QString::fromUtf8("NodeName=Zähler")));  // UTF-8, not escaped
    QCOMPARE(valueOf(file, "FileInfo/FileName"), QStringLiteral("node127.dcf"));
}

void tst_DCFWriter::corpus()
{
    const QString dir = qEnvironmentVariable("COMMONGUI_CORPUS_DIR") + QStringLiteral("/eds");
    if (qEnvironmentVariableIsEmpty("COMMONGUI_CORPUS_DIR") || !QDir(dir).exists())
        QSKIP("no corpus of data sheets");
    const QStringList names = QDir(dir).entryList({ "*.eds", "*.dcf" }, QDir::Files, QDir::Name);
    QVERIFY(!names.isEmpty());
    QRegularExpression object(QStringLiteral("^([0-9a-f]{4})(?:sub([0-9a-f]+))?$"),
                              QRegularExpression::CaseInsensitiveOption);
    for (const QString &name : names) {
        const QString file = m_dir->filePath(name);
        QFile::remove(file);
        QVERIFY(QFile::copy(QDir(dir).filePath(name), file));
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
        QStringList sections;
        QStringList targeted;
        {
            DCFWriter writer;
            QVERIFY2(writer.setDCFFile(file), qPrintable(name));
            sections = QSettings(file, QSettings::IniFormat).childGroups();
            for (const QString &section : qAsConst(sections)) {
                const auto match = object.match(section);
                if (!match.hasMatch())
                    continue;
                const quint16 index = quint16(match.captured(1).toUInt(nullptr, 16));
                const quint8 sub = quint8(match.captured(2).toUInt(nullptr, 16));
                if (match.captured(2).isEmpty() && writer.existSub(index, 0))
                    continue;  // the head of an array or record
                writer.setParameterValue(index, sub, "0x1", "set");
                // "3010Sub0" loses to the head "3010": exact spellings are tried first.
                const QString head = match.captured(1);
                const bool oddSub0 = sub == 0 && !match.captured(2).isEmpty()
                    && !section.contains(QLatin1String("sub"));
                if (oddSub0 && sections.contains(head.toLower()))
                    targeted << head.toLower();
                else if (oddSub0 && sections.contains(head.toUpper()))
                    targeted << head.toUpper();
                else
                    targeted << section;
            }
            QVERIFY(writer.writeFile());
        }
        QVERIFY2(!targeted.isEmpty(), qPrintable(name));
        QSettings settings(file, QSettings::IniFormat);
        for (const QString &section : qAsConst(targeted))
            QVERIFY2(settings.value(section + "/ParameterValue").toString() == "0x1",
                     qPrintable(name + ": " + section));
        QCOMPARE(settings.childGroups(), sections);
    }
}

void tst_DCFWriter::untouchedRoundTrip_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("crlf, comments, quoting, lines without =")
        << QByteArray("; Data sheet\r\n[FileInfo]\r\nFileName=dev.eds ; note\r\nDescription=\"a, b\"\r\n\r\n"
                      "# hash\r\nnot a key line\r\n[1000]\r\nParameterName=Device type\r\nParameterValue=0x191\r\n"
                      "Denotation=x\r\nDefaultValue=0x191\r\n")
        << QByteArray("; Data sheet\r\n[FileInfo]\r\nFileName=dev.eds ; note\r\nDescription=\"a, b\"\r\n\r\n"
                      "# hash\r\nnot a key line\r\n[1000]\r\nParameterName=Device type\r\nDefaultValue=0x191\r\n");
    QTest::newRow("bom, utf-8, no final line break")
        << QByteArray("\xEF\xBB\xBF[DeviceInfo]\nVendorName=Z\xC3\xA4hler\n[1000]\n  parametervalue = 5\nAccessType=ro")
        << QByteArray("\xEF\xBB\xBF[DeviceInfo]\nVendorName=Z\xC3\xA4hler\n[1000]\nAccessType=ro");
    QTest::newRow("continued value goes whole")
        << QByteArray("[2000]\nDenotation=first\\\n second\nA=1\n") << QByteArray("[2000]\nA=1\n");
    QTest::newRow("key holding zero bytes")
        << QByteArray("[1a00sub1]\nDenotation\0\0=x\nA=1\n", 30) << QByteArray("[1a00sub1]\nA=1\n");
    QTest::newRow("nothing to drop")
        << QByteArray("[2000]\n\tA = 1 \n\n\n;end") << QByteArray("[2000]\n\tA = 1 \n\n\n;end");
}

void tst_DCFWriter::untouchedRoundTrip()
{
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, expected);
    const QString file = writeSheet(input);
    DCFWriter writer;
    QVERIFY(writer.setDCFFile(file));
    QVERIFY(writer.writeFile());
    QCOMPARE(TestSupport::readFile(file), expected);
}

static const QByteArray editSheet = "; header comment\r\n[FileInfo]\r\nFileName=dev.eds\r\n\r\n"
                                    "[1a00sub1]\r\nParameterName=Mapped object 1\r\n; keep me\r\n"
                                    "DefaultValue=0x60000108\r\n\r\n[1A00sub2]\r\nParameterName=Mapped object 2\r\n\r\n"
                                    "[2000]\r\nParameterName=Gone\r\n\r\n"
                                    "[OptionalObjects]\r\nSupportedObjects=1\r\n1=0x2000\r\n";

void tst_DCFWriter::editedRoundTrip()
{
    const QString ours = writeSheet(editSheet);
    {
        DCFWriter writer;
        QVERIFY(writer.setDCFFile(ours));
        writer.setParameterValue(0x1A00, 1, "0x60000208", "Speed");
        writer.setParameterValue(0x1A00, 2, "2", "");
        writer.delIndex(0x2000);
        writer.updateOptionalObjects({ 0x1A00 });
        writer.updateDeviceCommisioning(250, 1, "Net", 5, "Node");
        writer.updateOtherSettings("FileInfo", "FileName", "node5.dcf");
        QVERIFY(writer.writeFile());
    }
    // Only edited, added and removed lines differ.
    QCOMPARE(TestSupport::readFile(ours), QByteArray("; header comment\r\n[FileInfo]\r\nFileName=node5.dcf\r\n\r\n"
                                       "[1a00sub1]\r\nParameterName=Mapped object 1\r\n; keep me\r\n"
                                       "DefaultValue=0x60000108\r\nParameterValue=0x60000208\r\nDenotation=Speed\r\n\r\n"
                                       "[1A00sub2]\r\nParameterName=Mapped object 2\r\nParameterValue=2\r\n\r\n"
                                       "[OptionalObjects]\r\nSupportedObjects=1\r\n1=0x1a00\r\n\r\n"
                                       "[DeviceComissioning]\r\nBaudrate=250\r\nNodeID=5\r\nNetNumber=1\r\n"
                                       "NetworkName=Net\r\nNodeName=Node\r\n"));

    // The same edits made by QSettings itself read back the same.
    const QString theirs = writeSheet(editSheet);
    {
        QSettings settings(theirs, QSettings::IniFormat);
        CommonGUICompat::useUtf8(settings);
        settings.setValue("1a00sub1/ParameterValue", "0x60000208");
        settings.setValue("1a00sub1/Denotation", "Speed");
        settings.setValue("1A00sub2/ParameterValue", "2");
        settings.remove("2000");
        settings.remove("OptionalObjects/1");
        settings.setValue("OptionalObjects/1", "0x1a00");
        settings.setValue("OptionalObjects/SupportedObjects", 1);
        settings.setValue("DeviceComissioning/Baudrate", 250);
        settings.setValue("DeviceComissioning/NodeID", 5);
        settings.setValue("DeviceComissioning/NetNumber", 1);
        settings.setValue("DeviceComissioning/NetworkName", "Net");
        settings.setValue("DeviceComissioning/NodeName", "Node");
        settings.setValue("FileInfo/FileName", "node5.dcf");
    }
    QSettings a(ours, QSettings::IniFormat), b(theirs, QSettings::IniFormat);
    QCOMPARE(a.allKeys(), b.allKeys());
    for (const QString &key : b.allKeys())
        QCOMPARE(a.value(key), b.value(key));
}

void tst_DCFWriter::valueEscaping_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("comma and semicolon") << "a, b; c" << QByteArray("ParameterValue=\"a, b; c\"");
    QTest::newRow("leading space") << " 5" << QByteArray("ParameterValue=\" 5\"");
    QTest::newRow("at sign") << "@x" << QByteArray("ParameterValue=@@x");
    QTest::newRow("utf-8 as is") << QString::fromUtf8("Z\xC3\xA4hler") << QByteArray("ParameterValue=Z\xC3\xA4hler");
    QTest::newRow("backslash and quote") << "a\\\"b" << QByteArray("ParameterValue=a\\\\\\\"b");
    QTest::newRow("tab") << "a\tb" << QByteArray("ParameterValue=a\\tb");
}

void tst_DCFWriter::valueEscaping()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, line);
    const QString file = writeSheet("[2000]\nParameterName=x\n");
    {
        DCFWriter writer;
        QVERIFY(writer.setDCFFile(file));
        writer.setParameterValue(0x2000, 0, value, "");
    }
    QCOMPARE(TestSupport::readFile(file), "[2000]\nParameterName=x\n" + line + "\n");
    QCOMPARE(valueOf(file, "2000/ParameterValue"), value);
}

// The file as loading leaves it: lines of values and denotations gone, nothing else.
static QByteArray withoutValues(const QByteArray &text)
{
    QByteArray out;
    QByteArray section;
    int start = 0;
    while (start < text.size()) {
        int end = start;
        while (end < text.size() && text.at(end) != '\n' && text.at(end) != '\r')
            ++end;
        if (end < text.size() && text.at(end) == '\r' && end + 1 < text.size() && text.at(end + 1) == '\n')
            ++end;
        if (end < text.size())
            ++end;
        const QByteArray line = text.mid(start, end - start);
        const QByteArray trimmed = line.trimmed();
        bool drop = false;
        if (trimmed.startsWith('[')) {
            section = trimmed.toLower();
        } else if (!trimmed.startsWith(';') && trimmed.indexOf('=') > 0) {
            const QByteArray path = section + '/' + trimmed.left(trimmed.indexOf('=')).toLower();
            drop = path.contains("parametervalue") || path.contains("denotation");
        }
        if (!drop)
            out += line;
        start = end;
    }
    return out;
}

void tst_DCFWriter::corpusRoundTrip()
{
    const QString dir = qEnvironmentVariable("COMMONGUI_CORPUS_DIR") + QStringLiteral("/eds");
    if (qEnvironmentVariableIsEmpty("COMMONGUI_CORPUS_DIR") || !QDir(dir).exists())
        QSKIP("no corpus of data sheets");
    for (const QString &name : QDir(dir).entryList({ "*.eds", "*.dcf" }, QDir::Files, QDir::Name)) {
        QFile source(QDir(dir).filePath(name));
        QVERIFY(source.open(QIODevice::ReadOnly));
        const QByteArray original = source.readAll();
        const QString file = writeSheet(original);
        {
            DCFWriter writer;
            QVERIFY(writer.setDCFFile(file));
            QVERIFY(writer.writeFile());
        }
        QVERIFY2(TestSupport::readFile(file) == withoutValues(original), qPrintable(name));
    }
}

void tst_DCFWriter::oddLayouts_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<QString>("key");  // what QSettings must read afterwards
    QTest::addColumn<QString>("value");
    // Edits: a value on 0x1A00 sub 1 and FileInfo/X = 3.
    QTest::newRow("section in two pieces: the later piece takes the key")
        << QByteArray("[1a00sub1]\nA=1\n[FileInfo]\nX=1\n[1a00sub1]\nC=2\n\n")
        << QByteArray("[1a00sub1]\nA=1\n[FileInfo]\nX=3\n[1a00sub1]\nC=2\nParameterValue=7\n\n")
        << "1a00sub1/ParameterValue" << "7";
    QTest::newRow("repeated key: the one read is rewritten")
        << QByteArray("[FileInfo]\nX=1\nX=2\n[1a00sub1]\nA=1")
        << QByteArray("[FileInfo]\nX=1\nX=3\n[1a00sub1]\nA=1\nParameterValue=7\n")
        << "FileInfo/X" << "3";
    QTest::newRow("keys outside sections and spaced keys kept")
        << QByteArray("X=0\n[FileInfo]\n  X  =  1  ; old\n[1a00sub1]\nA=1\n; tail comment\n")
        << QByteArray("X=0\n[FileInfo]\nX=3\n[1a00sub1]\nA=1\nParameterValue=7\n; tail comment\n")
        << "X" << "0";
    QTest::newRow("General section holds keys outside sections")
        << QByteArray("[General]\nX=5\n[1a00sub1]\nA=1\n")
        << QByteArray("[General]\nX=5\n[1a00sub1]\nA=1\nParameterValue=7\n\n[FileInfo]\nX=3\n")
        << "X" << "5";
    // Entries end where the settings reader ends them: quotes carry over line breaks,
    // and a longer section name overrides a key of the same path outside it.
    QTest::newRow("quoted value over two lines is one entry")
        << QByteArray("[FileInfo]\nX=\"a\nb\"\n[1a00sub1]\nA=1\n")
        << QByteArray("[FileInfo]\nX=3\n[1a00sub1]\nA=1\nParameterValue=7\n")
        << "1a00sub1/ParameterValue" << "7";
    QTest::newRow("section key overrides a slashed key outside sections")
        << QByteArray("[FileInfo]\nX=1\n[General]\nFileInfo\\X=2\n[1a00sub1]\nA=1\n")
        << QByteArray("[FileInfo]\nX=3\n[General]\nFileInfo\\X=2\n[1a00sub1]\nA=1\nParameterValue=7\n")
        << "1a00sub1/ParameterValue" << "7";
    QTest::newRow("text ending inside quotes is closed first")
        << QByteArray("[1a00sub1]\nA=\"open")
        << QByteArray("[1a00sub1]\nA=\"open\"\nParameterValue=7\n\n[FileInfo]\nX=3\n")
        << "1a00sub1/A" << "open";
    QTest::newRow("final backslash escapes nothing that follows")
        << QByteArray("[1a00sub1]\nA=x \\")
        << QByteArray("[1a00sub1]\nA=x \\x\nParameterValue=7\n\n[FileInfo]\nX=3\n")
        << "1a00sub1/A" << "x ";
    QTest::newRow("byte order mark belongs to the first key outside sections")
        << QByteArray("\xEF\xBB\xBF" "1a00sub1/A=1\n[FileInfo]\nX=1\n")
        << QByteArray("\xEF\xBB\xBF" "1a00sub1/A=1\n[FileInfo]\nX=3\n")
        << "1a00sub1/ParameterValue" << "<absent>";
    QTest::newRow("keys of an unnamed section are not keys outside sections")
        << QByteArray("[]\nParameterValue=5\n[1a00sub1]\nA=1\n")
        << QByteArray("[]\nParameterValue=5\n[1a00sub1]\nA=1\nParameterValue=7\n\n[FileInfo]\nX=3\n")
        << "1a00sub1/ParameterValue" << "7";
    QTest::newRow("a dropped key takes the keys under its path along")
        << QByteArray("[1a00sub1]\nA=1\nParameterValue=5\nParameterValue\\\\\\eralX=al\nB\\\\C=2\n")
        << QByteArray("[1a00sub1]\nA=1\nB\\\\C=2\nParameterValue=7\n\n[FileInfo]\nX=3\n")
        << "1a00sub1/ParameterValue" << "7";
    QTest::newRow("byte order mark kept off a key that moves up to it")
        << QByteArray("\xEF\xBB\xBF" "ParameterValue=1\nX=1\n")
        << QByteArray("\xEF\xBB\xBF\nX=1\n\n[FileInfo]\nX=3\n")
        << "X" << "1";
    QTest::newRow("empty section gets no value")
        << QByteArray("[1a00sub1]\n; nothing\n[FileInfo]\nX=1\n")
        << QByteArray("[1a00sub1]\n; nothing\n[FileInfo]\nX=3\n")
        << "1a00sub1/ParameterValue" << "<absent>";
}

void tst_DCFWriter::oddLayouts()
{
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, expected);
    QFETCH(QString, key);
    QFETCH(QString, value);
    const QString file = writeSheet(input);
    {
        DCFWriter writer;
        QVERIFY(writer.setDCFFile(file));
        writer.setParameterValue(0x1A00, 1, "7", "");
        writer.updateOtherSettings("FileInfo", "X", "3");
    }
    QCOMPARE(TestSupport::readFile(file), expected);
    QCOMPARE(valueOf(file, key), value);
    QCOMPARE(valueOf(file, "FileInfo/X"), QStringLiteral("3"));
}

QTEST_GUILESS_MAIN(tst_DCFWriter)
#include "tst_dcfwriter.moc"
