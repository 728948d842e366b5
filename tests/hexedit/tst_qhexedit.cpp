// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "QHexEdit.h"

#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QSignalSpy>
#include <QUndoStack>
#include <QtTest>

namespace {

// Types a blank-separated key script: single characters as typed text, names
// for special keys, "C-" for Control and "S-" for Shift.
void typeKeys(QWidget *widget, const QString &script)
{
    static const QHash<QString, Qt::Key> names = {
        { "Right", Qt::Key_Right }, { "Left", Qt::Key_Left }, { "Up", Qt::Key_Up }, { "Down", Qt::Key_Down },
        { "Home", Qt::Key_Home }, { "End", Qt::Key_End }, { "Ins", Qt::Key_Insert },
        { "Del", Qt::Key_Delete }, { "Bksp", Qt::Key_Backspace }, { "Tab", Qt::Key_Tab },
        { "Backtab", Qt::Key_Backtab }, { "F3", Qt::Key_F3 }, { "Esc", Qt::Key_Escape },
        { "Ret", Qt::Key_Return },
    };
    for (QString token : script.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        Qt::KeyboardModifiers mods;
        while (token.size() > 2 && token.at(1) == QLatin1Char('-')) {
            mods |= token.at(0) == QLatin1Char('C') ? Qt::ControlModifier : Qt::ShiftModifier;
            token = token.mid(2);
        }
        if (names.contains(token))
            QTest::keyClick(widget, names.value(token), mods);
        else if (mods != Qt::NoModifier)
            QTest::keyClick(widget, Qt::Key(Qt::Key_A + token.at(0).toLower().unicode() - 'a'), mods);
        else
            QTest::keyClick(widget, token.at(0).toLatin1());
    }
}

QString marks(const QHexEdit &edit)
{
    QString text;
    for (int i = 0; i < edit.size(); ++i)
        text += edit.isByteChanged(i) ? QLatin1Char('1') : QLatin1Char('0');
    return text;
}

bool shown(QHexEdit &edit, const QByteArray &data)
{
    edit.setData(data);
    edit.resize(edit.sizeHint());
    edit.show();
    return QTest::qWaitForWindowExposed(&edit);
}

}

class tst_QHexEdit : public QObject
{
    Q_OBJECT

private slots:
    void editSequence_data()
    {
        QTest::addColumn<QByteArray>("initial");
        QTest::addColumn<bool>("overwrite");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<QString>("expectedMarks");

        const QByteArray three("\x11\x22\x33", 3);
        QTest::newRow("overwrite both nibbles") << three << true << "a b" << QByteArray("\xab\x22\x33", 3) << "100";
        QTest::newRow("overwrite low nibble only") << three << true << "Right c" << QByteArray("\x1c\x22\x33", 3) << "100";
        QTest::newRow("overwrite two bytes") << three << true << "1 2 3 4" << QByteArray("\x12\x34\x33", 3) << "110";
        QTest::newRow("overwrite appends at the end") << three << true << "C-End 7 7"
                                                      << QByteArray("\x11\x22\x33\x77", 4) << "0001";
        QTest::newRow("insert a byte") << three << false << "Right Right a b"
                                       << QByteArray("\x11\xab\x22\x33", 4) << "0100";
        QTest::newRow("insert at the end") << three << false << "C-End f" << QByteArray("\x11\x22\x33\xf0", 4) << "0001";
        QTest::newRow("insert key toggles mode") << three << true << "Ins 5 5"
                                                 << QByteArray("\x55\x11\x22\x33", 4) << "1000";
        QTest::newRow("delete in insert mode") << three << false << "Right Right Del" << QByteArray("\x11\x33", 2) << "00";
        QTest::newRow("delete in overwrite mode zeroes") << three << true << "Right Right Del"
                                                         << QByteArray("\x11\x00\x33", 3) << "010";
        QTest::newRow("backspace in insert mode") << three << false << "C-End Bksp" << QByteArray("\x11\x22", 2) << "00";
        QTest::newRow("backspace in overwrite mode") << three << true << "C-End Bksp"
                                                     << QByteArray("\x11\x22\x00", 3) << "001";
        QTest::newRow("delete a selection") << QByteArray("\x11\x22\x33\x44", 4) << false
                                            << "Right Right S-Right S-Right Del" << QByteArray("\x11\x44", 2) << "00";
        QTest::newRow("shift-left selects backwards") << QByteArray("\x11\x22\x33\x44", 4) << false
                                                      << "C-End S-Left S-Left Bksp" << QByteArray("\x11\x22", 2) << "00";
        QTest::newRow("down moves one row") << QByteArray(20, '\0') << true << "Down 5"
                                            << QByteArray(16, '\0') + QByteArray("\x50\0\0\0", 4)
                                            << "00000000000000001000";
        QTest::newRow("end goes to the row's last byte") << QByteArray(20, '\0') << true << "End 9"
                                                         << QByteArray(15, '\0') + QByteArray("\x90\0\0\0\0", 5)
                                                         << "00000000000000010000";
        QTest::newRow("home after end") << three << true << "End Home e" << QByteArray("\xe1\x22\x33", 3) << "100";
        QTest::newRow("left stops at the start") << three << true << "Left Left d" << QByteArray("\xd1\x22\x33", 3) << "100";
        QTest::newRow("typing over a selection overwrites from its start") << three << true << "S-Right S-Right 0"
                                                                           << QByteArray("\x01\x22\x33", 3) << "100";
        QTest::newRow("typing over a selection replaces it") << three << false << "Right Right S-Right S-Right a b"
                                                             << QByteArray("\x11\xab", 2) << "01";
        QTest::newRow("typing a character over a selection") << three << false << "Tab S-Right S-Right Z"
                                                             << QByteArray("Z\x33", 2) << "10";
        QTest::newRow("tab switches to the characters") << three << true << "Right Tab A Tab f"
                                                        << QByteArray("A\xf2\x33", 3) << "110";
    }
    void editSequence()
    {
        QFETCH(QByteArray, initial);
        QFETCH(bool, overwrite);
        QFETCH(QString, keys);
        QHexEdit edit;
        edit.setData(initial);
        edit.setOverwriteMode(overwrite);

        typeKeys(&edit, keys);
        QTEST(edit.data(), "expected");
        QTEST(marks(edit), "expectedMarks");

        // Undo all: the bytes and their marks are back as setData left them.
        for (int i = 0; i < 20 && edit.undoStack()->canUndo(); ++i)
            typeKeys(&edit, QStringLiteral("C-z"));
        QVERIFY(!edit.undoStack()->canUndo());
        QCOMPARE(edit.data(), initial);
        QCOMPARE(marks(edit), QString(initial.size(), QLatin1Char('0')));

        for (int i = 0; i < 20 && edit.undoStack()->canRedo(); ++i)
            typeKeys(&edit, QStringLiteral("C-y"));
        QTEST(edit.data(), "expected");
        QTEST(marks(edit), "expectedMarks");
    }

