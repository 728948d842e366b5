// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "CANopenTypes.h"

#include <QtTest>

class tst_CANopenTypes : public QObject
{
    Q_OBJECT

private slots:
    void messageTypeNames_data();
    void messageTypeNames();
    void errorNames_data();
    void errorNames();
    void fdLengthsAndNumbers();
};

void tst_CANopenTypes::messageTypeNames_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::newRow("emcy, repeated three times") << 9 << "EMCY";
    QTest::newRow("time, followed by an emcy row") << 12 << "TIME";
    QTest::newRow("sleep keeps its mixed case") << 18 << "Sleep";
    QTest::newRow("gfc, last before the final emcy") << 19 << "GFC";
    QTest::newRow("unknown") << 0 << "UNKNOWN";
    QTest::newRow("outside the table") << 20 << "";
}

void tst_CANopenTypes::messageTypeNames()
{
    QFETCH(int, type);
    QFETCH(QString, name);
    QCOMPARE(::messageTypeNames.size(), 20);
    QCOMPARE(::messageTypeNames.value(CANopen::MessageType(type)), name);
}

void tst_CANopenTypes::errorNames_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("name");
    QTest::newRow("0 means no error") << 0 << "";
    QTest::newRow("first") << 1 << "Stuff error";
    QTest::newRow("fast data") << 5 << "Fast data bit error";
    QTest::newRow("last") << 8 << "unspecified error";
    QTest::newRow("above the table") << 9 << "";
}

void tst_CANopenTypes::errorNames()
{
    QFETCH(int, code);
    QFETCH(QString, name);
    QCOMPARE(canErrorNames.size(), 8);
    QCOMPARE(canErrorNames.value(static_cast<unsigned char>(code)), name);
}

void tst_CANopenTypes::fdLengthsAndNumbers()
{
    QCOMPARE(canFdDataLengths, (QList<unsigned char>{ 12, 16, 20, 24, 32, 48, 64 }));
    // These numbers land in data sheets as they are.
    QCOMPARE(int(CAN::VISIBLE_STRING), 0x9);
    QCOMPARE(int(CAN::DOMAIN), 0xF);
    QCOMPARE(int(CAN::REAL64), 0x11);
    QCOMPARE(int(CAN::UNSIGNED24), 0x16);
    QCOMPARE(int(CAN::UNSIGNED64), 0x1B);
    QCOMPARE(int(CANopen::RECORD), 9);
}

QTEST_GUILESS_MAIN(tst_CANopenTypes)
#include "tst_canopentypes.moc"
