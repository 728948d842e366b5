// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// The grid holds at any font: run once at scale 1 and once with QT_SCALE_FACTOR=2.
#include "HexLayout_p.h"
#include "QHexEdit.h"

#include <QDir>
#include <QFontDatabase>
#include <QUndoStack>
#include <QtTest>

namespace {

const int s_rows = 6;  // bytes 0x20 to 0x7f, every digit and character

QByteArray allCharacters()
{
    QByteArray bytes;
    for (int b = 0x20; b < 0x80; ++b)
        bytes.append(char(b));
    return bytes;
}

QPalette darkPalette()
{
    QPalette p;
    p.setColor(QPalette::Window, QColor(0x2a, 0x2e, 0x32));
    p.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x20));
    p.setColor(QPalette::AlternateBase, QColor(0x23, 0x26, 0x29));
    p.setColor(QPalette::Text, QColor(0xfc, 0xfc, 0xfc));
    p.setColor(QPalette::WindowText, QColor(0xfc, 0xfc, 0xfc));
    p.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
    p.setColor(QPalette::HighlightedText, QColor(0xfc, 0xfc, 0xfc));
    return p;
}

HexLayout layoutOf(const QHexEdit &edit)
{
    HexLayout::Options options;
    options.font = edit.font();
    options.devicePixelRatio = edit.viewport()->devicePixelRatioF();
    options.addressDigits = 4;
    return HexLayout(options);
}

}

class tst_HexEditPaint : public QObject
{
    Q_OBJECT

private slots:
    void glyphsStayInTheirCells_data()
    {
        QTest::addColumn<QString>("family");
        QTest::addColumn<qreal>("pointSize");
        QTest::addColumn<bool>("italic");
        QTest::newRow("fixed 10") << "DejaVu Sans Mono" << 10.0 << false;
        QTest::newRow("fixed 9.5") << "DejaVu Sans Mono" << 9.5 << false;
        QTest::newRow("fixed 13.3") << "DejaVu Sans Mono" << 13.3 << false;
        QTest::newRow("proportional 10.3") << "DejaVu Sans" << 10.3 << false;
        QTest::newRow("proportional italic 8.25") << "DejaVu Serif" << 8.25 << true;
        QTest::newRow("default fixed font") << QString() << 0.0 << false;
    }
    void glyphsStayInTheirCells()
    {
        QFETCH(QString, family);
        QFETCH(qreal, pointSize);
        QFETCH(bool, italic);
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        const QStringList families = QFontDatabase::families();
#else
        const QStringList families = QFontDatabase().families();
#endif
        if (!family.isEmpty() && !families.contains(family))
            QSKIP("font not installed");
        QHexEdit edit;
        if (!family.isEmpty()) {
            QFont font(family);
            font.setPointSizeF(pointSize);
            font.setItalic(italic);
            edit.setFont(font);
        }
        edit.setData(allCharacters());
        edit.setHighlighting(false);
        edit.setAddressAreaColor(edit.palette().color(QPalette::Base));
        edit.setCursorPosition(edit.size());  // on row 6, below the checked rows
        edit.resize(edit.sizeHint());
        edit.show();
        QVERIFY(QTest::qWaitForWindowExposed(&edit));
        const HexLayout layout = layoutOf(edit);
        const qreal dpr = layout.options().devicePixelRatio;

        // The widget uses this very grid: the cursor sits in the layout's cell.
        QCOMPARE(edit.cursorRect(), layout.hexCell(s_rows, 0, 0).toAlignedRect());

        // The layout's own promise: each glyph's ink box inside its cell.
        QVector<QRectF> cells;
        const QByteArray bytes = allCharacters();
        const char digits[] = "0123456789abcdef";
        for (int r = 0; r < s_rows; ++r) {
            for (int d = 0; d < 4; ++d)
                cells.append(layout.addressCell(r, d));
            for (int c = 0; c < 16; ++c) {
                const uchar b = uchar(bytes.at(r * 16 + c));
                const char ch = (b >= 0x20 && b < 0x7f) ? char(b) : '.';
                for (const auto &[cell, glyph] : { std::pair<QRectF, char>{ layout.hexCell(r, c, 0), digits[b >> 4] },
                                                   { layout.hexCell(r, c, 1), digits[b & 0xf] },
                                                   { layout.asciiCell(r, c), ch } }) {
                    cells.append(cell);
                    const QRectF box = layout.glyphBox(glyph, cell.topLeft());
                    QVERIFY2(box.isEmpty() || cell.adjusted(-1e-3, -1e-3, 1e-3, 1e-3).contains(box),
                             qPrintable(QStringLiteral("'%1' row %2 column %3").arg(glyph).arg(r).arg(c)));
                }
            }
        }

        // And what reaches the screen: no ink outside the cells (one device
        // pixel of anti-aliasing allowed), none between bytes or areas.
        const QImage image = edit.viewport()->grab().toImage();
        QCOMPARE(image.devicePixelRatio(), dpr);
        const QRgb base = edit.palette().color(QPalette::Base).rgb();
        QVector<QRect> allowed;
        for (const QRectF &cell : cells) {
            const QRectF device(cell.x() * dpr, cell.y() * dpr, cell.width() * dpr, cell.height() * dpr);
            allowed.append(device.toAlignedRect().adjusted(-1, -1, 1, 1));
        }
        const int bottom = int(s_rows * layout.rowHeight() * dpr);
        const int right = std::min(image.width(), int(layout.contentWidth() * dpr));
        int stray = 0;
        for (int y = 0; y < bottom; ++y) {
            for (int x = 0; x < right; ++x) {
                if (image.pixel(x, y) == base)
                    continue;
                const qreal lx = x / dpr;
                if (std::abs(lx - layout.firstSeparator()) < 1 || std::abs(lx - layout.secondSeparator()) < 1)
                    continue;  // the lines between the areas
                const QPoint p(x, y);
                if (std::none_of(allowed.cbegin(), allowed.cend(), [p](const QRect &r) { return r.contains(p); }))
                    ++stray;
            }
        }
        QCOMPARE(stray, 0);

        // The gap between the hex column and the characters is real.
        QVERIFY(layout.secondSeparator() - layout.hexCell(0, 15, 1).right() >= layout.cellWidth() / 2 - 1e-3);
        QVERIFY(layout.asciiStart() - layout.secondSeparator() >= layout.cellWidth() / 2);
    }