    void asciiColumn()
    {
        QHexEdit edit;
        edit.setData(QByteArray(4, '\0'));
        edit.setHexArea(false);
        typeKeys(&edit, QStringLiteral("H i Right !"));
        QCOMPARE(edit.data(), QByteArray("Hi\0!", 4));
        QCOMPARE(edit.undoStack()->count(), 3);
    }

    void mouse()
    {
        QHexEdit edit;
        QVERIFY(shown(edit, QByteArray(64, 'A')));
        const auto cell = [&edit](int i) { edit.setCursorPosition(i); return edit.cursorRect().center(); };
        const QPoint at37 = cell(37), from = cell(3), to = cell(21);
        edit.setCursorPosition(0);
        QTest::mouseClick(edit.viewport(), Qt::LeftButton, Qt::NoModifier, at37);
        QCOMPARE(edit.cursorPosition(), 37);

        QTest::mousePress(edit.viewport(), Qt::LeftButton, Qt::NoModifier, from);
        QMouseEvent move(QEvent::MouseMove, to, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(edit.viewport(), &move);
        QTest::mouseRelease(edit.viewport(), Qt::LeftButton, Qt::NoModifier, to);
        QCOMPARE(edit.selectionStart(), 3);
        QCOMPARE(edit.selectionEnd(), 22);  // both end bytes are in

        // A click in the character column, right of the hex column, types characters.
        QTest::mouseClick(edit.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(edit.viewport()->width() - 2, at37.y()));
        QCOMPARE(edit.cursorPosition(), 47);
        typeKeys(&edit, QStringLiteral("z"));
        QCOMPARE(edit.data().at(47), 'z');
        QCOMPARE(edit.cursorPosition(), 48);
    }

    void cursorSignals()
    {
        QHexEdit edit;
        edit.setData(QByteArray(4, '\0'));
        edit.setAddressOffset(0x100);
        QSignalSpy address(&edit, &QHexEdit::currentAddressChanged);
        QSignalSpy size(&edit, &QHexEdit::currentSizeChanged);
        QSignalSpy mode(&edit, &QHexEdit::overwriteModeChanged);
        QSignalSpy changed(&edit, &QHexEdit::dataChanged);

        typeKeys(&edit, QStringLiteral("Right"));  // low nibble of the same byte
        QCOMPARE(address.count(), 0);
        typeKeys(&edit, QStringLiteral("Right"));
        QCOMPARE(address.count(), 1);
        QCOMPARE(address.last().at(0).toInt(), 0x101);

        typeKeys(&edit, QStringLiteral("Ins"));
        QCOMPARE(mode.count(), 1);
        QCOMPARE(mode.last().at(0).toBool(), false);
        typeKeys(&edit, QStringLiteral("a"));
        QCOMPARE(size.count(), 1);
        QCOMPARE(size.last().at(0).toInt(), 5);
        QCOMPARE(changed.count(), 1);
    }

    void undoShowsTheChange()
    {
        QHexEdit edit;
        edit.setData(QByteArray(64, '\0'));
        typeKeys(&edit, QStringLiteral("Right Right Right Right 1 2 C-End"));
        QCOMPARE(edit.cursorPosition(), 64);
        edit.undoStack()->undo();  // as a host's undo action does
        QCOMPARE(edit.cursorPosition(), 2);
        typeKeys(&edit, QStringLiteral("C-End C-y"));
        QCOMPARE(edit.cursorPosition(), 2);
    }

    void clipboardRoundTrip()
    {
        QHexEdit edit;
        edit.setData(QByteArray("\x00\x11\x22\x33\xff", 5));
        edit.setOverwriteMode(false);
        typeKeys(&edit, QStringLiteral("Right Right S-Right S-Right S-Right C-c"));
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("11 22 33"));

        typeKeys(&edit, QStringLiteral("C-End C-v"));
        QCOMPARE(edit.data(), QByteArray("\x00\x11\x22\x33\xff\x11\x22\x33", 8));
        QCOMPARE(edit.cursorPosition(), 8);
        QCOMPARE(marks(edit), QStringLiteral("00000111"));

        // A paste over a selection is one undo step.
        typeKeys(&edit, QStringLiteral("C-Home S-Right S-Right C-v"));
        QCOMPARE(edit.data(), QByteArray("\x11\x22\x33\x22\x33\xff\x11\x22\x33", 9));
        typeKeys(&edit, QStringLiteral("C-z"));
        QCOMPARE(edit.data(), QByteArray("\x00\x11\x22\x33\xff\x11\x22\x33", 8));
    }

