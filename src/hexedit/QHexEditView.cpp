// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Layout, scrolling and painting of the hex view.
#include "QHexEditPrivate.h"

#include <QGlyphRun>
#include <QPainter>
#include <QScrollBar>

#include <cmath>

namespace {

const int s_bytesPerRow = HexLayout::bytesPerRow;
const char s_hexDigits[] = "0123456789abcdef";

enum ByteStyle { Plain, Changed, Selected, StyleCount };

char printable(char c)
{
    return (c >= 0x20 && c <= 0x7e) ? c : '.';
}

QColor mix(const QColor &a, const QColor &b, qreal t)
{
    return QColor::fromRgbF(a.redF() + (b.redF() - a.redF()) * t, a.greenF() + (b.greenF() - a.greenF()) * t,
                            a.blueF() + (b.blueF() - a.blueF()) * t);
}

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

// Glyphs of one colour, collected over all rows and drawn in one call.
struct GlyphBatch {
    QVector<quint32> glyphs;
    QVector<QPointF> positions;

    void add(const HexLayout &layout, char c, const QRectF &cell)
    {
        if (c == ' ')
            return;
        glyphs.append(layout.glyph(c));
        positions.append(cell.topLeft() + layout.glyphOrigin(c));
    }
    void draw(QPainter &painter, const HexLayout &layout, const QColor &color)
    {
        if (glyphs.isEmpty())
            return;
        QGlyphRun run;
        run.setRawFont(layout.rawFont());
        run.setGlyphIndexes(glyphs);
        run.setPositions(positions);
        painter.setPen(color);
        painter.drawGlyphRun(QPointF(), run);
    }
};

}

void QHexEditPrivate::updateLayout()
{
    HexLayout::Options options;
    options.font = q->font();
    options.devicePixelRatio = q->viewport()->devicePixelRatioF();
    options.addressDigits = addressDigits();
    options.addressArea = addressArea;
    options.hexArea = hexArea;
    options.asciiArea = asciiArea;
    layout = HexLayout(options);
    updateScrollBars();
    q->updateGeometry();
    q->viewport()->update();
}

int QHexEditPrivate::visibleRows() const
{
    return std::max(1, int(q->viewport()->height() / layout.rowHeight()));
}

int QHexEditPrivate::firstRow() const
{
    return q->verticalScrollBar()->value();
}

void QHexEditPrivate::updateScrollBars()
{
    // The scroll bar counts rows, so its range stays small for any data size.
    const int rows = size() / s_bytesPerRow + 1;
    const int visible = visibleRows();
    QScrollBar *v = q->verticalScrollBar();
    v->setRange(0, std::max(0, rows - visible));
    v->setPageStep(visible);
    v->setSingleStep(1);
    const int width = q->viewport()->width();
    QScrollBar *h = q->horizontalScrollBar();
    h->setRange(0, std::max(0, int(std::ceil(layout.contentWidth())) - width));
    h->setPageStep(width);
    h->setSingleStep(int(std::ceil(layout.cellWidth())));
}

QRect QHexEditPrivate::cursorRect() const
{
    const int byte = cursor.byte();
    const int row = byte / s_bytesPerRow - firstRow();
    const int col = byte % s_bytesPerRow;
    const QRectF cell = (cursor.ascii || !hexArea) ? layout.asciiCell(row, col)
                                                   : layout.hexCell(row, col, cursor.nibble & 1);
    return cell.translated(-q->horizontalScrollBar()->value(), 0).toAlignedRect();
}

void QHexEditPrivate::ensureCursorVisible()
{
    // Before the first show the viewport has no real size to scroll by.
    if (!q->isVisible()) {
        scrollPending = true;
        return;
    }
    scrollPending = false;
    // The viewport may have grown by a scroll bar that went away.
    if (q->verticalScrollBar()->pageStep() != visibleRows())
        updateScrollBars();
    const int row = cursor.byte() / s_bytesPerRow;
    QScrollBar *v = q->verticalScrollBar();
    if (row < v->value())
        v->setValue(row);
    else if (row >= v->value() + visibleRows())
        v->setValue(row - visibleRows() + 1);
    const QRect cell = cursorRect();
    const int cw = int(std::ceil(layout.cellWidth()));
    QScrollBar *h = q->horizontalScrollBar();
    if (cell.left() < 0)
        h->setValue(h->value() + cell.left() - cw);
    else if (cell.right() >= q->viewport()->width())
        h->setValue(h->value() + cell.right() - q->viewport()->width() + 2 * cw);
}

QColor QHexEditPrivate::addressBackground() const
{
    if (addressAreaColor.isValid())
        return addressAreaColor;
    const QPalette pal = q->palette();
    return mix(pal.color(QPalette::Base), pal.color(QPalette::Text), 0.06);
}

QColor QHexEditPrivate::changedBackground() const
{
    if (highlightingColor.isValid())
        return highlightingColor;
    return isDark(q->palette()) ? QColor(0x5c, 0x4b, 0x12) : QColor(0xff, 0xf0, 0x9a);
}

QColor QHexEditPrivate::selectionBackground() const
{
    return selectionColor.isValid() ? selectionColor : q->palette().color(QPalette::Highlight);
}

