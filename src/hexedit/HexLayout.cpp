// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "HexLayout_p.h"

#include <QVector>

#include <algorithm>
#include <cmath>

HexLayout::HexLayout(const Options &options)
    : m_options(options)
{
    const qreal dpr = std::max<qreal>(1, options.devicePixelRatio);
    m_options.devicePixelRatio = dpr;
    m_rawFont = QRawFont::fromFont(options.font);

    // Every printable character gets a cell as wide as the widest advance or ink
    // box, so proportional fonts and overhanging glyphs stay on the grid.
    QString printable;
    for (int c = 0x20; c < 0x7f; ++c)
        printable += QLatin1Char(char(c));
    const QVector<quint32> glyphs = m_rawFont.glyphIndexesForString(printable);
    const QVector<QPointF> advances = m_rawFont.advancesForGlyphIndexes(glyphs);
    qreal width = 1;
    qreal ascent = m_rawFont.ascent();
    qreal descent = m_rawFont.descent();
    for (int i = 0; i < glyphs.size() && i < printable.size(); ++i) {
        const int c = 0x20 + i;
        m_glyphs[c] = glyphs.at(i);
        m_boxes[c] = c == ' ' ? QRectF() : m_rawFont.boundingRect(glyphs.at(i));
        width = std::max({ width, advances.value(i).x(), m_boxes[c].width() });
        if (!m_boxes[c].isEmpty()) {
            ascent = std::max(ascent, -m_boxes[c].top());
            descent = std::max(descent, m_boxes[c].bottom());
        }
    }
    m_cell = snap(width);
    const qreal pad = snap(1);
    const qreal baseline = snap(pad + ascent);
    m_row = snap(baseline + descent + pad);
    for (int c = 0x20; c < 0x7f; ++c) {
        const QRectF &box = m_boxes[c];
        const qreal x = box.isEmpty() ? 0 : (m_cell - box.width()) / 2 - box.left();
        m_origins[c] = QPointF(std::round(x * dpr) / dpr, baseline);
    }

    // Areas with a gap of half a cell on both sides of each separator line.
    const qreal margin = snap(m_cell / 2);
    const qreal line = 1 / dpr;
    qreal x = margin;
    if (m_options.addressArea) {
        x += m_options.addressDigits * m_cell + margin;
        m_addressEnd = x;
        if (m_options.hexArea || m_options.asciiArea) {
            m_separator1 = x;
            x += line + margin;
        }
    }
    m_hexStart = x;
    if (m_options.hexArea) {
        x += (3 * bytesPerRow - 1) * m_cell + margin;
        if (m_options.asciiArea) {
            m_separator2 = x;
            x += line + margin;
        }
    }
    m_asciiStart = x;
    if (m_options.asciiArea)
        x += bytesPerRow * m_cell + margin;
    m_width = x;
}

qreal HexLayout::snap(qreal v) const
{
    const qreal dpr = m_options.devicePixelRatio;
    return std::ceil(v * dpr - 1e-6) / dpr;
}

QRectF HexLayout::rowRect(int row) const
{
    return QRectF(0, row * m_row, m_width, m_row);
}

QRectF HexLayout::addressCell(int row, int digit) const
{
    return QRectF(snap(m_cell / 2) + digit * m_cell, row * m_row, m_cell, m_row);
}

QRectF HexLayout::hexCell(int row, int column, int nibble) const
{
    return QRectF(m_hexStart + (3 * column + nibble) * m_cell, row * m_row, m_cell, m_row);
}

QRectF HexLayout::hexByte(int row, int column) const
{
    return QRectF(m_hexStart + 3 * column * m_cell, row * m_row, 2 * m_cell, m_row);
}

QRectF HexLayout::asciiCell(int row, int column) const
{
    return QRectF(m_asciiStart + column * m_cell, row * m_row, m_cell, m_row);
}

QRectF HexLayout::hexRun(int row, int first, int last) const
{
    // Half the gap on each side, so neighbouring runs meet without a seam.
    const qreal half = snap(m_cell / 2);
    const QRectF a = hexByte(row, first);
    const QRectF b = hexByte(row, last);
    return QRectF(QPointF(a.left() - half, a.top()), QPointF(b.right() + half, b.bottom()));
}

QRectF HexLayout::asciiRun(int row, int first, int last) const
{
    return asciiCell(row, first).united(asciiCell(row, last));
}

HexLayout::Hit HexLayout::hitTest(const QPointF &pos) const
{
    Hit hit;
    hit.row = int(std::floor(pos.y() / m_row));
    const qreal x = pos.x();
    const qreal border = m_separator2 >= 0 ? m_separator2 : m_asciiStart;
    hit.ascii = m_options.asciiArea && (!m_options.hexArea || x >= border);
    if (hit.ascii) {
        hit.column = std::clamp(int(std::floor((x - m_asciiStart) / m_cell)), 0, bytesPerRow - 1);
        return hit;
    }
    const qreal rel = x - (m_hexStart - m_cell / 2);
    hit.column = std::clamp(int(std::floor(rel / (3 * m_cell))), 0, bytesPerRow - 1);
    hit.nibble = x - hexByte(0, hit.column).left() >= m_cell ? 1 : 0;
    return hit;
}

QRectF HexLayout::glyphBox(char c, const QPointF &cellTopLeft) const
{
    const int i = uchar(c) & 0x7f;
    return m_boxes[i].translated(cellTopLeft + m_origins[i]);
}
