// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Edits of one file never lose each other: writers in one process share the
// text, a save takes in what others wrote, and a change reaches the disk on
// the next pass of the event loop.
#include "ConciseDcfCreator.h"
#include "DCFWriter.h"
#include "TestFiles.h"
#include "TextCompat_p.h"

#include <QLockFile>
#include <QProcess>
#include <QtTest>

#include <cstdio>
#include <memory>

namespace {

const QByteArray sheet = "[FileInfo]\nFileName=dev.eds\n\n[1000]\nParameterName=Device type\nAccessType=ro\n\n"
                         "[2000]\nParameterName=Speed\nAccessType=rw\nDataType=0x0007\nParameterValue=9\n";

QString valueOf(const QString &fileName, const QString &key)
{
    QSettings settings(fileName, QSettings::IniFormat);
    CommonGUICompat::useUtf8(settings);
    return settings.value(key, QStringLiteral("<absent>")).toString();
}

// The child side of the cross-process cases: edits the file, then either
// keeps its event loop running until killed or saves at once and ends.
int runChild(const QString &fileName, const QString &mode)
{
    DCFWriter writer;
    if (!writer.setDCFFile(fileName))
        return 2;
    writer.setParameterValue(0x2000, 0, QStringLiteral("child"), QString());
    if (mode == QLatin1String("loop")) {
        // Queued after the writer's own save: printed once that has run.
        QMetaObject::invokeMethod(QCoreApplication::instance(), [] {
            printf("edited\n");
            fflush(stdout);
        }, Qt::QueuedConnection);
        return QCoreApplication::exec();
    }
    printf("saving\n");
    fflush(stdout);
    writer.writeFile();
    return 0;
}

}

class tst_DcfStorage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void twoWriters_data();
    void twoWriters();
    void sameFileTwice();
    void changedOnDisk();
    void editsReplayedInOrder();
    void savedByEventLoop();
    void editSurvivesKill();
    void lockHeldByAnotherProcess();
    void relativeNameResolvedAtOpening();
    void conciseReadsSharedText();

private:
    QString writeSheet(const QByteArray &text) { return m_dir.write(text); }
    TestSupport::SheetFolder m_dir;
};

void tst_DcfStorage::initTestCase()
{
    QVERIFY2(m_dir.isValid(), qPrintable(m_dir.errorString()));
}

void tst_DcfStorage::twoWriters_data()
{
    QTest::addColumn<bool>("firstSavesFirst");
    QTest::newRow("first saves first") << true;
    QTest::newRow("second saves first") << false;
}

void tst_DcfStorage::twoWriters()
{
    QFETCH(bool, firstSavesFirst);
    const QString file = writeSheet(sheet);
    auto first = std::make_unique<DCFWriter>();
    auto second = std::make_unique<DCFWriter>();
    QVERIFY(first->setDCFFile(file));
    QVERIFY(second->setDCFFile(file));
    first->setParameterValue(0x1000, 0, "first", "");
    second->setParameterValue(0x2000, 0, "second", "");
    // Each sees the other's section changes too.
    second->addIndex(0x3000, CAN::CANopenDataType(7), CANopen::ObjectCode(7), "Added", 0);
    QVERIFY(first->existIndex(0x3000));
    if (firstSavesFirst) {
        QVERIFY(first->writeFile());
        QVERIFY(second->writeFile());
    } else {
        QVERIFY(second->writeFile());
        QVERIFY(first->writeFile());
    }
    first.reset();
    second.reset();
    QCOMPARE(valueOf(file, "1000/ParameterValue"), QStringLiteral("first"));
    QCOMPARE(valueOf(file, "2000/ParameterValue"), QStringLiteral("second"));
    QCOMPARE(valueOf(file, "3000/ParameterName"), QStringLiteral("Added"));
}

void tst_DcfStorage::sameFileTwice()
{
    const QString file = writeSheet(sheet);
    {
        DCFWriter writer;
        QVERIFY(writer.setDCFFile(file));
        QVERIFY(writer.setDCFFile(file));
        writer.setParameterValue(0x2000, 0, "7", "");
        QVERIFY(writer.writeFile());
        QCOMPARE(valueOf(file, "2000/ParameterValue"), QStringLiteral("7"));
    }
    // The first opening is no stale copy that overwrites the saved value.
    QCOMPARE(valueOf(file, "2000/ParameterValue"), QStringLiteral("7"));
}

void tst_DcfStorage::changedOnDisk()
{
    const QString file = writeSheet(sheet);
    DCFWriter writer;
    QVERIFY(writer.setDCFFile(file));
    writer.setParameterValue(0x1000, 0, "5", "");
    // Another program edits the file meanwhile.
    QByteArray other = TestSupport::readFile(file);
    other.replace("FileName=dev.eds", "FileName=other.eds ; theirs");
    other += "\n[Comments]\nLines=1\n";
    QVERIFY(TestSupport::writeFile(file, other));
    QVERIFY(writer.writeFile());
    // Their lines byte for byte, ours on top; the value dropped at opening stays dropped.
    QCOMPARE(TestSupport::readFile(file),
             QByteArray("[FileInfo]\nFileName=other.eds ; theirs\n\n[1000]\nParameterName=Device type\n"
                        "AccessType=ro\nParameterValue=5\n\n[2000]\nParameterName=Speed\nAccessType=rw\n"
                        "DataType=0x0007\n\n[Comments]\nLines=1\n"));
}