void QHexEditPrivate::paint(QPainter &painter, const QRect &exposed)
{
    const QPalette pal = q->palette();
    const QPalette::ColorGroup group = q->isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QColor base = pal.color(QPalette::Base);
    const QColor text = pal.color(group, QPalette::Text);
    const QColor colours[StyleCount] = {
        text, isDark(pal) ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x10, 0x10),
        pal.color(group, QPalette::HighlightedText)
    };
    const QColor backgrounds[StyleCount] = { base, changedBackground(), selectionBackground() };
    painter.fillRect(exposed, base);
    painter.translate(-q->horizontalScrollBar()->value(), 0);

    const HexLayout &l = layout;
    const qreal rowHeight = l.rowHeight();
    const int size = this->size();
    const int top = firstRow();
    const int firstVisible = std::max(0, int(exposed.top() / rowHeight));
    const int lastVisible = int(exposed.bottom() / rowHeight);
    const QRectF band(0, exposed.top(), l.contentWidth(), exposed.height());
    if (addressArea)
        painter.fillRect(QRectF(0, band.top(), l.addressEnd(), band.height()), addressBackground());
    const qreal line = 1 / l.options().devicePixelRatio;
    for (const qreal x : { l.firstSeparator(), l.secondSeparator() }) {
        if (x >= 0)
            painter.fillRect(QRectF(x, band.top(), line, band.height()), mix(base, text, 0.3));
    }

    const int selStart = cursor.selectionStart();
    const int selEnd = cursor.selectionEnd();
    const char *bytes = buffer.data().constData();
    const int digits = l.options().addressDigits;
    GlyphBatch batches[StyleCount];
    GlyphBatch addresses;
    for (int r = firstVisible; r <= lastVisible; ++r) {
        const qint64 rowStart = (qint64(top) + r) * s_bytesPerRow;
        if (rowStart > size)
            break;
        if (addressArea) {
            quint64 address = quint64(rowStart + buffer.addressOffset());
            for (int d = digits - 1; d >= 0; --d, address >>= 4)
                addresses.add(l, s_hexDigits[address & 0xf], l.addressCell(r, d));
        }
        const int count = int(std::min<qint64>(s_bytesPerRow, size - rowStart));
        int style[s_bytesPerRow];
        for (int k = 0; k < count; ++k) {
            const int i = int(rowStart) + k;
            style[k] = (i >= selStart && i < selEnd) ? Selected
                : (highlighting && buffer.dataChanged(i)) ? Changed : Plain;
        }
        for (int k0 = 0; k0 < count;) {
            int k1 = k0 + 1;
            while (k1 < count && style[k1] == style[k0])
                ++k1;
            if (style[k0] != Plain) {
                if (hexArea)
                    painter.fillRect(l.hexRun(r, k0, k1 - 1), backgrounds[style[k0]]);
                if (asciiArea)
                    painter.fillRect(l.asciiRun(r, k0, k1 - 1), backgrounds[style[k0]]);
            }
            k0 = k1;
        }
        for (int k = 0; k < count; ++k) {
            const uchar b = uchar(bytes[rowStart + k]);
            GlyphBatch &batch = batches[style[k]];
            if (hexArea) {
                batch.add(l, s_hexDigits[b >> 4], l.hexCell(r, k, 0));
                batch.add(l, s_hexDigits[b & 0xf], l.hexCell(r, k, 1));
            }
            if (asciiArea)
                batch.add(l, printable(char(b)), l.asciiCell(r, k));
        }
    }
    addresses.draw(painter, l, mix(text, base, 0.35));
    for (int s = 0; s < StyleCount; ++s)
        batches[s].draw(painter, l, colours[s]);

    // Cursor: a block (overwrite) or a bar (insert) in the typing column, a frame
    // around the same byte in the other column and whenever the editor has no focus.
    if (!hexArea && !asciiArea)
        return;
    const int byte = cursor.byte();
    const int row = byte / s_bytesPerRow - top;
    if (row < firstVisible || row > lastVisible)
        return;
    const int col = byte % s_bytesPerRow;
    const bool asciiCursor = cursor.ascii || !hexArea;
    const QRectF primary = asciiCursor ? l.asciiCell(row, col) : l.hexCell(row, col, cursor.nibble & 1);
    const QRectF other = asciiCursor ? l.hexByte(row, col) : l.asciiCell(row, col);
    QPen frame(text, 0);
    painter.setPen(frame);
    painter.setBrush(Qt::NoBrush);
    const QRectF inset(line / 2, line / 2, -line, -line);
    if (asciiCursor ? hexArea : asciiArea)
        painter.drawRect(other.adjusted(inset.x(), inset.y(), inset.width(), inset.height()));
    if (!q->hasFocus()) {
        painter.drawRect(primary.adjusted(inset.x(), inset.y(), inset.width(), inset.height()));
    } else if (blinkOn) {
        if (overwrite && byte < size) {
            painter.fillRect(primary, text);
            const uchar b = uchar(bytes[byte]);
            const char c = asciiCursor ? printable(char(b)) : s_hexDigits[(cursor.nibble & 1) ? (b & 0xf) : (b >> 4)];
            GlyphBatch glyph;
            glyph.add(l, c, primary);
            glyph.draw(painter, l, base);
        } else {
            painter.fillRect(QRectF(primary.left(), primary.top(), l.snap(std::max<qreal>(2, l.cellWidth() / 8)),
                                    primary.height()), text);
        }
    }
}