    void paste_data()
    {
        QTest::addColumn<int>("cursor");
        QTest::addColumn<int>("maxSize");
        QTest::addColumn<QString>("clipboard");
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<int>("undoSteps");
        const QByteArray data("\x00\x01\x02\x03\x04", 5);
        QTest::newRow("overwrite inside") << 1 << 100 << "AA\nbb" << QByteArray("\x00\xaa\xbb\x03\x04", 5) << 1;
        QTest::newRow("runs past the end") << 4 << 100 << "AA\nbb" << QByteArray("\x00\x01\x02\x03\xaa\xbb", 6) << 1;
        QTest::newRow("stops at maxSize") << 4 << 5 << "AA\nbb" << QByteArray("\x00\x01\x02\x03\xaa", 5) << 1;
        QTest::newRow("non-hex rejected") << 1 << 100 << "xyz" << data << 0;
        QTest::newRow("odd digit count rejected") << 1 << 100 << "123" << data << 0;
        QTest::newRow("empty rejected") << 1 << 100 << "" << data << 0;
    }
    void paste()
    {
        QFETCH(int, cursor);
        QFETCH(int, maxSize);
        QFETCH(QString, clipboard);
        QHexEdit edit;
        edit.setData(QByteArray("\x00\x01\x02\x03\x04", 5));
        edit.setMaxSize(maxSize);
        edit.setCursorPosition(cursor);
        QApplication::clipboard()->setText(clipboard);
        edit.paste();
        QTEST(edit.data(), "expected");
        QTEST(edit.undoStack()->count(), "undoSteps");
    }

    void refusedEdits_data()
    {
        QTest::addColumn<bool>("readOnly");
        QTest::addColumn<bool>("overwrite");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QByteArray>("expected");
        const QByteArray kept("\x01\x02\x03\x09", 4);
        QTest::newRow("maxSize: insert mode is full") << false << false << "a b" << kept;
        QTest::newRow("maxSize: overwrite at the end is full") << false << true << "C-End a" << kept;
        QTest::newRow("maxSize: overwrite inside still works") << false << true << "a" << QByteArray("\xa1\x02\x03\x09", 4);
        QTest::newRow("maxSize: insert mode after a delete") << false << false << "Del a b" << QByteArray("\xab\x02\x03\x09", 4);
        QTest::newRow("readOnly: hex digit") << true << true << "a" << kept;
        QTest::newRow("readOnly: insert mode digit") << true << true << "Ins a" << kept;
        QTest::newRow("readOnly: delete") << true << true << "Del" << kept;
        QTest::newRow("readOnly: backspace") << true << true << "Right Right Bksp" << kept;
        QTest::newRow("readOnly: paste") << true << true << "C-v" << kept;
        QTest::newRow("readOnly: cut") << true << true << "S-Right C-x" << kept;
        QTest::newRow("readOnly: undo") << true << true << "C-z" << kept;
    }
    void refusedEdits()
    {
        QFETCH(bool, readOnly);
        QFETCH(bool, overwrite);
        QFETCH(QString, keys);
        QHexEdit edit;
        edit.setData(QByteArray("\x01\x02\x03\x04", 4));
        edit.setMaxSize(4);
        edit.replace(3, QByteArray("\x09", 1));  // something to undo
        edit.setCursorPosition(0);
        edit.setOverwriteMode(overwrite);
        edit.setReadOnly(readOnly);
        QApplication::clipboard()->setText(QStringLiteral("ff ff"));
        typeKeys(&edit, keys);
        QTEST(edit.data(), "expected");
        if (readOnly)
            QCOMPARE(edit.undoStack()->index(), 1);
    }