void tst_DcfStorage::editsReplayedInOrder()
{
    const QString file = writeSheet(sheet);
    DCFWriter writer;
    QVERIFY(writer.setDCFFile(file));
    // Set, set again, removed, set once more: on a file changed on disk the
    // edits are applied again in the order they were made.
    writer.setParameterValue(0x2000, 0, "1", "");
    writer.setParameterValue(0x2000, 0, "2", "");
    writer.addIndex(0x3000, CAN::CANopenDataType(7), CANopen::ObjectCode(7), "Old", 0);
    writer.delIndex(0x3000);
    writer.addIndex(0x3000, CAN::CANopenDataType(7), CANopen::ObjectCode(7), "New", 0);
    writer.addIndex(0x3001, CAN::CANopenDataType(7), CANopen::ObjectCode(7), "Gone", 0);
    writer.delIndex(0x3001);
    QByteArray other = TestSupport::readFile(file);
    other += "\n[Comments]\nLines=1\n";
    QVERIFY(TestSupport::writeFile(file, other));
    QVERIFY(writer.writeFile());
    QCOMPARE(valueOf(file, "2000/ParameterValue"), QStringLiteral("2"));
    QCOMPARE(valueOf(file, "3000/ParameterName"), QStringLiteral("New"));
    QCOMPARE(valueOf(file, "3001/ParameterName"), QStringLiteral("<absent>"));
    QCOMPARE(valueOf(file, "Comments/Lines"), QStringLiteral("1"));
}

void tst_DcfStorage::savedByEventLoop()
{
    const QString file = writeSheet(sheet);
    DCFWriter writer;
    QVERIFY(writer.setDCFFile(file));
    writer.setParameterValue(0x1000, 0, "11", "");
    QCOMPARE(valueOf(file, "1000/ParameterValue"), QStringLiteral("<absent>"));
    QCoreApplication::processEvents();
    QCOMPARE(valueOf(file, "1000/ParameterValue"), QStringLiteral("11"));
}

void tst_DcfStorage::editSurvivesKill()
{
    const QString file = writeSheet(sheet);
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), { "--child", file, "loop" });
    QVERIFY(child.waitForStarted());
    QVERIFY(child.waitForReadyRead(30000));
    QCOMPARE(child.readLine(), QByteArray("edited\n"));
    child.kill();  // SIGKILL: nothing runs at exit
    QVERIFY(child.waitForFinished(30000));
    QCOMPARE(valueOf(file, "2000/ParameterValue"), QStringLiteral("child"));
}

void tst_DcfStorage::lockHeldByAnotherProcess()
{
    const QString file = writeSheet(sheet);
    QLockFile lock(file + ".lock");
    QVERIFY(lock.lock());
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), { "--child", file, "save" });
    QVERIFY(child.waitForReadyRead(30000));
    QCOMPARE(child.readLine(), QByteArray("saving\n"));
    // The child waits for the lock; what is written under it is taken in.
    QVERIFY(!child.waitForFinished(300));
    QCOMPARE(TestSupport::readFile(file), sheet);
    QVERIFY(TestSupport::writeFile(file, sheet + "\n[Lock]\nHeld=1\n"));
    lock.unlock();
    QVERIFY(child.waitForFinished(30000));
    QCOMPARE(child.exitCode(), 0);
    QCOMPARE(valueOf(file, "2000/ParameterValue"), QStringLiteral("child"));
    QCOMPARE(valueOf(file, "Lock/Held"), QStringLiteral("1"));
    QVERIFY(!QFile::exists(file + ".lock"));
}

void tst_DcfStorage::relativeNameResolvedAtOpening()
{
    const QString file = writeSheet(sheet);
    const QString home = QDir::currentPath();
    QTemporaryDir elsewhere;
    QVERIFY(QDir::setCurrent(QFileInfo(file).absolutePath()));
    DCFWriter writer;
    QVERIFY(writer.setDCFFile(QFileInfo(file).fileName()));
    QVERIFY(QDir::setCurrent(elsewhere.path()));
    writer.setParameterValue(0x1000, 0, "3", "");
    QVERIFY(writer.writeFile());
    QVERIFY(QDir::setCurrent(home));
    QCOMPARE(valueOf(file, "1000/ParameterValue"), QStringLiteral("3"));
    QVERIFY(QDir(elsewhere.path()).entryList(QDir::Files).isEmpty());
}

void tst_DcfStorage::conciseReadsSharedText()
{
    // The creator reads the writer's text, saved or not.
    const QString file = writeSheet(sheet + "[OptionalObjects]\nSupportedObjects=1\n1=0x2000\n");
    DCFWriter writer;
    QVERIFY(writer.setDCFFile(file));
    writer.setParameterValue(0x2000, 0, "0x1234", "");
    ConciseDcfCreator creator(file);
    const QString output = m_dir.filePath("shared.cdcf");
    QVERIFY2(creator.writeConciseDcf(output), qPrintable(creator.errorString()));
    QCOMPARE(TestSupport::readFile(output), QByteArray::fromHex("01000000 0020 00 04000000 34120000"));
}

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc == 4 && qstrcmp(argv[1], "--child") == 0)
        return runChild(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    tst_DcfStorage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dcfstorage.moc"
