// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "QHexEdit.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

Q_DECLARE_METATYPE(QHexEdit::FindFlags)

namespace {

QWidget *focused()
{
    return QApplication::focusWidget();
}

bool shownAndActive(QHexEdit &edit)
{
    edit.resize(edit.sizeHint());
    edit.show();
    edit.activateWindow();
    edit.setFocus();
    return QTest::qWaitForWindowActive(&edit);
}

}

class tst_HexEditFind : public QObject
{
    Q_OBJECT

private slots:
    void sameAsQByteArray_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QByteArray>("pattern");
        const QByteArray data("abcab\0cabcaa", 12);
        for (const QByteArray &pattern : { QByteArray(), QByteArray("a"), QByteArray("\0", 1), QByteArray("ab"),
                                           QByteArray("abc"), QByteArray("ca"), QByteArray("aa"), QByteArray("x"),
                                           QByteArray("cabcaa"), QByteArray("abcab\0cabcaa!", 13) })
            QTest::newRow(pattern.toHex().constData()) << data << pattern;
        QTest::newRow("empty data, one byte") << QByteArray() << QByteArray("a");
        QTest::newRow("empty data, two bytes") << QByteArray() << QByteArray("ab");
    }
    void sameAsQByteArray()
    {
        QFETCH(QByteArray, data);
        QFETCH(QByteArray, pattern);
        QHexEdit edit;
        edit.setData(data);
        for (int from = -16; from <= 16; ++from) {
            // An empty pattern is found at any start, as in Qt 5 (Qt 6's QByteArray clamps it).
            QCOMPARE(edit.indexOf(pattern, from), pattern.isEmpty() ? from : data.indexOf(pattern, from));
            QCOMPARE(edit.lastIndexOf(pattern, from), data.lastIndexOf(pattern, from));
        }
        QCOMPARE(edit.indexOf(pattern), data.indexOf(pattern));
        QCOMPARE(edit.lastIndexOf(pattern), data.lastIndexOf(pattern, -1));  // Qt 5's default start
    }

    void find_data()
    {
        QTest::addColumn<int>("selStart");
        QTest::addColumn<int>("selLength");
        QTest::addColumn<QByteArray>("pattern");
        QTest::addColumn<QHexEdit::FindFlags>("flags");
        QTest::addColumn<int>("found");  // start of the match, -1 for none
        using F = QHexEdit;
        //                  0123456789012345678901
        const QHexEdit::FindFlags none;
        QTest::newRow("forward from the cursor") << 0 << 0 << QByteArray("ab") << none << 0;
        QTest::newRow("forward after the selection") << 0 << 2 << QByteArray("ab") << none << 6;
        QTest::newRow("forward, nothing after") << 15 << 2 << QByteArray("ab") << none << -1;
        QTest::newRow("forward wraps") << 15 << 2 << QByteArray("ab") << QHexEdit::FindFlags(F::FindWrapAround) << 0;
        QTest::newRow("backward from the selection start") << 15 << 2 << QByteArray("ab") << QHexEdit::FindFlags(F::FindBackward) << 6;
        QTest::newRow("backward, nothing before") << 0 << 2 << QByteArray("ab") << QHexEdit::FindFlags(F::FindBackward) << -1;
        QTest::newRow("backward wraps") << 0 << 2 << QByteArray("ab")
                                        << QHexEdit::FindFlags(F::FindBackward | F::FindWrapAround) << 15;
        QTest::newRow("case matters") << 0 << 0 << QByteArray("XY") << none << 10;
        QTest::newRow("case ignored") << 0 << 0 << QByteArray("XY") << QHexEdit::FindFlags(F::FindCaseInsensitive) << 3;
        QTest::newRow("case ignored backward") << 20 << 0 << QByteArray("xy")
                                               << QHexEdit::FindFlags(F::FindCaseInsensitive | F::FindBackward) << 10;
        QTest::newRow("only letters fold") << 0 << 0 << QByteArray("@[") << QHexEdit::FindFlags(F::FindCaseInsensitive) << 20;
        QTest::newRow("not there") << 0 << 0 << QByteArray("zz") << QHexEdit::FindFlags(F::FindWrapAround) << -1;
    }
    void find()
    {
        QFETCH(int, selStart);
        QFETCH(int, selLength);
        QFETCH(QByteArray, pattern);
        QFETCH(QHexEdit::FindFlags, flags);
        QFETCH(int, found);
        QHexEdit edit;
        edit.setData(QByteArray("ab-xy-ab--XY-\x01\x02" "ab-`{" "@[", 22));
        if (selLength > 0)
            edit.setSelection(selStart, selLength);
        else
            edit.setCursorPosition(selStart);
        const int start = edit.selectionStart(), end = edit.selectionEnd();
        QSignalSpy selection(&edit, &QHexEdit::selectionChanged);

        QCOMPARE(edit.find(pattern, flags), found >= 0);
        if (found < 0) {
            QCOMPARE(edit.selectionStart(), start);
            QCOMPARE(edit.selectionEnd(), end);
            QCOMPARE(selection.count(), 0);
            return;
        }
        QCOMPARE(edit.selectionStart(), found);
        QCOMPARE(edit.selectedData().toLower(), pattern.toLower());
        QCOMPARE(edit.cursorPosition(), found + pattern.size());
        QCOMPARE(selection.count(), 1);
    }

    void findBar()
    {
        QHexEdit edit;
        edit.setData(QByteArray("..Hello..\x12\x34..hello..", 20));
        QVERIFY(shownAndActive(edit));
        QTest::keyClick(&edit, Qt::Key_F, Qt::ControlModifier);
        auto text = edit.findChild<QLineEdit *>(QStringLiteral("findText"));
        QVERIFY(text && text->isVisible());
        QTRY_COMPARE(focused(), text);
        QTest::keyClicks(text, QStringLiteral("12 34"));
        QTest::keyClick(text, Qt::Key_Return);
        QCOMPARE(edit.selectionStart(), 9);
        QCOMPARE(edit.selectionEnd(), 11);

        // Text mode, case ignored, next with F3 and previous with Shift+F3.
        text->clear();
        QTest::keyClicks(edit.findChild<QWidget *>(QStringLiteral("findKind")), QStringLiteral("T"));
        QTest::keyClicks(text, QStringLiteral("HELLO"));
        QTest::keyClick(text, Qt::Key_F3);
        QCOMPARE(edit.selectionStart(), 13);
        QTest::keyClick(text, Qt::Key_F3);  // wraps by default
        QCOMPARE(edit.selectionStart(), 2);
        QTest::keyClick(text, Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(edit.selectionStart(), 13);

        auto status = edit.findChild<QLabel *>(QStringLiteral("findStatus"));
        text->clear();
        QTest::keyClicks(text, QStringLiteral("absent"));
        QTest::keyClick(text, Qt::Key_Return);
        QCOMPARE(status->text(), QStringLiteral("not found"));
        QCOMPARE(edit.selectionStart(), 13);

        // Escape gives the keys back to the editor, where F3 repeats the last find.
        QTest::keyClick(text, Qt::Key_Escape);
        QVERIFY(!text->isVisible());
        QTRY_COMPARE(focused(), &edit);
        edit.setCursorPosition(0);
        QVERIFY(edit.find("hello", QHexEdit::FindCaseInsensitive));
        QTest::keyClick(&edit, Qt::Key_F3);
        QCOMPARE(edit.selectionStart(), 13);
    }

    void goTo_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("expected");  // cursor afterwards, -1 for refused
        QTest::newRow("hex") << 0 << "1f" << 31;
        QTest::newRow("hex with 0x") << 0 << "0x1F" << 31;
        QTest::newRow("decimal") << 0 << "#31" << 31;
        QTest::newRow("relative forward") << 0 << "+10" << 32;
        QTest::newRow("relative backward decimal") << 0 << "- #6" << 10;
        QTest::newRow("address offset") << 0x8000 << "8010" << 16;
        QTest::newRow("below the offset") << 0x8000 << "10" << -1;
        QTest::newRow("the end") << 0 << "40" << 64;
        QTest::newRow("past the end") << 0 << "41" << -1;
        QTest::newRow("before the start") << 0 << "-20" << -1;
        QTest::newRow("garbage") << 0 << "xyz" << -1;
    }
    void goTo()
    {
        QFETCH(int, offset);
        QFETCH(QString, text);
        QFETCH(int, expected);
        QHexEdit edit;
        edit.setData(QByteArray(64, '\0'));
        edit.setAddressOffset(offset);
        edit.setCursorPosition(16);
        QSignalSpy refused(&edit, &QHexEdit::inputRefused);
        QCOMPARE(edit.goToAddress(text), expected >= 0);
        QCOMPARE(edit.cursorPosition(), expected >= 0 ? expected : 16);
        QCOMPARE(refused.count(), expected >= 0 ? 0 : 1);
    }

    void goToBar()
    {
        QHexEdit edit;
        edit.setData(QByteArray(4096, '\0'));
        edit.setAddressOffset(0x1000);
        QVERIFY(shownAndActive(edit));
        QTest::keyClick(&edit, Qt::Key_G, Qt::ControlModifier);
        auto text = edit.findChild<QLineEdit *>(QStringLiteral("findText"));
        QTRY_COMPARE(focused(), text);
        QTest::keyClicks(text, QStringLiteral("1ff0"));
        QTest::keyClick(text, Qt::Key_Return);
        QCOMPARE(edit.cursorPosition(), 0xff0);
        QVERIFY(!text->isVisible());
        // The row is scrolled into view.
        QVERIFY(edit.viewport()->rect().contains(edit.cursorRect().center()));
    }

    void barsCanBeTurnedOff()
    {
        QHexEdit edit;
        edit.setData(QByteArray(64, '\0'));
        edit.setFindBarEnabled(false);
        QVERIFY(shownAndActive(edit));
        QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_F, Qt::ControlModifier);
        QApplication::sendEvent(&edit, &override);
        QVERIFY(!override.isAccepted());  // the window's own Find gets the key
        QTest::keyClick(&edit, Qt::Key_F, Qt::ControlModifier);
        QTest::keyClick(&edit, Qt::Key_G, Qt::ControlModifier);
        QVERIFY(!edit.findChild<QLineEdit *>(QStringLiteral("findText")));
    }

    void cleanupTestCase()
    {
        // The find field's clear button fades with a parentless animation that
        // stops on its next tick once the field is gone and then deletes itself
        // later: give it the ticks and the deferred delete before the exit.
        QTest::qWait(300);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

QTEST_MAIN(tst_HexEditFind)
#include "tst_hexeditfind.moc"
