// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "QHexEdit.h"

#include <QClipboard>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QUndoStack>
#include <QtTest>

namespace {

const QString s_octetStream = QStringLiteral("application/octet-stream");

QString marks(const QHexEdit &edit)
{
    QString text;
    for (int i = 0; i < edit.size(); ++i)
        text += edit.isByteChanged(i) ? QLatin1Char('1') : QLatin1Char('0');
    return text;
}

bool shown(QHexEdit &edit)
{
    edit.resize(edit.sizeHint());
    edit.show();
    return QTest::qWaitForWindowExposed(&edit);
}

QPoint cellCenter(QHexEdit &edit, int byte)
{
    const int was = edit.cursorPosition();
    edit.setCursorPosition(byte);
    const QPoint p = edit.cursorRect().center();
    edit.setCursorPosition(was);
    return p;
}

void drag(QHexEdit &edit, int from, int to, Qt::KeyboardModifiers mods = Qt::NoModifier)
{
    QWidget *vp = edit.viewport();
    const QPoint a = cellCenter(edit, from), b = cellCenter(edit, to);
    QTest::mousePress(vp, Qt::LeftButton, mods, a);
    QMouseEvent move(QEvent::MouseMove, b, Qt::LeftButton, Qt::LeftButton, mods);
    QApplication::sendEvent(vp, &move);
    QTest::mouseRelease(vp, Qt::LeftButton, mods, b);
}

}