    void setDataResets()
    {
        QHexEdit edit;
        edit.setData(QByteArray(8, '\0'));
        typeKeys(&edit, QStringLiteral("1 2 S-Right"));
        QVERIFY(edit.isModified());
        QVERIFY(edit.hasSelection());

        edit.setData(QByteArray(4, '\x7f'));
        QCOMPARE(edit.undoStack()->count(), 0);
        QVERIFY(!edit.isModified());
        QVERIFY(!edit.hasSelection());
        QCOMPARE(marks(edit), QStringLiteral("0000"));
        QCOMPARE(edit.cursorPosition(), 0);
    }

    void selectionAsText()
    {
        QHexEdit edit;
        edit.setData(QByteArray("\x00\x41\x42\x43\xff", 5));
        edit.setSelection(1, 3);
        QCOMPARE(edit.selectedData(), QByteArray("ABC"));
        // Dumps whole lines from the selection start, as the buffer's dump does.
        QCOMPARE(edit.selectionToReadableString(),
                 QStringLiteral("0001  41 42 43 ff") + QString(36, ' ') + QStringLiteral("  ABC.")
                     + QString(13, ' ') + QStringLiteral("\n"));
        edit.deselect();
        QCOMPARE(edit.selectionToReadableString(), QString());
    }

    void programmaticEdits()
    {
        QHexEdit edit;
        edit.setData("abcd");
        edit.setMaxSize(6);
        QVERIFY(edit.insert(4, "ef"));
        QVERIFY(!edit.insert(0, "g"));  // past maxSize
        QVERIFY(!edit.insert(7, "g"));
        QVERIFY(edit.replace(4, "XYZ"));  // cut at the end
        QVERIFY(edit.remove(0, 2));
        QVERIFY(!edit.remove(4, 1));
        QCOMPARE(edit.data(), QByteArray("cdXY"));
        QCOMPARE(edit.undoStack()->count(), 3);
        for (int i = 0; i < 3; ++i)
            edit.undo();
        QCOMPARE(edit.data(), QByteArray("abcd"));
    }

    void colours()
    {
        QHexEdit edit;
        QVERIFY(shown(edit, QByteArray(48, '\x20')));
        // A blank byte's cell shows only its background.
        const auto inside = [&edit](int i) { edit.setCursorPosition(i); return edit.cursorRect().topLeft() + QPoint(2, 2); };
        const QPoint changedCell = inside(1), plainCell = inside(2), selectedCell = inside(3);
        edit.replace(1, QByteArray(1, '\x20'));
        edit.setCursorPosition(40);
        edit.setSelection(3, 1);
        const QImage image = edit.viewport()->grab().toImage();
        QCOMPARE(QColor(image.pixel(changedCell)), edit.highlightingColor());
        QCOMPARE(QColor(image.pixel(plainCell)), edit.palette().color(QPalette::Base));
        QCOMPARE(QColor(image.pixel(selectedCell)), edit.selectionColor());
    }

    void bigImageScrollsInRows()
    {
        const int size = 16 * 1024 * 1024;
        QHexEdit edit;
        QVERIFY(shown(edit, QByteArray(size, '\x5a')));
        QCOMPARE(edit.size(), size);
        typeKeys(&edit, QStringLiteral("C-End"));
        const int visible = edit.verticalScrollBar()->pageStep();
        QVERIFY(visible > 1);
        QCOMPARE(edit.verticalScrollBar()->maximum(), size / 16 + 1 - visible);
        QCOMPARE(edit.verticalScrollBar()->value(), edit.verticalScrollBar()->maximum());
        typeKeys(&edit, QStringLiteral("Up 1"));
        QCOMPARE(edit.data().at(size - 16), '\x1a');
        QVERIFY(edit.isByteChanged(size - 16));
        QCOMPARE(edit.verticalScrollBar()->maximum(), size / 16 + 1 - visible);
    }
};

QTEST_MAIN(tst_QHexEdit)
#include "tst_qhexedit.moc"
