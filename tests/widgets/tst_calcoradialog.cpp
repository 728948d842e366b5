// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "CalcoraDialog.h"

#include <QLineEdit>
#include <QtTest>

class tst_CalcoraDialog : public QObject
{
    Q_OBJECT

private slots:
    void numberFields_data();
    void numberFields();
    void characters_data();
    void characters();
};

static QLineEdit *field(QDialog &dialog, const char *name)
{
    return dialog.findChild<QLineEdit *>(QLatin1String(name));
}

void tst_CalcoraDialog::numberFields_data()
{
    QTest::addColumn<QString>("edited");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("bin");
    QTest::addColumn<QString>("dec");
    QTest::addColumn<QString>("hex");

    // Every row starts from 7 typed in decimal (bin 111, hex 7).
    QTest::newRow("hex ff") << "edtHex" << "ff" << "11111111" << "255" << "ff";
    // The rewritten fields write back into the edited one: it ends up normalised.
    QTest::newRow("hex with 0x and upper case") << "edtHex" << "0xFF" << "11111111" << "255" << "ff";
    QTest::newRow("hex mixed case") << "edtHex" << "FfFf" << "1111111111111111" << "65535" << "ffff";
    // Rewriting a field with the text it holds sends no signal: the cascade stops.
    QTest::newRow("decimal leading zeros") << "edtDec" << "007" << "111" << "007" << "7";
    QTest::newRow("hex stray character") << "edtHex" << "fg" << "111" << "7" << "fg";
    QTest::newRow("binary") << "edtbin" << "101010" << "101010" << "42" << "2a";
    QTest::newRow("binary digit 2 is no binary") << "edtbin" << "2" << "2" << "7" << "7";
    QTest::newRow("binary cleared") << "edtbin" << "" << "" << "7" << "7";
    QTest::newRow("decimal maximum") << "edtDec" << "18446744073709551615"
            << "1111111111111111111111111111111111111111111111111111111111111111"
            << "18446744073709551615" << "ffffffffffffffff";
    QTest::newRow("decimal overflow") << "edtDec" << "18446744073709551616" << "111"
            << "18446744073709551616" << "7";
    QTest::newRow("decimal negative") << "edtDec" << "-1" << "111" << "-1" << "7";
    QTest::newRow("decimal letters") << "edtDec" << "12a" << "111" << "12a" << "7";
    QTest::newRow("decimal zero") << "edtDec" << "0" << "0" << "0" << "0";
}

void tst_CalcoraDialog::numberFields()
{
    QFETCH(QString, edited);
    QFETCH(QString, input);
    QFETCH(QString, bin);
    QFETCH(QString, dec);
    QFETCH(QString, hex);

    CalcoraDialog dialog;
    field(dialog, "edtDec")->setText(QStringLiteral("7"));
    QCOMPARE(field(dialog, "edtbin")->text(), QStringLiteral("111"));

    field(dialog, qPrintable(edited))->setText(input);

    QCOMPARE(field(dialog, "edtbin")->text(), bin);
    QCOMPARE(field(dialog, "edtDec")->text(), dec);
    QCOMPARE(field(dialog, "edtHex")->text(), hex);
    QCOMPARE(field(dialog, "edtAscii")->text(), QString());  // numbers never show as characters
}

void tst_CalcoraDialog::characters_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("bin");
    QTest::addColumn<QString>("dec");
    QTest::addColumn<QString>("hex");

    QTest::newRow("one character lands in the second byte")
            << "A" << "100000100000000" << "16640" << "4100";
    QTest::newRow("two characters") << "AB" << "10000100100000100000000" << "4342016" << "424100";
    QTest::newRow("three characters fill the low 32 bits")
            << "ABC" << "1000011010000100100000100000000" << "1128415488" << "43424100";
    QTest::newRow("fourth character wraps to bit 0")
            << "ABCD" << "1000011010000100100000101000100" << "1128415556" << "43424144";
    QTest::newRow("fifth character lands on the first")
            << "ABCDE" << "1000011010000101000011001000100" << "1128433220" << "43428644";
    QTest::newRow("high third character widens with its sign")
            << QStringLiteral("AB\u00e9")
            << "1111111111111111111111111111111111101001010000100100000100000000"
            << "18446744073328017664" << "ffffffffe9424100";
    QTest::newRow("outside Latin-1 counts as question mark")
            << QStringLiteral("\u20ac") << "11111100000000" << "16128" << "3f00";
    QTest::newRow("cleared") << "" << "0" << "0" << "0";
}

void tst_CalcoraDialog::characters()
{
    QFETCH(QString, input);
    QFETCH(QString, bin);
    QFETCH(QString, dec);
    QFETCH(QString, hex);

    CalcoraDialog dialog;
    // A preceding value proves that clearing writes zeros rather than leaving it.
    field(dialog, "edtAscii")->setText(QStringLiteral("Z"));
    field(dialog, "edtAscii")->setText(input);

    QCOMPARE(field(dialog, "edtbin")->text(), bin);
    QCOMPARE(field(dialog, "edtDec")->text(), dec);
    QCOMPARE(field(dialog, "edtHex")->text(), hex);
    QCOMPARE(field(dialog, "edtAscii")->text(), input);
}

QTEST_MAIN(tst_CalcoraDialog)
#include "tst_calcoradialog.moc"
