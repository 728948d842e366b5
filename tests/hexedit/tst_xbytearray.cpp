// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayCommand.h"
#include "CharCommand.h"
#include "XByteArray.h"

#include <QUndoStack>
#include <QtTest>

namespace {

QString marks(XByteArray &buffer, int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += buffer.dataChanged(i) ? QLatin1Char('1') : QLatin1Char('0');
    return text;
}

}

class tst_XByteArray : public QObject
{
    Q_OBJECT

private slots:
    void realAddressNumbers_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("digits");
        QTest::newRow("4 bytes: 0004") << 4 << 0 << 4 << 4;
        QTest::newRow("offset 0x10000: 10004") << 4 << 0x10000 << 4 << 5;
        QTest::newRow("width 6: 000004") << 4 << 0 << 6 << 6;
        QTest::newRow("width 0: 4") << 4 << 0 << 0 << 1;
        QTest::newRow("width 7 ignored: 0004") << 4 << 0 << 7 << 4;
        QTest::newRow("width -1 ignored: 0004") << 4 << 0 << -1 << 4;
        QTest::newRow("0xffff bytes: ffff") << 0xffff << 0 << 4 << 4;
        QTest::newRow("0x10000 bytes: 10000") << 0x10000 << 0 << 4 << 5;
    }
    void realAddressNumbers()
    {
        QFETCH(int, size);
        QFETCH(int, offset);
        QFETCH(int, width);
        QFETCH(int, digits);
        XByteArray buffer;
        buffer.setData(QByteArray(size, 'x'));
        buffer.setAddressOffset(offset);
        buffer.setAddressWidth(width);
        QCOMPARE(buffer.realAddressNumbers(), digits);
    }

    void digitsFollowEveryChange()
    {
        // The cached count is never trusted, so no change needs an invalidation.
        XByteArray buffer;
        buffer.setData(QByteArray(4, 'x'));
        QCOMPARE(buffer.realAddressNumbers(), 4);
        buffer.setAddressOffset(0xfffff);
        QCOMPARE(buffer.realAddressNumbers(), 6);
        buffer.setAddressOffset(0);
        buffer.insert(0, QByteArray(0x10000, 'y'));
        QCOMPARE(buffer.realAddressNumbers(), 5);
        buffer.remove(0, 0x10000);
        QCOMPARE(buffer.realAddressNumbers(), 4);
    }

    void bytesEnabled()
    {
        XByteArray buffer;
        buffer.setData(QByteArray("\x01\x02\x03\x04", 4));
        buffer.setBytesEnabled(8);
        QCOMPARE(buffer.data(), QByteArray("\x01\x02\x03\x04\x00\x00\x00\x00", 8));
        QCOMPARE(buffer.size(), 8);
        // The marks stay at four; beyond them every byte reads as unchanged.
        QCOMPARE(buffer.dataChanged(0, 8).size(), 4);
        QCOMPARE(marks(buffer, 8), QStringLiteral("00000000"));

        buffer.setBytesEnabled(2);
        QCOMPARE(buffer.size(), 2);
        QCOMPARE(buffer.data().size(), 8);
        QCOMPARE(buffer.maxSize(), 2);
    }

    void replace_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("length");  // -1: replace(int, char) with bytes[0]
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("marks");
        QTest::newRow("cut at the end") << 2 << 10 << QByteArray("ABCDEFGHIJ") << QByteArray("wxAB") << "0011";
        QTest::newRow("inside") << 1 << 2 << QByteArray("AB") << QByteArray("wABz") << "0110";
        QTest::newRow("zero length") << 1 << 0 << QByteArray("AB") << QByteArray("wxyz") << "0000";
        QTest::newRow("at the end") << 4 << 1 << QByteArray("A") << QByteArray("wxyz") << "0000";
        QTest::newRow("negative index") << -1 << 2 << QByteArray("AB") << QByteArray("wxyz") << "0000";
        QTest::newRow("short bytes do not shrink") << 1 << 3 << QByteArray("A") << QByteArray("wAyz") << "0100";
        QTest::newRow("char past the end pads with zero") << 5 << -1 << QByteArray("Q") << QByteArray("wxyz\0Q", 6)
                                                          << "000001";
    }
    void replace()
    {
        QFETCH(int, index);
        QFETCH(int, length);
        QFETCH(QByteArray, bytes);
        XByteArray buffer;
        buffer.setData("wxyz");
        if (length < 0)
            buffer.replace(index, bytes.at(0));
        else
            buffer.replace(index, length, bytes);
        QTEST(buffer.data(), "data");
        QTEST(marks(buffer, buffer.data().size()), "marks");
    }

    void setDataChangedRun()
    {
        XByteArray buffer;
        buffer.setData("wxyz");
        buffer.setDataChanged(2, QByteArray("\x01\x01\x01\x01", 4));
        QCOMPARE(buffer.dataChanged(0, 10), QByteArray("\x00\x00\x01\x01", 4));
        buffer.setDataChanged(6, true);  // element access enlarges the marks
        QCOMPARE(marks(buffer, 7), QStringLiteral("0011001"));
    }

    void asciiChar_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<char>("expected");
        QTest::newRow("0x1f") << 0 << '.';
        QTest::newRow("0x20") << 1 << ' ';
        QTest::newRow("0x7e") << 2 << '~';
        QTest::newRow("0x7f") << 3 << '.';
        QTest::newRow("0x80") << 4 << '.';
        QTest::newRow("0x41") << 5 << 'A';
        QTest::newRow("past the end") << 6 << '.';
        QTest::newRow("negative") << -1 << '.';
    }
    void asciiChar()
    {
        QFETCH(int, index);
        XByteArray buffer;
        buffer.setData(QByteArray("\x1f\x20\x7e\x7f\x80\x41", 6));
        QTEST(buffer.asciiChar(index), "expected");
    }

    void toRedableString_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("end");
        QTest::addColumn<QString>("expected");

        const QString full = QStringLiteral(
            "0000  41 41 41 41 41 41 41 41 41 41 41 41 41 41 41 41  AAAAAAAAAAAAAAAA \n");
        const QString tail = QStringLiteral("0010  41") + QString(45, ' ') + QStringLiteral("  A")
            + QString(16, ' ') + QStringLiteral("\n");
        QTest::newRow("17 bytes: two lines") << QByteArray(17, 'A') << 0 << 0 << -1 << full + tail;
        QTest::newRow("end inside a line prints the whole line") << QByteArray(17, 'A') << 0 << 0 << 1 << full;
        QTest::newRow("end past the data: blank address lines") << QByteArray(2, 'A') << 0 << 0 << 40
                << QStringLiteral("0000  41 41") + QString(42, ' ') + QStringLiteral("  AA") + QString(15, ' ')
                        + QStringLiteral("\n0010 ") + QString(67, ' ') + QStringLiteral("\n0020 ")
                        + QString(67, ' ') + QStringLiteral("\n");
        QTest::newRow("end at start") << QByteArray(17, 'A') << 0 << 16 << 16 << QString();
        QTest::newRow("empty data") << QByteArray() << 0 << 0 << -1 << QString();
        QTest::newRow("offset") << QByteArray("AB") << 0x1000 << 0 << -1
                                << QStringLiteral("1000  41 42") + QString(42, ' ') + QStringLiteral("  AB")
                + QString(15, ' ') + QStringLiteral("\n");
        QTest::newRow("printable bounds") << QByteArray("\x1f\x20\x7e\x7f\x80", 5) << 0 << 0 << -1
                                          << QStringLiteral("0000  1f 20 7e 7f 80") + QString(33, ' ')
                + QStringLiteral("  . ~..") + QString(12, ' ') + QStringLiteral("\n");
        QByteArray counting;
        for (int i = 0; i < 20; ++i)
            counting.append(char(0x30 + i));
        QTest::newRow("start inside a line") << counting << 0 << 4 << -1
                                             << QStringLiteral("0004  34 35 36 37 38 39 3a 3b 3c 3d 3e 3f 40 41 42 43"
                                                               "  456789:;<=>?@ABC \n");
    }
    void toRedableString()
    {
        QFETCH(QByteArray, data);
        QFETCH(int, offset);
        QFETCH(int, start);
        QFETCH(int, end);
        XByteArray buffer;
        buffer.setData(data);
        buffer.setAddressOffset(offset);
        QTEST(buffer.toRedableString(start, end), "expected");
    }

    void command_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("start");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("length");  // -1: a CharCommand typing bytes[0]
        QTest::addColumn<QByteArray>("afterRedo");
        QTest::addColumn<QString>("marksAfterRedo");
        QTest::newRow("char insert") << int(CharCommand::insert) << 1 << QByteArray("X") << -1
                                     << QByteArray("aXbcdef") << "0110000";
        QTest::newRow("char remove marked") << int(CharCommand::remove) << 1 << QByteArray("X") << -1
                                            << QByteArray("acdef") << "00000";
        QTest::newRow("char remove last") << int(CharCommand::remove) << 5 << QByteArray("X") << -1
                                          << QByteArray("abcde") << "01000";
        QTest::newRow("char replace unmarked") << int(CharCommand::replace) << 2 << QByteArray("X") << -1
                                               << QByteArray("abXdef") << "011000";
        QTest::newRow("char replace marked") << int(CharCommand::replace) << 1 << QByteArray("X") << -1
                                             << QByteArray("aXcdef") << "010000";
        QTest::newRow("array insert") << int(ArrayCommand::insert) << 2 << QByteArray("XY") << 0
                                      << QByteArray("abXYcdef") << "01110000";
        QTest::newRow("array remove") << int(ArrayCommand::remove) << 1 << QByteArray() << 3
                                      << QByteArray("aef") << "000";
        QTest::newRow("array replace") << int(ArrayCommand::replace) << 0 << QByteArray("XYZ") << 3
                                       << QByteArray("XYZdef") << "111000";
        QTest::newRow("array replace cut at the end") << int(ArrayCommand::replace) << 4 << QByteArray("XYZ") << 3
                                                      << QByteArray("abcdXY") << "010011";
    }
    void command()
    {
        QFETCH(int, kind);
        QFETCH(int, start);
        QFETCH(QByteArray, bytes);
        QFETCH(int, length);
        XByteArray buffer;
        buffer.setData("abcdef");
        buffer.setDataChanged(1, true);
        QUndoStack stack;
        if (length < 0)
            stack.push(new CharCommand(&buffer, CharCommand::Cmd(kind), start, bytes.at(0)));
        else
            stack.push(new ArrayCommand(&buffer, ArrayCommand::Cmd(kind), start, bytes, length));
        for (int pass = 0; pass < 2; ++pass) {
            QTEST(buffer.data(), "afterRedo");
            QTEST(marks(buffer, buffer.data().size()), "marksAfterRedo");
            stack.undo();
            QCOMPARE(buffer.data(), QByteArray("abcdef"));
            QCOMPARE(marks(buffer, 6), QStringLiteral("010000"));
            stack.redo();
        }
    }

    void merge_data()
    {
        // "<kind><position><byte>": i insert, d remove, r replace; "R<position><bytes>" an ArrayCommand replace.
        QTest::addColumn<QString>("commands");
        QTest::addColumn<int>("count");
        QTest::addColumn<QByteArray>("afterOneUndo");
        QTest::addColumn<QString>("marksAfterOneUndo");
        QTest::newRow("two nibbles of one byte") << "r1P r1Z" << 1 << QByteArray("abcd") << "0000";
        QTest::newRow("insert then replace") << "i4P r4Z" << 1 << QByteArray("abcd") << "0000";
        QTest::newRow("remove then replace") << "d1- r1X" << 2 << QByteArray("acd") << "000";
        QTest::newRow("replace then remove") << "r1X d1-" << 2 << QByteArray("aXcd") << "0100";
        QTest::newRow("different positions") << "r1X r2Y" << 2 << QByteArray("aXcd") << "0100";
        QTest::newRow("replace then insert") << "r1X i1Y" << 2 << QByteArray("aXcd") << "0100";
        QTest::newRow("array commands never merge") << "R1XY R1ZW" << 2 << QByteArray("aXYd") << "0110";
    }
    void merge()
    {
        QFETCH(QString, commands);
        QFETCH(int, count);
        XByteArray buffer;
        buffer.setData("abcd");
        QUndoStack stack;
        const QStringList list = commands.split(QLatin1Char(' '));
        for (const QString &c : list) {
            const int position = c.mid(1, 1).toInt();
            if (c.at(0) == QLatin1Char('R'))
                stack.push(new ArrayCommand(&buffer, ArrayCommand::replace, position, c.mid(2).toLatin1(), c.size() - 2));
            else
                stack.push(new CharCommand(&buffer, CharCommand::Cmd(QStringLiteral("idr").indexOf(c.at(0))), position,
                                           c.at(2).toLatin1()));
        }
        const QByteArray final = buffer.data();
        QCOMPARE(stack.count(), count);

        stack.undo();
        QTEST(buffer.data(), "afterOneUndo");
        QTEST(marks(buffer, buffer.data().size()), "marksAfterOneUndo");
        stack.redo();
        QCOMPARE(buffer.data(), final);
    }
};

QTEST_GUILESS_MAIN(tst_XByteArray)
#include "tst_xbytearray.moc"