    void hitTestFindsTheCell_data()
    {
        QTest::addColumn<int>("byte");
        QTest::addColumn<int>("nibble");
        QTest::addColumn<bool>("ascii");
        QTest::newRow("first byte") << 0 << 0 << false;
        QTest::newRow("low nibble") << 17 << 1 << false;
        QTest::newRow("last column") << 31 << 1 << false;
        QTest::newRow("character") << 42 << 0 << true;
    }
    void hitTestFindsTheCell()
    {
        QFETCH(int, byte);
        QFETCH(int, nibble);
        QFETCH(bool, ascii);
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPointSizeF(10.3);
        HexLayout::Options options;
        options.font = font;
        options.devicePixelRatio = 2;
        const HexLayout layout(options);
        const int row = byte / 16, column = byte % 16;
        const QRectF cell = ascii ? layout.asciiCell(row, column) : layout.hexCell(row, column, nibble);
        for (const QPointF &p : { cell.topLeft() + QPointF(0.1, 0.1), cell.center(), cell.bottomRight() - QPointF(0.1, 0.1) }) {
            const HexLayout::Hit hit = layout.hitTest(p);
            QCOMPARE(hit.row, row);
            QCOMPARE(hit.column, column);
            QCOMPARE(hit.ascii, ascii);
            if (!ascii)
                QCOMPARE(hit.nibble, nibble);
        }
    }

    // Screenshots for a look by eye: HEXEDIT_SCREENSHOTS=<dir>.
    void screenshots_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void screenshots()
    {
        QFETCH(bool, dark);
        const QString dir = qEnvironmentVariable("HEXEDIT_SCREENSHOTS");
        if (dir.isEmpty())
            QSKIP("HEXEDIT_SCREENSHOTS not set");
        QHexEdit edit;
        if (dark)
            edit.setPalette(darkPalette());
        QByteArray data = allCharacters().repeated(3);
        data.replace(0, 16, QByteArray("KVFW\x01\x04\x00\x00" "CANopen!", 16));
        edit.setData(data);
        edit.replace(0x24, QByteArray("\xde\xad\xbe\xef", 4));
        edit.setSelection(0x41, 7);
        edit.resize(edit.sizeHint().width(), 260);
        edit.show();
        QVERIFY(QTest::qWaitForWindowExposed(&edit));
        edit.showFindBar();
        QTest::qWait(50);
        const QString name = QStringLiteral("%1/hexedit-%2-x%3.png")
                                 .arg(dir, dark ? QStringLiteral("dark") : QStringLiteral("light"))
                                 .arg(edit.devicePixelRatioF());
        QVERIFY(edit.grab().save(name));
    }
};

QTEST_MAIN(tst_HexEditPaint)
#include "tst_hexeditpaint.moc"