class tst_HexEditInput : public QObject
{
    Q_OBJECT

private slots:
    void copy_data()
    {
        QTest::addColumn<bool>("charColumn");
        QTest::addColumn<QString>("text");
        const QByteArray bytes("A\x00\xe4\x7f", 4);
        QTest::newRow("hex column") << false << "41 00 e4 7f";
        QTest::newRow("character column") << true << QString::fromUtf8("A.\xc3\xa4.");
    }
    void copy()
    {
        QFETCH(bool, charColumn);
        QHexEdit edit;
        const QByteArray bytes("A\x00\xe4\x7f", 4);
        edit.setData(bytes);
        if (charColumn)
            QTest::keyClick(&edit, Qt::Key_Tab);
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&edit, Qt::Key_C, Qt::ControlModifier);
        const QMimeData *mime = QApplication::clipboard()->mimeData();
        QTEST(mime->text(), "text");
        QCOMPARE(mime->data(s_octetStream), bytes);
    }

    void paste_data()
    {
        QTest::addColumn<bool>("charColumn");
        QTest::addColumn<bool>("overwrite");
        QTest::addColumn<int>("selection");  // bytes selected from byte 1
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("raw");
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<QString>("expectedMarks");
        const QByteArray none;
        QTest::newRow("raw bytes win over text") << false << true << 0 << "ff ff" << QByteArray("\x01\x02", 2)
                                                 << QByteArray("\x00\x01\x02\x33", 4) << "0110";
        QTest::newRow("hex with 0x") << false << true << 0 << "0xaa, 0xBB" << none
                                     << QByteArray("\x00\xaa\xbb\x33", 4) << "0110";
        QTest::newRow("hex without blanks") << false << false << 0 << "aabb" << none
                                            << QByteArray("\x00\xaa\xbb\x11\x22\x33", 6) << "011000";
        QTest::newRow("text into the characters") << true << false << 0 << "cafe" << none
                                                  << QByteArray("\x00" "cafe" "\x11\x22\x33", 8) << "01111000";
        QTest::newRow("Latin-1 text") << true << true << 0 << QString::fromUtf8("\xc3\xa4!") << none
                                      << QByteArray("\x00\xe4!\x33", 4) << "0110";
        QTest::newRow("insert replaces the selection") << false << false << 2 << "aa bb cc" << none
                                                       << QByteArray("\x00\xaa\xbb\xcc\x33", 5) << "01110";
        QTest::newRow("overwrite from the selection start") << true << true << 2 << "Z" << none
                                                            << QByteArray("\x00Z\x22\x33", 4) << "0100";
        QTest::newRow("refused: text in the hex column") << false << true << 0 << "Hello" << none
                                                         << QByteArray("\x00\x11\x22\x33", 4) << "0000";
        QTest::newRow("refused: not Latin-1") << true << true << 0 << QString::fromUtf8("\xe2\x82\xac") << none
                                              << QByteArray("\x00\x11\x22\x33", 4) << "0000";
    }
    void paste()
    {
        QFETCH(bool, charColumn);
        QFETCH(bool, overwrite);
        QFETCH(int, selection);
        QFETCH(QString, text);
        QFETCH(QByteArray, raw);
        QFETCH(QByteArray, expected);
        const QByteArray initial("\x00\x11\x22\x33", 4);
        QHexEdit edit;
        edit.setData(initial);
        edit.setOverwriteMode(overwrite);
        if (charColumn)
            QTest::keyClick(&edit, Qt::Key_Tab);
        edit.setCursorPosition(1);
        if (selection > 0)
            edit.setSelection(1, selection);
        auto mime = new QMimeData;
        mime->setText(text);
        if (!raw.isEmpty())
            mime->setData(s_octetStream, raw);
        QApplication::clipboard()->setMimeData(mime);
        QSignalSpy refused(&edit, &QHexEdit::inputRefused);

        QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
        QTEST(edit.data(), "expected");
        QTEST(marks(edit), "expectedMarks");
        const bool taken = expected != initial;
        QCOMPARE(refused.count(), taken ? 0 : 1);
        QCOMPARE(edit.undoStack()->count(), taken ? 1 : 0);
        QCOMPARE(edit.hasSelection(), !taken && selection > 0);

        QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(edit.data(), initial);
        QCOMPARE(marks(edit), QStringLiteral("0000"));
    }

    void mouseAndKeyboardSelectAlike()
    {
        QHexEdit edit;
        edit.setData(QByteArray(64, 'x'));
        QVERIFY(shown(edit));
        QSignalSpy selection(&edit, &QHexEdit::selectionChanged);
        drag(edit, 3, 5);
        QCOMPARE(edit.selectionStart(), 3);
        QCOMPARE(edit.selectionEnd(), 6);
        QTest::keyClick(&edit, Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(edit.selectionEnd(), 7);

        // Backwards both end bytes are in too, the cursor at the start.
        drag(edit, 10, 7);
        QCOMPARE(edit.selectionStart(), 7);
        QCOMPARE(edit.selectionEnd(), 11);
        QCOMPARE(edit.cursorPosition(), 7);
        QTest::keyClick(&edit, Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(edit.selectionStart(), 6);

        // Shift+click extends from the anchor, also onto the anchor itself.
        const QPoint at20 = cellCenter(edit, 20), at24 = cellCenter(edit, 24);
        edit.setCursorPosition(20);
        selection.clear();
        QTest::mouseClick(edit.viewport(), Qt::LeftButton, Qt::ShiftModifier, at20);
        QCOMPARE(edit.selectionStart(), 20);
        QCOMPARE(edit.selectionEnd(), 21);
        QCOMPARE(selection.count(), 1);
        QTest::mouseClick(edit.viewport(), Qt::LeftButton, Qt::ShiftModifier, at24);
        QCOMPARE(edit.selectionStart(), 20);
        QCOMPARE(edit.selectionEnd(), 25);
    }

    void dragPastTheEdgeScrolls()
    {
        QHexEdit edit;
        edit.setData(QByteArray(64 * 1024, 'x'));
        QVERIFY(shown(edit));
        QWidget *vp = edit.viewport();
        const QPoint start = cellCenter(edit, 2);
        QTest::mousePress(vp, Qt::LeftButton, Qt::NoModifier, start);
        QMouseEvent move(QEvent::MouseMove, QPoint(start.x(), vp->height() + 20), Qt::LeftButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(vp, &move);
        // No further mouse moves: the timer keeps scrolling and selecting.
        QTRY_VERIFY(edit.verticalScrollBar()->value() > 3);
        QTest::mouseRelease(vp, Qt::LeftButton, Qt::NoModifier, QPoint(start.x(), vp->height() + 20));
        const int stopped = edit.verticalScrollBar()->value();
        QVERIFY(edit.selectionEnd() > 16 * (stopped + 1));
        QTest::qWait(100);
        QCOMPARE(edit.verticalScrollBar()->value(), stopped);
    }

    void everyMoveReportsTheAddress_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<int>("address");
        QTest::newRow("select all") << "selectAll" << 0x110;
        QTest::newRow("set selection") << "setSelection" << 0x106;
        QTest::newRow("find") << "find" << 0x10c;
        QTest::newRow("go to") << "goTo" << 0x108;
        QTest::newRow("undo") << "undo" << 0x103;
    }
    void everyMoveReportsTheAddress()
    {
        QFETCH(QString, action);
        QHexEdit edit;
        edit.setData(QByteArray("0123456789abcdef"));
        edit.setAddressOffset(0x100);
        edit.replace(3, "x");
        edit.setCursorPosition(1);
        QSignalSpy address(&edit, &QHexEdit::currentAddressChanged);
        if (action == QLatin1String("selectAll"))
            edit.selectAll();
        else if (action == QLatin1String("setSelection"))
            edit.setSelection(2, 4);
        else if (action == QLatin1String("find"))
            edit.find("ab");
        else if (action == QLatin1String("goTo"))
            edit.goToAddress(QStringLiteral("108"));
        else
            edit.undoStack()->undo();
        QCOMPARE(address.count(), 1);
        QTEST(address.last().at(0).toInt(), "address");
    }

    void readOnlyClaimsOnlyWhatItDoes_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<bool>("claimed");
        QTest::newRow("undo") << int(Qt::Key_Z) << int(Qt::ControlModifier) << false;
        QTest::newRow("paste") << int(Qt::Key_V) << int(Qt::ControlModifier) << false;
        QTest::newRow("cut") << int(Qt::Key_X) << int(Qt::ControlModifier) << false;
        QTest::newRow("delete") << int(Qt::Key_Delete) << 0 << false;
        QTest::newRow("typing") << int(Qt::Key_A) << 0 << false;
        QTest::newRow("copy") << int(Qt::Key_C) << int(Qt::ControlModifier) << true;
        QTest::newRow("select all") << int(Qt::Key_A) << int(Qt::ControlModifier) << true;
        QTest::newRow("end") << int(Qt::Key_End) << 0 << true;
    }
    void readOnlyClaimsOnlyWhatItDoes()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QHexEdit edit;
        edit.setData(QByteArray("abcd"));
        edit.replace(0, "x");
        edit.setSelection(1, 2);
        edit.setReadOnly(true);
        const QString text = modifiers == 0 && key == Qt::Key_A ? QStringLiteral("a") : QString();
        QKeyEvent override(QEvent::ShortcutOverride, key, Qt::KeyboardModifiers(modifiers), text);
        override.ignore();
        QApplication::sendEvent(&edit, &override);
        QTEST(override.isAccepted(), "claimed");
        edit.undo();
        QCOMPARE(edit.data(), QByteArray("xbcd"));
    }

    void cursorBeforeTheFirstShow()
    {
        QHexEdit edit;
        edit.setData(QByteArray(1 << 20, '\0'));
        edit.setCursorPosition(0x80000);
        QVERIFY(shown(edit));
        QVERIFY(edit.viewport()->rect().contains(edit.cursorRect().center()));
    }

    void bigDataHasNoSizeLimit()
    {
        QHexEdit edit;
        edit.setData(QByteArray(0x1000010, '\0'));
        QVERIFY(edit.maxSize() > edit.size());
        edit.setOverwriteMode(false);
        edit.setCursorPosition(edit.size());
        QTest::keyClicks(&edit, QStringLiteral("ab"));
        QCOMPARE(edit.size(), 0x1000011);
        QCOMPARE(edit.data().at(0x1000010), '\xab');
    }
};

QTEST_MAIN(tst_HexEditInput)
#include "tst_hexeditinput.moc"
